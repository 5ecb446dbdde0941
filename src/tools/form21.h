// SPDX-License-Identifier: MIT
// The help page that a right press on a field shows. The sheet fills it; "to know more" leads to deeper pages.
#pragma once

#include <memory>

#include "host/sheet_host.h"
#include "host/window.h"

namespace velmor::form21 {

enum Control : host::Handle { Label1, Text22, Text23, SSCommand1, SSCommand2 };

extern const host::WindowSpec spec;
std::unique_ptr<host::Window> create(host::SheetHost& host);

class Form21 final : public host::Window {
public:
    explicit Form21(host::SheetHost& host);
    void load();
    void knowMore();
    void goBack();
};

} // namespace velmor::form21
