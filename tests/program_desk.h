// SPDX-License-Identifier: MIT
// The whole program on a screen that draws nothing: every question is answered from what a test has put there, and all
// that a screen is told is kept. For what no walk can reach or see.
#pragma once

#include <deque>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <stdlib.h>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "host/engine.h"
#include "host/settings_store.h"
#include "program/catalogue.h"

namespace velmor::test {

class DeskScreen final : public host::Screen {
public:
    DeskScreen()
    {
        std::string name = (std::filesystem::temp_directory_path() / "velmor-desk-XXXXXX").string();
        folder = ::mkdtemp(name.data());
    }
    ~DeskScreen() override
    {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }
    DeskScreen(const DeskScreen&) = delete;
    DeskScreen& operator=(const DeskScreen&) = delete;

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
        return std::exchange(nextFile, std::nullopt);
    }
    std::optional<std::string> inputBox(const host::InputBox& box) override
    {
        inputs.push_back(box);
        return std::exchange(nextInput, std::nullopt);
    }
    std::optional<std::int32_t> colourDialog(std::int32_t initial) override
    {
        colours.push_back(initial);
        return std::exchange(nextColour, std::nullopt);
    }
    std::optional<host::Font> fontDialog(const host::Font& initial) override
    {
        fonts.push_back(initial);
        return std::exchange(nextFont, std::nullopt);
    }
    std::string now() override { return "01/02/2026 10:20"; }
    std::string date() override { return "01/02/2026"; }
    std::string time() override { return "10:20"; }
    std::string clipboardText() override { return clipboard; }
    int printedWidth(const host::Font& font, std::string_view text) override
    {
        ++measurings;
        measured = font;
        return static_cast<int>(host::toCodePoints(text).size()) * 120;
    }
    std::string programFolder() override { return folder.string(); }
    std::string executableName() override { return "velmor"; }
    bool otherInstanceRunning() override { return false; }
    void beep() override {}
    void setClipboardText(std::string_view text) override { clipboard = text; }
    void print(const host::PrintJob& job) override { printed.push_back(job); }
    bool run(const std::string& program, const std::string& argument) override
    {
        runs.emplace_back(program, argument);
        return false; // as a program that cannot be started
    }
    void popupMenu(host::Window&, host::Handle) override {}
    void busyPointer(bool nowBusy) override { busy = nowBusy; }
    void programFailed(std::string_view text) override { failures.emplace_back(text); }

    std::string put(std::string_view name, std::string_view bytes) const
    {
        std::filesystem::create_directories((folder / name).parent_path());
        std::ofstream(folder / name, std::ios::binary) << bytes;
        return (folder / name).string();
    }
    std::string content(std::string_view name) const
    {
        std::ifstream file(folder / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    std::filesystem::path folder;
    std::deque<host::Answer> answers;
    std::optional<std::string> nextFile, nextInput;
    std::optional<std::int32_t> nextColour;
    std::optional<host::Font> nextFont;
    std::vector<host::MessageBox> boxes;
    std::vector<host::FileDialog> dialogs;
    std::vector<host::InputBox> inputs;
    std::vector<std::int32_t> colours;
    std::vector<host::Font> fonts;
    std::vector<host::PrintJob> printed;
    std::vector<std::pair<std::string, std::string>> runs;
    std::vector<std::string> failures;
    host::Font measured;
    std::string clipboard;
    int measurings = 0;
    bool busy = false;
};

/// The program with its main window loaded.
struct ProgramDesk {
    ProgramDesk() : engine(program::catalogue(), screen, settings) { engine.loadMainWindow(); }

    host::Window& show(std::string_view name)
    {
        engine.userRun([&] { engine.host().Show(name); });
        return *engine.defaultInstance(name);
    }
    void click(host::Window& window, std::string_view control)
    {
        const host::Handle handle = window.named(control);
        if (window.row(handle).kind == host::Kind::menu)
            engine.userMenu(window, handle);
        else
            engine.userClick(window, handle);
    }
    /// The person's own change of a field or an editor.
    void write(host::Window& window, std::string_view control, std::string_view text)
    {
        const host::Handle handle = window.named(control);
        if (window.row(handle).kind != host::Kind::editor) {
            engine.userText(window, handle, text);
            return;
        }
        window.store(handle).select(0, window.store(handle).length());
        window.store(handle).replaceSelection(text);
        engine.userEdited(window, handle);
    }
    std::string text(host::Window& window, std::string_view control) { return window.wholeText(window.named(control)); }
    bool visible(host::Window& window, std::string_view control) { return window.visible(window.named(control)); }
    bool open(std::string_view name) { return engine.instance(name, 0) != nullptr; }

    DeskScreen screen;
    host::MemorySettings settings;
    host::Engine engine;
};

} // namespace velmor::test
