# Every dependency is a Debian package installed by scripts/setup.sh.
find_package(Boost 1.74 REQUIRED COMPONENTS filesystem program_options)
find_package(GEOS CONFIG REQUIRED)
find_package(pugixml CONFIG REQUIRED)
find_package(SQLite3 REQUIRED)
find_package(Threads REQUIRED)

find_path(DXFLIB_INCLUDE_DIR dl_dxf.h PATH_SUFFIXES dxflib REQUIRED)
find_library(DXFLIB_LIBRARY NAMES dxflib REQUIRED)
if(NOT TARGET dxflib::dxflib)
  add_library(dxflib::dxflib UNKNOWN IMPORTED)
  set_target_properties(dxflib::dxflib PROPERTIES
    IMPORTED_LOCATION "${DXFLIB_LIBRARY}"
    INTERFACE_INCLUDE_DIRECTORIES "${DXFLIB_INCLUDE_DIR}")
endif()

find_path(RAPIDJSON_INCLUDE_DIR rapidjson/document.h REQUIRED)
if(NOT TARGET RapidJSON::RapidJSON)
  add_library(RapidJSON::RapidJSON INTERFACE IMPORTED)
  set_target_properties(RapidJSON::RapidJSON PROPERTIES
    INTERFACE_INCLUDE_DIRECTORIES "${RAPIDJSON_INCLUDE_DIR}")
endif()

find_path(ODBC_INCLUDE_DIR sql.h)
find_library(ODBC_LIBRARY NAMES odbc)
if(ODBC_INCLUDE_DIR AND ODBC_LIBRARY AND NOT TARGET ODBC::ODBC)
  add_library(ODBC::ODBC UNKNOWN IMPORTED)
  set_target_properties(ODBC::ODBC PROPERTIES
    IMPORTED_LOCATION "${ODBC_LIBRARY}"
    INTERFACE_INCLUDE_DIRECTORIES "${ODBC_INCLUDE_DIR}")
endif()
