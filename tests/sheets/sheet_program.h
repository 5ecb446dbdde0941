// SPDX-License-Identifier: MIT
// The program with the template sheet, for tests that look behind what a walk can ask: a screen that answers from queues
// and keeps every question whole, a scratch folder, and the engine itself.
#pragma once

#include <string>
#include <vector>

#include "host/engine.h"
#include "quiet_screen.h"
#include "rules/scratch_folder.h"
#include "sheets/template_program.h"
#include "sheets/template_sheet.h"

namespace velmor::template_sheet {

struct SheetProgram {
    SheetProgram() : engine(catalogue(), screen, settings)
    {
        screen.folder = folder.path();
        engine.loadMainWindow();
        engine.setTrace([this](std::string_view line) { trace.emplace_back(line); });
    }

    /// A new template sheet, as a menu item makes it.
    TemplateSheet& newSheet()
    {
        walkedProgram().newSheet(engine, spec);
        return static_cast<TemplateSheet&>(*engine.instance("TemplateSheet", 0));
    }
    int sheetsOpen()
    {
        int count = 0;
        for (const host::Window* window : engine.windows())
            count += window->name() == "TemplateSheet" ? 1 : 0;
        return count;
    }
    template <class Action>
    void run(Action action)
    {
        engine.userRun(action);
    }
    void menu(std::string_view item) { engine.userMenu(engine.mainWindow(), engine.mainWindow().named(item)); }
    void english(bool isEnglish) { engine.values().LanguageIsEnglish = isEnglish ? host::trueValue : std::int16_t{0}; }
    /// One key press in the field that has the focus; a printable one that was let through is added.
    void press(host::Window& window, std::int16_t key)
    {
        const host::Handle held = window.focus();
        const std::int16_t passed = engine.userKey(window, key);
        if (passed >= 32)
            engine.userText(window, held, window.text(held) + static_cast<char>(passed));
    }
    host::Window& main() { return engine.mainWindow(); }
    bool shownOnMain(std::string_view control) { return main().visible(main().named(control)); }
    bool checked(std::string_view item) { return main().checked(main().named(item)); }
    void check(std::string_view item, bool on = true) { main().setChecked(main().named(item), on); }
    std::string path(std::string_view name) { return (folder / name).string(); }

    rules::ScratchFolder folder;
    test::AskedScreen screen;
    host::MemorySettings settings;
    host::Engine engine;
    std::vector<std::string> trace;
};

} // namespace velmor::template_sheet
