// SPDX-License-Identifier: MIT
// The window of a check: what a student sees before the simulator has spoken, while it speaks, and when the design changes.
#include <clocale>
#include <cmath>
#include <filesystem>
#include <fstream>

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QFontInfo>
#include <QImage>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScreen>
#include <QScrollArea>
#include <QSet>
#include <QSlider>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

#include "check/deck.h"
#include "check/power.h"
#include "check/program_run.h"
#include "desktop/check/check_words.h"
#include "desktop/check/curves_page.h"
#include "desktop/check/finished_design.h"
#include "desktop/check/plot_paper.h"
#include "desktop/check/report_columns.h"
#include "desktop/drawing/quiet_style.h"

namespace velmor::test {

namespace check_window_tests {

constexpr const char* nowhere = "/nowhere/ngspice";

bool ngspiceIsThere()
{
    return !check::findProgram("ngspice").empty();
}

class CheckWindowTest : public testing::Test {
protected:
    desktop::CheckWindow& open(std::string simulator)
    {
        window_ = std::make_unique<desktop::CheckWindow>(
            form2.desk(), std::move(simulator),
            desktop::CheckDeeds{.again = [this] { ++again; },
                                .fileFor = [this](const QString&, const QString&, const QString&) { return file; },
                                .toReport =
                                    [this](const QString& text) {
                                        report += text;
                                        return true;
                                    },
                                .closed = {}},
            nullptr);
        window_->begin(form2.design(), QStringLiteral("Hoja"));
        window_->show();
        return *window_;
    }
    QString cell(const char* quantity, int column)
    {
        const QAbstractItemModel& rows = *window_->findChild<QTableView*>(QStringLiteral("checkRows"))->model();
        for (int row = 0; row < rows.rowCount(); ++row)
            if (rows.index(row, 0).data(Qt::AccessibleTextRole).toString().startsWith(QLatin1String(quantity) + ","))
                return rows.index(row, column).data().toString();
        return QStringLiteral("no such row");
    }
    void choose(const char* quantity)
    {
        auto* table = window_->findChild<QTableView*>(QStringLiteral("checkRows"));
        for (int row = 0; row < table->model()->rowCount(); ++row)
            if (table->model()
                    ->index(row, 0)
                    .data(Qt::AccessibleTextRole)
                    .toString()
                    .startsWith(QLatin1String(quantity) + ","))
                table->setCurrentIndex(table->model()->index(row, 3));
    }
    /// The share of the columns of a plot's paper that have the curve's ink somewhere.
    double inkedShare(const char* name)
    {
        QWidget& view = part(name);
        const QImage image = view.grab().toImage().convertToFormat(QImage::Format_RGB32);
        const double letters = QFontInfo(view.font()).pixelSize() * 0.9;
        const QRect field = desktop::PlotPaper::fieldIn(view.rect(), letters).toAlignedRect().adjusted(2, 2, -2, -2);
        const QRgb ink = form2.desk().inks->accent.rgb();
        int inked = 0;
        for (int x = field.left(); x <= field.right(); ++x)
            for (int y = field.top(); y <= field.bottom(); ++y)
                if (image.pixel(x, y) == ink) {
                    ++inked;
                    break;
                }
        return static_cast<double>(inked) / field.width();
    }
    QString text(const char* name) { return window_->findChild<QLabel*>(QLatin1String(name))->text(); }
    QWidget& part(const char* name) { return *window_->findChild<QWidget*>(QLatin1String(name)); }
    void press(const char* name) { window_->findChild<QAbstractButton*>(QLatin1String(name))->click(); }

