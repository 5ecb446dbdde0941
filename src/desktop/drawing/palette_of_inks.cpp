// SPDX-License-Identifier: MIT
// The shades themselves. The test of contrasts walks every pair that carries text.
#include "desktop/drawing/palette_of_inks.h"

#include <algorithm>
#include <cmath>

#include <QPalette>

namespace velmor::desktop {

namespace luminances {

double linear(int channel)
{
    const double value = channel / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color)
{
    return 0.2126 * linear(color.red()) + 0.7152 * linear(color.green()) + 0.0722 * linear(color.blue());
}

} // namespace luminances

// clang-format off
const Inks& lightInks()
{
    static const Inks inks{
        .dark         = false,
        .desk         = QColor(0xE9, 0xEC, 0xF0),
        .paper        = QColor(0xFD, 0xFD, 0xFB),
        .ink          = QColor(0x16, 0x18, 0x1D),
        .quiet        = QColor(0x59, 0x60, 0x6D),
        .pale         = QColor(0x8A, 0x92, 0xA0),
        .accent       = QColor(0x1A, 0x5F, 0xB4),
        .accentTint   = QColor(0xDC, 0xE9, 0xF9),
        .onAccent     = QColor(0xFF, 0xFF, 0xFF),
        .warning      = QColor(0xA5, 0x1D, 0x1D),
        .warningTint  = QColor(0xFC, 0xEB, 0xE8),
        .rule         = QColor(0xD3, 0xD8, 0xDF),
        .edge         = QColor(0x80, 0x88, 0x95),
        .voice        = QColor(0xEA, 0xF1, 0xFB),
        .hint         = QColor(0xFB, 0xF3, 0xDC),
        .balloon      = QColor(0x2B, 0x31, 0x3C),
        .onBalloon    = QColor(0xF5, 0xF7, 0xFA),
        .field        = QColor(0xFF, 0xFF, 0xFF),
        .fieldInk     = QColor(0x16, 0x18, 0x1D),
        .fieldOff     = QColor(0xEE, 0xF0, 0xF3),
        .fieldOffInk  = QColor(0x5C, 0x63, 0x70),
        .button       = QColor(0xF3, 0xF5, 0xF8),
        .buttonHover  = QColor(0xE2, 0xEC, 0xF9),
        .buttonOff    = QColor(0xF1, 0xF2, 0xF4),
        .buttonOffInk = QColor(0x64, 0x6A, 0x76),
    };
    return inks;
}

const Inks& darkInks()
{
    static const Inks inks{
        .dark         = true,
        .desk         = QColor(0x17, 0x19, 0x1E),
        .paper        = QColor(0x21, 0x24, 0x2B),
        .ink          = QColor(0xE8, 0xEB, 0xF0),
        .quiet        = QColor(0xA6, 0xAE, 0xBB),
        .pale         = QColor(0x6B, 0x73, 0x82),
        .accent       = QColor(0x7F, 0xB4, 0xFA),
        .accentTint   = QColor(0x26, 0x3B, 0x58),
        .onAccent     = QColor(0x10, 0x14, 0x1B),
        .warning      = QColor(0xFF, 0x9A, 0x8D),
        .warningTint  = QColor(0x45, 0x25, 0x25),
        .rule         = QColor(0x3A, 0x3F, 0x4A),
        .edge         = QColor(0x78, 0x81, 0x90),
        .voice        = QColor(0x24, 0x2F, 0x40),
        .hint         = QColor(0x3A, 0x34, 0x22),
        .balloon      = QColor(0xE8, 0xEB, 0xF0),
        .onBalloon    = QColor(0x1A, 0x1D, 0x23),
        .field        = QColor(0x18, 0x1B, 0x20),
        .fieldInk     = QColor(0xEF, 0xF2, 0xF6),
        .fieldOff     = QColor(0x29, 0x2D, 0x35),
        .fieldOffInk  = QColor(0x9E, 0xA6, 0xB3),
        .button       = QColor(0x2E, 0x33, 0x3D),
        .buttonHover  = QColor(0x35, 0x45, 0x5C),
        .buttonOff    = QColor(0x26, 0x2A, 0x31),
        .buttonOffInk = QColor(0x93, 0x9B, 0xA8),
    };
    return inks;
}
// clang-format on

const Inks& printInks()
{
    static const Inks inks = [] {
        Inks print = lightInks();
        print.desk = print.paper = print.fieldOff = print.voice = print.hint = QColor(Qt::white);
        print.ink = print.fieldInk = print.fieldOffInk = QColor(Qt::black);
        return print;
    }();
    return inks;
}

const Inks& inksFor(const QPalette& desktop)
{
    const bool dark = luminances::luminance(desktop.color(QPalette::Window)) <
                      luminances::luminance(desktop.color(QPalette::WindowText));
    return dark ? darkInks() : lightInks();
}

QColor shade(const Inks& inks, host::Ink ink)
{
    switch (ink) {
    case host::Ink::accent:
        return inks.accent;
    case host::Ink::quiet:
        return inks.quiet;
    case host::Ink::warning:
        return inks.warning;
    case host::Ink::normal:
        break;
    }
    return inks.ink;
}

double contrast(const QColor& one, const QColor& other)
{
    const auto [darker, lighter] = std::minmax({luminances::luminance(one), luminances::luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor readableOn(const QColor& ground, const QColor& wished)
{
    const bool towardsLight = contrast(ground, Qt::white) >= contrast(ground, Qt::black);
    const QColor end = towardsLight ? QColor(Qt::white) : QColor(Qt::black);
    for (int step = 0; step < 8; ++step) {
        const double part = step / 8.0;
        const auto mix = [part](int from, int to) { return static_cast<int>(std::lround(from + (to - from) * part)); };
        const QColor color(mix(wished.red(), end.red()), mix(wished.green(), end.green()),
                           mix(wished.blue(), end.blue()));
        if (contrast(ground, color) >= 4.5)
            return color;
    }
    return end;
}

} // namespace velmor::desktop
