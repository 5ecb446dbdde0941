// SPDX-License-Identifier: MIT
// The pictures of the pages that the talkative mouse shows, in a box of 540 by 313 units: the schematic of each design as
// its sheet draws it when it is finished, and a picture for the poem. A table for the main window.
#pragma once

#include <array>
#include <string_view>

#include "host/drawing.h"

namespace velmor::main_window::page_drawings {

using host::GridPoint;
using host::Ink;
using host::Mark;
using host::Side;
using host::Symbol;

constexpr GridPoint point(int x, int y)
{
    return {static_cast<std::int16_t>(x), static_cast<std::int16_t>(y)};
}
constexpr Mark wire(int fromX, int fromY, int toX, int toY)
{
    return {.symbol = Symbol::wire, .from = point(fromX, fromY), .to = point(toX, toY)};
}
constexpr Mark part(Symbol symbol, int fromX, int fromY, int toX, int toY, std::string_view name = {},
                    Side side = Side::none)
{
    return {.symbol = symbol, .from = point(fromX, fromY), .to = point(toX, toY), .name = name, .side = side};
}
constexpr Mark resistor(int fromX, int fromY, int toX, int toY, std::string_view name, Side side = Side::none)
{
    return part(Symbol::resistor, fromX, fromY, toX, toY, name, side);
}
constexpr Mark capacitor(int fromX, int fromY, int toX, int toY, std::string_view name, Side side = Side::none)
{
    return part(Symbol::capacitor, fromX, fromY, toX, toY, name, side);
}
constexpr Mark put(Symbol symbol, int x, int y, std::string_view name = {}, Side side = Side::none)
{
    return {.symbol = symbol, .from = point(x, y), .name = name, .side = side};
}
constexpr Mark node(int x, int y)
{
    return put(Symbol::node, x, y);
}
constexpr Mark ground(int x, int y)
{
    return put(Symbol::ground, x, y);
}
constexpr Mark terminal(int x, int y, std::string_view name = {}, Side side = Side::none)
{
    return put(Symbol::terminal, x, y, name, side);
}
constexpr Mark signal(Symbol symbol, int fromX, int fromY, int toX, int toY)
{
    return {.symbol = symbol, .from = point(fromX, fromY), .to = point(toX, toY), .ink = Ink::accent};
}
constexpr Mark name(int x, int y, std::string_view text)
{
    return put(Symbol::label, x, y, text);
}

// clang-format off
inline constexpr Mark longTailedPair[] = {
    wire(180, 20, 400, 20), terminal(400, 20, "E_s", Side::right), node(360, 20),
    resistor(180, 20, 180, 90, "R_L", Side::left), resistor(360, 20, 360, 90, "R_L", Side::right),
    wire(180, 90, 180, 120), wire(360, 90, 360, 120), node(180, 100), node(360, 100),
    wire(180, 100, 200, 100), capacitor(200, 100, 240, 100, "C_co", Side::above), terminal(248, 100), wire(240, 100, 248, 100),
    wire(360, 100, 340, 100), capacitor(340, 100, 300, 100, "C_co", Side::above), terminal(292, 100), wire(300, 100, 292, 100),
    put(Symbol::npn, 150, 150), put(Symbol::npnLeft, 390, 150), name(200, 150, "Q_1"), name(322, 150, "Q_2"),
    wire(180, 180, 180, 200), wire(360, 180, 360, 200), wire(180, 200, 360, 200), node(270, 200),
    resistor(270, 200, 270, 270, "R_es", Side::right), wire(270, 270, 270, 284), terminal(270, 287, "-E_bias", Side::right),
    wire(120, 150, 150, 150), node(120, 150), resistor(120, 150, 120, 230, "R_b2", Side::left), ground(120, 230),
    capacitor(70, 150, 120, 150, "C_ci", Side::above), wire(60, 150, 70, 150), terminal(57, 150), signal(Symbol::sine, 10, 136, 46, 164),
    wire(390, 150, 420, 150), node(420, 150), resistor(420, 150, 420, 230, "R_b2", Side::right), ground(420, 230),
    capacitor(470, 150, 420, 150, "C_ci", Side::above), wire(470, 150, 480, 150), terminal(483, 150),
    signal(Symbol::sineInverted, 494, 136, 530, 164),
};

inline constexpr Mark cascodePair[] = {
    wire(90, 10, 480, 10), terminal(483, 10, "E_s", Side::right), node(190, 10), node(330, 10), node(440, 10),
    resistor(90, 10, 90, 70, "R_L1", Side::left), resistor(190, 10, 190, 70, "R_L1", Side::right),
    wire(90, 70, 90, 100), wire(190, 70, 190, 100), node(90, 80), node(190, 90),
    put(Symbol::npn, 60, 130), put(Symbol::npnLeft, 220, 130), name(108, 130, "Q_1"), name(152, 130, "Q_2"),
    wire(40, 130, 60, 130), terminal(37, 130), signal(Symbol::sine, 8, 120, 28, 140), wire(220, 130, 232, 130), terminal(235, 130),
    wire(90, 160, 90, 170), wire(190, 160, 190, 170), wire(90, 170, 190, 170), node(140, 170),
    put(Symbol::npn, 110, 200), name(162, 200, "Q_5"), wire(80, 200, 110, 200), terminal(77, 200),
    resistor(140, 230, 140, 285, "R_es1", Side::right), wire(140, 285, 140, 296), terminal(140, 299, "-E_bias", Side::right),
    wire(190, 90, 300, 90), wire(90, 80, 260, 80), wire(260, 80, 260, 160), wire(260, 160, 500, 160),
    wire(500, 160, 500, 90), wire(500, 90, 470, 90),
    resistor(330, 10, 330, 60, "R_L2", Side::left), resistor(440, 10, 440, 60, "R_L2", Side::left),
    put(Symbol::npn, 300, 90), put(Symbol::npnLeft, 470, 90), name(348, 90, "Q_3"), name(402, 90, "Q_4"),
    wire(330, 120, 330, 130), wire(440, 120, 440, 130), wire(330, 130, 440, 130), node(385, 130), wire(385, 130, 385, 180),
    resistor(385, 180, 385, 240, "R_es", Side::right), ground(385, 240),
    node(440, 60), wire(440, 60, 510, 60), terminal(513, 60, "v_o", Side::below),
};

inline constexpr Mark commonBase[] = {
    wire(170, 20, 310, 20), terminal(313, 20, "E_s", Side::right), node(260, 20),
    resistor(260, 20, 260, 90, "R_L", Side::right), wire(260, 90, 260, 120), node(260, 105),
    put(Symbol::npn, 230, 150), name(280, 150, "T_1"),
    resistor(170, 20, 170, 110, "R_b1", Side::left), wire(170, 110, 170, 190), node(170, 150), wire(110, 150, 230, 150),
    resistor(170, 190, 170, 260, "R_b2", Side::left), ground(170, 260),
    wire(110, 150, 110, 190), part(Symbol::polarised, 110, 190, 110, 230, "C_b", Side::left), wire(110, 230, 110, 260), ground(110, 260),
    wire(260, 180, 260, 200), node(260, 190), resistor(260, 200, 260, 260, "R_es", Side::left), ground(260, 260),
    wire(260, 190, 310, 190), capacitor(310, 190, 350, 190, "C_in", Side::above), wire(350, 190, 390, 190),
    part(Symbol::generator, 390, 200, 390, 260, "v_g", Side::right), wire(390, 190, 390, 200), ground(390, 260),
    wire(260, 105, 330, 105), capacitor(330, 105, 370, 105, "C_out", Side::above), wire(370, 105, 460, 105), node(460, 105),
    resistor(460, 120, 460, 200, "R_Lw", Side::right), wire(460, 105, 460, 120), wire(460, 200, 460, 260), ground(460, 260),
    wire(460, 105, 480, 105), terminal(483, 105), signal(Symbol::sine, 494, 90, 530, 120),
};

inline constexpr Mark currentSource[] = {
    {.symbol = Symbol::text, .from = {290, 22}, .note = {.es = "al par diferencial", .en = "to the differential pair"},
     .side = Side::right, .size = 85},
    terminal(280, 22), wire(280, 25, 280, 110),
    {.symbol = Symbol::arrow, .from = {302, 50}, .to = {302, 96}, .name = "I", .side = Side::right, .ink = Ink::accent},
    put(Symbol::npn, 250, 140), name(300, 140, "T_1"),
    terminal(180, 22, "E_b", Side::left), wire(180, 25, 180, 40), resistor(180, 40, 180, 110, "R_b2", Side::left), wire(180, 110, 180, 160),
    node(180, 140), wire(180, 140, 250, 140),
    resistor(180, 160, 180, 215, "R_b1", Side::left), part(Symbol::diode, 180, 215, 180, 255, "D_1", Side::left),
    wire(280, 170, 280, 180), resistor(280, 180, 280, 255, "R_es", Side::right),
    wire(180, 255, 180, 270), wire(280, 255, 280, 270), wire(180, 270, 330, 270), node(280, 270),
    terminal(333, 270, "-E_bias", Side::right),
};

inline constexpr Mark paraphase[] = {
    wire(180, 20, 320, 20), terminal(323, 20, "E_s", Side::right), node(270, 20),
    resistor(180, 20, 180, 110, "R_b1", Side::left), wire(180, 110, 180, 180),
    resistor(180, 180, 180, 270, "R_b2", Side::right), ground(180, 270),
    resistor(270, 20, 270, 100, "R_L", Side::right), wire(270, 100, 270, 120), put(Symbol::npn, 240, 150), name(290, 150, "T_1"),
    node(180, 150), wire(150, 150, 240, 150), capacitor(100, 150, 150, 150, "C_in", Side::above),
    wire(60, 150, 100, 150), wire(60, 150, 60, 180), part(Symbol::generator, 60, 180, 60, 250, "v_g", Side::left),
    wire(60, 250, 60, 270), ground(60, 270),
    wire(270, 180, 270, 200), resistor(270, 200, 270, 270, "R_es", Side::right), ground(270, 270),
    node(270, 110), wire(270, 110, 330, 110), capacitor(330, 110, 370, 110, "C_1", Side::above),
    wire(370, 110, 400, 110), terminal(403, 110),
    node(270, 190), wire(270, 190, 330, 190), capacitor(330, 190, 370, 190, "C_2", Side::above),
    wire(370, 190, 400, 190), terminal(403, 190),
    signal(Symbol::sine, 10, 130, 46, 170), signal(Symbol::sineInverted, 420, 90, 480, 130), signal(Symbol::sine, 420, 170, 480, 210),
};

inline constexpr Mark emitterFollower[] = {
    wire(190, 20, 330, 20), terminal(333, 20, "E_s", Side::right), node(280, 20), wire(280, 20, 280, 110),
    resistor(190, 20, 190, 110, "R_b1", Side::left), wire(190, 110, 190, 180),
    resistor(190, 180, 190, 260, "R_b2", Side::right), ground(190, 260),
    put(Symbol::npn, 250, 140), name(300, 140, "T_1"), node(190, 140), wire(160, 140, 250, 140),
    capacitor(120, 140, 160, 140, "C_in", Side::above), resistor(50, 140, 110, 140, "R_g", Side::above), wire(110, 140, 120, 140),
    wire(50, 140, 50, 170), part(Symbol::generator, 50, 170, 50, 240, "v_g", Side::left), wire(50, 240, 50, 260), ground(50, 260),
    wire(280, 170, 280, 190), node(280, 180), resistor(280, 190, 280, 260, "R_es", Side::left), ground(280, 260),
    wire(280, 180, 330, 180), part(Symbol::polarised, 330, 180, 370, 180, "C_out", Side::above), wire(370, 180, 430, 180), node(430, 180),
    resistor(430, 190, 430, 260, "R_Lw", Side::left), wire(430, 180, 430, 190), ground(430, 260),
    wire(430, 180, 460, 180), terminal(463, 180), signal(Symbol::sine, 475, 162, 520, 198),
};

inline constexpr Mark classADarlington[] = {
    wire(130, 20, 390, 20), terminal(393, 20, "E_s", Side::right), node(190, 20), node(280, 20), node(340, 20),
    resistor(190, 20, 190, 75, "R_La", Side::right), resistor(190, 85, 190, 140, "R_Lb", Side::right),
    wire(190, 75, 190, 85), node(190, 80),
    wire(190, 140, 190, 180), node(190, 150), put(Symbol::npn, 160, 210), name(210, 210, "Q_1"), ground(190, 240),
    wire(190, 150, 250, 150), put(Symbol::npn, 250, 150), wire(280, 120, 280, 20), name(226, 172, "Q_2"),
    wire(280, 180, 310, 180), put(Symbol::npn, 310, 180), wire(340, 150, 340, 20), name(290, 208, "Q_3"),
    wire(340, 210, 340, 225), node(340, 218), part(Symbol::loudspeaker, 340, 225, 340, 280, "R_Lw", Side::left), ground(340, 280),
    wire(190, 80, 410, 80), wire(410, 80, 410, 120), part(Symbol::polarised, 410, 120, 410, 170, "C_bp1", Side::right),
    wire(410, 170, 410, 218), wire(340, 218, 410, 218),
    wire(130, 20, 130, 60), resistor(130, 60, 130, 150, "R_b1", Side::left), wire(130, 150, 130, 220), node(130, 210),
    resistor(130, 220, 130, 280, "R_b2", Side::left), ground(130, 280),
    wire(100, 210, 160, 210), capacitor(60, 210, 100, 210, "C_ci", Side::above), wire(50, 210, 60, 210),
    terminal(47, 210), signal(Symbol::sine, 6, 196, 38, 224),
};

inline constexpr Mark classASimple[] = {
    wire(130, 20, 380, 20), terminal(383, 20, "E_s", Side::right), node(210, 20), node(310, 20),
    resistor(210, 20, 210, 110, "R_L", Side::right), wire(210, 110, 210, 170), node(210, 130),
    put(Symbol::npn, 180, 200), name(230, 200, "Q_1"), ground(210, 230),
    wire(210, 130, 280, 130), put(Symbol::npn, 280, 130), wire(310, 100, 310, 20), name(330, 130, "Q_2"),
    wire(310, 160, 310, 200), node(310, 180), part(Symbol::loudspeaker, 310, 200, 310, 260, "R_Lw", Side::left), ground(310, 260),
    resistor(130, 20, 130, 80, "R_b1a", Side::left), wire(130, 80, 130, 100), node(130, 90),
    resistor(130, 100, 130, 160, "R_b1b", Side::left),
    wire(130, 160, 130, 210), node(130, 200), resistor(130, 210, 130, 270, "R_b2", Side::left), ground(130, 270),
    wire(130, 90, 250, 90), part(Symbol::polarised, 290, 90, 250, 90, "C_bp", Side::above), wire(290, 90, 400, 90),
    wire(400, 90, 400, 180), wire(400, 180, 310, 180),
    wire(100, 200, 180, 200), capacitor(60, 200, 100, 200, "C_ci", Side::above), wire(50, 200, 60, 200),
    terminal(47, 200), signal(Symbol::sine, 6, 186, 38, 214),
};

inline constexpr Mark classBSimple[] = {
    wire(190, 15, 350, 15), terminal(353, 15, "E_s", Side::right), node(290, 15), wire(290, 15, 290, 50),
    resistor(190, 15, 190, 75, "R_L", Side::left), wire(190, 75, 190, 90), node(190, 80), wire(190, 80, 260, 80),
    put(Symbol::npn, 260, 80), name(310, 80, "Q_2"),
    part(Symbol::diode, 190, 90, 190, 140, "D_1", Side::left), part(Symbol::diode, 190, 140, 190, 190, "D_2", Side::right),
    wire(190, 190, 190, 250), wire(190, 250, 260, 250), put(Symbol::pnp, 260, 250), name(310, 250, "Q_3"), ground(290, 280),
    resistor(290, 110, 290, 160, "0.47 Ω", Side::right), wire(290, 160, 290, 170),
    resistor(290, 170, 290, 220, "0.47 Ω", Side::right), node(290, 165),
    put(Symbol::npn, 100, 250), wire(130, 220, 190, 220), node(190, 220), name(148, 250, "Q_1"), ground(130, 280),
    wire(90, 250, 100, 250), node(85, 250), wire(85, 250, 90, 250), wire(85, 250, 85, 205), wire(85, 205, 100, 205),
    resistor(100, 205, 160, 205, "R_b1", Side::above), wire(160, 205, 230, 205), wire(230, 205, 230, 165), wire(230, 165, 290, 165),
    capacitor(45, 250, 85, 250, "C_ci", Side::above), wire(38, 250, 45, 250), terminal(35, 250), signal(Symbol::sine, 7, 241, 25, 259),
    wire(290, 165, 350, 165), part(Symbol::polarised, 350, 165, 390, 165, "C_o", Side::above), wire(390, 165, 440, 165),
    wire(440, 165, 440, 185),
    part(Symbol::loudspeaker, 440, 185, 440, 250, "R_Lw", Side::left), wire(440, 250, 440, 280), ground(440, 280),
};

inline constexpr Mark classBDarlington[] = {
    wire(180, 15, 400, 15), terminal(403, 15, "E_s", Side::right), node(270, 15), node(330, 15),
    resistor(180, 15, 180, 75, "R_L", Side::left), wire(180, 75, 180, 120), node(180, 90), wire(180, 90, 240, 90),
    put(Symbol::npn, 240, 90), wire(270, 60, 270, 15), wire(270, 120, 300, 120), put(Symbol::npn, 300, 120), wire(330, 90, 330, 15),
    put(Symbol::pnp, 240, 230), wire(270, 200, 300, 200), put(Symbol::pnp, 300, 200), wire(270, 260, 270, 280),
    wire(330, 230, 330, 280), wire(270, 280, 330, 280), ground(330, 280), node(330, 280),
    name(216, 112, "Q_2"), name(346, 120, "Q_4"), name(216, 212, "Q_3"), name(346, 200, "Q_5"),
    put(Symbol::npn, 150, 150), name(198, 150, "Q_8"), wire(180, 180, 180, 230), wire(180, 230, 240, 230),
    node(180, 100), wire(120, 100, 180, 100), resistor(120, 100, 120, 150, "P_s", Side::left), wire(120, 150, 150, 150),
    node(180, 210), wire(120, 210, 180, 210), put(Symbol::npn, 90, 240), name(140, 240, "Q_1"), ground(120, 270),
    wire(80, 240, 90, 240), capacitor(40, 240, 80, 240, "C_ci", Side::above), terminal(33, 240), wire(36, 240, 40, 240),
    signal(Symbol::sine, 7, 231, 25, 249),
    wire(330, 150, 330, 170), node(330, 160), wire(330, 160, 390, 160),
    part(Symbol::polarised, 390, 160, 430, 160, "C_o", Side::above), wire(430, 160, 470, 160), wire(470, 160, 470, 180),
    part(Symbol::loudspeaker, 470, 180, 470, 245, "R_Lw", Side::left), wire(470, 245, 470, 280), ground(470, 280),
};

inline constexpr Mark commonEmitter[] = {
    wire(180, 20, 320, 20), terminal(323, 20, "E_s", Side::right), node(270, 20),
    resistor(180, 20, 180, 110, "R_b1", Side::left), wire(180, 110, 180, 180),
    resistor(180, 180, 180, 270, "R_b2", Side::right), ground(180, 270),
    resistor(270, 20, 270, 100, "R_L", Side::right), wire(270, 100, 270, 120), put(Symbol::npn, 240, 150), name(290, 150, "Q_1"),
    node(180, 150), wire(150, 150, 240, 150), capacitor(100, 150, 150, 150, "C_in", Side::above),
    wire(60, 150, 100, 150), wire(60, 150, 60, 180), part(Symbol::generator, 60, 180, 60, 250, "v_g", Side::left),
    wire(60, 250, 60, 270), ground(60, 270),
    wire(270, 180, 270, 200), resistor(270, 200, 270, 270, "R_es", Side::left), ground(270, 270),
    {.symbol = Symbol::arrow, .from = {290, 260}, .to = {290, 210}, .name = "E_Res", .side = Side::right, .ink = Ink::accent},
    node(270, 110), wire(270, 110, 340, 110), capacitor(340, 110, 380, 110, "C_out", Side::above), wire(380, 110, 440, 110), node(440, 110),
    wire(440, 110, 440, 140), resistor(440, 140, 440, 220, "R_Lw", Side::left), wire(440, 220, 440, 270), ground(440, 270),
    wire(440, 110, 465, 110), terminal(468, 110), signal(Symbol::sine, 14, 136, 46, 164), signal(Symbol::sineInverted, 480, 80, 530, 140),
};

inline constexpr Mark voltageFeedback[] = {
    wire(270, 20, 320, 20), terminal(323, 20, "E_s", Side::right),
    resistor(270, 20, 270, 100, "R_L", Side::right), wire(270, 100, 270, 160), node(270, 125),
    put(Symbol::npn, 240, 190), name(290, 190, "T_1"), wire(270, 220, 270, 260), ground(270, 260),
    part(Symbol::preset, 180, 125, 250, 125, "R_b1", Side::above), wire(250, 125, 270, 125), wire(160, 125, 180, 125),
    wire(160, 125, 160, 200),
    node(160, 190), wire(140, 190, 240, 190), capacitor(100, 190, 140, 190, "C_in", Side::above),
    wire(60, 190, 100, 190), wire(60, 190, 60, 200), part(Symbol::generator, 60, 200, 60, 260, "v_g", Side::left), ground(60, 260),
    resistor(160, 200, 160, 260, "R_b2", Side::right), ground(160, 260),
    {.symbol = Symbol::dashedFrame, .from = {140, 206}, .to = {206, 290}, .ink = Ink::quiet},
    {.symbol = Symbol::text, .from = {214, 280}, .note = {.es = "estable", .en = "stable"}, .side = Side::right,
     .ink = Ink::quiet, .size = 80},
    wire(270, 125, 340, 125), capacitor(340, 125, 380, 125, "C_out", Side::above), wire(380, 125, 440, 125), node(440, 125),
    wire(440, 125, 440, 150), resistor(440, 150, 440, 220, "R_Lw", Side::left), wire(440, 220, 440, 260), ground(440, 260),
    wire(440, 125, 465, 125), terminal(468, 125), signal(Symbol::sine, 14, 176, 46, 204), signal(Symbol::sineInverted, 480, 95, 530, 155),
};

// What the general page shows: a small signal on its way to being a large one.
inline constexpr GridPoint amplifier[] = {{330, 40}, {330, 260}, {560, 150}, {330, 40}};
inline constexpr Mark emblem[] = {
    signal(Symbol::sine, 40, 120, 130, 180), wire(150, 150, 330, 150), terminal(150, 150),
    {.symbol = Symbol::polyline, .points = amplifier}, put(Symbol::npn, 370, 150),
    wire(560, 150, 660, 150), terminal(660, 150), signal(Symbol::sineInverted, 690, 20, 1070, 280),
};

inline constexpr GridPoint horn[] = {{120, 130}, {180, 70}, {180, 250}, {120, 190}, {120, 130}};
inline constexpr GridPoint copper[] = {{40, 160}, {60, 160}, {66, 150}, {78, 170}, {84, 160}, {100, 160}};
inline constexpr Mark poemPicture[] = {
    part(Symbol::frame, 100, 130, 120, 190), {.symbol = Symbol::polyline, .points = horn}, {.symbol = Symbol::polyline, .points = copper},
    node(40, 160), put(Symbol::terminal, 100, 160),
    signal(Symbol::sine, 205, 100, 295, 220), signal(Symbol::sine, 310, 120, 385, 200),
    signal(Symbol::sine, 400, 136, 460, 184), signal(Symbol::sine, 475, 148, 520, 172),
    part(Symbol::butterfly, 250, 40, 290, 80), part(Symbol::butterfly, 380, 60, 412, 92),
    part(Symbol::butterfly, 330, 228, 370, 268), part(Symbol::butterfly, 470, 220, 498, 248),
};
// clang-format on

} // namespace velmor::main_window::page_drawings
