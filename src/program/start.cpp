// SPDX-License-Identifier: MIT
// The start sequence of the program, whose order is behaviour, and the making of a new sheet from outside.
#include "program/catalogue.h"

#include <string>

#include "frame/mdi_form1.h"

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

void newSheet(host::Engine& engine, const host::WindowSpec& sheet)
{
    engine.userRun([&] {
        if (auto* mainWindow = dynamic_cast<main_window::MDIForm1*>(&engine.mainWindow()))
            mainWindow->newSheet(sheet.name);
    });
}

} // namespace velmor::program
