// SPDX-License-Identifier: MIT
#include "desktop/desktop_fixture.h"

#include <array>
#include <iterator>
#include <utility>

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QMouseEvent>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include "desktop/drawing/texts.h"
#include "desktop/windows/quiet_box.h"

namespace velmor::test {

using host::Event;
using host::Handle;
using host::Kind;
using host::noControl;

namespace bench {

constexpr const char* eventNames[] = {"focus",    "lost",  "click",   "double", "down",  "up",    "hover",    "key",
                                      "change",   "enter", "leave",   "drop",   "timer", "opens", "shortcut", "load",
                                      "activate", "back",  "repaint", "resize", "ask",   "unload"};

/// In the order in which they go down.
constexpr std::pair<Qt::KeyboardModifier, Qt::Key> modifierKeys[] = {
    {Qt::ShiftModifier, Qt::Key_Shift}, {Qt::ControlModifier, Qt::Key_Control}, {Qt::AltModifier, Qt::Key_Alt}};

template <Event Which>
void noted(host::Window& window, host::EventArgs& args)
{
    static_cast<BenchWindow&>(window).note(Which, args);
}

constexpr host::Place at(int column, int row, int width = 1200, int height = 350)
{
    return {300 + column * 2000, 300 + row * 700, width, height};
}

// clang-format off
constexpr host::Mark wave[] = {{.symbol = host::Symbol::sine, .from = {4, 4}, .to = {60, 30}}};
constexpr host::ControlRow sheetRows[] = {
    {.id = Text1, .name = "Text1", .kind = Kind::field, .place = at(0, 0), .text = "10", .symbol = "Q_Ic", .unit = "mA",
     .meaning = {"Corriente", "Current"}},
    {.id = Text2, .name = "Text2", .kind = Kind::field, .place = at(0, 1), .text = "20", .symbol = "R_b1", .unit = "K",
     .meaning = {"Resistor de base", "Base resistor"}},
    {.id = Text3, .name = "Text3", .kind = Kind::field, .place = at(0, 2), .text = "", .meaning = {"Tercero", "Third"}},
    {.id = Text4, .name = "Text4", .kind = Kind::field, .place = at(0, 3), .text = "4", .enabled = false, .meaning = {"Cuarto", "Fourth"}},
    {.id = Text5, .name = "Text5", .kind = Kind::field, .place = at(0, 4), .text = "5", .visible = false, .meaning = {"Quinto", "Fifth"}},
    {.id = Command1, .name = "Command1", .kind = Kind::button, .place = at(1, 0), .text = "A & B", .meaning = {"Botón", "Button"}},
    {.id = Picture1, .name = "Picture1", .kind = Kind::picture, .place = at(1, 1), .meaning = {"Dibujo", "Picture"}},
    {.id = Option1, .name = "Option1", .kind = Kind::option, .place = at(1, 2), .text = "Uno", .checked = true},
    {.id = Option2, .name = "Option2", .kind = Kind::option, .place = at(1, 3), .text = "Dos"},
    {.id = Check1, .name = "Check1", .kind = Kind::check, .place = at(1, 4), .text = "Sin mayúsculas"},
    {.id = Image1, .name = "Image1", .kind = Kind::image, .place = at(2, 0), .meaning = {"<b>Imagen</b> & más", "<b>Image</b> & more"},
     .drawing = wave},
    {.id = Image14, .name = "Image14", .kind = Kind::image, .place = at(2, 1), .drawing = wave},
    {.id = Image12, .name = "Image12", .kind = Kind::image, .place = at(2, 3), .drawing = wave},
    {.id = Label1, .name = "Label1", .kind = Kind::label, .place = at(2, 4), .text = "<b>R&D</b>"},
    {.id = Balloon, .name = "Balloon", .kind = Kind::label, .place = at(0, 2, 1800, 600), .text = "arriba", .visible = false,
     .look = host::Look::balloon, .overlay = true},
    {.id = Page1, .name = "Page1", .kind = Kind::page, .place = {30000, 600, 3700, 3000},
     .text = "<i>Ayuda</i>\n  Rb1 = S x RL", .visible = false, .overlay = true},
    {.id = List1, .name = "List1", .kind = Kind::list, .place = at(3, 0, 1600, 1500)},
    {.id = Timer1, .name = "Timer1", .kind = Kind::timer, .enabled = false, .interval = 10},
    {.id = Panel1, .name = "Panel1", .kind = Kind::panel, .place = at(3, 3, 1800, 1600), .text = "", .visible = false},
    {.id = Inside1, .name = "Inside1", .kind = Kind::field, .place = at(3, 4), .text = "7", .parent = Panel1},
};
static_assert(host::rowsInOrder(sheetRows) && std::size(sheetRows) == controlCount);

constexpr host::ShortcutRow sheetKeys[] = {
    {.keys = "Ctrl+B", .control = Image1, .meaning = {"Imagen", "Image"}},
    {.keys = "F9", .control = Image1, .action = host::KeyAction::hover, .meaning = {"Mirar", "Look"}},
    {.keys = "Ctrl+D", .control = Image14, .action = host::KeyAction::dragTo, .target = Image12, .meaning = {"Llevar", "Carry"}},
    {.keys = "Ctrl+C", .control = Image1, .action = host::KeyAction::rightPress, .meaning = {"Menú", "Menu"}},
};

constexpr host::ControlRow mainRows[] = {
    {.id = mnuArchivo, .name = "mnuArchivo", .kind = Kind::menu, .text = "&Archivo"},
    {.id = mnuFile1, .name = "mnuFile(1)", .kind = Kind::menu, .text = "&Salvar", .parent = mnuArchivo},
    {.id = mnuOp, .name = "mnuOp", .kind = Kind::menu, .text = "&Opciones"},
    {.id = mnuIng, .name = "mnuIng", .kind = Kind::menu, .text = "&Inglish", .parent = mnuOp},
    {.id = SSPanel1, .name = "SSPanel1", .kind = Kind::panel, .place = {0, 0, 17850, 10125}, .visible = false},
};
constexpr host::ControlRow toolRows[] = {
    {.id = ToolText, .name = "Text1", .kind = Kind::field, .place = {200, 200, 1500, 350}, .text = "1"},
    {.id = ToolButton, .name = "Command1", .kind = Kind::button, .place = {200, 900, 1500, 400}, .text = "OK"},
};
constexpr host::ControlRow editorRows[] = {
    {.id = txtEdit, .name = "txtEdit", .kind = Kind::editor, .place = {0, 0, 6000, 4000}},
};
constexpr host::ControlRow paletteRows[] = {
    {.id = 0, .name = "imgButton(0)", .kind = Kind::image, .place = {100, 100, 1000, 1000}, .drawing = wave},
};

template <Event Which, std::size_t Count> constexpr std::array<host::SlotRow, Count> everyControl()
{
    std::array<host::SlotRow, Count> rows{};
    for (std::size_t i = 0; i < Count; ++i)
        rows[i] = {static_cast<Handle>(i), Which, noted<Which>};
    return rows;
}
template <std::size_t... Counts> constexpr auto joined(const std::array<host::SlotRow, Counts>&... parts)
{
    std::array<host::SlotRow, (Counts + ...)> all{};
    std::size_t next = 0;
    const auto add = [&](const auto& part) { for (const auto& row : part) all[next++] = row; };
    (add(parts), ...);
    return all;
}
constexpr std::array<host::SlotRow, 8> windowSlots{{
    {noControl, Event::activate, noted<Event::activate>}, {noControl, Event::comeBack, noted<Event::comeBack>},
    {noControl, Event::resize, noted<Event::resize>},     {noControl, Event::repaint, noted<Event::repaint>},
    {noControl, Event::queryClose, noted<Event::queryClose>}, {noControl, Event::unload, noted<Event::unload>},
    {noControl, Event::hover, noted<Event::hover>},       {noControl, Event::click, noted<Event::click>},
}};
template <std::size_t Count> constexpr auto allSlots()
{
    return joined(everyControl<Event::focus, Count>(), everyControl<Event::lostFocus, Count>(), everyControl<Event::click, Count>(),
                  everyControl<Event::mouseDown, Count>(), everyControl<Event::hover, Count>(), everyControl<Event::key, Count>(),
                  everyControl<Event::change, Count>(), everyControl<Event::drop, Count>(), everyControl<Event::timer, Count>(),
                  everyControl<Event::menuOpen, Count>(), windowSlots);
}
constexpr std::array<host::SlotRow, 3> furtherSlots{{
    {Image1, Event::dragLeave, noted<Event::dragLeave>},
    {Label1, Event::doubleClick, noted<Event::doubleClick>}, {Image12, Event::doubleClick, noted<Event::doubleClick>},
}};
constexpr auto sheetSlots = joined(allSlots<controlCount>(), furtherSlots);
constexpr auto mainSlots = allSlots<std::size(mainRows)>();
constexpr auto toolSlots = allSlots<std::size(toolRows)>();
constexpr auto questionSlots = joined(everyControl<Event::click, std::size(toolRows)>(),
                                      everyControl<Event::mouseDown, std::size(toolRows)>());
constexpr auto paletteSlots = joined(everyControl<Event::click, std::size(paletteRows)>(),
                                     everyControl<Event::hover, std::size(paletteRows)>());
constexpr auto editorSlots = allSlots<std::size(editorRows)>();
// clang-format on

template <const host::WindowSpec& Spec>
std::unique_ptr<host::Window> make(host::SheetHost& host)
{
    return std::make_unique<BenchWindow>(host, Spec);
}
extern const host::WindowSpec mainSpec, sheetSpec, toolSpec, questionSpec, paletteSpec, editorSpec;
const host::WindowSpec mainSpec{.name = "MDIForm1",
                                .role = host::Role::mainWindow,
                                .caption = "Banco",
                                .place = {0, 0, 20250, 10125},
                                .controls = mainRows,
                                .slots = mainSlots,
                                .create = make<mainSpec>,
                                .mainParts = {.welcome = SSPanel1}};
const host::WindowSpec sheetSpec{.name = "Hoja",
                                 .role = host::Role::sheet,
                                 .caption = "Hoja [*] & <b>",
                                 .place = {0, 0, 9000, 4500},
                                 .controls = sheetRows,
                                 .slots = sheetSlots,
                                 .shortcuts = sheetKeys,
                                 .create = make<sheetSpec>};
const host::WindowSpec toolSpec{.name = "Herramienta",
                                .role = host::Role::tool,
                                .caption = "Herramienta",
                                .place = {0, 0, 3000, 2000},
                                .controls = toolRows,
                                .slots = toolSlots,
                                .create = make<toolSpec>};
const host::WindowSpec questionSpec{.name = "Pregunta",
                                    .role = host::Role::tool,
                                    .caption = "Pregunta",
                                    .place = {0, 0, 3000, 2000},
                                    .controls = toolRows,
                                    .slots = questionSlots,
                                    .create = make<questionSpec>};
const host::WindowSpec paletteSpec{.name = "Paleta",
                                   .role = host::Role::palette,
                                   .caption = "Paleta",
                                   .place = {0, 0, 6000, 1200},
                                   .controls = paletteRows,
                                   .slots = paletteSlots,
                                   .create = make<paletteSpec>};
const host::WindowSpec editorSpec{.name = "Editor",
                                  .role = host::Role::editor,
                                  .caption = "Editor",
                                  .place = {0, 0, 6000, 4000},
                                  .controls = editorRows,
                                  .slots = editorSlots,
                                  .create = make<editorSpec>};

} // namespace bench

host::Catalogue benchCatalogue()
{
    static const host::WindowSpec* const windows[] = {&bench::mainSpec,     &bench::sheetSpec,   &bench::toolSpec,
                                                      &bench::questionSpec, &bench::paletteSpec, &bench::editorSpec};
    return windows;
}

void BenchWindow::note(Event event, host::EventArgs& args)
{
    const std::string who = args.control == noControl ? std::string(name()) : std::string(row(args.control).name);
    log.push_back(who + " " + bench::eventNames[static_cast<std::size_t>(event)]);
    const auto deed = deeds.find({args.control, event});
    if (deed != deeds.end())
        deed->second(args);
}

Bench::Bench(host::Catalogue catalogue, QSize size)
    : screen({folder.path() + QStringLiteral("/bin"), folder.path(), {}}, folder.path() + QStringLiteral("/mark.lock")),
      engine(catalogue, screen, settings), size_(size)
{
    screen.attach(engine);
}

Bench::~Bench()
{
    screen.detach();
    settle();
    // A program that has ended leaves a standing order to leave every event loop.
    if (engine.ended()) {
        QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(0); });
        QCoreApplication::exec();
    }
}

