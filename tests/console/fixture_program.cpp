// SPDX-License-Identifier: MIT
// Windows, slots and catalogue of the program that the tests of the walk language play.
#include "console/fixture_program.h"

#include <sstream>

#include "sheets/sheet_slots.h"

namespace velmor::console::test {

namespace fixture_main {

using namespace host;

enum Id : Handle {
    SSPanel1,
    Said,
    mnuCircuit,
    mnuNew,
    mnuOff,
    mnuInOff,
    mnuMark,
    mnuBox0,
    mnuBox1,
    mnuBox2,
    mnuBox3,
    mnuOpen,
    mnuSave,
    mnuInput,
    mnuColour,
    mnuFont,
    mnuPrint,
    mnuRunFile,
    mnuRunWith,
    mnuPopup,
    mnuClock,
    mnuCopy,
    mnuWhere,
    mnuWho,
    mnuFails,
    mnuExit,
    mnuTool,
    mnuHideTool,
    mnuHidden,
    mnuPalette,
    mnuEditor,
    mnuTile,
    mnuSaveSetting,
};

// clang-format off
constexpr ControlRow rows[] = {
    {.id = SSPanel1,   .name = "SSPanel1",   .kind = Kind::panel},
    {.id = Said,       .name = "Said",       .kind = Kind::label},
    {.id = mnuCircuit, .name = "mnuCircuit", .kind = Kind::menu},
    {.id = mnuNew,     .name = "mnuNew",     .kind = Kind::menu, .parent = mnuCircuit},
    {.id = mnuOff,     .name = "mnuOff",     .kind = Kind::menu, .enabled = false},
    {.id = mnuInOff,   .name = "mnuInOff",   .kind = Kind::menu, .parent = mnuOff},
    {.id = mnuMark,    .name = "mnuMark",    .kind = Kind::menu},
    {.id = mnuBox0,    .name = "mnuBox(0)",  .kind = Kind::menu},
    {.id = mnuBox1,    .name = "mnuBox(1)",  .kind = Kind::menu},
    {.id = mnuBox2,    .name = "mnuBox(2)",  .kind = Kind::menu},
    {.id = mnuBox3,    .name = "mnuBox(3)",  .kind = Kind::menu},
    {.id = mnuOpen,    .name = "mnuOpen",    .kind = Kind::menu},
    {.id = mnuSave,    .name = "mnuSave",    .kind = Kind::menu},
    {.id = mnuInput,   .name = "mnuInput",   .kind = Kind::menu},
    {.id = mnuColour,  .name = "mnuColour",  .kind = Kind::menu},
    {.id = mnuFont,    .name = "mnuFont",    .kind = Kind::menu},
    {.id = mnuPrint,   .name = "mnuPrint",   .kind = Kind::menu},
    {.id = mnuRunFile, .name = "mnuRunFile", .kind = Kind::menu},
    {.id = mnuRunWith, .name = "mnuRunWith", .kind = Kind::menu},
    {.id = mnuPopup,   .name = "mnuPopup",   .kind = Kind::menu},
    {.id = mnuClock,   .name = "mnuClock",   .kind = Kind::menu},
    {.id = mnuCopy,    .name = "mnuCopy",    .kind = Kind::menu},
    {.id = mnuWhere,   .name = "mnuWhere",   .kind = Kind::menu},
    {.id = mnuWho,     .name = "mnuWho",     .kind = Kind::menu},
    {.id = mnuFails,   .name = "mnuFails",   .kind = Kind::menu},
    {.id = mnuExit,    .name = "mnuExit",    .kind = Kind::menu},
    {.id = mnuTool,    .name = "mnuTool",    .kind = Kind::menu},
    {.id = mnuHideTool, .name = "mnuHideTool", .kind = Kind::menu},
    {.id = mnuHidden,  .name = "mnuHidden",  .kind = Kind::menu},
    {.id = mnuPalette, .name = "mnuPalette", .kind = Kind::menu},
    {.id = mnuEditor,  .name = "mnuEditor",  .kind = Kind::menu},
    {.id = mnuTile,    .name = "mnuTile",    .kind = Kind::menu},
    {.id = mnuSaveSetting, .name = "mnuSaveSetting", .kind = Kind::menu},
};
// clang-format on
static_assert(rowsInOrder(rows));

class Main final : public Window {
public:
    Main(SheetHost& host, const WindowSpec& spec) : Window(host, spec) {}

