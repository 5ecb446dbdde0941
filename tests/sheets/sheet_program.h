// SPDX-License-Identifier: MIT
// The program with the template sheet, for tests that look behind what a walk can ask: a screen that answers from queues
// and keeps every question whole, a scratch folder, and the engine itself.
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "host/engine.h"
#include "rules/scratch_folder.h"
#include "sheets/template_program.h"
#include "sheets/template_sheet.h"

namespace velmor::template_sheet {

class SheetScreen final : public host::Screen {
public:
    explicit SheetScreen(std::string folder) : folder_(std::move(folder)) {}

    host::Answer messageBox(const host::MessageBox& box) override
    {
        boxes.push_back(box);
        if (answers.empty())
            return box.escape();
        const host::Answer answer = answers.front();
        answers.pop_front();
        return answer;
    }
    std::optional<std::string> fileDialog(const host::FileDialog& dialog) override
    {
        dialogs.push_back(dialog);
        if (files.empty())
            return std::nullopt;
        const std::optional<std::string> file = files.front();
        files.pop_front();
        return file;
    }
    std::optional<std::string> inputBox(const host::InputBox&) override { return std::nullopt; }
    std::optional<std::int32_t> colourDialog(std::int32_t) override { return std::nullopt; }
    std::optional<host::Font> fontDialog(const host::Font&) override { return std::nullopt; }
    std::string now() override { return "01/02/2026 10:20"; }
    std::string date() override { return "01/02/2026"; }
    std::string time() override { return "10:20"; }
    std::string clipboardText() override { return {}; }
    int printedWidth(const host::Font&, std::string_view text) override { return static_cast<int>(text.size()) * 120; }
    std::string programFolder() override { return folder_; }
    std::string executableName() override { return "velmor"; }
    bool otherInstanceRunning() override { return false; }
    void beep() override { ++beeps; }
    void setClipboardText(std::string_view) override {}
    void print(const host::PrintJob&) override {}
    bool run(const std::string&, const std::string&) override { return true; }
    void popupMenu(host::Window&, host::Handle) override {}
    void programFailed(std::string_view text) override { failures.emplace_back(text); }

    std::deque<host::Answer> answers;
    std::deque<std::optional<std::string>> files; ///< nothing stands for a dialog that is cancelled
    std::vector<host::MessageBox> boxes;
    std::vector<host::FileDialog> dialogs;
    std::vector<std::string> failures;
    int beeps = 0;

private:
    std::string folder_;
};

struct SheetProgram {
    SheetProgram() : screen(folder.path().string()), engine(catalogue(), screen, settings)
    {
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
    SheetScreen screen;
    host::MemorySettings settings;
    host::Engine engine;
    std::vector<std::string> trace;
};

} // namespace velmor::template_sheet
