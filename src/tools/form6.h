// SPDX-License-Identifier: MIT
// The analysis sheet: one verdict with a picture. The design that opens it fills all of it.
#pragma once

#include <memory>

#include "host/sheet_host.h"
#include "host/window.h"

namespace velmor::form6 {

enum Control : host::Handle { sspanel1, Label1, Label2, Image2, Image3, Image4, Image5 };

extern const host::WindowSpec spec;
std::unique_ptr<host::Window> create(host::SheetHost& host);

class Form6 final : public host::Window {
public:
    explicit Form6(host::SheetHost& host);
    void activate();
};

} // namespace velmor::form6
