// SPDX-License-Identifier: MIT
// The switch between the two runs of a stage with a preset, in the window of its check.
#include <filesystem>
#include <fstream>

#include <QAbstractButton>
#include <QAccessible>
#include <QElapsedTimer>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSlider>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

#include "check/program_run.h"
#include "desktop/check/finished_design.h"

namespace velmor::test {

namespace two_runs_tests {

// What the student of this design has typed for Rb1b.
constexpr const char* asTyped = "\nRb1b m b 6200\n";

class TwoRunsTest : public testing::Test {
protected:
    desktop::CheckWindow& open(std::string simulator)
    {
        window_ = std::make_unique<desktop::CheckWindow>(
            form10.desk(), std::move(simulator),
            desktop::CheckDeeds{.again = [this] { window_->begin(form10.design(), QStringLiteral("Hoja")); },
                                .fileFor = [this](const QString&, const QString&, const QString&) { return file; },
                                .toReport =
                                    [this](const QString& text) {
                                        report = text;
                                        return true;
                                    },
                                .closed = {}},
            nullptr);
        window_->begin(form10.design(), QStringLiteral("Hoja"));
        window_->show();
        return *window_;
    }
    template <class Widget = QAbstractButton>
    Widget& part(const char* name)
    {
        return *window_->findChild<Widget*>(QLatin1String(name));
    }
    bool isYours() { return part("checkYourValues").isChecked() && !part("checkTrimmed").isChecked(); }
    bool netlistHas(const char* text)
    {
        return part<QPlainTextEdit>("checkNetlist").toPlainText().contains(QLatin1String(text));
    }
    /// Whether the simulator's figure of the row can be read.
    bool isOpen(check::Quantity quantity) { return window_->checked().isOpen(quantity); }
    void bet(int row)
    {
        auto& rows = part<QTableView>("checkRows");
        rows.setCurrentIndex(rows.model()->index(row, 3));
        part("checkLower").click();
    }

