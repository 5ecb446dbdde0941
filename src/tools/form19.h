// SPDX-License-Identifier: MIT
// The general help: two pages, Spanish and English, of which whoever opens the window shows one.
#pragma once

#include <memory>

#include "host/sheet_host.h"
#include "host/window.h"

namespace velmor::form19 {

enum Control : host::Handle { Text1, Text2 };

extern const host::WindowSpec spec;
std::unique_ptr<host::Window> create(host::SheetHost& host);

class Form19 final : public host::Window {
public:
    explicit Form19(host::SheetHost& host);
    void load();
    void activate();
    void resize();
};

} // namespace velmor::form19
