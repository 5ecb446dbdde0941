// SPDX-License-Identifier: MIT
// The decibel calculator: voltage gain for equal impedances and power gain for unequal ones.
#pragma once

#include <memory>
#include <string_view>

#include "host/sheet_host.h"
#include "host/window.h"
#include "rules/real.h"

namespace velmor::calculator {

enum Control : host::Handle {
    Text1,
    Text2,
    Text3,
    Text4,
    Text5,
    Text6,
    Command3,
    Command4,
    Command5,
    Label1,
    Label2,
    Shape1
};

extern const host::WindowSpec spec;
std::unique_ptr<host::Window> create(host::SheetHost& host);

/// One field of a path: what it asks for and the smallest value that it takes.
struct FieldRow {
    host::Handle field = host::noControl;
    host::BiText prompt{};
    double lowest = 0.0;
};

/// What was entered on the way.
struct Entries {
    rules::Real Eo;       ///< output voltage, V r.m.s.
    rules::Real Ei;       ///< input voltage, V r.m.s.
    rules::Real Zo;       ///< load impedance, ohm
    bool byEnter = false; ///< the last field of a path was left by Enter
};

class Calculator final : public host::Window {
public:
    explicit Calculator(host::SheetHost& host);

    void load();
    void activate();
    void hoverWindow();
    void startVoltageGain();
    void startPowerGain();
    void off();
    void hint(host::EventArgs& args);
    void key(host::EventArgs& args);
    void leave(host::EventArgs& args);

private:
    std::string_view pick(const host::BiText& text) const { return host().pick(text); }
    rules::Real entered(host::Handle field) const;
    void ask(host::Handle field);
    void hideAllBut(host::Handle field);
    void enterField(host::Handle field);
    void showVoltageGain();
    void showPowerGain();

    Entries entries_;
};

} // namespace velmor::calculator
