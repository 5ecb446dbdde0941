// SPDX-License-Identifier: MIT
// The shell around the sheets: boxes of the program's own line, tools in a frame of their own, the palette as a strip.
#include <algorithm>

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QPushButton>
#include <QStyleOption>
#include <QTest>
#include <QTimer>
#include <QToolTip>

#include "desktop/desktop_fixture.h"
#include "desktop/drawing/box_sign.h"
#include "desktop/drawing/palette_of_inks.h"
#include "desktop/fire/stale_picture.h"
#include "desktop/windows/palette_strip.h"
#include "desktop/windows/placing.h"
#include "desktop/windows/quiet_box.h"

namespace velmor::test::shell_test {

using namespace bench;
using host::Answer;
using host::Event;

struct ShellTest : ::testing::Test {
    void SetUp() override { on.open(); }
    QRect onScreen(const QWidget& widget) { return {widget.mapToGlobal(QPoint(0, 0)), widget.size()}; }
    /// Does something to the next box.
    void whenAsked(const std::function<void(desktop::QuietBox&)>& deed)
    {
        auto* watch = new QTimer(&on.main());
        QObject::connect(watch, &QTimer::timeout, watch, [watch, deed] {
            auto* box = dynamic_cast<desktop::QuietBox*>(QApplication::activeModalWidget());
            if (box == nullptr || !box->isVisible())
                return;
            watch->deleteLater();
            deed(*box);
        });
        watch->start(1);
    }
    const desktop::BoxText& textOf(const desktop::QuietBox& box)
    {
        const auto labels = box.findChildren<QLabel*>();
        return dynamic_cast<const desktop::BoxText&>(**std::find_if(labels.begin(), labels.end(), [](QLabel* label) {
            return dynamic_cast<desktop::BoxText*>(label) != nullptr;
        }));
    }
    QAbstractButton& closeOf(QWidget& widget) { return *widget.findChild<QAbstractButton*>("close"); }
    void pressAt(QPoint onTheScreen)
    {
        QTest::mouseClick(on.main().windowHandle(), Qt::LeftButton, {}, on.main().mapFromGlobal(onTheScreen));
        on.settle();
    }
    QPoint titleOfTheSheet() { return on.main().area().currentSubWindow()->mapToGlobal(QPoint(60, 8)); }
    Bench on;
};

// buttons

TEST_F(ShellTest, aButtonLeavesItsCaptionAir)
{
    const QPushButton button(QStringLiteral("Reemplazar todo"));
    const QFontMetrics letters = button.fontMetrics();
    EXPECT_GE(button.sizeHint().width(), letters.horizontalAdvance(button.text()) + letters.height());
}

// Alt alone, and Escape out of a menu, leave the keyboard with the bar: where it is must be seen.
TEST_F(ShellTest, theItemOfTheMenuBarThatHasTheKeyboardIsMarked)
{
    const auto painted = [this](QStyle::State state) {
        QImage image(120, 30, QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        QStyleOptionMenuItem item;
        item.initFrom(on.main().menuBar());
        item.rect = image.rect();
        item.text = QStringLiteral("&Archivo");
        item.state = state | QStyle::State_Enabled;
        on.main().menuBar()->style()->drawControl(QStyle::CE_MenuBarItem, &item, &painter, on.main().menuBar());
        return image;
    };
    EXPECT_NE(painted(QStyle::State_Selected), painted(QStyle::State_None));
    EXPECT_EQ(painted(QStyle::State_Selected), painted(QStyle::State_Selected | QStyle::State_Sunken));
}

TEST_F(ShellTest, theButtonsOfAMaximisedChildGrowWithTheLetters)
{
    QStyleOptionComplex buttons;
    buttons.subControls = QStyle::SC_MdiMinButton | QStyle::SC_MdiNormalButton | QStyle::SC_MdiCloseButton;
    const auto sizeAt = [&](int pixels) {
        QFont font;
        font.setPixelSize(pixels);
        buttons.fontMetrics = QFontMetrics(font);
        return QApplication::style()->sizeFromContents(QStyle::CT_MdiControls, &buttons, QSize());
    };
    EXPECT_GE(sizeAt(40).height(), 40);
    EXPECT_NEAR(sizeAt(40).width(), 3 * sizeAt(40).height(), 3);
    EXPECT_LT(sizeAt(12).height(), sizeAt(40).height());
}

TEST_F(ShellTest, aTipHasTheLettersAndTheGroundOfTheProgram)
{
    QToolTip::showText(on.main().mapToGlobal(QPoint(50, 50)), QStringLiteral("<qt>Abrir la guía</qt>"), &on.main());
    const QWidget* tip = nullptr;
    for (const QWidget* window : QApplication::topLevelWidgets())
        if (window->inherits("QTipLabel"))
            tip = window;
    ASSERT_NE(tip, nullptr);
    const QPalette around = QApplication::palette();
    const desktop::Inks& inks = desktop::inksFor(around);
    EXPECT_EQ(tip->palette().color(QPalette::ToolTipBase), inks.hint);
    EXPECT_GE(desktop::contrast(inks.hint, tip->palette().color(QPalette::ToolTipText)), 4.5);
    EXPECT_EQ(tip->font().pointSizeF(), QApplication::font().pointSizeF());
    QToolTip::hideText();
}

TEST_F(ShellTest, aTipStandsBelowTheFieldThatItSpeaksOf)
{
    desktop::FieldEdit& field = on.field(Text1);
    const QPoint middle = field.rect().center();
    QHelpEvent asked(QEvent::ToolTip, middle, field.mapToGlobal(middle));
    QApplication::sendEvent(&field, &asked);
    const QWidget* tip = nullptr;
    for (const QWidget* window : QApplication::topLevelWidgets())
        if (window->inherits("QTipLabel") && window->isVisible())
            tip = window;
    ASSERT_NE(tip, nullptr);
    EXPECT_GT(tip->y(), onScreen(field).bottom());
    QToolTip::hideText();
}

TEST_F(ShellTest, theToolkitsOwnBoxesHaveTheProgramsSigns)
{
    QImage drawn(64, 64, QImage::Format_ARGB32_Premultiplied);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    desktop::paintBoxSign(painter, drawn.rect(), host::BoxIcon::question, desktop::inksFor(QApplication::palette()));
    painter.end();
    const QIcon sign = QApplication::style()->standardIcon(QStyle::SP_MessageBoxQuestion);
    EXPECT_EQ(sign.pixmap(64, 64).toImage().convertToFormat(drawn.format()), drawn);
}

// boxes

TEST_F(ShellTest, aQuestionInATextLeavesNoHoleInTheCalm)
{
    host::Window& editor = on.show("Editor");
    const QPoint caret = on.viewOf(editor).inHand().center();
    whenAsked([&](desktop::QuietBox& box) {
        auto* veil = on.main().findChild<QWidget*>("veil");
        ASSERT_NE(veil, nullptr);
        QImage calm(veil->size(), QImage::Format_ARGB32_Premultiplied);
        calm.fill(Qt::transparent);
        veil->render(&calm, QPoint(), QRegion(), QWidget::RenderFlags());
        EXPECT_GT(calm.pixelColor(veil->mapFromGlobal(caret)).alpha(), 0);
        box.reject();
    });
    on.screen.messageBox({"Elija otro", "Criterio", 36});
    on.settle();
}

TEST_F(ShellTest, aBoxIsADialogInTheProgramsOwnFrameAndTheWindowsBehindAreCalm)
{
    QStringList behind;
    whenAsked([&](desktop::QuietBox& box) {
        EXPECT_EQ(box.windowType(), Qt::Dialog);
        EXPECT_TRUE(box.windowFlags() & Qt::FramelessWindowHint);
        EXPECT_TRUE(box.isModal());
        EXPECT_EQ(box.windowTitle(), "Criterio");
        EXPECT_EQ(box.findChildren<QAbstractButton*>("close").size(), 1);
        EXPECT_EQ(on.main().findChildren<QWidget*>("veil").size(), 1);
        box.reject();
    });
    on.screen.messageBox({"Elija otro", "Criterio", 36});
    on.settle();
    EXPECT_TRUE(on.main().findChildren<QWidget*>("veil").isEmpty()) << "and awake again";
}

TEST_F(ShellTest, theButtonInTheTitleOfABoxAnswersAsEscape)
{
    for (const auto& [flags, answer] : {std::pair{35, Answer::cancel}, {36, Answer::no}, {48, Answer::ok}}) {
        whenAsked([&](desktop::QuietBox& box) { closeOf(box).click(); });
        EXPECT_EQ(on.screen.messageBox({"Elija otro", "Criterio", flags}), answer) << flags;
    }
}

TEST_F(ShellTest, aBoxThatAnswersAKeyStandsBesideTheFieldAndNeverOverIt)
{
    for (const int field : {Text1, Text2}) {
        on.sheet().deeds[{static_cast<host::Handle>(field), Event::lostFocus}] = [&](host::EventArgs&) {
            on.screen.messageBox({"Fuera de rango", "Criterio", 48});
        };
        const QRect left = onScreen(on.field(static_cast<host::Handle>(field)));
        QRect place;
        whenAsked([&](desktop::QuietBox& box) {
            place = box.geometry();
            box.accept();
        });
        on.key(Qt::Key_Tab);
        ASSERT_FALSE(place.isEmpty());
        EXPECT_FALSE(place.intersects(left));
        EXPECT_TRUE(place.adjusted(-20, -20, 20, 20).intersects(left)) << "no way for the eye";
    }
}

TEST_F(ShellTest, aBoxThatNoKeyInAFieldHasRaisedStandsInTheMiddle)
{
    QRect place;
    whenAsked([&](desktop::QuietBox& box) {
        place = box.geometry();
        box.reject();
    });
    on.screen.messageBox({"¿Desea abandonar?", "Velmor", 36});
    EXPECT_LE(std::abs(place.center().x() - on.main().geometry().center().x()), 2);
    EXPECT_LE(std::abs(place.center().y() - on.main().geometry().center().y()), 2);
}

TEST_F(ShellTest, longTextsAreBrokenToAReadableMeasureAndLongWordsToo)
{
    for (const std::string& text :
         {std::string("La corriente de reposo cambia con la temperatura y por eso se elige. ") +
              "Un valor mayor pide más fuente, y un valor menor deja poca tensión al transistor.",
          std::string(300, 'x')}) {
        whenAsked([&](desktop::QuietBox& box) {
            const desktop::BoxText& label = textOf(box);
            EXPECT_EQ(label.text().toStdString(), text) << "the text itself is untouched";
            EXPECT_LE(label.width(), 70 * label.fontMetrics().averageCharWidth());
            EXPECT_GE(label.height(), 2 * label.fontMetrics().lineSpacing());
            EXPECT_TRUE(box.rect().contains(label.geometry()));
            box.accept();
        });
        on.screen.messageBox({text, "Velmor", 48});
    }
}

TEST_F(ShellTest, theButtonThatEnterPressesIsFilled)
{
    whenAsked([&](desktop::QuietBox& box) {
        const desktop::Inks& inks = *on.screen.desk().inks;
        for (QPushButton* button : box.buttons()) {
            const QColor ground = button->grab().toImage().pixelColor(6, button->height() / 2);
            EXPECT_EQ(ground == inks.accent, button->isDefault()) << button->text().toStdString();
        }
        box.reject();
    });
    on.screen.messageBox({"¿Salvar?", "Velmor", 35 + 256});
}

TEST(BoxSignTest, everySignHasAnOutlineOfItsOwn)
{
    const auto shape = [](host::BoxIcon icon) {
        QImage image(48, 48, QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        desktop::paintBoxSign(painter, image.rect(), icon, desktop::lightInks());
        painter.end();
        return image.convertToFormat(QImage::Format_Alpha8);
    };
    using Icon = host::BoxIcon;
    QImage empty(48, 48, QImage::Format_Alpha8);
    empty.fill(0);
    EXPECT_EQ(shape(Icon::none), empty);
    EXPECT_NE(shape(Icon::stop), shape(Icon::warning));
    EXPECT_NE(shape(Icon::stop), shape(Icon::question));
    EXPECT_NE(shape(Icon::warning), shape(Icon::information));
    EXPECT_NE(shape(Icon::stop), empty);
}

// A box that speaks of a current shall not hide it: a value that has just been computed stays in sight as the field in hand does.
TEST_F(ShellTest, aBoxStandsBesideTheValuesThatCameWithIt)
{
    QRect box;
    on.duringBox = [&box] { box = QApplication::activeModalWidget()->frameGeometry(); };
    const auto placeOf = [this](host::Handle control) {
        desktop::Canvas& canvas = on.viewOf(on.sheet()).canvas();
        const QRect inside = canvas.boxInPixels(control);
        return QRect(canvas.mapToGlobal(inside.topLeft()), inside.size());
    };
    std::string answer;
    on.sheet().deeds[{Text1, Event::key}] = [&](host::EventArgs& args) {
        if (args.key != 13)
            return;
        if (!answer.empty())
            on.sheet().setText(Text2, answer);
        on.answerByKey(Qt::Key_Return);
        on.engine.host().MsgBox("Corriente distinta", 48, "Velmor");
    };
    Bench::key(Qt::Key_Return);
    ASSERT_TRUE(box.intersects(placeOf(Text2))) << "below the field, where nothing has come";
    answer = "-9.6 mA";
    Bench::key(Qt::Key_Return);
    EXPECT_FALSE(box.intersects(placeOf(Text2)));
    EXPECT_FALSE(box.intersects(placeOf(Text1)));
}

TEST(PlacingTest, belowTheThingElseAboveElseBesideItElseWhereverItHidesNothing)
{
    const QRect room(0, 0, 1000, 600);
    const QSize box(300, 200);
    EXPECT_GT(desktop::besideThing({400, 100, 80, 20}, box, room).y(), 120) << "below";
    EXPECT_LT(desktop::besideThing({400, 500, 80, 20}, box, room).y(), 300) << "above";
    for (const QRect thing : {QRect(0, 0, 40, 20), QRect(960, 580, 40, 20), QRect(480, 290, 40, 20)}) {
        for (const QPoint at : {desktop::besideThing(thing, box, room), desktop::clearOfThing(thing, box, room)}) {
            EXPECT_FALSE(QRect(at, box).intersects(thing));
            EXPECT_TRUE(room.contains(QRect(at, box)));
        }
    }
    EXPECT_EQ(desktop::clearOfThing({}, box, room), QPoint(350, 200));
    const QRect tall(400, 10, 80, 580);
    EXPECT_FALSE(QRect(desktop::besideThing(tall, box, room), box).intersects(tall)) << "to the right";
}

// tools

struct ToolTest : ShellTest {
    desktop::ToolWindow& tool()
    {
        return dynamic_cast<desktop::ToolWindow&>(
            *on.screen.keeper().frameOf(*on.engine.defaultInstance("Herramienta")));
    }
};

TEST_F(ToolTest, aToolHasATitleOfItsOwnAndOneButtonWhichCloses)
{
    on.show("Herramienta");
    EXPECT_TRUE(tool().windowFlags() & Qt::FramelessWindowHint);
    EXPECT_EQ(tool().windowTitle(), "Herramienta");
    EXPECT_EQ(tool().findChildren<QAbstractButton*>("close").size(), 1);
    closeOf(tool()).click();
    on.settle();
    EXPECT_EQ(on.engine.defaultInstance("Herramienta"), nullptr);
}

TEST_F(ToolTest, itStandsBesideTheFieldItWasAskedForAtAndAHandMayMoveIt)
{
    const auto near = [&](host::Handle field) {
        return tool().geometry().adjusted(-20, -20, 20, 20).intersects(onScreen(on.field(field)));
    };
    on.show("Herramienta");
    EXPECT_TRUE(near(Text1));
    EXPECT_FALSE(tool().geometry().intersects(onScreen(on.field(Text1))));
    closeOf(tool()).click();
    on.settle();
    on.engine.userFocus(on.sheet(), Text3);
    on.settle();
    on.show("Herramienta");
    EXPECT_TRUE(near(Text3));
    EXPECT_FALSE(tool().geometry().intersects(onScreen(on.field(Text3))));
}

// The main window's own focus would have the toolkit ask for the main window, which comes last and stays.
TEST_F(ToolTest, openedFromASheetThatHadNotYetGotTheKeyboardItHasItAndKeepsIt)
{
    on.sheet().deeds[{Command1, Event::click}] = [this](host::EventArgs&) {
        on.engine.host().SetFocus(on.sheet(), Text3);
        on.engine.host().Show("Herramienta");
    };
    QMenu menu(&on.main());
    menu.addAction(QStringLiteral("Uno"));
    menu.popup(on.main().mapToGlobal(QPoint(200, 200)));
    on.settle();
    menu.close();
    on.settle();
    ASSERT_NE(QGuiApplication::focusWindow(), on.main().windowHandle());
    ASSERT_EQ(QApplication::activeWindow(), &on.main());
    on.engine.userClick(on.sheet(), Command1);
    on.settle();
    EXPECT_EQ(QApplication::activeWindow(), &tool());
    EXPECT_EQ(on.engine.current(), tool().model());
}

// The toolkit follows no window that becomes active while a menu is open.
TEST_F(ToolTest, closedFromOutsideUnderAnOpenMenuItTakesTheMenuAlongAndTheSheetHasTheKeyboard)
{
    host::Window& opened = on.show("Herramienta");
    QMenu menu(&on.main());
    menu.addAction(QStringLiteral("Uno"));
    menu.popup(tool().mapToGlobal(QPoint(20, 20)));
    on.settle();
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    on.engine.userClose(opened);
    on.settle();
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(QApplication::activeWindow(), &on.main());
    EXPECT_TRUE(on.field(Text1).hasFocus());
}

TEST_F(ToolTest, whichTheWindowManagerDoesNotPutInFrontIsNotTheOneTurnedTo)
{
    on.engine.userRun([this] { on.engine.host().Show("Herramienta"); });
    on.main().activateWindow();
    on.settle();
    ASSERT_EQ(QApplication::activeWindow(), &on.main());
    EXPECT_TRUE(QTest::qWaitFor([this] { return on.engine.current() == &on.sheet(); }, 2000));
    EXPECT_EQ(QApplication::activeWindow(), &on.main());
    Bench::type("7");
    EXPECT_EQ(on.sheet().text(Text1), "7");
}

// Where the desktop alone says where windows stand, tools are parts of the main window.
struct InnerToolTest : ToolTest {
    void SetUp() override
    {
        ToolTest::SetUp();
        on.screen.desk().placesWindows = false;
    }
    QRect panel() { return onScreen(on.main().panel()); }
    bool toolHasKeyboard() { return tool().isAncestorOf(QApplication::focusWidget()); }
    void drag(QWidget& from, QPoint at, QPoint way)
    {
        QTest::mousePress(&from, Qt::LeftButton, Qt::NoModifier, at);
        const QPoint start = from.mapToGlobal(at);
        for (const double part : {0.5, 1.0}) {
            const QPoint there = start + way * part;
            QMouseEvent move(QEvent::MouseMove, from.mapFromGlobal(there), there, Qt::NoButton, Qt::LeftButton, {});
            QApplication::sendEvent(&from, &move);
        }
        QTest::mouseRelease(&from, Qt::LeftButton, Qt::NoModifier, from.mapFromGlobal(start + way));
        on.settle();
    }
};

TEST_F(InnerToolTest, itStandsInsideBesideItsFieldAndTakesTheKeyboard)
{
    on.show("Herramienta");
    EXPECT_EQ(tool().window(), &on.main());
    EXPECT_TRUE(panel().contains(onScreen(tool())));
    EXPECT_FALSE(onScreen(tool()).intersects(onScreen(on.field(Text1))));
    EXPECT_TRUE(toolHasKeyboard());
    EXPECT_EQ(on.engine.current(), tool().model());
}

TEST_F(InnerToolTest, itStepsBackWhileAnotherWindowHasTheKeyboard)
{
    on.show("Herramienta");
    QWidget other;
    other.show();
    other.activateWindow();
    Bench::settle();
    ASSERT_FALSE(on.main().isActiveWindow());
    EXPECT_EQ(stalePictureOf(on.main()), "");
    const QImage behind = tool().grab().toImage();
    on.main().activateWindow();
    Bench::settle();
    EXPECT_EQ(stalePictureOf(on.main()), "");
    EXPECT_NE(tool().grab().toImage(), behind);
}

TEST_F(InnerToolTest, aPressTurnsToTheSheetAndBackAndSoDoesF6)
{
    host::Window& model = on.show("Herramienta");
    on.click(Text1);
    EXPECT_TRUE(on.field(Text1).hasFocus());
    EXPECT_EQ(on.engine.current(), &on.sheet());
    EXPECT_TRUE(tool().isVisible());
    on.click(model, ToolText);
    EXPECT_TRUE(toolHasKeyboard());
    EXPECT_EQ(on.engine.current(), &model);
    on.keys("F6");
    EXPECT_TRUE(on.field(Text1).hasFocus());
    on.keys("F6");
    EXPECT_TRUE(toolHasKeyboard());
    closeOf(tool()).click();
    on.settle();
    EXPECT_EQ(on.engine.defaultInstance("Herramienta"), nullptr);
    EXPECT_TRUE(on.field(Text1).hasFocus());
    EXPECT_EQ(on.engine.current(), &on.sheet());
}

TEST_F(InnerToolTest, aPressOnTheFrameOfTheSheetTurnsToItAndOneOnTheTitleOfTheToolBack)
{
    host::Window& model = on.show("Herramienta");
    tool().move(0, on.main().panel().height() - tool().height());
    pressAt(titleOfTheSheet());
    EXPECT_TRUE(on.field(Text1).hasFocus());
    EXPECT_EQ(on.engine.current(), &on.sheet());
    pressAt(tool().mapToGlobal(QPoint(30, 10)));
    EXPECT_TRUE(toolHasKeyboard());
    EXPECT_EQ(on.engine.current(), &model);
}

TEST_F(InnerToolTest, aHandMovesItByItsTitleAndSizesItByItsEdgesInsideTheWindow)
{
    on.show("Herramienta");
    QWidget& title = *dynamic_cast<QWidget*>(closeOf(tool()).parent());
    const QPoint before = tool().pos();
    drag(title, {30, 8}, {40, 30});
    EXPECT_EQ(tool().pos(), before + QPoint(40, 30));
    drag(title, {30, 8}, {5000, 5000});
    EXPECT_TRUE(panel().contains(onScreen(tool())));
    drag(title, {30, 8}, {-300, -300});
    const QSize size = tool().size();
    drag(tool(), {size.width() - 2, size.height() / 2}, {50, 0});
    EXPECT_EQ(tool().size(), size + QSize(50, 0));
    on.main().resize(700, 450);
    on.settle();
    EXPECT_TRUE(panel().contains(onScreen(tool())));
}

// the palette

struct StripTest : ShellTest {
    void SetUp() override
    {
        ShellTest::SetUp();
        on.show("Paleta");
        on.settle();
    }
    desktop::PaletteStrip& strip()
    {
        return dynamic_cast<desktop::PaletteStrip&>(*on.screen.keeper().frameOf(*on.engine.defaultInstance("Paleta")));
    }
    QRect area() { return onScreen(on.main().area()); }
    void drag(QPoint from, QPoint to)
    {
        QWindow* window = on.main().windowHandle();
        const auto inside = [&](QPoint point) { return on.main().mapFromGlobal(point); };
        QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, inside(from));
        for (const double part : {0.3, 0.7, 1.0})
            QTest::mouseMove(window, inside(from + (to - from) * part));
        QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, inside(to));
        on.settle();
    }
    QPoint grip() { return strip().mapToGlobal(QPoint(5, strip().height() / 2)); }
};

TEST_F(StripTest, itLiesInsideTheMainWindowAtTheLowerEdgeWithOneButton)
{
    EXPECT_EQ(strip().window(), &on.main()) << "no window of its own";
    EXPECT_FALSE(onScreen(strip()).intersects(area()));
    EXPECT_EQ(onScreen(strip()).bottom(), onScreen(on.main().panel()).bottom());
    EXPECT_EQ(strip().findChildren<QAbstractButton*>(Qt::FindDirectChildrenOnly).size(), 1);
    EXPECT_EQ(strip().accessibleName(), "Paleta");
}

TEST_F(StripTest, itsButtonClosesItAndTheSheetsGetItsRoom)
{
    const int before = area().height();
    closeOf(strip()).click();
    on.settle();
    EXPECT_EQ(on.engine.defaultInstance("Paleta"), nullptr);
    EXPECT_GT(area().height(), before);
}

TEST_F(StripTest, itIsDraggedOutByItsGripAndBack)
{
    const int before = area().height();
    const QPoint middle = area().center();
    drag(grip(), middle);
    EXPECT_TRUE(strip().floats());
    EXPECT_GT(area().height(), before) << "the sheets have its room";
    EXPECT_TRUE(onScreen(strip()).contains(middle)) << "where the hand has left it";
    drag(grip(), onScreen(on.main().panel()).center() + QPoint(0, on.main().panel().height() / 2 - 4));
    EXPECT_FALSE(strip().floats());
    EXPECT_EQ(area().height(), before);
}

TEST_F(StripTest, aDoubleClickDoesTheSame)
{
    const auto doubleClick = [&] {
        QTest::mouseDClick(on.main().windowHandle(), Qt::LeftButton, Qt::NoModifier, on.main().mapFromGlobal(grip()));
        on.settle();
    };
    doubleClick();
    EXPECT_TRUE(strip().floats());
    doubleClick();
    EXPECT_FALSE(strip().floats());
}

TEST_F(StripTest, afloatItNeverLeavesTheMainWindowNorLiesOnTheFieldInHand)
{
    strip().floatAt(QPoint(5000, 5000));
    EXPECT_TRUE(onScreen(on.main().panel()).contains(onScreen(strip())));
    strip().floatAt(on.main().panel().mapFromGlobal(onScreen(on.field(Text1)).topLeft()) - QPoint(9, 9));
    on.key(Qt::Key_Tab);
    on.key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_FALSE(onScreen(strip()).intersects(onScreen(on.field(Text1))));
    EXPECT_TRUE(strip().floats());
}

TEST_F(StripTest, aPressOnAPictureLeavesTheKeyboardInTheSheet)
{
    ASSERT_TRUE(on.field(Text1).hasFocus());
    on.click(*on.engine.defaultInstance("Paleta"), 0);
    EXPECT_TRUE(on.field(Text1).hasFocus());
    on.key(Qt::Key_5);
    EXPECT_EQ(on.field(Text1).text(), "5");
}

TEST_F(StripTest, itsEdgeIsMarkedWhileItHasTheKeyboard)
{
    const auto edge = [this] { return strip().grab().toImage().pixelColor(strip().width() / 2, 1); };
    const QColor calm = edge();
    on.keys("F6");
    EXPECT_EQ(edge(), on.screen.desk().inks->accent);
    on.keys("F6");
    EXPECT_EQ(edge(), calm);
}

TEST_F(StripTest, enterExplainsTheFirstDesignBeforeItOpensOne)
{
    auto& palette = static_cast<BenchWindow&>(*on.engine.defaultInstance("Paleta"));
    on.keys("F6");
    palette.log.clear();
    on.key(Qt::Key_Return);
    EXPECT_EQ(palette.log, (std::vector<std::string>{"imgButton(0) hover"}));
    on.key(Qt::Key_Return);
    ASSERT_GE(palette.log.size(), 2U);
    EXPECT_EQ(palette.log[1], "imgButton(0) click");
}

TEST_F(StripTest, aPressInTheSheetTakesTheKeyboardBackFromIt)
{
    on.keys("F6");
    EXPECT_TRUE(strip().isAncestorOf(QApplication::focusWidget()));
    EXPECT_EQ(on.engine.current(), on.engine.defaultInstance("Paleta"));
    on.click(Text2);
    EXPECT_TRUE(on.field(Text2).hasFocus());
    EXPECT_EQ(on.engine.current(), &on.sheet());
}

TEST_F(StripTest, soDoesAPressOnTheFrameOfTheSheet)
{
    on.keys("F6");
    pressAt(titleOfTheSheet());
    EXPECT_TRUE(on.field(Text1).hasFocus());
    EXPECT_EQ(on.engine.current(), &on.sheet());
}

// The area hands the keyboard to its sheet at changes of its own: when the main window becomes active, when a frame goes.
TEST_F(StripTest, whatTheAreaGivesToItsSheetComesBackToIt)
{
    on.keys("F6");
    for (QWidget* sheets :
         {static_cast<QWidget*>(on.main().area().currentSubWindow()), static_cast<QWidget*>(&on.field(Text2))}) {
        sheets->setFocus();
        on.settle();
        EXPECT_TRUE(strip().isAncestorOf(QApplication::focusWidget()));
    }
}

} // namespace velmor::test::shell_test
