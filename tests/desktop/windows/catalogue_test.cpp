// SPDX-License-Identifier: MIT
// Every window of the program on real widgets: what they show is what the model holds, in both languages, and each key of
// its table does what the table says.
#include <algorithm>

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>

#include "desktop/canvas/canvas_plan.h"
#include "desktop/canvas/keyboard.h"
#include "desktop/desktop_fixture.h"
#include "desktop/drawing/texts.h"
#include "desktop/windows/menus.h"
#include "program/catalogue.h"

namespace velmor::test::catalogue_test {

using host::Handle;
using host::Kind;
using host::noControl;

struct Showing {
    std::string window;
    bool english;
};

void PrintTo(const Showing& showing, std::ostream* out)
{
    *out << showing.window << (showing.english ? " in English" : " in Spanish");
}

std::vector<Showing> everyWindow()
{
    std::vector<Showing> all;
    for (const host::WindowSpec* spec : program::catalogue())
        for (const bool english : {false, true})
            if (spec->role != host::Role::mainWindow)
                all.push_back({std::string(spec->name), english});
    return all;
}

struct CatalogueTest : ::testing::TestWithParam<Showing> {
    CatalogueTest() : on(program::catalogue()) {}
    void SetUp() override
    {
        on.engine.values().LanguageIsEnglish = GetParam().english ? host::trueValue : std::int16_t{0};
        on.open();
        on.answerAnything();
        window = &on.show(GetParam().window);
    }
    Bench on;
    host::Window* window = nullptr;
};

void expectWidget(Bench& on, host::Window& window, const host::ControlRow& row)
{
    QWidget* widget = on.widgetOf(window, row.id);
    const bool shown = desktop::isShown(window, row.id) && row.look != host::Look::invisible;
    // A field that cannot be written in is painted until it can.
    const bool wanted = host::takesFocus(row.kind) && (row.kind != Kind::field || window.enabled(row.id));
    if (shown && wanted) {
        ASSERT_NE(widget, nullptr) << row.name;
    }
    if (widget == nullptr)
        return;
    EXPECT_EQ(widget->isVisibleTo(&on.viewOf(window).canvas()), shown) << row.name;
    EXPECT_EQ(widget->isEnabled(), window.enabled(row.id)) << row.name;
    EXPECT_FALSE(widget->accessibleName().isEmpty()) << row.name;
    const std::string_view meaning = row.meaning.in(on.engine.values().LanguageIsEnglish);
    EXPECT_TRUE(widget->accessibleName().contains(desktop::shown(meaning))) << row.name;
    if (auto* field = dynamic_cast<desktop::FieldEdit*>(widget)) {
        EXPECT_EQ(desktop::held(field->text()), window.text(row.id)) << row.name;
    } else if (auto* page = qobject_cast<QPlainTextEdit*>(widget)) {
        EXPECT_EQ(desktop::held(page->toPlainText()), window.wholeText(row.id)) << row.name;
    } else if (auto* list = qobject_cast<QListWidget*>(widget)) {
        EXPECT_EQ(list->count(), static_cast<int>(window.list(row.id).items.size())) << row.name;
    }
}

TEST_P(CatalogueTest, widgetsShowWhatTheModelHolds)
{
    for (const host::ControlRow& row : window->spec().controls)
        if (desktop::hasPlace(row.kind))
            expectWidget(on, *window, row);
    if (window->focus() == noControl || window->role() == host::Role::palette)
        return;
    // What is only read gets the keyboard when somebody walks to it.
    if (window->spec().reading) {
        EXPECT_FALSE(on.widgetOf(*window, window->focus())->hasFocus());
        on.screen.keeper().nextPane();
        Bench::settle();
    }
    EXPECT_TRUE(on.widgetOf(*window, window->focus())->hasFocus());
}

TEST_P(CatalogueTest, widgetsFollowEveryChange)
{
    on.engine.userRun([this] {
        for (const host::ControlRow& row : window->spec().controls) {
            window->setVisible(row.id, !window->visible(row.id));
            window->setEnabled(row.id, !window->enabled(row.id));
            if (row.kind != Kind::editor && row.kind != Kind::list)
                window->setText(row.id, "<b>1</b> & 2");
        }
    });
    for (const host::ControlRow& row : window->spec().controls)
        if (desktop::hasPlace(row.kind))
            expectWidget(on, *window, row);
}

TEST_P(CatalogueTest, everythingShownLiesInsideItsWindow)
{
    const desktop::Canvas& canvas = on.viewOf(*window).canvas();
    const QRect sheet = canvas.rect().adjusted(-2, -2, 2, 2);
    for (const host::ControlRow& row : window->spec().controls) {
        const bool placed = desktop::hasPlace(row.kind) && row.kind != Kind::editor &&
                            row.look != host::Look::invisible && host::shownPlace(*window, row.id) != host::Place{};
        EXPECT_TRUE(!placed || !canvas.shows(row.id) || sheet.contains(canvas.boxInPixels(row.id))) << row.name;
    }
}

TEST_P(CatalogueTest, everyKeyOfItsTableDoesItsDeed)
{
    for (std::size_t i = 0; i < window->spec().shortcuts.size(); ++i) {
        // A fresh program for each key: a deed may close windows or open others.
        Bench fresh(program::catalogue());
        fresh.engine.values().LanguageIsEnglish = GetParam().english ? host::trueValue : std::int16_t{0};
        fresh.open();
        host::Window& shown = fresh.show(GetParam().window);
        const host::ShortcutRow& row = shown.spec().shortcuts[i];
        const QKeySequence keys(desktop::shown(row.keys), QKeySequence::PortableText);
        ASSERT_EQ(keys.count(), 1) << row.keys;
        EXPECT_EQ(desktop::shortcutRow(shown.spec(), keys[0]), i) << row.keys << " stands twice";
        EXPECT_FALSE(row.meaning.es.empty() || row.meaning.en.empty()) << row.keys;
        const Handle control = row.control == noControl ? shown.focus() : row.control;
        if (row.action == host::KeyAction::run || control == noControl || shown.row(control).kind == Kind::menu)
            continue;
        fresh.engine.userRun([&] {
            for (Handle part = control; part != noControl; part = shown.row(part).parent) {
                shown.show(part);
                shown.enable(part);
            }
            if (row.target != noControl)
                shown.show(row.target);
        });
        std::vector<std::pair<Handle, host::Event>> heard;
        fresh.engine.onSlot = [&](const host::Window& who, Handle about, host::Event event) {
            if (&who == &shown)
                heard.emplace_back(about, event);
        };
        fresh.answerAnything();
        if (shown.role() == host::Role::palette)
            fresh.screen.keeper().nextPane();
        Bench::settle();
        fresh.keys(desktop::shown(row.keys));
        const Handle about = row.action == host::KeyAction::dragTo ? row.target : control;
        const auto touches =
            std::count_if(heard.begin(), heard.end(), [&](const auto& slot) { return slot.first == about; });
        EXPECT_GT(touches, 0) << row.keys;
    }
}

INSTANTIATE_TEST_SUITE_P(Windows, CatalogueTest, ::testing::ValuesIn(everyWindow()), [](const auto& showing) {
    return showing.param.window + (showing.param.english ? "_english" : "_spanish");
});

struct MainWindowTest : ::testing::TestWithParam<bool> {};

TEST_P(MainWindowTest, menusShowWhatTheModelHoldsAndFollowIt)
{
    Bench on(program::catalogue());
    on.engine.values().LanguageIsEnglish = GetParam() ? host::trueValue : std::int16_t{0};
    on.open();
    host::Window& main = on.engine.mainWindow();
    const auto compare = [&] {
        for (const host::ControlRow& row : main.spec().controls) {
            if (row.kind != Kind::menu || row.look == host::Look::invisible)
                continue;
            const QAction* action = on.main().menus().actionOf(row.id);
            ASSERT_NE(action, nullptr) << row.name;
            EXPECT_EQ(action->text(), desktop::shown(main.text(row.id)).simplified()) << row.name;
            // The screen greys at once what would do nothing: there is nothing to undo, save or close yet.
            const bool idle = row.name == "mnuDeshacer" || row.name == "mnuRehacer" || row.name == "mnuFile(1)" ||
                              row.name == "mnuFile(2)" || row.name == "mnuFile(3)";
            EXPECT_EQ(action->isEnabled(), main.enabled(row.id) && !idle) << row.name;
            EXPECT_EQ(action->isChecked(), main.checked(row.id)) << row.name;
        }
    };
    compare();
    on.engine.userMenu(main, main.named(GetParam() ? "mnuEsp" : "mnuIng"));
    compare();
    EXPECT_EQ(on.main().menus().actionOf(main.named("mnuArchivo"))->text(), GetParam() ? "&Archivo" : "&Archive");
}

TEST_P(MainWindowTest, noTwoMenuKeysAreTheSame)
{
    Bench on(program::catalogue());
    on.open();
    std::vector<QKeySequence> keys;
    const host::Window& main = on.engine.mainWindow();
    for (const host::ControlRow& row : main.spec().controls)
        if (row.kind == Kind::menu && !on.main().menus().actionOf(row.id)->shortcut().isEmpty())
            keys.push_back(on.main().menus().actionOf(row.id)->shortcut());
    for (const host::ShortcutRow& row : main.spec().shortcuts)
        if (row.control == noControl || main.row(row.control).kind != Kind::menu)
            keys.emplace_back(desktop::shown(row.keys), QKeySequence::PortableText);
    std::sort(keys.begin(), keys.end());
    EXPECT_EQ(std::adjacent_find(keys.begin(), keys.end()), keys.end());
}

TEST_P(MainWindowTest, everyKeyOfAMenuChoosesItsItemOrShowsItsItemsFromInsideASheet)
{
    const host::WindowSpec& spec = *program::catalogue().front();
    int tried = 0;
    for (const host::ShortcutRow& row : spec.shortcuts) {
        if (row.control == noControl || spec.controls[row.control].kind != Kind::menu)
            continue;
        ++tried;
        // A sheet has the keys of undo for itself: typing goes first there.
        if (row.keys == "Ctrl+Z" || row.keys == "Ctrl+Y")
            continue;
        Bench on(program::catalogue());
        on.engine.values().LanguageIsEnglish = GetParam() ? host::trueValue : std::int16_t{0};
        on.open();
        on.engine.userRun([&] { on.engine.host().Show(*on.engine.host().NewInstance("Form2")); });
        int chosen = 0;
        on.engine.onSlot = [&](const host::Window& who, Handle about, host::Event event) {
            chosen += &who == &on.engine.mainWindow() && about == row.control && event == host::Event::click ? 1 : 0;
        };
        on.answerAnything();
        Bench::settle();
        on.keys(desktop::shown(row.keys));
        QMenu* const menu = on.main().menus().menuOf(row.control);
        EXPECT_EQ(chosen, menu == nullptr ? 1 : 0) << row.keys;
        EXPECT_EQ(QApplication::activePopupWidget(), menu) << row.keys;
        if (menu != nullptr)
            menu->hide();
    }
    EXPECT_EQ(tried, 10) << "new, open, save, save as, close, back, forth, two languages, the bar";
}

INSTANTIATE_TEST_SUITE_P(Languages, MainWindowTest, ::testing::Bool(),
                         [](const auto& language) { return language.param ? "english" : "spanish"; });

} // namespace velmor::test::catalogue_test
