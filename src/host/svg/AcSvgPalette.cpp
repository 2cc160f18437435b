#include "host/svg/AcSvgPalette.h"

#include <array>
#include <cmath>
#include <cstdio>

namespace {
// Indexes 10..249 run through 24 hues 15 degrees apart; within a hue the last digit picks the
// brightness (pairs of 100, 65, 50, 30, 15 %), odd digits at half saturation. The host's values are
// those fractions of 255, cut (not rounded) to whole numbers.
Adesk::UInt32 hueEntry(int index) {
    static constexpr std::array<double, 10> kValue = {1.0, 1.0, 0.65, 0.65, 0.5, 0.5, 0.3, 0.3, 0.15, 0.15};
    const int row = index % 10;
    const double saturation = row % 2 == 0 ? 1.0 : 0.5;
    const double h = (index - 10) / 10 * 15.0 / 60.0;
    const int sector = static_cast<int>(h) % 6;
    const double f = h - std::floor(h);
    const double p = 1.0 - saturation;
    const double q = 1.0 - saturation * f;
    const double t = 1.0 - saturation * (1.0 - f);
    static constexpr int kPick[6][3] = {{0, 3, 1}, {2, 0, 1}, {1, 0, 3}, {1, 2, 0}, {3, 1, 0}, {0, 1, 2}};
    const double levels[4] = {1.0, p, q, t};
    Adesk::UInt32 rgb = 0;
    for (int channel = 0; channel < 3; ++channel) {
        const double v = levels[kPick[sector][channel]] * kValue[static_cast<std::size_t>(row)] * 255.0;
        rgb = (rgb << 8) | static_cast<Adesk::UInt32>(std::floor(v + 1e-9));
    }
    return rgb;
}
}  // namespace

Adesk::UInt32 acsvgAciToRgb(Adesk::UInt16 index) {
    static constexpr Adesk::UInt32 kFirst[10] = {0x000000, 0xFF0000, 0xFFFF00, 0x00FF00, 0x00FFFF,
                                                 0x0000FF, 0xFF00FF, 0xFFFFFF, 0x808080, 0xC0C0C0};
    if (index == 0 || index > 255) return 0x000000;
    if (index < 10) return kFirst[index];
    if (index < 250) return hueEntry(index);
    // Six greys from 20 % to white.
    const auto grey = static_cast<Adesk::UInt32>(std::floor(255.0 * (0.2 + 0.16 * (index - 250)) + 1e-9));
    return grey << 16 | grey << 8 | grey;
}

std::string acsvgRgbHex(Adesk::UInt32 rgb) {
    char text[8];
    std::snprintf(text, sizeof text, "#%06x", static_cast<unsigned>(rgb & 0xFFFFFF));
    return text;
}
