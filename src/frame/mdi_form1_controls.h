// SPDX-License-Identifier: MIT
// The controls of the main window by handle: menus, welcome panel, page pictures and circuit bar.
#pragma once

#include <array>
#include <cstddef>
#include <memory>

#include "host/window.h"

namespace velmor::main_window {

// clang-format off
/// Elements of an array bear their index without brackets: `mnuFile2` is `mnuFile(2)`.
enum Control : host::Handle {
    // menus
    mnuArchivo, mnuCirc,
    mnuDif, uno, Dos, cuatro,
    mnuBasCom, tres,
    mnuColCom, seis, cinco,
    mnuPota, ocho, siete,
    mnuPotB, nueve, diez,
    mnuEmCom, once, mnuRealTen, doce, trece,
    mnuFile0,
    mnudifB, unoB, dosB, cuatroB,
    mnuBasComB, tresB,
    mnuColComB, seisB, cincoB,
    mnuPotaB, sieteB, ochoB,
    mnuPotbB, nueveB, diezB,
    mnuEmComB, onceB, mnuEmisor, mnuDesac, MnuParc,
    mnuRealTenB, doceB, treceB,
    mnuFile1, mnuFile2, mnuFile3, mnuSalir2,
    mnuEdicion, mnuDeshacer, mnuRehacer,
    mnuVer, mnuCas, mnuHoriz, mnuVert,
    mnuTools, mnuEdit, mnuImpor, mnuProy,
    mnuOp, mnuid, mnuIng, mnuEsp,
    mnuBarra, mnuFija, mnuFlotante,
    mnuPrederminados, mnuPredet0, mnuLenguaje0, mnuLenguaje1, mnuPredet1, mnuScreen1,
    mnuayu, mnuayuda, mnuAcerca, mnuActu, mnuvac,
    mnuContexto, mnudise,
    // welcome panel and pages
    SSPanel1, Image1, Label35, Label3, Label4,
    Picture1, Picture2, Picture3, Picture4, Picture5, Picture6, Picture7, Picture8, Picture9, Picture10, Picture11,
    Picture12, Picture13,
    Label1, Label21, Label20, Label22, Label24, Label25, Label26, Label33,
    // circuit bar
    Picture14,
    Shape1_0, Shape1_1, Shape1_2, Shape1_3, Shape1_4, Shape1_5, Shape1_6, Shape1_7, Shape1_8, Shape1_9, Shape1_10,
    Shape1_11, Shape1_12,
    imgButton0, imgButton1, imgButton2, imgButton3, imgButton4, imgButton5, imgButton6, imgButton7, imgButton8,
    imgButton9, imgButton10, imgButton11, imgButton12,
    lblButton, Image29,
    controlCount
};
// clang-format on

inline constexpr int buttonCount = 13;
inline constexpr int pagePictureCount = 13;

/// The element of an array by its index.
constexpr host::Handle element(Control first, std::size_t index)
{
    return static_cast<host::Handle>(first + index);
}

/// Height of `Picture2` as it is laid out at load; the other page pictures keep below it.
inline constexpr int headPictureHeight = 2600;
/// Left of the bar's buttons as `mnuFija` lays them out; `lblButton` stands at the last value from the top.
inline constexpr std::array<int, buttonCount> barLefts{30,   390,  750,  1110, 1470, 1860, 2250,
                                                       2550, 2910, 3270, 3630, 3990, 4350};

/// Where the real window shows a control of bar and welcome panel.
host::Place shownPlaceOf(const host::Window& window, host::Handle control);

extern const host::WindowSpec spec;
std::unique_ptr<host::Window> create(host::SheetHost& host);

} // namespace velmor::main_window