    void say(const std::string& what) { setText(Said, what); }
    void append(const std::string& what) { setText(Said, text(Said) + what); }
    void opens() { append("opens "); }
    void makeNew() { append("new"); }
    void notReached() { append("not reached"); }
    void mark() { setChecked(mnuMark, !checked(mnuMark)); }
    void boxWith(int flags) { say(std::to_string(host().MsgBox("Which\r\nway?", flags, "Title"))); }
    void box0() { boxWith(48); }
    void box1() { boxWith(65); }
    void box2() { boxWith(67); }
    void box3() { boxWith(36); }
    void file(DialogKind kind, const char* title)
    {
        say(host()
                .fileDialog({.kind = kind, .title = title, .filter = "All|*.*", .folder = "", .flags = 0})
                .value_or("none"));
    }
    void open() { file(DialogKind::open, "Open it"); }
    void save() { file(DialogKind::save, "Save it"); }
    void input() { say(host().InputBox({"How much?", "Input", "", 0, 0}).value_or("none")); }
    void colour() { say(std::to_string(host().screen().colourDialog(0).value_or(-1))); }
    void font()
    {
        const std::optional<Font> chosen = host().screen().fontDialog({.name = "Courier New", .underline = true});
        say(chosen
                ? chosen->name + " " + std::to_string(static_cast<int>(chosen->size)) + (chosen->bold ? " bold" : "") +
                      (chosen->italic ? " italic" : "") + (chosen->underline ? " underline" : "")
                : "none");
    }
    void print()
    {
        host().screen().print({"one\rtwo\r", {}, true});
        say(std::to_string(host().screen().printedWidth({}, "mañana")));
    }
    void runFile() { host().screen().run("", host().programFolder() + "/a b.exe"); }
    void runWith() { host().screen().run("c:\\ewb50\\Wewb32", "x.ewb"); }
    void popup() { host().PopupMenu("mnucircuit"); }
    void clock() { say(host().Now() + "|" + host().Date() + "|" + host().Time()); }
    void copy()
    {
        host().screen().setClipboardText("held");
        say(host().screen().clipboardText());
    }
    void where() { say(host().programFolder() + "/guide.Lab"); }
    void who() { say(host().screen().otherInstanceRunning() ? "another runs" : "alone"); }
    void fails() { say(rules::NumberText(rules::Real(1) / rules::Real(0), ".")); }
    void exit() { host().endProgram(); }
    void tool() { host().Show("Tool1"); }
    void hideTool() { host().Hide("Tool1"); }
    void hidden() { host().Load("Tool1"); }
    void palette() { host().Show("Form16"); }
    void editor() { host().Show(*host().NewInstance("Editor1")); }
    void tile() { host().Arrange(1); }
    void saveSetting() { host().settings().setValue("Own", "key", "saved"); }
    void background() { say("background"); }
};

// clang-format off
constexpr SlotRow slots[] = {
    {mnuCircuit, Event::menuOpen, slot<&Main::opens>},
    {mnuNew,     Event::click,    slot<&Main::makeNew>},
    {mnuOff,     Event::click,    slot<&Main::notReached>},
    {mnuInOff,   Event::click,    slot<&Main::notReached>},
    {mnuMark,    Event::click,    slot<&Main::mark>},
    {mnuBox0,    Event::click,    slot<&Main::box0>},
    {mnuBox1,    Event::click,    slot<&Main::box1>},
    {mnuBox2,    Event::click,    slot<&Main::box2>},
    {mnuBox3,    Event::click,    slot<&Main::box3>},
    {mnuOpen,    Event::click,    slot<&Main::open>},
    {mnuSave,    Event::click,    slot<&Main::save>},
    {mnuInput,   Event::click,    slot<&Main::input>},
    {mnuColour,  Event::click,    slot<&Main::colour>},
    {mnuFont,    Event::click,    slot<&Main::font>},
    {mnuPrint,   Event::click,    slot<&Main::print>},
    {mnuRunFile, Event::click,    slot<&Main::runFile>},
    {mnuRunWith, Event::click,    slot<&Main::runWith>},
    {mnuPopup,   Event::click,    slot<&Main::popup>},
    {mnuClock,   Event::click,    slot<&Main::clock>},
    {mnuCopy,    Event::click,    slot<&Main::copy>},
    {mnuWhere,   Event::click,    slot<&Main::where>},
    {mnuWho,     Event::click,    slot<&Main::who>},
    {mnuFails,   Event::click,    slot<&Main::fails>},
    {mnuExit,    Event::click,    slot<&Main::exit>},
    {mnuTool,    Event::click,    slot<&Main::tool>},
    {mnuHideTool, Event::click,   slot<&Main::hideTool>},
    {mnuHidden,  Event::click,    slot<&Main::hidden>},
    {mnuPalette, Event::click,    slot<&Main::palette>},
    {mnuEditor,  Event::click,    slot<&Main::editor>},
    {mnuTile,    Event::click,    slot<&Main::tile>},
    {mnuSaveSetting, Event::click, slot<&Main::saveSetting>},
    {noControl,  Event::click,    slot<&Main::background>},
};
// clang-format on

std::unique_ptr<Window> create(SheetHost& host);
constexpr WindowSpec spec{.name = "MDIForm1",
                          .role = Role::mainWindow,
                          .caption = "Main",
                          .controls = rows,
                          .slots = slots,
                          .create = create};

std::unique_ptr<Window> create(SheetHost& host)
{
    return std::make_unique<Main>(host, spec);
}

} // namespace fixture_main

namespace fixture_sheet {

using namespace host;

enum Id : Handle { Text1, Text2, Text3, Hidden, Command1, Image1, Picture1, Option1, Check1, Log, Fruit, Result };

// clang-format off
constexpr ControlRow rows[] = {
    {.id = Text1,    .name = "Text1",    .kind = Kind::field, .place = {100, 200, 300, 400}},
    {.id = Text2,    .name = "Text2",    .kind = Kind::field},
    {.id = Text3,    .name = "Text3",    .kind = Kind::field, .enabled = false},
    {.id = Hidden,   .name = "Hidden",   .kind = Kind::field, .visible = false},
    {.id = Command1, .name = "Command1", .kind = Kind::button, .text = "Work"},
    {.id = Image1,   .name = "Image1",   .kind = Kind::image},
    {.id = Picture1, .name = "Picture1", .kind = Kind::picture},
    {.id = Option1,  .name = "Option(1)", .kind = Kind::option, .tag = "7", .fontSize = 12, .backColor = 0x00BC0A},
    {.id = Check1,   .name = "Check1",   .kind = Kind::check},
    {.id = Log,      .name = "Log",      .kind = Kind::label},
    {.id = Fruit,    .name = "Fruit",    .kind = Kind::list},
    {.id = Result,   .name = "Result",   .kind = Kind::label, .text = "Two\nlines"},
};
constexpr Handle order[] = {Text1, Text2, Text3, Hidden, Command1};
constexpr sheets::FileLine lines[] = {{Text1}, {Result}};
// clang-format on
static_assert(rowsInOrder(rows));

constexpr sheets::SheetSpec files{.filter = {.es = "Hoja|*.HOJ", .en = "Sheet|*.SHE"}, .written = lines, .read = lines};

class Sheet final : public sheets::DesignSheet {
public:
    explicit Sheet(SheetHost& host);