void Bench::open()
{
    engine.loadMainWindow();
    engine.userRun([this] {
        engine.host().Show(engine.mainWindow());
        if (engine.specOf("Hoja") != nullptr)
            sheet_ = static_cast<BenchWindow*>(engine.host().NewInstance("Hoja"));
    });
    main().resize(size_);
    settle();
    if (sheet_ != nullptr)
        engine.userRun([this] { engine.host().Show(*sheet_); });
    main().activateWindow();
    settle();
}

BenchWindow& Bench::newSheet()
{
    BenchWindow* made = nullptr;
    engine.userRun([&] {
        made = static_cast<BenchWindow*>(engine.host().NewInstance("Hoja"));
        engine.host().Show(*made);
    });
    settle();
    return *made;
}

host::Window& Bench::show(std::string_view name)
{
    host::Window* shown = nullptr;
    engine.userRun([&] { shown = engine.host().Show(name); });
    settle();
    return *shown;
}

desktop::SheetView& Bench::viewOf(host::Window& window)
{
    return *screen.keeper().frameOf(window)->view();
}

QWidget* Bench::widgetOf(host::Window& window, Handle control)
{
    return viewOf(window).canvas().widgetOf(control);
}

desktop::FieldEdit& Bench::field(Handle control)
{
    return dynamic_cast<desktop::FieldEdit&>(*widgetOf(sheet(), control));
}

