// SPDX-License-Identifier: MIT
// The main window and the palette with stand-ins for all other windows: sheets that note what is asked of them, and
// tools that only open. So every item can be tried whether or not its window exists yet.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "frame/form16.h"
#include "frame/mdi_form1.h"
#include "host/engine.h"
#include "quiet_screen.h"
#include "sheets/sheet_slots.h"

namespace velmor::main_window_test {

/// A sheet that notes what is asked of it and, when told to, fails in it.
class StandInSheet final : public sheets::DesignSheet {
public:
    StandInSheet(host::SheetHost& host, const host::WindowSpec& spec);
    void Abrir() override { deed("Abrir"); }
    void Guardar() override { deed("Guardar"); }
    void CDL_GuardarDatos() override;
    void CDL_AbrirDatos() override;
    std::string reportText() const override { return {}; }

    static inline std::vector<std::string> log;
    static inline bool fails = false;

private:
    void deed(std::string_view what);
};

struct Program {
    /// With all windows, or without those that are named.
    explicit Program(const std::vector<std::string_view>& without = {});

    main_window::MDIForm1& main() { return static_cast<main_window::MDIForm1&>(engine.mainWindow()); }
    palette::Form16& palette() { return static_cast<palette::Form16&>(*engine.defaultInstance("Form16")); }
    host::Window* window(std::string_view name) { return engine.instance(name, 0); }
    void menu(std::string_view item) { engine.userMenu(main(), main().named(item)); }
    void show(); ///< main window and palette, as a start does
    void speakEnglish() { engine.values().LanguageIsEnglish = host::trueValue; }
    int count(std::string_view name);
    std::vector<std::string> takeLog() { return std::exchange(StandInSheet::log, {}); }

    std::vector<const host::WindowSpec*> catalogue;
    test::AskedScreen screen;
    host::MemorySettings settings;
    host::Engine engine;
};

} // namespace velmor::main_window_test
