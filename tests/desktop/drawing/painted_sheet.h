// SPDX-License-Identifier: MIT
// Windows made to be painted: a common-emitter stage with its fields and every look, and a page of all symbols.
#pragma once

#include <optional>

#include "host/engine.h"

namespace velmor::test {

enum StageControl : host::Handle {
    Paper,
    Circuit,
    GroupSupply,
    GroupStage,
    FieldSupply,
    FieldCollector,
    FieldEmitter,
    FieldBase1,
    FieldBase2,
    FieldLoad,
    FieldGain,
    Voice,
    Hint,
    Balloon,
    Note,
    Result,
    Warning,
    Title,
    ButtonReport,
    ButtonOff,
    ToolPage,
    ToolCalculator,
    OptionOne,
    OptionTwo,
    CheckOne,
    PlainLabel,
    OverlayPanel,
};

/// Answers every question with its escape and does nothing else.
class SilentScreen final : public host::Screen {
public:
    host::Answer messageBox(const host::MessageBox& box) override { return box.escape(); }
    std::optional<std::string> fileDialog(const host::FileDialog&) override { return std::nullopt; }
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
    bool otherInstanceRunning() override { return false; }
    void beep() override {}
    void setClipboardText(std::string_view) override {}
    void print(const host::PrintJob&) override {}
    bool run(const std::string&, const std::string&) override { return true; }
    void popupMenu(host::Window&, host::Handle) override {}
    void programFailed(std::string_view) override {}
    void windowGone(host::Window&) override {}
};

/// A program that holds both windows, shown, with the stage in front.
struct PaintedProgram {
    PaintedProgram();
    host::Window& stage() { return *engine.instance("Stage", 0); }
    host::Window& symbols() { return *engine.instance("Symbols", 0); }

    SilentScreen screen;
    host::MemorySettings settings;
    host::Engine engine;
};

} // namespace velmor::test
