// SPDX-License-Identifier: MIT
// The window about updates, with its butterfly.
#pragma once

#include <memory>

#include "host/sheet_host.h"
#include "host/window.h"
#include "tools/butterfly.h"

namespace velmor::infoform {

enum Control : host::Handle { btrfly2, Timer2, Main, OpenWings, CloseWings, Label1, Label2 };

extern const host::WindowSpec spec;
std::unique_ptr<host::Window> create(host::SheetHost& host);

class Infoform final : public host::Window {
public:
    explicit Infoform(host::SheetHost& host);
    void write();
    void flap();

private:
    butterfly::Wings wings_;
};

} // namespace velmor::infoform