    FinishedDesign form10{"form10"};
    QString report;
    QString file;

private:
    std::unique_ptr<desktop::CheckWindow> window_;
};

bool ngspiceIsFound()
{
    return !check::findProgram("ngspice").empty();
}

} // namespace two_runs_tests

using namespace two_runs_tests;

TEST_F(TwoRunsTest, areOfferedWithThePresetTrimmedFirst)
{
    open("/nowhere/ngspice");
    EXPECT_TRUE(part("checkYourValues").isVisible());
    EXPECT_TRUE(part("checkTrimmed").isChecked());
    EXPECT_FALSE(isYours());
    const QAccessibleInterface* yours = QAccessible::queryAccessibleInterface(&part("checkYourValues"));
    EXPECT_EQ(yours->text(QAccessible::Name), QStringLiteral("Your values"));
    EXPECT_EQ(yours->role(), QAccessible::RadioButton);
    EXPECT_EQ(yours->parent()->text(QAccessible::Name), QStringLiteral("Values that are simulated"));
}

TEST_F(TwoRunsTest, areNotOfferedWithoutAPreset)
{
    FinishedDesign form15("form15");
    desktop::CheckWindow window(form15.desk(), "/nowhere/ngspice", {}, nullptr);
    window.begin(form15.design(), QStringLiteral("Hoja"));
    window.show();
    EXPECT_FALSE(window.findChild<QWidget*>(QStringLiteral("checkRuns"))->isVisible());
    QTest::keyClick(&window, Qt::Key_F7);
    EXPECT_EQ(window.checked().run, check::Run::trimmed);
    EXPECT_TRUE(waitForCheck(window));
}

TEST_F(TwoRunsTest, checkAnewAndKeepTheBets)
{
    if (!ngspiceIsFound())
        GTEST_SKIP() << "no ngspice";
    desktop::CheckWindow& window = open("");
    ASSERT_TRUE(waitForCheck(window));
    EXPECT_FALSE(netlistHas(asTyped));
    bet(0);
    ASSERT_TRUE(isOpen(check::Quantity::QIc));
    QTest::keyClick(&window, Qt::Key_F7);
    EXPECT_TRUE(isYours());
    EXPECT_EQ(window.checked().freshness, desktop::Freshness::running);
    ASSERT_TRUE(waitForCheck(window));
    EXPECT_TRUE(netlistHas(asTyped));
    EXPECT_TRUE(netlistHas("* Your values: Rb1b as you set it, 6.2 K."));
    EXPECT_TRUE(isOpen(check::Quantity::QIc));
    EXPECT_FALSE(isOpen(check::Quantity::Vg)) << "on which nobody has bet";
    // 6.0374 mA by tests/figures/checks.py with the preset at 6.2 K
    EXPECT_NEAR(check::rowOf(window.checked().result, check::Quantity::QIc)->simulated.value_or(0), 6.0374, 0.06);
    part("checkTrimmed").click();
    ASSERT_TRUE(waitForCheck(window));
    EXPECT_FALSE(netlistHas(asTyped));
    EXPECT_FALSE(isYours());
}

TEST_F(TwoRunsTest, areWhatTheSliderAndTheReportAreAbout)
{
    if (!ngspiceIsFound())
        GTEST_SKIP() << "no ngspice";
    desktop::CheckWindow& window = open("");
    part("checkYourValues").click();
    ASSERT_TRUE(waitForCheck(window));
    part<QSlider>("checkDrive").setValue(160);
    ASSERT_TRUE(waitForCheck(window));
    check::Ngspice simulator;
    const check::Swing typed = check::swingOf(form10.design(), simulator, 4);
    const check::Swing trimmed = check::swingOf(
        check::simulatedBy(check::checkDesign(form10.design(), simulator), form10.design()), simulator, 4);
    EXPECT_NEAR(*window.checked().swing.peakToPeak, *typed.peakToPeak, 1e-6);
    EXPECT_GT(std::abs(*trimmed.peakToPeak - *typed.peakToPeak), 1e-3) << "or the slider could tell nothing";
    part("checkReport").click();
    EXPECT_TRUE(report.startsWith(QStringLiteral("Your values: Rb1b as you set it, 6.2 K."))) << report.toStdString();
    EXPECT_TRUE(part<QPlainTextEdit>("checkAssumed").toPlainText().contains(QStringLiteral("as you set it, 6.2 kΩ")));
}

TEST_F(TwoRunsTest, areNamedInEveryFileThatIsSaved)
{
    if (!ngspiceIsFound())
        GTEST_SKIP() << "no ngspice";
    desktop::CheckWindow& window = open("");
    part("checkYourValues").click();
    ASSERT_TRUE(waitForCheck(window));
    const QTemporaryDir folder;
    file = folder.filePath(QStringLiteral("saved"));
    const QList<QAction*> ways = part<QPushButton>("checkSave").menu()->actions();
    EXPECT_EQ(ways.size(), 4) << "table, curves twice, netlist";
    for (QAction* way : ways) {
        way->trigger();
        std::ifstream saved(file.toStdString());
        const std::string text{std::istreambuf_iterator<char>(saved), {}};
        if (text.starts_with("%PDF")) // its letters are packed
            continue;
        EXPECT_NE(text.find("Your values: Rb1b as you set it, 6.2"), std::string::npos) << way->text().toStdString();
    }
}

TEST_F(TwoRunsTest, waitForADesignThatHasChanged)
{
    desktop::CheckWindow& window = open("/nowhere/ngspice");
    ASSERT_TRUE(waitForCheck(window));
    part("checkYourValues").click();
    ASSERT_TRUE(waitForCheck(window));
    check::Design other = form10.design();
    other.circuit.parts.front().value *= 1.01;
    window.compare(&other);
    EXPECT_FALSE(part("checkTrimmed").isEnabled()) << "it would check what the sheet no longer has";
    QTest::keyClick(&window, Qt::Key_F7);
    EXPECT_TRUE(isYours());
    QTest::keyClick(&window, Qt::Key_F5);
    EXPECT_TRUE(isYours()) << "checked anew, the run stays";
    EXPECT_TRUE(part("checkTrimmed").isEnabled());
    ASSERT_TRUE(waitForCheck(window));
}

TEST_F(TwoRunsTest, neverMakeTheWindowWait)
{
    const QTemporaryDir folder;
    const std::string path = folder.filePath(QStringLiteral("endless")).toStdString();
    std::ofstream(path) << "#!/bin/sh\nexec sleep 60\n";
    std::filesystem::permissions(path, std::filesystem::perms::owner_all);
    desktop::CheckWindow& window = open(path);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QElapsedTimer time;
    time.start();
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(&window, Qt::Key_F7);
    EXPECT_LT(time.elapsed(), 3000) << "less than one simulator's five seconds";
    EXPECT_TRUE(isYours());
    EXPECT_EQ(window.checked().freshness, desktop::Freshness::running);
    window.close();
    EXPECT_TRUE(waitForCheck(window)) << "all four are ended";
}

} // namespace velmor::test
