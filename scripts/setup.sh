#!/usr/bin/env bash
# Installs every Debian package the project needs. Safe to run again.
set -euo pipefail

packages=(
  build-essential cmake ninja-build pkg-config git
  libboost-dev libboost-filesystem-dev libboost-program-options-dev
  libgeos++-dev libgeos-dev
  libpugixml-dev rapidjson-dev libdxflib-dev
  libsqlite3-dev sqlite3
  unixodbc-dev odbc-mdbtools mdbtools
  libgtest-dev libgmock-dev googletest
  python3-ezdxf python3-matplotlib librsvg2-bin
  librecad
)

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done

if [ ${#missing[@]} -gt 0 ]; then
  SUDO=""
  [ "$(id -u)" -eq 0 ] || SUDO="sudo"
  export DEBIAN_FRONTEND=noninteractive
  $SUDO apt-get update -qq
  $SUDO apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi
