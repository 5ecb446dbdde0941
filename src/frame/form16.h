// SPDX-License-Identifier: MIT
// The floating palette: one picture button for each design. It knows the designs by their index alone.
#pragma once

#include "frame/form16_controls.h"

namespace velmor::palette {

class Form16 : public host::Window {
public:
    explicit Form16(host::SheetHost& host);

    /// Saves the settings, the decimal separator with them, and ends the process. The separator itself stays.
    void EndProgram();

    void load();
    void activate();
    void askExit(host::EventArgs& args);
    void hoverButton(host::EventArgs& args);
    void pressButton(host::EventArgs& args);
    void releaseButton(host::EventArgs& args);
    void clickButton(host::EventArgs& args);
    void hoverAll();
    void clickAll();

private:
    void warnOfOtherInstance();
    void writeCaptions();
};

} // namespace velmor::palette
