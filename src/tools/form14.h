// SPDX-License-Identifier: MIT
// The table of standard resistor values, a passive window.
#pragma once

#include <memory>

#include "host/sheet_host.h"
#include "host/window.h"

namespace velmor::form14 {

enum Control : host::Handle { Frame1, Text1 };

extern const host::WindowSpec spec;
std::unique_ptr<host::Window> create(host::SheetHost& host);

class Form14 final : public host::Window {
public:
    explicit Form14(host::SheetHost& host);
    void activate();
};

} // namespace velmor::form14
