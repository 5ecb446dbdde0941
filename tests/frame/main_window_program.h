// SPDX-License-Identifier: MIT
// The main window and the palette with stand-ins for all other windows: sheets that note what is asked of them, and
// tools that only open. So every item can be tried whether or not its window exists yet.
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "frame/form16.h"
#include "frame/mdi_form1.h"
#include "host/engine.h"
#include "sheets/design_sheet.h"

namespace velmor::main_window_test {

/// A screen that answers from queues and remembers what it was asked.
class AskedScreen final : public host::Screen {
public:
    host::Answer messageBox(const host::MessageBox& box) override
    {
        boxes.push_back(box);
        if (answers.empty())
            return box.escape();
        return std::exchange(answers, {answers.begin() + 1, answers.end()}).front();
    }
    std::optional<std::string> fileDialog(const host::FileDialog& dialog) override
    {
        dialogs.push_back(dialog);
        return std::exchange(nextFile, std::nullopt);
    }
    std::optional<std::string> inputBox(const host::InputBox&) override { return std::nullopt; }
    std::optional<std::int32_t> colourDialog(std::int32_t) override { return std::nullopt; }
    std::optional<host::Font> fontDialog(const host::Font&) override { return std::nullopt; }
    std::string now() override { return {}; }
    std::string date() override { return {}; }
    std::string time() override { return {}; }
    std::string clipboardText() override { return {}; }
    int printedWidth(const host::Font&, std::string_view) override { return 0; }
    std::string programFolder() override { return "."; }
    std::string executableName() override { return "velmor"; }
    bool otherInstanceRunning() override { return otherInstance; }
    void beep() override {}
    void setClipboardText(std::string_view) override {}
    void print(const host::PrintJob&) override {}
    bool run(const std::string&, const std::string&) override { return true; }
    void popupMenu(host::Window& owner, host::Handle menu) override { popups.emplace_back(owner.row(menu).name); }
    void programFailed(std::string_view text) override { failures.emplace_back(text); }
    void windowCreated(host::Window& window) override { created.emplace_back(window.name()); }

    std::deque<host::Answer> answers;
    std::vector<host::MessageBox> boxes;
    std::vector<host::FileDialog> dialogs;
    std::vector<std::string> popups;
    std::vector<std::string> created;
    std::vector<std::string> failures;
    std::optional<std::string> nextFile;
    bool otherInstance = false;
};

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
    AskedScreen screen;
    host::MemorySettings settings;
    host::Engine engine;
};

} // namespace velmor::main_window_test