    FinishedDesign form2{"form2"};
    int again = 0;
    QString file;
    QString report;

private:
    std::unique_ptr<desktop::CheckWindow> window_;
};

} // namespace check_window_tests

using namespace check_window_tests;

// Vg is asked for as 5 in its field; with RL at 18 K beside RLw at 10 K over Res at 1.3 K the course is left with 4.945.
TEST_F(CheckWindowTest, showsAskedAndCourseBeforeTheSimulatorHasSpoken)
{
    open(nowhere);
    EXPECT_EQ(cell("Vg", 1), QStringLiteral("5"));
    EXPECT_EQ(cell("Vg", 2), QStringLiteral("4.95"));
    EXPECT_EQ(cell("Vg", 3), QStringLiteral("…"));
    EXPECT_TRUE(
        static_cast<QPlainTextEdit&>(part("checkNetlist")).toPlainText().contains(QStringLiteral("Q1 c b e model_Q1")));
}

// A letter that two have presses neither.
TEST_F(CheckWindowTest, givesNoLetterTwiceInEitherLanguage)
{
    if (!ngspiceIsThere())
        GTEST_SKIP() << "no ngspice";
    for (const bool english : {false, true}) {
        form2.speak(english);
        desktop::CheckWindow& window = open({});
        ASSERT_TRUE(waitForCheck(window));
        choose("QIc");
        QStringList captions;
        for (const auto* button : window.findChildren<QAbstractButton*>())
            captions += button->text();
        for (const auto* label : window.findChildren<QLabel*>())
            captions += label->buddy() == nullptr ? QString() : label->text();
        for (const auto* tabs : window.findChildren<QTabBar*>())
            for (int i = 0; i < tabs->count(); ++i)
                captions += tabs->tabText(i);
        QSet<QString> letters;
        for (const QString& caption : captions) {
            const QString letter = QKeySequence::mnemonic(caption).toString();
            EXPECT_FALSE(letters.contains(letter)) << caption.toStdString();
            if (!letter.isEmpty())
                letters.insert(letter);
        }
        EXPECT_GT(letters.size(), 10);
    }
}

// On a large screen the letters are larger: the names of the quantities would be cut.
TEST_F(CheckWindowTest, isAsLargeAsItsLettersAsk)
{
    const QSize room = open(nowhere).screen()->availableGeometry().size();
    constexpr double scale = 0.7; // the screen of the tests is too small for larger ones
    form2.desk().textScale = scale;
    const QSize small = open(nowhere).size();
    EXPECT_EQ(small.height(), qRound(720 * scale));
    EXPECT_LT(small.height(), qRound(std::min(720.0, 0.94 * room.height())));
}

TEST_F(CheckWindowTest, saysInOneSentenceHowToGetASimulator)
{
    desktop::CheckWindow& window = open(nowhere);
    ASSERT_TRUE(waitForCheck(window));
    EXPECT_EQ(text("checkState"),
              QStringLiteral("There is no simulator: install the package ngspice and check again."));
    EXPECT_EQ(cell("Vg", 3), QStringLiteral("–"));
    EXPECT_FALSE(part("checkDrive").isEnabled());
}

TEST_F(CheckWindowTest, opensARowWithItsBet)
{
    if (!ngspiceIsThere())
        GTEST_SKIP() << "no ngspice";
    desktop::CheckWindow& window = open("");
    ASSERT_TRUE(waitForCheck(window));
    EXPECT_EQ(cell("Zin", 3), QStringLiteral("?"));
    EXPECT_EQ(cell("Vg", 3), QStringLiteral("?"));
    choose("Zin");
    EXPECT_TRUE(part("checkHigher").isVisible());
    press("checkHigher");
    // 10.705 kilohms by the script that works the checks out (tests/figures)
    EXPECT_EQ(cell("Zin", 3), QStringLiteral("10.7 kΩ"));
    EXPECT_EQ(cell("Vg", 3), QStringLiteral("?")) << "no row but its own";
    EXPECT_EQ(text("checkOutcome"), QStringLiteral("You bet “more”, and it came out “less”."));
    EXPECT_TRUE(part("checkLadder").accessibleDescription().contains(QStringLiteral("The simulator")));
    EXPECT_TRUE(text("checkState").contains(QStringLiteral("Bets won: 0 of 1.")));
}

TEST_F(CheckWindowTest, opensEverythingForWhoDoesNotWantToBet)
{
    if (!ngspiceIsThere())
        GTEST_SKIP() << "no ngspice";
    desktop::CheckWindow& window = open("");
    ASSERT_TRUE(waitForCheck(window));
    EXPECT_TRUE(part("checkGain").accessibleDescription().startsWith(QStringLiteral("It opens with the bets")));
    choose("Vg");
    press("checkOpenAll");
    EXPECT_EQ(cell("Vg", 3), QStringLiteral("4.79"));
    EXPECT_EQ(cell("Zin", 3), QStringLiteral("10.7 kΩ"));
    EXPECT_TRUE(part("checkGain").accessibleDescription().contains(QStringLiteral("crosses −3 dB at 2.44 Hz")))
        << part("checkGain").accessibleDescription().toStdString();
}

TEST_F(CheckWindowTest, greysWhatIsFromBeforeAChange)
{
    desktop::CheckWindow& window = open(nowhere);
    ASSERT_TRUE(waitForCheck(window));
    check::Design other = form2.design();
    other.circuit.parts.front().value *= 1.01;
    window.compare(&other);
    EXPECT_EQ(window.checked().freshness, desktop::Freshness::changed);
    EXPECT_TRUE(part("checkAgain").isVisible());
    press("checkAgain");
    QTest::keyClick(&window, Qt::Key_F5);
    EXPECT_EQ(again, 2);
    const check::Design same = form2.design();
    window.compare(&same);
    EXPECT_EQ(window.checked().freshness, desktop::Freshness::fresh) << "undone";
    window.compare(nullptr);
    EXPECT_EQ(window.checked().freshness, desktop::Freshness::asleep);
    EXPECT_TRUE(text("checkState").startsWith(QStringLiteral("It waits:")));
}

// What is told in words is not yet drawn: the curve's ink must stand in nearly every column of the paper.
TEST_F(CheckWindowTest, drawsItsCurvesOnceTheirBetsAreOpen)
{
    if (!ngspiceIsThere())
        GTEST_SKIP() << "no ngspice";
    desktop::CheckWindow& window = open("");
    ASSERT_TRUE(waitForCheck(window));
    window.resize(1240, 720);
    EXPECT_EQ(inkedShare("checkGain"), 0) << "behind its veil";
    EXPECT_EQ(inkedShare("checkWave"), 0) << "behind its veil";
    press("checkOpenAll");
    // The gain comes up from below its paper, which begins a good decade under the corner.
    EXPECT_GT(inkedShare("checkGain"), 0.85);
    EXPECT_GT(inkedShare("checkWave"), 0.98);
    EXPECT_GT(inkedShare("checkHarmonics"), 0.1) << "the second harmonic's bar, 0.03 % high";
}

TEST_F(CheckWindowTest, bendsTheWaveWithTheSlider)
{
    if (!ngspiceIsThere())
        GTEST_SKIP() << "no ngspice";
    desktop::CheckWindow& window = open("");
    ASSERT_TRUE(waitForCheck(window));
    const double before = window.checked().swing.distortion.value_or(100);
    auto& slider = static_cast<QSlider&>(part("checkDrive"));
    for (int value = 101; value <= 160; ++value)
        slider.setValue(value);
    ASSERT_TRUE(waitForCheck(window));
    EXPECT_DOUBLE_EQ(window.checked().swing.drive, 4.0) << "the last wish";
    EXPECT_GT(window.checked().swing.distortion.value_or(0), before);
    EXPECT_EQ(window.checked().result.swing.drive, 1.0) << "the rows stay those of the course's input";
}

TEST(CheckOfACurrentSource, hasNoCurvesToShow)
{
    FinishedDesign form12("form12");
    desktop::CheckWindow window(form12.desk(), nowhere, {}, nullptr);
    auto& pages = *window.findChild<QTabWidget*>(QStringLiteral("checkPages"));
    EXPECT_EQ(pages.currentIndex(), 0) << "before it knows a design";
    window.begin(form12.design(), QStringLiteral("Hoja"));
    EXPECT_FALSE(pages.isTabVisible(0));
    EXPECT_NE(pages.currentIndex(), 0);
    EXPECT_TRUE(waitForCheck(window));
}

TEST(CheckOfAPowerStage, trimsThePresetUntilTheMiddleIsHalfTheSupply)
{
    if (!ngspiceIsThere())
        GTEST_SKIP() << "no ngspice";
    FinishedDesign form10("form10");
    const check::Design design = form10.design();
    check::Ngspice simulator;
    const check::Design trimmed = check::trimmed(design, simulator);
    const double typed = check::partOf(design.circuit, "Rb1b")->value;
    const double turned = check::partOf(trimmed.circuit, "Rb1b")->value;
    EXPECT_NE(typed, turned);
    EXPECT_EQ(check::partOf(trimmed.circuit, "Rb1a")->value, check::partOf(design.circuit, "Rb1a")->value);
    const auto middleOf = [&](const check::Circuit& circuit) {
        const std::string deck = check::deckOf(circuit, {.response = false, .wave = false, .drift = false});
        const check::Simulation run = simulator.run(deck);
        const check::Plot* point = check::plotOf(run.plots, "Operating Point");
        return point == nullptr ? -1 : check::pointOf(*point, "v(x)").value_or(-1);
    };
    const double half = check::partOf(design.circuit, "Es")->value / 2;
    EXPECT_NEAR(middleOf(trimmed.circuit), half, 0.01 * half);
    EXPECT_GT(std::abs(middleOf(design.circuit) - half), 0.01 * half) << "there was something to turn";
}

// A stop every eight letters; a cell of eight fills its stop, and the next one would touch it.
TEST(ReportColumnsTest, beginEveryColumnAtAStopOfItsOwn)
{
    const auto widthOf = [](const QString& text) { return static_cast<double>(text.size()); };
    EXPECT_EQ(desktop::inColumns(QStringLiteral("a\tb\nlonger word\tc\nexact by\td"), widthOf, 8),
              QStringLiteral("a\t\tb\nlonger word\tc\nexact by\td"));
    EXPECT_EQ(desktop::inColumns(QStringLiteral("1\t\tx\n2\t+3 %\ty\n\nother\tz"), widthOf, 8),
              QStringLiteral("1\t\tx\n2\t+3 %\ty\n\nother\tz"))
        << "an empty cell keeps its column; a line without tabs ends the table";
}

// Whether the letters of such a cell end before the stop or at it, rounding says.
TEST(ReportColumnsTest, leaveNoCellSoNearToAStopThatItMayReachIt)
{
    const auto widthOf = [](const QString& text) { return static_cast<double>(text.size()); };
    EXPECT_EQ(desktop::inColumns(QStringLiteral("seven 7\ta\n2 mA\tb"), widthOf, 8),
              QStringLiteral("seven 7 \ta\n2 mA\t\tb"));
}

TEST(CurvesPageTest, givesTheSliderTheCoursesInputAndBothEnds)
{
    EXPECT_DOUBLE_EQ(desktop::CurvesPage::driveOf(0), 0.1);
    EXPECT_DOUBLE_EQ(desktop::CurvesPage::driveOf(100), 1.0);
    EXPECT_DOUBLE_EQ(desktop::CurvesPage::driveOf(160), 4.0);
    for (int value = 0; value <= 160; ++value)
        EXPECT_EQ(desktop::CurvesPage::valueOf(desktop::CurvesPage::driveOf(value)), value);
}

TEST_F(CheckWindowTest, givesTheWholeTableToTheReport)
{
    if (!ngspiceIsThere())
        GTEST_SKIP() << "no ngspice";
    desktop::CheckWindow& window = open("");
    ASSERT_TRUE(waitForCheck(window));
    press("checkReport");
    EXPECT_TRUE(report.startsWith(QStringLiteral("Quantity\tAsked\tCourse\tSimulator\tVerdict\r\n")));
    EXPECT_TRUE(report.contains(QStringLiteral("Zin: differs, because the course mixes kilohms with ohms")));
    EXPECT_TRUE(report.contains(QStringLiteral("10.7 K")));
    EXPECT_NE(cell("Vg", 3), QStringLiteral("?")) << "who takes the table away opens all rows";
}

TEST_F(CheckWindowTest, writesItsCurvesWholeOrNotAtAll)
{
    if (!ngspiceIsThere())
        GTEST_SKIP() << "no ngspice";
    desktop::CheckWindow& window = open("");
    ASSERT_TRUE(waitForCheck(window));
    const QTemporaryDir folder;
    const desktop::WavePlot wave(window.checked());
    const desktop::CurvesPaper paper{.title = QStringLiteral("R&D <1>"), .plots = {&wave}, .english = true};
    EXPECT_TRUE(desktop::exportCurvesSvg(folder.filePath(QStringLiteral("a.svg")), paper));
    EXPECT_TRUE(desktop::exportCurvesPdf(folder.filePath(QStringLiteral("a.pdf")), paper));
    EXPECT_FALSE(desktop::exportCurvesSvg(folder.filePath(QStringLiteral("no/a.svg")), paper));
    std::ifstream svg(folder.filePath(QStringLiteral("a.svg")).toStdString());
    const std::string text{std::istreambuf_iterator<char>(svg), {}};
    EXPECT_NE(text.find("R&amp;D &lt;1&gt;"), std::string::npos);
}

TEST(CheckServiceTest, endsTheCheckThatNobodyWaitsForAnyMore)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("endless"));
    {
        std::ofstream script(path.toStdString());
        script << "#!/bin/sh\nexec sleep 60\n";
    }
    std::filesystem::permissions(path.toStdString(), std::filesystem::perms::owner_all);
    FinishedDesign form2("form2");
    const check::Design design = form2.design();
    desktop::CheckService service(path.toStdString(), std::chrono::seconds(50));
    int results = 0;
    service.checked = [&results](const check::Check&) { ++results; };
    service.begin(design);
    service.begin(design);
    EXPECT_EQ(service.running(), 2U) << "the first one is on its way to its end";
    ASSERT_TRUE(waitFor([&] { return service.running() == 1; })) << "long before its fifty seconds";
    service.stop();
    ASSERT_TRUE(waitFor([&] { return service.running() == 0; }));
    EXPECT_EQ(results, 0) << "what was stopped tells nothing";
}

} // namespace velmor::test

int main(int argumentCount, char** arguments)
{
    testing::InitGoogleTest(&argumentCount, arguments);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argumentCount, arguments);
    std::setlocale(LC_NUMERIC, "C");
    QApplication::setStyle(new velmor::desktop::QuietStyle);
    return RUN_ALL_TESTS();
}
