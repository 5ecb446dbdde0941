// SPDX-License-Identifier: MIT
// The recommendations for the first start of a class B amplifier: ten steps on three labels, and a drawing of the outputs with the
// diodes that take their place meanwhile. The window has no logic but its button.
#pragma once

#include <memory>

#include "host/sheet_host.h"
#include "host/window.h"

namespace velmor::form5 {

enum Control : host::Handle {
    Image1,
    Label1,
    Label2,
    Label3,
    Label4,
    Label5,
    Label6,
    Label7,
    Label8,
    Label9,
    Command1
};

extern const host::WindowSpec spec;
std::unique_ptr<host::Window> create(host::SheetHost& host);

class Form5 final : public host::Window {
public:
    explicit Form5(host::SheetHost& host);
    void load();
    void activate();
    void goBack();

private:
    void write(Control label, const host::BiText& text) { setText(label, host().pick(text)); }
};

} // namespace velmor::form5
