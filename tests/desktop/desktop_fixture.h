// SPDX-License-Identifier: MIT
// A small program on real windows, shown offscreen: what a person does comes in as key and mouse events of the toolkit.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include <QString>
#include <QTemporaryDir>

#include "desktop/canvas/field_edit.h"
#include "desktop/desktop_screen.h"
#include "desktop/windows/child_frame.h"
#include "desktop/windows/main_window.h"
#include "desktop/windows/sheet_view.h"
#include "desktop/windows/tool_window.h"
#include "desktop/windows/window_keeper.h"
#include "host/engine.h"

namespace velmor::test {

namespace bench {

/// Controls of the sheet "Hoja".
enum Control : host::Handle {
    Text1,
    Text2,
    Text3,
    Text4,
    Text5,
    Command1,
    Picture1,
    Option1,
    Option2,
    Check1,
    Image1,
    Image14,
    Image12,
    Label1,
    Balloon,
    Page1,
    List1,
    Timer1,
    Panel1,
    Inside1,
    controlCount
};
/// Controls of the main window.
enum MainControl : host::Handle { mnuArchivo, mnuFile1, mnuOp, mnuIng, SSPanel1 };
/// Controls of the tools "Herramienta", whose field hears its keys, and "Pregunta", whose field does not.
enum ToolControl : host::Handle { ToolText, ToolButton };
/// Controls of the editor "Editor".
enum EditorControl : host::Handle { txtEdit };

} // namespace bench

/// A window that notes its events and then does what the test hung onto them.
class BenchWindow : public host::Window {
public:
    using Key = std::pair<host::Handle, host::Event>;
    BenchWindow(host::SheetHost& host, const host::WindowSpec& spec) : host::Window(host, spec) {}
    void note(host::Event event, host::EventArgs& args);

    std::vector<std::string> log;
    std::map<Key, std::function<void(host::EventArgs&)>> deeds;
};

host::Catalogue benchCatalogue();

/// What a person saw of a box, and how it is to be answered.
struct SeenBox {
    QString title;
    QString text;
    QStringList buttons;
    QString preselected;
    bool plain = false;
};

class Bench {
public:
    explicit Bench(host::Catalogue catalogue = benchCatalogue(), QSize size = {1366, 740});
    ~Bench();

    /// Shows the main window and, with the bench's own catalogue, a first sheet.
    void open();
    BenchWindow& sheet() { return *sheet_; }
    BenchWindow& newSheet();
    host::Window& show(std::string_view name);

    desktop::MainWindow& main() { return *screen.keeper().mainWindow(); }
    desktop::SheetView& viewOf(host::Window& window);
    QWidget* widgetOf(host::Window& window, host::Handle control);
    desktop::FieldEdit& field(host::Handle control);

    /// Lets everything that is posted happen.
    static void settle();
    static void key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    static void keys(const QString& sequence);
    static void type(const QString& text);
    void click(host::Handle control, Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifiers held = Qt::NoModifier);
    void click(host::Window& window, host::Handle control, Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifiers held = Qt::NoModifier);
    void doubleClick(host::Handle control);
    /// Presses and releases once on each, the second time within the time of a double click.
    void clickQuickly(host::Handle first, host::Handle second);
    void moveTo(host::Handle control);
    void drag(host::Handle from, host::Handle to);
    void drag(host::Window& window, host::Handle from, host::Handle to);
    QPoint middleOf(host::Window& window, host::Handle control);

    /// Queues the key with which the next box is answered; what it showed is noted.
    void answerByKey(int key);
    /// From now on every dialog is given up at once.
    void answerAnything();
    std::vector<SeenBox> boxes;
    std::function<void()> duringBox;

    QTemporaryDir folder;
    host::MemorySettings settings;
    desktop::DesktopScreen screen;
    host::Engine engine;

private:
    BenchWindow* sheet_ = nullptr;
    QSize size_;
};

} // namespace velmor::test
