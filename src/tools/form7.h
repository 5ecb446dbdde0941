// SPDX-License-Identifier: MIT
// The panel that presents the two voltage-feedback circuits and lets the student choose one. A sheet may open it as a calculation
// page and waits for it: then there is nothing to choose, and a button leads back.
#pragma once

#include <memory>

#include "host/sheet_host.h"
#include "host/window.h"
#include "tools/butterfly.h"

namespace velmor::form7 {

enum Control : host::Handle {
    Main,
    OpenWings,
    CloseWings,
    Picture1,
    Picture2,
    Command1,
    Command2,
    Command3,
    Command4,
    Command5,
    SSCommand1,
    SSCommand2,
    Label1,
    Label2,
    Label3,
    Label4,
    Label5,
    Timer1
};

extern const host::WindowSpec spec;
std::unique_ptr<host::Window> create(host::SheetHost& host);

/// Which circuit was chosen last.
struct Choice {
    bool stable = false;
};

class Form7 final : public host::Window {
public:
    explicit Form7(host::SheetHost& host);
    void load();
    void activate();
    void chooseSimple();
    void chooseStable();
    void startSimple();
    void startStable();
    void showFormulas();
    void leave();
    void goBack();
    void flap();

private:
    std::string_view pick(const host::BiText& text) const { return host().pick(text); }
    void showFlow(const host::BiText& page);
    void start(std::string_view sheet, const host::BiText& title);

    Choice choice_;
    butterfly::Wings wings_;
};

} // namespace velmor::form7
