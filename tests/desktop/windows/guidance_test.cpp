// SPDX-License-Identifier: MIT
// How the shell guides a student: the sheet that is asked about in front, prompts that stay in view, greyed things that say why,
// places that glow while something is carried, what comes next coming forward.
#include <gtest/gtest.h>

#include <QAction>
#include <QHelpEvent>
#include <QMdiArea>
#include <QTest>
#include <QToolTip>

#include "designs/common_emitter/form2_controls.h"
#include "designs/differential/form3_controls.h"
#include "desktop/canvas/finished.h"
#include "desktop/canvas/waiting.h"
#include "desktop/desktop_fixture.h"
#include "desktop/drawing/schematic_painter.h"
#include "desktop/drawing/texts.h"
#include "desktop/windows/menus.h"
#include "desktop/written_texts.h"
#include "editors/find_dialogs.h"
#include "program/catalogue.h"
#include "tools/calculator.h"

namespace velmor::test::guidance_test {

using host::Event;
using host::noControl;

TEST(ClosingTest, theSheetThatIsAskedAboutStandsInFrontAndIsNotActiveForThat)
{
    Bench on;
    on.open();
    BenchWindow& first = on.sheet();
    BenchWindow& second = on.newSheet();
    QMdiArea& area = on.main().area();
    const auto frameOf = [&on](host::Window& window) { return &on.screen.keeper().frameOf(window)->widget(); };
    ASSERT_EQ(area.currentSubWindow(), frameOf(second));
    first.deeds[{noControl, Event::queryClose}] = [&](host::EventArgs&) {
        on.engine.host().MsgBox("¿Guarda los cambios?", 35, "Velmor");
    };
    second.deeds[{noControl, Event::queryClose}] = [](host::EventArgs& args) { args.cancel = true; };
    QWidget* inFront = nullptr;
    host::Window* active = nullptr;
    on.duringBox = [&] {
        inFront = area.currentSubWindow();
        active = on.engine.activeChild();
    };
    first.log.clear();
    on.answerByKey(Qt::Key_Return);
    on.engine.userClose(on.engine.mainWindow());
    Bench::settle();
    EXPECT_EQ(inFront, frameOf(first));
    EXPECT_EQ(active, &second);
    EXPECT_EQ(first.log, (std::vector<std::string>{"Hoja ask"})) << "nothing else runs in it";
    EXPECT_EQ(area.currentSubWindow(), frameOf(second)) << "the exit was dropped";
}

TEST(FindTest, aSearchThatIsOpenedAgainBeginsWithItsTextSelected)
{
    Bench on(program::catalogue());
    on.open();
    on.show("frmEdito1");
    host::Window& find = on.show("frmFind");
    Bench::type("Vg");
    ASSERT_EQ(find.text(find_dialogs::txtFind), "Vg");
    on.engine.userRun([&] { on.engine.host().Hide(find); });
    Bench::settle();
    on.show("frmFind");
    Bench::type("Vg");
    EXPECT_EQ(find.text(find_dialogs::txtFind), "Vg");
}

TEST(CalculatorTest, itOpensWithItsInvitationWhichGoesWithTheFirstQuestion)
{
    Bench on(program::catalogue());
    on.open();
    host::Window& calculator = on.show("Calculator");
    const QImage inviting = on.viewOf(calculator).canvas().grab().toImage();
    EXPECT_TRUE(calculator.visible(calculator::Shape1));
    EXPECT_EQ(calculator.text(calculator::Label2), "");
    on.engine.userRun([&] { calculator.hide(calculator::Shape1); });
    EXPECT_NE(on.viewOf(calculator).canvas().grab().toImage(), inviting) << "it can be seen";
    on.engine.userRun([&] { calculator.show(calculator::Shape1); });
    on.engine.userClick(calculator, calculator::Command4);
    EXPECT_FALSE(calculator.visible(calculator::Shape1));
}

struct EmitterTest : ::testing::Test {
    EmitterTest() : on(program::catalogue()) {}
    void open(QSize size = {1366, 740})
    {
        on.open();
        on.main().resize(size);
        sheet = &on.show("Form2");
        on.engine.userRun([this] { on.engine.host().SetWindowState(*sheet, 2); });
        Bench::settle();
    }
    QWidget* strip() { return on.viewOf(*sheet).findChild<QWidget*>("promptStrip"); }
    QString why(host::Handle control, bool english = false) { return desktop::whyItWaits(*sheet, control, english); }

