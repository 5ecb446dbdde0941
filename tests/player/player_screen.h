// SPDX-License-Identifier: MIT
// A screen without a person: every question is answered by chance, and sometimes something else happens while it stands.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "player/chance.h"
#include "quiet_screen.h"

namespace velmor::player {

/// A folder of the program's own with guides, circuit files good and bad, and places where nothing can be written.
class Playground {
public:
    Playground();
    ~Playground();
    Playground(const Playground&) = delete;
    Playground& operator=(const Playground&) = delete;

    const std::filesystem::path& path() const { return path_; }
    /// Paths that a file dialog may return.
    const std::vector<std::string>& files() const { return files_; }

private:
    std::filesystem::path path_;
    std::vector<std::string> files_;
};

class PlayerScreen final : public test::QuietScreen {
public:
    PlayerScreen(Chance& chance, const Playground& ground) : chance_(chance), ground_(ground) {}

    /// Holds what the other holds; a pop-up menu that stood open there is closed.
    void goOnWith(const PlayerScreen& other) { clipboard_ = other.clipboard_; }
    /// Something that happens while a question stands.
    std::function<void()> meanwhile;
    /// A pop-up menu stands open: its owner and handle.
    host::Window* popupOwner = nullptr;
    host::Handle popup = host::noControl;
    std::string failure; ///< the text with which the program ended
    int questions = 0;

    host::Answer messageBox(const host::MessageBox& box) override;
    std::optional<std::string> fileDialog(const host::FileDialog& dialog) override;
    std::optional<std::string> inputBox(const host::InputBox& box) override;
    std::optional<std::int32_t> colourDialog(std::int32_t initial) override;
    std::optional<host::Font> fontDialog(const host::Font& initial) override;
    std::string clipboardText() override { return clipboard_; }
    int printedWidth(const host::Font& font, std::string_view text) override;
    std::string programFolder() override { return ground_.path().string(); }
    void setClipboardText(std::string_view text) override;
    bool run(const std::string&, const std::string&) override { return chance_.in(50); }
    void popupMenu(host::Window& owner, host::Handle menu) override;
    void programFailed(std::string_view text) override { failure = text; }
    void windowGone(host::Window& window) override;

private:
    void something();

    Chance& chance_;
    const Playground& ground_;
    std::string clipboard_ = "12,5";
};

/// A number as the course uses it.
std::string usualNumber(Chance& chance);
/// A text as a student may type it into a field: mostly a plausible number.
std::string plausibleNumber(Chance& chance);

} // namespace velmor::player