void Bench::settle()
{
    for (int i = 0; i < 5; ++i) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
}

void Bench::key(int key, Qt::KeyboardModifiers modifiers)
{
    // A key that goes down, a modifier too, may close its window: what follows goes to none.
    const QPointer<QWindow> window(QGuiApplication::focusWindow());
    const auto send = [&window](bool down, int which, Qt::KeyboardModifiers held, const QString& text) {
        if (window)
            QTest::simulateEvent(window.data(), down, which, held, text, false);
    };
    const char letter = QTest::keyToAscii(static_cast<Qt::Key>(key));
    const QString text = letter == 0 ? QString() : QString(QLatin1Char(letter));
    Qt::KeyboardModifiers held;
    for (const auto& [modifier, itsKey] : bench::modifierKeys)
        if (modifiers.testFlag(modifier)) {
            send(true, itsKey, held, {});
            held |= modifier;
        }
    send(true, key, modifiers, text);
    send(false, key, modifiers, text);
    for (auto row = std::rbegin(bench::modifierKeys); row != std::rend(bench::modifierKeys); ++row)
        if (modifiers.testFlag(row->first)) {
            send(false, row->second, held, {});
            held.setFlag(row->first, false);
        }
    settle();
}

void Bench::keys(const QString& sequence)
{
    const QKeyCombination keys = QKeySequence(sequence, QKeySequence::PortableText)[0];
    key(keys.key(), keys.keyboardModifiers());
}