    Bench on;
    host::Window* sheet = nullptr;
};

TEST_F(EmitterTest, promptsStayInViewWhereASheetScrolls)
{
    open();
    ASSERT_NE(strip(), nullptr);
    EXPECT_FALSE(strip()->isVisible()) << "all of the sheet is seen";
    on.main().resize(760, 500);
    Bench::settle();
    ASSERT_TRUE(strip()->isVisible());
    EXPECT_EQ(strip()->y(), 0);
    const QImage first = strip()->grab().toImage();
    Bench::key(Qt::Key_Return);
    EXPECT_NE(strip()->grab().toImage(), first) << "it says what the next field wants";
    // The field in hand is not hidden by it.
    const QRect inHand = on.viewOf(*sheet).inHand();
    const QRect under(strip()->mapToGlobal(QPoint(0, 0)), strip()->size());
    EXPECT_FALSE(inHand.isEmpty());
    EXPECT_FALSE(inHand.intersects(under));
    on.main().resize(1366, 740);
    Bench::settle();
    EXPECT_FALSE(strip()->isVisible());
}

// A low and wide window scrolls and leaves room at both sides of the sheet.
TEST_F(EmitterTest, promptsThatStayInViewStandOverTheColumns)
{
    open({1366, 460});
    ASSERT_TRUE(strip()->isVisible());
    const desktop::Canvas& canvas = on.viewOf(*sheet).canvas();
    const QImage picture = strip()->grab().toImage();
    int left = 0;
    const QRgb paper = picture.pixel(0, picture.height() / 4);
    while (left < picture.width() && picture.pixel(left, picture.height() / 4) == paper)
        ++left;
    ASSERT_GT(canvas.view().origin.x(), 40);
    EXPECT_NEAR(left, canvas.boxInPixels(form2::SSPanel1).left(), 2);
}

TEST_F(EmitterTest, aPromptThatIsOpenedToBeReadIsSeenWhole)
{
    open({760, 500});
    ASSERT_TRUE(strip()->isVisible());
    on.engine.userClick(*sheet, form2::SSPanel1);
    Bench::settle();
    EXPECT_GT(sheet->placeOf(form2::SSPanel1).height, 600);
    EXPECT_FALSE(strip()->isVisible());
    on.engine.userClick(*sheet, form2::SSPanel1);
    Bench::settle();
    EXPECT_TRUE(strip()->isVisible());
}

// On a sheet that is as small as sheets get it broke into two lines, over the fields above and below it.
TEST_F(EmitterTest, whatIsToldOfTheGeneratorLiesOverNoField)
{
    open();
    for (const char* name : {"Form8", "Form18"}) {
        host::Window& circuit = on.show(name);
        const host::Handle told = circuit.named("Label25");
        on.engine.userRun([&] {
            circuit.setVisible(told, true);
            circuit.setVisible(circuit.named("Text15"), true);
            circuit.setText(told, "Zin del Generador (Kohm)");
        });
        desktop::View view;
        for (const double scale : {0.82, 1.0, 2.0}) {
            view.pixelsPerTwip = scale / desktop::twipsPerUnit;
            for (const std::string& complaint : textComplaints(circuit, view))
                EXPECT_EQ(complaint.find("Label25"), std::string::npos) << complaint << ' ' << scale;
        }
    }
}

TEST_F(EmitterTest, aGreyedFieldSaysWhyItWaits)
{
    open();
    ASSERT_EQ(sheet->focus(), form2::Text1);
    EXPECT_EQ(why(form2::Text1), "") << "it is open";
    EXPECT_EQ(why(form2::Text3), QString::fromUtf8("Espera: el diseño llega aquí después de ΔQIc."));
    EXPECT_EQ(why(form2::Text3, true), QString::fromUtf8("It waits: the design comes here after ΔQIc."));
    for (int i = 0; i < 3; ++i)
        Bench::key(Qt::Key_Return);
    ASSERT_FALSE(sheet->enabled(form2::Text1));
    EXPECT_EQ(why(form2::Text1),
              QString::fromUtf8("Ya está en el diseño: con Alt+Retroceso se vuelve a él, paso a paso."));
}

TEST_F(EmitterTest, pointingAtAGreyedFieldShowsWhatItIsAndWhyItWaits)
{
    open();
    desktop::Canvas& canvas = on.viewOf(*sheet).canvas();
    const QPoint at = canvas.boxInPixels(form2::Text3).center();
    QHelpEvent help(QEvent::ToolTip, at, canvas.mapToGlobal(at));
    QCoreApplication::sendEvent(&canvas, &help);
    // Short lines have blanks that do not break.
    const QString told = QToolTip::text().replace(QStringLiteral("&nbsp;"), QStringLiteral(" "));
    EXPECT_TRUE(told.contains(QString::fromUtf8("después de ΔQIc"))) << told.toStdString();
    EXPECT_TRUE(told.contains(canvas.tipOf(form2::Text3)));
    QToolTip::hideText();
}

// A tip of several lines would cover the drawing that the palette's button has just opened.
TEST(TipTest, theNameOfADesignAndItsKeysStandInOneLine)
{
    const QString name = QString::fromUtf8("Emisor Común Realimentado por Corriente  (Alt+Shift+F11)");
    EXPECT_FALSE(desktop::shownTip(name).contains(QLatin1Char(' ')));
}

TEST_F(EmitterTest, undoAndRedoAreGreyAtOnce)
{
    open();
    const host::Window& model = on.engine.mainWindow();
    const auto enabled = [&](const char* item) { return on.main().menus().actionOf(model.named(item))->isEnabled(); };
    EXPECT_FALSE(enabled("mnuDeshacer"));
    EXPECT_FALSE(enabled("mnuRehacer"));
    Bench::key(Qt::Key_Return);
    EXPECT_TRUE(enabled("mnuDeshacer"));
    Bench::keys("Alt+Backspace");
    EXPECT_FALSE(enabled("mnuDeshacer"));
    EXPECT_TRUE(enabled("mnuRehacer"));
    on.show("frmEdito1");
    EXPECT_FALSE(enabled("mnuRehacer")) << "an editor has no steps";
}

// A text has its own items for that: these would do nothing with it.
TEST_F(EmitterTest, whatSavesACircuitIsGreyWhereNoneIsInHand)
{
    on.open();
    const host::Window& model = on.engine.mainWindow();
    const auto enabled = [&](const char* item) { return on.main().menus().actionOf(model.named(item))->isEnabled(); };
    for (const char* item : {"mnuFile(1)", "mnuFile(2)", "mnuFile(3)"})
        EXPECT_FALSE(enabled(item)) << item;
    host::Window& circuit = on.show("Form2");
    for (const char* item : {"mnuFile(1)", "mnuFile(2)", "mnuFile(3)"})
        EXPECT_TRUE(enabled(item)) << item;
    on.show("frmEdito1");
    EXPECT_FALSE(enabled("mnuFile(1)"));
    EXPECT_FALSE(enabled("mnuFile(2)"));
    EXPECT_TRUE(enabled("mnuFile(3)"));
    on.engine.userActivate(circuit);
    EXPECT_TRUE(enabled("mnuFile(1)"));
}

struct PairTest : ::testing::Test {
    PairTest() : on(program::catalogue()) {}
    void SetUp() override
    {
        on.open();
        sheet = &on.show("Form3");
        Bench::settle();
    }
    void finish()
    {
        for (int i = 0; i < 17; ++i)
            Bench::key(Qt::Key_Return);
        Bench::type("24");
        Bench::key(Qt::Key_Return);
        ASSERT_TRUE(sheet->visible(form3::image2));
    }
    host::Handle forward() { return on.viewOf(*sheet).canvas().view().forward; }
    QRectF boundsOf(host::Handle picture, const auto& isIt)
    {
        desktop::View view;
        for (const host::Mark& mark : sheet->drawing(picture))
            if (isIt(mark))
                return desktop::boundsOfMarks(*sheet, std::span(&mark, 1), {}, view);
        return {};
    }

