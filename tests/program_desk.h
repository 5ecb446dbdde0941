// SPDX-License-Identifier: MIT
// The whole program on a screen that draws nothing, with a folder of its own. For what no walk can reach or see.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdlib.h>
#include <string>
#include <string_view>

#include "host/engine.h"
#include "host/settings_store.h"
#include "program/catalogue.h"
#include "quiet_screen.h"

namespace velmor::test {

/// A screen with a folder of its own, on which no other program can be started.
class DeskScreen final : public AskedScreen {
public:
    DeskScreen()
    {
        std::string name = (std::filesystem::temp_directory_path() / "velmor-desk-XXXXXX").string();
        folder = ::mkdtemp(name.data());
        startsPrograms = false;
    }
    ~DeskScreen() override
    {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }
    DeskScreen(const DeskScreen&) = delete;
    DeskScreen& operator=(const DeskScreen&) = delete;

    int printedWidth(const host::Font& font, std::string_view text) override
    {
        ++measurings;
        measured = font;
        return AskedScreen::printedWidth(font, text);
    }

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

    host::Font measured;
    int measurings = 0;
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
