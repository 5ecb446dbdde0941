// SPDX-License-Identifier: MIT
// The start sequence of the program. The order of its steps is behaviour.
#include "program/catalogue.h"

#include <string>

namespace velmor::program {

namespace start_detail {

constexpr std::string_view defaultsSection = "Predeterminados";

// The language of the last run's mark; the stored screen mode is read and dropped.
void readSettings(host::SheetHost& host)
{
    const std::string language = host.settings().value(defaultsSection, "fCastIng").value_or("0");
    host.values().LanguageIsEnglish = language == "0" ? std::int16_t{0} : host::trueValue;
    host.settings().value(defaultsSection, "Pantalla");
}

} // namespace start_detail

void start(host::Engine& engine)
{
    engine.userRun([&engine] {
        host::SheetHost& host = engine.host();
        start_detail::readSettings(host);
        host.values().DecimalSeparator = ".";
        host.values().MeasurementSystem = "0";
        host::Window* mainWindow = host.Load("MDIForm1");
        if (mainWindow == nullptr)
            return;
        host.setChecked("mnuFlotante", true);
        host.Show(*mainWindow);
        host.SetWindowState(*mainWindow, 2);
        host.setVisible("MDIForm1", "Picture14", true);
        host.Show("Form2");
        host.Show("Form16");
        host.values().ScreenMode = 1;
    });
}

} // namespace velmor::program
