// SPDX-License-Identifier: MIT
// The screen of a walk: nothing is drawn, every question is answered from what the walk has prepared, and everything
// that a screen would have shown is kept until the walk asks for it.
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

namespace velmor::console {

/// A fresh empty folder, made when it is first asked for and removed with all it holds at the end.
class TemporaryFolder {
public:
    TemporaryFolder() = default;
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& path();

private:
    std::filesystem::path path_;
};

/// A dialog that the program has shown. `kind` is a word of the walk language: open, save, colour, font, print, input.
struct ShownDialog {
    std::string kind;
    std::string title;
    std::string detail; ///< filter of a file dialog, prompt of an input box
};

/// What the student does in a font dialog; the rest of the font stays as it was.
struct FontChoice {
    std::string name;
    double size = 0.0;
    bool bold = false;
    bool italic = false;
};

class ConsoleScreen final : public host::Screen {
public:
    /// Told of an answer that the box at hand does not offer.
    std::function<void(const std::string&)> onWrongAnswer;
    std::function<void(std::string_view)> onTrace;

    // what a walk prepares
    void queueAnswer(host::Answer answer) { answers_.push_back(answer); }
    /// Nothing stands for a dialog that is cancelled; here and below.
    void queueFile(std::optional<std::string> path) { files_.push_back(std::move(path)); }
    void queueInput(std::optional<std::string> text) { inputs_.push_back(std::move(text)); }
    void queueColour(std::optional<std::int32_t> colour) { colours_.push_back(colour); }
    void queueFont(std::optional<FontChoice> font) { fonts_.push_back(std::move(font)); }
    void setClock(std::string date, std::string time);
    void setOtherInstanceRunning() { otherInstance_ = true; }
    /// Makes PATH the program's folder: one below the temporary folder if there is one, else the working directory's.
    void setProgramFolder(const std::string& path);

    // what a walk asks for; what is taken counts as asked for
    std::optional<host::MessageBox> takeBox();
    const std::deque<host::MessageBox>& boxes() const { return boxes_; }
    std::optional<ShownDialog> takeDialog();
    int takeBeeps() { return std::exchange(beeps_, 0); }
    std::size_t answersLeft() const { return answers_.size(); }
    const std::optional<std::string>& printed() const { return printed_; }
    const std::optional<std::string>& ran() const { return ran_; }
    const std::string& popup() const { return popup_; }
    /// A path of a walk: relative ones count from the program's folder.
    std::filesystem::path resolved(const std::string& path);
    /// The text as a walk sees it: line feeds alone, and without the name of the temporary folder, which nobody knows.
    std::string plain(std::string_view text);

    host::Answer messageBox(const host::MessageBox& box) override;
    std::optional<std::string> fileDialog(const host::FileDialog& dialog) override;
    std::optional<std::string> inputBox(const host::InputBox& box) override;
    std::optional<std::int32_t> colourDialog(std::int32_t initial) override;
    std::optional<host::Font> fontDialog(const host::Font& initial) override;
    std::string now() override { return date_ + " " + time_; }
    std::string date() override { return date_; }
    std::string time() override { return time_; }
    std::string clipboardText() override { return clipboard_; }
    int printedWidth(const host::Font& font, std::string_view text) override;
    std::string programFolder() override;
    std::string executableName() override { return "velmor"; }
    bool otherInstanceRunning() override { return otherInstance_; }
    void beep() override;
    void setClipboardText(std::string_view text) override { clipboard_ = text; }
    void print(const host::PrintJob& job) override;
    bool run(const std::string& program, const std::string& argument) override;
    void popupMenu(host::Window& owner, host::Handle menu) override;
    void programFailed(std::string_view text) override;

private:
    void trace(const std::string& line) const;
    void noteDialog(std::string kind, std::string title, std::string detail);

    TemporaryFolder temporary_;
    std::optional<std::filesystem::path> folder_;
    std::deque<host::Answer> answers_;
    std::deque<std::optional<std::string>> files_;
    std::deque<std::optional<std::string>> inputs_;
    std::deque<std::optional<std::int32_t>> colours_;
    std::deque<std::optional<FontChoice>> fonts_;
    std::deque<host::MessageBox> boxes_;
    std::deque<ShownDialog> dialogs_;
    std::optional<std::string> printed_;
    std::optional<std::string> ran_;
    std::string popup_;
    std::string clipboard_;
    std::string date_ = "01/01/2000";
    std::string time_ = "12:00:00";
    int beeps_ = 0;
    bool otherInstance_ = false;
};

/// The word of a walk for an answer.
std::string_view answerWord(host::Answer answer);

} // namespace velmor::console