    Bench on;
    host::Window* sheet = nullptr;
};

TEST_F(PairTest, theReportComesForwardOnceWhenTheDesignHasPassed)
{
    EXPECT_EQ(desktop::reportTool(sheet->spec()), form3::Image28);
    EXPECT_EQ(forward(), noControl);
    finish();
    EXPECT_TRUE(desktop::hasPassed(*sheet));
    EXPECT_EQ(forward(), form3::Image28);
    // What is not finished any longer needs no report.
    Bench::type("2");
    EXPECT_FALSE(desktop::hasPassed(*sheet));
    EXPECT_EQ(forward(), noControl);
}

TEST_F(PairTest, theNamesOfTheOutputsStandAlikeOverTheirTerminals)
{
    for (const bool done : {false, true}) {
        if (done)
            finish();
        const host::Handle picture = done ? form3::image2 : form3::Image1;
        const QRectF left = boundsOf(picture, [](const host::Mark& mark) { return mark.name == "Out 1"; });
        const QRectF right = boundsOf(picture, [](const host::Mark& mark) { return mark.value == form3::Label43; });
        ASSERT_FALSE(left.isEmpty() || right.isEmpty()) << done;
        EXPECT_NEAR(left.top(), right.top(), 0.5) << done;
        EXPECT_NEAR(left.bottom(), right.bottom(), 0.5) << done;
        // Counted from the middle of the drawing, 340 u on its grid: both are as far away.
        const host::Mark& supply = *std::find_if(sheet->drawing(picture).begin(), sheet->drawing(picture).end(),
                                                 [](const host::Mark& mark) { return mark.name == "Q_1"; });
        const double middle = supply.from.x + 130.0;
        EXPECT_NEAR(middle - left.center().x(), right.center().x() - middle, 1.5) << done;
    }
}

TEST_F(PairTest, theLoadOfTheFinishedPictureIsNoInput)
{
    const auto noteAt = [this](host::Handle point) {
        on.engine.userHover(*sheet, point);
        return sheet->text(form3::Label36);
    };
    EXPECT_EQ(noteAt(form3::Image11), "Carga / Entrada 2");
    finish();
    EXPECT_EQ(noteAt(form3::Image11), "Out 1: Carga (señal: Entrada 2)");
    EXPECT_EQ(noteAt(form3::Image26), "Out 2: Colector y masa");
}

TEST(DragTest, whereAThingMayBeLetGoGlowsWhileItIsCarried)
{
    Bench on;
    on.open();
    desktop::Canvas& canvas = on.viewOf(on.sheet()).canvas();
    const QRect target = canvas.boxInPixels(bench::Image12).adjusted(-4, -4, 4, 4);
    const auto look = [&] { return canvas.grab(target).toImage(); };
    const QImage calm = look();
    QWindow* window = on.main().windowHandle();
    const QPoint start = on.middleOf(on.sheet(), bench::Image14);
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, start);
    QTest::mouseMove(window, start + QPoint(0, 40));
    Bench::settle();
    const QImage glowing = look();
    EXPECT_NE(glowing, calm);
    QTest::mouseMove(window, on.middleOf(on.sheet(), bench::Image12));
    Bench::settle();
    EXPECT_NE(look(), glowing) << "the one under it glows more";
    QTest::keyClick(window, Qt::Key_Escape);
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, start);
    Bench::settle();
    EXPECT_EQ(look(), calm);
}

} // namespace velmor::test::guidance_test
