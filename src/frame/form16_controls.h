// SPDX-License-Identifier: MIT
// The controls of the palette by handle.
#pragma once

#include <memory>

#include "host/sheet_host.h"
#include "host/window.h"

namespace velmor::palette {

// clang-format off
enum Control : host::Handle {
    Shape1_0, Shape1_1, Shape1_2, Shape1_3, Shape1_4, Shape1_5, Shape1_6, Shape1_7, Shape1_8, Shape1_9, Shape1_10,
    Shape1_11, Shape1_12,
    imgButton0, imgButton1, imgButton2, imgButton3, imgButton4, imgButton5, imgButton6, imgButton7, imgButton8,
    imgButton9, imgButton10, imgButton11,
    lblButton,
    controlCount
};
// clang-format on

extern const host::WindowSpec spec;
std::unique_ptr<host::Window> create(host::SheetHost& host);

} // namespace velmor::palette
