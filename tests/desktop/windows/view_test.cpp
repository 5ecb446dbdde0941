// SPDX-License-Identifier: MIT
// What the widgets show is what the model holds; what the person does with mouse and frames reaches the engine.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QListWidget>
#include <QMdiArea>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTest>
#include <QTimer>

#include "desktop/canvas/control_pane.h"
#include "desktop/desktop_fixture.h"
#include "desktop/windows/menus.h"

namespace velmor::test::view_test {

using namespace bench;
using host::Event;

/// Counts how often a widget is painted.
struct Paintings final : QObject {
    explicit Paintings(QWidget& widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
    int count = 0;
};

struct ViewTest : ::testing::Test {
    void SetUp() override { on.open(); }
    desktop::ChildFrame& frame(host::Window& window)
    {
        return dynamic_cast<desktop::ChildFrame&>(*on.screen.keeper().frameOf(window));
    }
    std::vector<std::string>& log() { return on.sheet().log; }
    Bench on;
};

TEST_F(ViewTest, aWidgetIsMadeWhenItsControlIsFirstSeen)
{
    EXPECT_EQ(on.widgetOf(on.sheet(), Text5), nullptr);
    on.engine.userRun([this] { on.sheet().show(Text5); });
    ASSERT_NE(on.widgetOf(on.sheet(), Text5), nullptr);
    EXPECT_TRUE(on.widgetOf(on.sheet(), Text5)->isVisible());
}

TEST_F(ViewTest, aFieldThatCannotBeWrittenInLooksTheSameWithAndWithoutAWidget)
{
    on.engine.userRun([this] {
        on.sheet().disable(Text5);
        on.sheet().setText(Text5, "a text that is wider than its field, gjpqy");
        on.sheet().show(Text5);
    });
    on.settle();
    ASSERT_EQ(on.widgetOf(on.sheet(), Text4), nullptr);
    ASSERT_EQ(on.widgetOf(on.sheet(), Text5), nullptr);
    QWidget& canvas = on.viewOf(on.sheet()).canvas();
    const QImage painted = canvas.grab().toImage();
    for (const host::Handle field : {Text4, Text5}) {
        on.engine.userRun([this, field] { on.sheet().enable(field); });
        on.settle();
        ASSERT_NE(on.widgetOf(on.sheet(), field), nullptr);
        EXPECT_NE(canvas.grab().toImage(), painted) << "a field that can be written in looks otherwise";
        on.engine.userRun([this, field] { on.sheet().disable(field); });
        on.settle();
        EXPECT_FALSE(on.field(field).isEnabled());
    }
    EXPECT_EQ(canvas.grab().toImage(), painted);
}

TEST_F(ViewTest, aChildsTitleIsPaintedAsTheModelTellsIt)
{
    desktop::ChildFrame& child = frame(on.sheet());
    const auto title = [&child] { return child.grab(QRect(0, 0, child.width(), child.view()->y())).toImage(); };
    const auto call = [&](const char* name) {
        on.engine.userRun([&] { on.sheet().setCaption(name); });
        on.settle();
        return title();
    };
    const QImage nameless = call("");
    const QImage first = call("First");
    EXPECT_EQ(child.windowTitle(), "First");
    EXPECT_NE(first, nameless);
    EXPECT_NE(call("Second"), first);
    EXPECT_EQ(call("First"), first);
    EXPECT_EQ(call(std::string(400, 'm').c_str()).size(), first.size());
    Paintings paintings(child);
    on.engine.userRun([&] { on.sheet().setCaption("Third"); });
    on.settle();
    EXPECT_GT(paintings.count, 0) << "a new title is painted at once";
}

TEST_F(ViewTest, onlyTheFramesThatBecomeActiveOrCeaseToBeSoArePaintedAnew)
{
    BenchWindow& second = on.newSheet();
    BenchWindow& third = on.newSheet();
    on.engine.userRun([&] { on.engine.host().Arrange(1); });
    on.settle();
    Paintings ofFirst(frame(on.sheet()));
    Paintings ofSecond(frame(second));
    Paintings ofThird(frame(third));
    on.engine.userActivate(second);
    on.settle();
    EXPECT_EQ(ofFirst.count, 0);
    EXPECT_GT(ofSecond.count, 0);
    EXPECT_GT(ofThird.count, 0);
    frame(on.sheet()).update();
    on.settle();
    EXPECT_GT(ofFirst.count, 0) << "held for the moment of the change alone";
}

TEST_F(ViewTest, theSignsOfAFramesMenuAreThereWhenTheyAreSeen)
{
    int seen = 0;
    for (const QAction* action : frame(on.sheet()).systemMenu()->actions())
        if (!action->icon().isNull()) {
            ++seen;
            EXPECT_FALSE(action->icon().pixmap(16).toImage().isNull()) << action->text().toStdString();
            EXPECT_FALSE(action->icon().availableSizes().isEmpty());
        }
    EXPECT_GE(seen, 3);
}

TEST_F(ViewTest, textVisibilityEnablingAndColourFollowTheModel)
{
    on.engine.userRun([this] {
        on.sheet().setText(Text2, "12.5 V");
        on.sheet().disable(Text2);
        on.sheet().setBackColor(Text3, 0x800000);
        on.sheet().hide(Text1);
    });
    EXPECT_EQ(on.field(Text2).text(), "12.5 V");
    EXPECT_FALSE(on.field(Text2).isEnabled());
    EXPECT_FALSE(on.field(Text1).isVisible());
    EXPECT_EQ(on.field(Text3).palette().color(QPalette::Active, QPalette::Base), QColor(0x80, 0, 0));
    EXPECT_GE(desktop::contrast(on.field(Text3).palette().color(QPalette::Active, QPalette::Text), QColor(0x80, 0, 0)),
              4.5);
}

TEST_F(ViewTest, whatLiesInAHiddenPanelIsHidden)
{
    EXPECT_EQ(on.widgetOf(on.sheet(), Inside1), nullptr);
    on.engine.userRun([this] { on.sheet().show(Panel1); });
    ASSERT_NE(on.widgetOf(on.sheet(), Inside1), nullptr);
    EXPECT_TRUE(on.widgetOf(on.sheet(), Inside1)->isVisible());
    on.engine.userRun([this] { on.sheet().hide(Panel1); });
    EXPECT_FALSE(on.widgetOf(on.sheet(), Inside1)->isVisible());
}

TEST_F(ViewTest, anOverlayLiesAboveTheFields)
{
    on.engine.userRun([this] { on.sheet().show(Balloon); });
    on.settle();
    QWidget& canvas = on.viewOf(on.sheet()).canvas();
    EXPECT_EQ(canvas.childAt(on.field(Text3).geometry().center()), on.widgetOf(on.sheet(), Balloon));
}

TEST_F(ViewTest, aHelpPageBeyondTheEdgeIsKeptInsideTheSheet)
{
    on.engine.userRun([this] { on.sheet().show(Page1); });
    on.settle();
    auto* page = qobject_cast<QPlainTextEdit*>(on.widgetOf(on.sheet(), Page1));
    ASSERT_NE(page, nullptr);
    EXPECT_TRUE(on.viewOf(on.sheet()).canvas().rect().contains(page->geometry()));
    EXPECT_EQ(page->toPlainText(), "<i>Ayuda</i>\n  Rb1 = S x RL") << "a page is shown to the letter";
    EXPECT_TRUE(page->isReadOnly());
}

TEST_F(ViewTest, titlesAreShownToTheLetter)
{
    EXPECT_EQ(frame(on.sheet()).windowTitle(), "Hoja [*][*] & <b>") << "Qt shows this as: Hoja [*] & <b>";
}

TEST_F(ViewTest, toolTipsEscapeMarkupAndNameTheKey)
{
    EXPECT_EQ(on.viewOf(on.sheet()).canvas().tipOf(Image1), "<b>Imagen</b> & más  (Ctrl+B)");
    EXPECT_EQ(on.field(Text2).toolTip(), "<qt>Resistor&nbsp;de&nbsp;base</qt>");
}

TEST_F(ViewTest, fieldsAndPicturesCarryNamesInTheLanguageOfTheMoment)
{
    EXPECT_EQ(on.field(Text2).accessibleName(), "Rb1, Resistor de base, K");
    EXPECT_EQ(on.widgetOf(on.sheet(), Command1)->accessibleName(), "A & B, Botón");
    on.engine.userRun([this] { on.engine.values().LanguageIsEnglish = host::trueValue; });
    EXPECT_EQ(on.field(Text2).accessibleName(), "Rb1, Base resistor, K");
    EXPECT_EQ(on.widgetOf(on.sheet(), Picture1)->accessibleName(), "Picture");
}

TEST_F(ViewTest, assistiveTechnologySeesPaintedButtonsAndCanPressThem)
{
    QAccessibleInterface* button = QAccessible::queryAccessibleInterface(on.widgetOf(on.sheet(), Command1));
    ASSERT_NE(button, nullptr);
    EXPECT_EQ(button->role(), QAccessible::PushButton);
    EXPECT_EQ(button->text(QAccessible::Name), "A & B, Botón");
    log().clear();
    button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(log().back(), "Command1 click");
    EXPECT_TRUE(button->state().focused);
    QAccessibleInterface* option = QAccessible::queryAccessibleInterface(on.widgetOf(on.sheet(), Option1));
    EXPECT_EQ(option->role(), QAccessible::RadioButton);
    EXPECT_TRUE(option->state().checked);
}

TEST_F(ViewTest, aSheetScalesAsAWholeAndItsLettersWithIt)
{
    on.main().resize(700, 450);
    on.settle();
    const double before = on.viewOf(on.sheet()).canvas().scale();
    const QRect box = on.field(Text1).geometry();
    const int letters = on.field(Text1).font().pixelSize();
    on.main().resize(1400, 900);
    on.settle();
    const double ratio = on.viewOf(on.sheet()).canvas().scale() / before;
    EXPECT_NEAR(ratio, 2.0, 0.25);
    EXPECT_NEAR(on.field(Text1).width(), box.width() * ratio, 2.0);
    EXPECT_NEAR(on.field(Text1).font().pixelSize(), letters * ratio, 2.0);
}

TEST_F(ViewTest, belowAReadableSizeTheSheetScrollsAndFollowsTheFieldInHand)
{
    on.engine.userState(on.sheet(), 0);
    frame(on.sheet()).setGeometry(0, 0, 260, 200);
    on.settle();
    desktop::Canvas& canvas = on.viewOf(on.sheet()).canvas();
    EXPECT_GE(canvas.scale(), 0.85);
    EXPECT_GT(canvas.width(), 260);
    const auto inSight = [&](host::Handle control) {
        return canvas.visibleRegion().boundingRect().contains(canvas.boxInPixels(control).center());
    };
    EXPECT_TRUE(inSight(Text1));
    on.engine.userFocus(on.sheet(), List1);
    on.settle();
    EXPECT_TRUE(inSight(List1));
    EXPECT_FALSE(inSight(Text1));
}

TEST_F(ViewTest, aTimerTicksWhileItIsEnabledAndNotDuringABox)
{
    int ticks = 0;
    on.sheet().deeds[{Timer1, Event::timer}] = [&](host::EventArgs&) {
        if (++ticks == 3)
            on.sheet().disable(Timer1);
    };
    on.engine.userRun([this] { on.sheet().enable(Timer1); });
    EXPECT_TRUE(QTest::qWaitFor([&] { return ticks == 3; }, 3000));
    QTest::qWait(40);
    EXPECT_EQ(ticks, 3);
}

TEST_F(ViewTest, aListFollowsTheModelAndTellsTheChoice)
{
    on.engine.userRun([this] {
        on.sheet().list(List1).items = {"uno.bmp", "dos.exe"};
        on.sheet().listChanged(List1);
    });
    auto* list = qobject_cast<QListWidget*>(on.widgetOf(on.sheet(), List1));
    ASSERT_EQ(list->count(), 2);
    on.engine.userFocus(on.sheet(), List1);
    on.settle();
    on.key(Qt::Key_Down);
    on.key(Qt::Key_Down);
    EXPECT_EQ(on.sheet().list(List1).selected, list->currentRow());
    EXPECT_EQ(log().back(), "List1 change");
}

TEST_F(ViewTest, aToolBesideASmallMainWindowIsReadableAndDoesNotScroll)
{
    on.main().resize(640, 420);
    on.settle();
    host::Window& tool = on.show("Herramienta");
    const desktop::SheetView& view = on.viewOf(tool);
    EXPECT_LE(view.canvas().width(), view.width());
    EXPECT_LE(view.canvas().height(), view.height());
    EXPECT_GE(view.canvas().width(), 3000.0 / 15 * 0.85);
}

TEST_F(ViewTest, aListOfFoldersIsWalkedBeforeItIsEntered)
{
    on.engine.userRun([this] {
        on.sheet().list(List1).items = {"..", "guias", "informes"};
        on.sheet().list(List1).folder = "/casa";
        on.sheet().listChanged(List1);
    });
    auto* list = qobject_cast<QListWidget*>(on.widgetOf(on.sheet(), List1));
    on.engine.userFocus(on.sheet(), List1);
    on.settle();
    on.key(Qt::Key_Down);
    on.key(Qt::Key_Down);
    EXPECT_GE(list->currentRow(), 1);
    EXPECT_EQ(on.sheet().list(List1).selected, -1);
    on.key(Qt::Key_Return);
    EXPECT_EQ(on.sheet().list(List1).selected, list->currentRow());
    EXPECT_EQ(log().back(), "List1 change");
}

TEST_F(ViewTest, menusShowCaptionsChecksAndAskBeforeTheyOpen)
{
    auto& main = static_cast<BenchWindow&>(on.engine.mainWindow());
    main.deeds[{mnuOp, Event::menuOpen}] = [&](host::EventArgs&) { main.setChecked(mnuIng, true); };
    QMenu* menu = on.main().menus().menuOf(mnuOp);
    menu->popup(QPoint(5, 5));
    on.settle();
    EXPECT_TRUE(on.main().menus().actionOf(mnuIng)->isChecked());
    menu->close();
    main.log.clear();
    on.main().menus().actionOf(mnuIng)->trigger();
    EXPECT_TRUE(on.main().menus().actionOf(mnuIng)->isChecked()) << "the mark is the model's, not the toolkit's";
    EXPECT_EQ(main.log.back(), "mnuIng click");
    on.engine.userRun([&] { main.setText(mnuOp, "&Options"); });
    EXPECT_EQ(on.main().menus().actionOf(mnuOp)->text(), "&Options");
    on.engine.userRun([&] { main.hide(mnuIng); });
    EXPECT_FALSE(on.main().menus().actionOf(mnuIng)->isVisible());
}

TEST_F(ViewTest, aRefusedCloseLeavesTheSheet)
{
    on.sheet().deeds[{host::noControl, Event::queryClose}] = [](host::EventArgs& args) { args.cancel = true; };
    frame(on.sheet()).close();
    on.settle();
    EXPECT_TRUE(frame(on.sheet()).isVisible());
    on.sheet().deeds.clear();
    const host::Window* sheet = &on.sheet();
    frame(on.sheet()).close();
    on.settle();
    EXPECT_FALSE(on.engine.isLoaded(sheet));
    EXPECT_TRUE(on.main().area().subWindowList().isEmpty());
}

TEST_F(ViewTest, aRefusedEndLeavesTheProgram)
{
    auto& main = static_cast<BenchWindow&>(on.engine.mainWindow());
    main.deeds[{host::noControl, Event::queryClose}] = [](host::EventArgs& args) { args.cancel = true; };
    on.main().close();
    on.settle();
    EXPECT_TRUE(on.main().isVisible());
    EXPECT_FALSE(on.engine.ended());
}

TEST_F(ViewTest, statesOfAChildGoBothWays)
{
    frame(on.sheet()).showMaximized();
    on.settle();
    EXPECT_EQ(on.sheet().windowState(), 2);
    frame(on.sheet()).showMinimized();
    on.settle();
    EXPECT_EQ(on.sheet().windowState(), 1);
    on.engine.userState(on.sheet(), 0);
    on.settle();
    EXPECT_FALSE(frame(on.sheet()).isMinimized());
    EXPECT_FALSE(frame(on.sheet()).isMaximized());
}

TEST_F(ViewTest, arrangingPlacesTheFramesAndMovingOneTellsTheEngine)
{
    BenchWindow& second = on.newSheet();
    on.engine.userRun([this] { on.engine.host().Arrange(2); });
    on.settle();
    EXPECT_FALSE(frame(on.sheet()).geometry().intersects(frame(second).geometry()));
    EXPECT_NEAR(frame(on.sheet()).height(), on.main().area().height(), 2);
    EXPECT_NEAR(frame(on.sheet()).width() + frame(second).width(), on.main().area().width(), 2);
    log().clear();
    frame(on.sheet()).setGeometry(20, 30, 500, 400);
    on.settle();
    EXPECT_NEAR(on.screen.desk().pixels(on.sheet().place().left), 20, 1);
    EXPECT_NEAR(on.screen.desk().pixels(on.sheet().place().width), 500, 1);
    EXPECT_EQ(log().front(), "Hoja resize");
    EXPECT_EQ(frame(on.sheet()).geometry(), QRect(20, 30, 500, 400)) << "what the person chose is not rounded away";
}

TEST_F(ViewTest, aSheetThatFillsTheAreaGoesOnFillingIt)
{
    const auto fills = [this] {
        const QRect sheet = frame(on.sheet()).geometry();
        return std::abs(sheet.width() - on.main().area().width()) <= 2 &&
               std::abs(sheet.height() - on.main().area().height()) <= 2;
    };
    EXPECT_TRUE(fills());
    log().clear();
    on.main().resize(900, 600);
    on.settle();
    EXPECT_TRUE(fills());
    EXPECT_TRUE(log().empty()) << "the main window's size is no event of a sheet";
}

TEST_F(ViewTest, thePaletteHasAStripToItselfAndHidesNothing)
{
    on.show("Paleta");
    on.settle();
    const QWidget& palette = on.screen.keeper().frameOf(*on.engine.defaultInstance("Paleta"))->widget();
    const QRect area(on.main().area().mapToGlobal(QPoint(0, 0)), on.main().area().size());
    EXPECT_FALSE(QRect(palette.mapToGlobal(QPoint(0, 0)), palette.size()).intersects(area));
}

TEST_F(ViewTest, aToolGivesWayToTheFieldInHand)
{
    host::Window& tool = on.show("Herramienta");
    auto& window = dynamic_cast<desktop::ToolWindow&>(*on.screen.keeper().frameOf(tool));
    on.main().activateWindow();
    on.settle();
    const QRect inHand = on.viewOf(on.sheet()).inHand();
    window.move(inHand.topLeft() - QPoint(20, 20));
    on.key(Qt::Key_Tab);
    on.key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_FALSE(window.frameGeometry().intersects(on.viewOf(on.sheet()).inHand()));
}

// A sheet whitens and greys fields; colours that warn are another thing.
TEST_F(ViewTest, whatASheetWhitensOrGreysIsNoPaperInTheDark)
{
    on.engine.userRun([this] {
        on.sheet().setBackColor(Text1, 0xFFFFFF);
        on.sheet().setBackColor(Text2, 0xC0C0C0);
        on.sheet().setBackColor(Text3, 0xFFFF80);
    });
    const auto groundOf = [this](host::Handle field) {
        return on.field(field).palette().color(QPalette::Active, QPalette::Base);
    };
    EXPECT_EQ(groundOf(Text1), QColor(255, 255, 255));
    EXPECT_EQ(groundOf(Text2), QColor(0xC0, 0xC0, 0xC0));
    const QPalette light = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(40, 40, 44), QColor(30, 30, 34)));
    on.settle();
    EXPECT_EQ(groundOf(Text1), desktop::darkInks().field);
    EXPECT_EQ(groundOf(Text2), desktop::darkInks().fieldOff);
    EXPECT_EQ(groundOf(Text3), QColor(0xFF, 0xFF, 0x80));
    QApplication::setPalette(light);
    on.settle();
}

