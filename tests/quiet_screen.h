// SPDX-License-Identifier: MIT
// The screens of the tests: one that draws nothing, answers every question with its escape and keeps nothing, and one that
// answers from what a test has put there and keeps all that it is asked and told.
#pragma once

#include <deque>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "host/screen.h"
#include "host/window.h"

namespace velmor::test {

class QuietScreen : public host::Screen {
public:
    host::Answer messageBox(const host::MessageBox& box) override { return box.escape(); }
    std::optional<std::string> fileDialog(const host::FileDialog&) override { return std::nullopt; }
    std::optional<std::string> inputBox(const host::InputBox&) override { return std::nullopt; }
    std::optional<std::int32_t> colourDialog(std::int32_t) override { return std::nullopt; }
    std::optional<host::Font> fontDialog(const host::Font&) override { return std::nullopt; }
    std::string now() override { return date() + " " + time(); }
    std::string date() override { return "01/02/2026"; }
    std::string time() override { return "10:20"; }
    std::string clipboardText() override { return {}; }
    int printedWidth(const host::Font&, std::string_view text) override
    {
        constexpr int letter = 120; // twips, 1/12 inch
        return static_cast<int>(host::toCodePoints(text).size()) * letter;
    }
    std::string programFolder() override { return "."; }
    std::string executableName() override { return "velmor"; }
    bool otherInstanceRunning() override { return false; }
    void beep() override {}
    void setClipboardText(std::string_view) override {}
    void print(const host::PrintJob&) override {}
    bool run(const std::string&, const std::string&) override { return true; }
    void popupMenu(host::Window&, host::Handle) override {}
    void programFailed(std::string_view) override {}
};

class AskedScreen : public QuietScreen {
public:
    host::Answer messageBox(const host::MessageBox& box) override
    {
        boxes.push_back(box);
        if (duringBox)
            duringBox();
        return taken(answers).value_or(box.escape());
    }
    std::optional<std::string> fileDialog(const host::FileDialog& dialog) override
    {
        dialogs.push_back(dialog);
        return taken(files).value_or(std::nullopt);
    }
    std::optional<std::string> inputBox(const host::InputBox& box) override
    {
        inputs.push_back(box);
        return std::exchange(nextInput, std::nullopt);
    }
    std::optional<std::size_t> choose(const host::Choice& choice) override
    {
        choices.push_back(choice);
        return taken(chosen);
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
    std::string clipboardText() override { return clipboard; }
    std::string programFolder() override { return folder.string(); }
    bool otherInstanceRunning() override { return otherInstance; }
    void beep() override { ++beeps; }
    void setClipboardText(std::string_view text) override { clipboard = text; }
    void print(const host::PrintJob& job) override { printed.push_back(job); }
    bool run(const std::string& program, const std::string& argument) override
    {
        runs.emplace_back(program, argument);
        return startsPrograms;
    }
    void popupMenu(host::Window& owner, host::Handle menu) override { popups.emplace_back(owner.row(menu).name); }
    void busyPointer(bool nowBusy) override { busy = nowBusy; }
    void programFailed(std::string_view text) override { failures.emplace_back(text); }
    void windowCreated(host::Window& window) override { created.emplace_back(window.name()); }
    void windowGone(host::Window& window) override { gone.emplace_back(window.name()); }

    // what a test prepares
    std::deque<host::Answer> answers;             ///< none left: the escape of the box
    std::deque<std::optional<std::string>> files; ///< nothing stands for a dialog that is cancelled
    std::deque<std::size_t> chosen;               ///< none left: the choice is given up
    std::optional<std::string> nextInput;
    std::optional<std::int32_t> nextColour;
    std::optional<host::Font> nextFont;
    std::function<void()> duringBox;
    std::filesystem::path folder = ".";
    std::string clipboard;
    bool otherInstance = false;
    bool startsPrograms = true;

    // what it was asked and told
    std::vector<host::MessageBox> boxes;
    std::vector<host::FileDialog> dialogs;
    std::vector<host::InputBox> inputs;
    std::vector<host::Choice> choices;
    std::vector<std::int32_t> colours;
    std::vector<host::Font> fonts;
    std::vector<host::PrintJob> printed;
    std::vector<std::pair<std::string, std::string>> runs;
    std::vector<std::string> popups;
    std::vector<std::string> failures;
    std::vector<std::string> created;
    std::vector<std::string> gone;
    int beeps = 0;
    bool busy = false;

private:
    template <class Item>
    static std::optional<Item> taken(std::deque<Item>& queue)
    {
        if (queue.empty())
            return std::nullopt;
        std::optional<Item> first = std::move(queue.front());
        queue.pop_front();
        return first;
    }
};

} // namespace velmor::test