void Bench::type(const QString& text)
{
    for (const QChar letter : text)
        if (const QPointer<QWindow> window(QGuiApplication::focusWindow()); window) {
            const Qt::Key key = letter.unicode() < 0x80 ? QTest::asciiToKey(letter.toLatin1()) : Qt::Key_unknown;
            QTest::simulateEvent(window.data(), true, key, Qt::NoModifier, QString(letter), false);
            if (window)
                QTest::simulateEvent(window.data(), false, key, Qt::NoModifier, QString(letter), false);
        }
    settle();
}

QPoint Bench::middleOf(host::Window& window, Handle control)
{
    desktop::Canvas& canvas = viewOf(window).canvas();
    return canvas.mapTo(canvas.window(), canvas.boxInPixels(control).center());
}

void Bench::click(Handle control, Qt::MouseButton button, Qt::KeyboardModifiers held)
{
    click(sheet(), control, button, held);
}

void Bench::click(host::Window& window, Handle control, Qt::MouseButton button, Qt::KeyboardModifiers held)
{
    QTest::mouseClick(viewOf(window).window()->windowHandle(), button, held, middleOf(window, control));
    settle();
}

void Bench::doubleClick(Handle control)
{
    QTest::mouseDClick(viewOf(sheet()).window()->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                       middleOf(sheet(), control));
    settle();
}