    void loaded()
    {
        list(Fruit).items = {"pear", "apple"};
        listChanged(Fruit);
    }
    void note(std::string_view what) { setText(Log, text(Log) + std::string(what) + ";"); }
    void note(EventArgs& args, const std::string& what)
    {
        note(what + " " + std::string(args.control == noControl ? "." : row(args.control).name));
    }
    void focused(EventArgs& args) { note(args, "focus"); }
    void lost(EventArgs& args) { note(args, "lost"); }
    void clicked(EventArgs& args) { note(args, "click"); }
    void doubleClicked(EventArgs& args) { note(args, "double"); }
    void up(EventArgs& args) { note(args, "up"); }
    void hovered(EventArgs& args) { note(args, "hover"); }
    void chosen(EventArgs& args) { note(args, "change"); }
    void down(EventArgs& args)
    {
        note(args, "down" + std::to_string(static_cast<int>(args.button)) + "+" + std::to_string(args.shift));
    }
    void key(EventArgs& args)
    {
        if (filteredKey(args) == sheets::enterKey)
            host().SetFocus(*this, Text2);
    }
    void openKey(EventArgs& args) { note("key" + std::to_string(args.key)); }
    void dropped(EventArgs& args)
    {
        note(args, "drop " + std::string(row(args.source).name) + " on");
        if (args.control == Text2)
            disable(Text1);
    }
    void paint()
    {
        setForeColor(Result, 0xFF8000);
        host().SetWindowState(*this, 0);
    }
    std::string reportText() const override { return {}; }
};

// clang-format off
constexpr auto slots = sheets::joined(sheets::frameSlots, std::array{
    SlotRow{noControl, Event::load,        slot<&Sheet::loaded>},
    SlotRow{Text1,     Event::focus,       slot<&Sheet::focused>},
    SlotRow{Text1,     Event::lostFocus,   slot<&Sheet::lost>},
    SlotRow{Text1,     Event::click,       slot<&Sheet::clicked>},
    SlotRow{Text1,     Event::mouseDown,   slot<&Sheet::down>},
    SlotRow{Text1,     Event::mouseUp,     slot<&Sheet::up>},
    SlotRow{Text1,     Event::doubleClick, slot<&Sheet::doubleClicked>},
    SlotRow{Text1,     Event::hover,       slot<&Sheet::hovered>},
    SlotRow{Text1,     Event::key,         slot<&Sheet::key>},
    SlotRow{Text2,     Event::focus,       slot<&Sheet::focused>},
    SlotRow{Text2,     Event::lostFocus,   slot<&Sheet::lost>},
    SlotRow{Text2,     Event::key,         slot<&Sheet::openKey>},
    SlotRow{Text2,     Event::drop,        slot<&Sheet::dropped>},
    SlotRow{Text2,     Event::mouseDown,   slot<&Sheet::down>},
    SlotRow{Text3,     Event::focus,       slot<&Sheet::focused>},
    SlotRow{Text3,     Event::click,       slot<&Sheet::clicked>},
    SlotRow{Text3,     Event::hover,       slot<&Sheet::hovered>},
    SlotRow{Hidden,    Event::hover,       slot<&Sheet::hovered>},
    SlotRow{Command1,  Event::click,       slot<&Sheet::paint>},
    SlotRow{Command1,  Event::key,         slot<&Sheet::openKey>},
    SlotRow{Image1,    Event::mouseDown,   slot<&Sheet::down>},
    SlotRow{Fruit,     Event::change,      slot<&Sheet::chosen>},
    SlotRow{noControl, Event::click,       slot<&Sheet::clicked>},
    SlotRow{noControl, Event::hover,       slot<&Sheet::hovered>},
    SlotRow{noControl, Event::mouseDown,   slot<&Sheet::down>},
    SlotRow{noControl, Event::drop,        slot<&Sheet::dropped>},
});
// clang-format on

std::unique_ptr<Window> create(SheetHost& host)
{
    return std::make_unique<Sheet>(host);
}

constexpr WindowSpec spec{.name = "Sheet1",
                          .role = Role::sheet,
                          .caption = "Stored",
                          .place = {0, 0, 8000, 6000},
                          .controls = rows,
                          .slots = slots,
                          .tabOrder = order,
                          .create = create,
                          .sheetTitle = {.es = "  Hoja", .en = "  Sheet"}};

Sheet::Sheet(SheetHost& host) : sheets::DesignSheet(host, fixture_sheet::spec, files) {}

} // namespace fixture_sheet

namespace fixture_editor {

using namespace host;

enum Id : Handle { txtEdit, Changes, mnuTile };

// clang-format off
constexpr ControlRow rows[] = {
    {.id = txtEdit, .name = "txtEdit", .kind = Kind::editor},
    {.id = Changes, .name = "Changes", .kind = Kind::label},
    {.id = mnuTile, .name = "mnuTile", .kind = Kind::menu},
};
// clang-format on

class Editor final : public Window {
public:
    Editor(SheetHost& host, const WindowSpec& spec) : Window(host, spec) {}
    void changed() { setText(Changes, text(Changes) + "c"); }
    void tile() { setText(Changes, "own item"); }
};

// clang-format off
constexpr SlotRow slots[] = {
    {txtEdit, Event::change, slot<&Editor::changed>},
    {mnuTile, Event::click,  slot<&Editor::tile>},
};
// clang-format on

std::unique_ptr<Window> create(SheetHost& host);
constexpr WindowSpec spec{
    .name = "Editor1", .role = Role::editor, .caption = "Editor", .controls = rows, .slots = slots, .create = create};

std::unique_ptr<Window> create(SheetHost& host)
{
    return std::make_unique<Editor>(host, spec);
}

} // namespace fixture_editor

namespace fixture_tool {

using namespace host;

enum Id : Handle { Timer1, Timer2, Ticks };

// clang-format off
constexpr ControlRow rows[] = {
    {.id = Timer1, .name = "Timer1", .kind = Kind::timer},
    {.id = Timer2, .name = "Timer2", .kind = Kind::timer, .enabled = false},
    {.id = Ticks,  .name = "Ticks",  .kind = Kind::label},
};
// clang-format on

class Tool final : public Window {
public:
    Tool(SheetHost& host, const WindowSpec& spec) : Window(host, spec) {}
    void tick()
    {
        setText(Ticks, text(Ticks) + "t");
        if (text(Ticks) == "ttttt")
            host().Unload(*this);
    }
    void refuse(EventArgs& args) { args.cancel = text(Ticks) == "t"; }
};

// clang-format off
constexpr SlotRow slots[] = {
    {Timer1,    Event::timer,      slot<&Tool::tick>},
    {Timer2,    Event::timer,      slot<&Tool::tick>},
    {noControl, Event::queryClose, slot<&Tool::refuse>},
};
// clang-format on

std::unique_ptr<Window> create(SheetHost& host);
constexpr WindowSpec toolSpec{
    .name = "Tool1", .role = Role::tool, .caption = "Tool", .controls = rows, .slots = slots, .create = create};
std::unique_ptr<Window> create(SheetHost& host)
{
    return std::make_unique<Tool>(host, toolSpec);
}

std::unique_ptr<Window> createPalette(SheetHost& host);
constexpr WindowSpec paletteSpec{
    .name = "Form16", .role = Role::palette, .caption = "Palette", .create = createPalette};
std::unique_ptr<Window> createPalette(SheetHost& host)
{
    return std::make_unique<Window>(host, paletteSpec);
}

} // namespace fixture_tool

namespace fixture_program {

constexpr const host::WindowSpec* windows[] = {&fixture_main::spec, &fixture_sheet::spec, &fixture_editor::spec,
                                               &fixture_tool::toolSpec, &fixture_tool::paletteSpec};

void start(host::Engine& engine)
{
    engine.userRun([&engine] {
        host::SheetHost& host = engine.host();
        host.values().LanguageIsEnglish =
            host.settings().value("Predeterminados", "fCastIng") ? host::trueValue : std::int16_t{0};
        host.Show("MDIForm1");
        host.Show("Sheet1");
        host.Show("Form16");
        host.values().ScreenMode = 1;
    });
}

void newSheet(host::Engine& engine, const host::WindowSpec& sheet)
{
    engine.userRun([&] {
        host::Window* made = engine.host().NewInstance(sheet.name);
        engine.host().Show(*made);
        engine.host().SetWindowCaption(*made, engine.host().pick(sheet.sheetTitle));
    });
}

} // namespace fixture_program

const WalkedProgram& fixtureProgram()
{
    static const WalkedProgram program{fixture_program::windows, fixture_program::start, fixture_program::newSheet};
    return program;
}

testing::AssertionResult holds(const std::string& text)
{
    const Played played = play(text);
    int asked = 0;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);)
        asked += line.starts_with("expect") ? 1 : 0;
    if (asked > 0 && played.result.passed == asked && played.result.exitStatus() == 0)
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << played.result.passed << " of " << asked << " held\n" << played.output;
}

testing::AssertionResult failsWith(const std::string& text, const std::string& report)
{
    const Played played = play(text);
    if (played.result.exitStatus() == 1 && played.result.failed == 1 && played.output == report + "\n")
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << "status " << played.result.exitStatus() << "\n" << played.output;
}

testing::AssertionResult stopsWith(const std::string& text, const std::string& report)
{
    const Played played = play(text);
    if (played.result.exitStatus() == 2 && played.result.failed == 0 && played.output == report + "\n")
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << "status " << played.result.exitStatus() << "\n" << played.output;
}

Played play(const std::string& text, bool trace)
{
    std::istringstream in(text);
    std::ostringstream out;
    Played played;
    played.result = playWalk(fixtureProgram(), in, "w", out, trace);
    played.output = out.str();
    return played;
}

Ran run(const std::vector<std::string>& arguments, const std::string& input)
{
    std::istringstream in(input);
    std::ostringstream out;
    Ran ran;
    ran.status = runWalks(fixtureProgram(), arguments, in, out);
    ran.output = out.str();
    return ran;
}

} // namespace velmor::console::test