TEST_F(ViewTest, theSheetTurnsDarkWithTheDesktopAndBack)
{
    const QPalette light = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(40, 40, 44), QColor(30, 30, 34)));
    on.settle();
    EXPECT_TRUE(on.viewOf(on.sheet()).canvas().view().inks->dark);
    EXPECT_EQ(on.field(Text1).palette().color(QPalette::Active, QPalette::Base), desktop::darkInks().field);
    if (qEnvironmentVariableIsSet("VELMOR_PICTURES"))
        on.main().grab().save(qEnvironmentVariable("VELMOR_PICTURES") + "/dark.png");
    QApplication::setPalette(light);
    on.settle();
    EXPECT_FALSE(on.viewOf(on.sheet()).canvas().view().inks->dark);
}

TEST_F(ViewTest, twoScrollBarsComeOnlyWhereTwoAreNeeded)
{
    on.engine.userState(on.sheet(), 0);
    frame(on.sheet()).setGeometry(0, 0, 300, 420);
    on.settle();
    const desktop::Canvas& canvas = on.viewOf(on.sheet()).canvas();
    EXPECT_GT(canvas.width(), 300);
    EXPECT_EQ(canvas.height(), canvas.parentWidget()->height());
}

TEST_F(ViewTest, nothingOfAQuestionReachesASlotTwice)
{
    int keysHeard = 0;
    on.sheet().deeds[{Text1, Event::key}] = [&](host::EventArgs& args) {
        ++keysHeard;
        if (args.key == 13)
            on.engine.host().MsgBox("¿Sigue?", 36, "Pregunta");
    };
    on.answerByKey(Qt::Key_Return);
    on.key(Qt::Key_Return);
    EXPECT_EQ(keysHeard, 1);
}

TEST_F(ViewTest, endingTheProgramFromASlotIsSafe)
{
    on.sheet().deeds[{Text1, Event::key}] = [&](host::EventArgs&) { on.engine.host().endProgram(); };
    on.key(Qt::Key_Return);
    EXPECT_TRUE(on.engine.ended());
    on.key(Qt::Key_Tab);
    on.click(Text2);
    EXPECT_TRUE(on.screen.desk().closing);
}

} // namespace velmor::test::view_test
