// SPDX-License-Identifier: MIT
// The thank-you window, modal, with its butterfly and the credits.
#pragma once

#include <memory>

#include "host/sheet_host.h"
#include "host/window.h"
#include "tools/butterfly.h"

namespace velmor::frm_about {

enum Control : host::Handle {
    Main,
    OpenWings,
    CloseWings,
    Timer1,
    Command1,
    Command2,
    Image1,
    Label1_0,
    Label1_1,
    Label1_2,
    Label2,
    Label3,
    Label4
};

extern const host::WindowSpec spec;
std::unique_ptr<host::Window> create(host::SheetHost& host);

class FrmAbout final : public host::Window {
public:
    explicit FrmAbout(host::SheetHost& host);
    void load();
    void activate();
    void flap();
    void showCredits();
    void leave();

private:
    butterfly::Wings wings_;
};

} // namespace velmor::frm_about