void Bench::clickQuickly(Handle first, Handle second)
{
    QWindow* window = viewOf(sheet()).window()->windowHandle();
    const auto send = [&](QEvent::Type type, Handle control) {
        const QPointF at = middleOf(sheet(), control);
        QMouseEvent event(type, at, window->mapToGlobal(at), Qt::LeftButton,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(window, &event);
    };
    send(QEvent::MouseButtonPress, first);
    send(QEvent::MouseButtonRelease, first);
    send(QEvent::MouseButtonDblClick, second);
    send(QEvent::MouseButtonRelease, second);
    settle();
}

void Bench::moveTo(Handle control)
{
    QTest::mouseMove(main().windowHandle(), middleOf(sheet(), control));
    settle();
}

void Bench::drag(Handle from, Handle to)
{
    drag(sheet(), from, to);
}

void Bench::drag(host::Window& model, Handle from, Handle to)
{
    QWindow* window = viewOf(model).window()->windowHandle();
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, middleOf(model, from));
    for (const double part : {0.3, 0.7, 1.0}) {
        const QPoint start = middleOf(model, from);
        const QPoint way = middleOf(model, to) - start;
        QTest::mouseMove(window, start + QPoint(static_cast<int>(way.x() * part), static_cast<int>(way.y() * part)));
    }
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, middleOf(model, to));
    settle();
}

void Bench::answerByKey(int key)
{
    auto* watch = new QTimer(&main());
    QObject::connect(watch, &QTimer::timeout, watch, [this, watch, key] {
        auto* box = dynamic_cast<desktop::QuietBox*>(QApplication::activeModalWidget());
        if (box == nullptr || !box->isVisible())
            return;
        watch->deleteLater();
        SeenBox seen{box->windowTitle(), box->text(), {}, {}, box->findChild<QLabel*>()->textFormat() == Qt::PlainText};
        for (const QPushButton* button : box->buttons())
            seen.buttons.append(button->text().remove(QLatin1Char('&')));
        if (box->defaultButton() != nullptr)
            seen.preselected = box->defaultButton()->text().remove(QLatin1Char('&'));
        boxes.push_back(seen);
        if (duringBox)
            duringBox();
        QTest::keyClick(box, static_cast<Qt::Key>(key));
    });
    watch->start(1);
}

void Bench::answerAnything()
{
    auto* watch = new QTimer(&main());
    QObject::connect(watch, &QTimer::timeout, watch, [] {
        if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
            dialog->reject();
    });
    watch->start(1);
}

} // namespace velmor::test
