// SPDX-License-Identifier: MIT
// The screen of real windows: asks the program's questions in dialogs, does its deeds on this machine, and lets the
// keeper of windows follow the model.
#pragma once

#include <memory>

#include <QString>

#include "desktop/canvas/desk.h"
#include "desktop/other_instance.h"
#include "desktop/program_folder.h"
#include "desktop/toolkit_texts.h"
#include "host/screen.h"

namespace velmor::desktop {

class DesignChecks;
class WindowKeeper;

class DesktopScreen final : public host::Screen {
public:
    explicit DesktopScreen(const FolderPlaces& places = FolderPlaces::usual(),
                           const QString& markFile = OtherInstance::usualMark());
    ~DesktopScreen() override;

    /// Must be called before the engine runs anything.
    void attach(host::Engine& engine);
    /// Before the engine goes: the views let go of its windows.
    void detach();
    /// What can wait until the first window is shown: the first start's filling of the program's folder, the toolkit's texts.
    void settleIn();
    Desk& desk() { return desk_; }
    WindowKeeper& keeper() { return *keeper_; }
    /// The checks of designs; null before the first was asked for.
    DesignChecks* checks() { return checks_.get(); }

    host::Answer messageBox(const host::MessageBox& box) override;
    std::optional<std::string> fileDialog(const host::FileDialog& dialog) override;
    std::optional<std::string> inputBox(const host::InputBox& box) override;
    std::optional<std::size_t> choose(const host::Choice& choice) override;
    std::optional<std::int32_t> colourDialog(std::int32_t initial) override;
    std::optional<host::Font> fontDialog(const host::Font& initial) override;
    std::string now() override;
    std::string date() override;
    std::string time() override;
    std::string clipboardText() override;
    int printedWidth(const host::Font& font, std::string_view text) override;
    std::string programFolder() override;
    std::string executableName() override;
    bool otherInstanceRunning() override { return instance_.running(); }

    void beep() override;
    void setClipboardText(std::string_view text) override;
    void print(const host::PrintJob& job) override;
    bool run(const std::string& program, const std::string& argument) override;
    void popupMenu(host::Window& owner, host::Handle menu) override;
    void busyPointer(bool busy) override;
    void programFailed(std::string_view text) override;

    std::unique_ptr<host::TextStore> makeTextStore(host::Window& window, host::Handle editor) override;
    void windowCreated(host::Window& window) override;
    void windowRaised(host::Window& window) override;
    void windowGone(host::Window& window) override;
    void bringUpToDate() override;
    void programEnded() override;

private:
    template <class Ask>
    auto ask(Ask question);
    void prepareFolder();
    void check(host::Window& sheet);
    host::Window* asking() const;

    FolderPlaces places_;
    OtherInstance instance_;
    ToolkitTexts texts_;
    Desk desk_;
    std::unique_ptr<WindowKeeper> keeper_;
    std::unique_ptr<DesignChecks> checks_;
    QString folder_;
    bool busy_ = false;
};

} // namespace velmor::desktop
