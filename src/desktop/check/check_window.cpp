// SPDX-License-Identifier: MIT
#include "desktop/check/check_window.h"

#include <algorithm>
#include <utility>

#include <QClipboard>
#include <QCloseEvent>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLabel>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QTabWidget>

#include "check/deck.h"
#include "check/table_text.h"
#include "desktop/check/check_words.h"
#include "desktop/check/curves_page.h"
#include "desktop/check/row_panel.h"
#include "desktop/check/rows_table.h"
#include "desktop/check/run_switch.h"
#include "desktop/windows/title_line.h"

namespace velmor::desktop {

using check_words::in;

namespace check_window_detail {

constexpr QSize wantedSize{1240, 720}; ///< with letters of the usual size
constexpr double largestShare = 0.94;  ///< of the screen
constexpr int mostRowsShare = 62;      ///< of a hundred, of the height; the row in hand has the rest

bool sameRows(const check::Design& one, const check::Design& other)
{
    return std::equal(one.rows.begin(), one.rows.end(), other.rows.begin(), other.rows.end(),
                      [](const check::Expected& a, const check::Expected& b) {
                          return a.quantity == b.quantity && a.asked == b.asked && a.course == b.course;
                      });
}

bool sameDesign(const check::Design& one, const check::Design& other)
{
    return one.fo == other.fo && sameRows(one, other) &&
           check::deckOf(one.circuit, {}) == check::deckOf(other.circuit, {});
}

/// The rows that stand there before the simulator has spoken.
check::Check expectedOf(const check::Design& design)
{
    check::Check result;
    for (const check::Expected& row : design.rows)
        result.rows.push_back({.quantity = row.quantity, .asked = row.asked, .course = row.course});
    result.circuit = design.circuit;
    result.netlist = check::deckOf(design.circuit, {});
    return result;
}

QPalette colorsOf(const Inks& inks)
{
    QPalette colors;
    colors.setColor(QPalette::Window, inks.paper);
    colors.setColor(QPalette::WindowText, inks.ink);
    colors.setColor(QPalette::Base, inks.paper);
    colors.setColor(QPalette::AlternateBase, inks.voice);
    colors.setColor(QPalette::Text, inks.ink);
    colors.setColor(QPalette::Button, inks.button);
    colors.setColor(QPalette::ButtonText, inks.ink);
    colors.setColor(QPalette::Highlight, inks.accent);
    colors.setColor(QPalette::HighlightedText, inks.onAccent);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        colors.setColor(QPalette::Disabled, role, inks.buttonOffInk);
    return colors;
}

} // namespace check_window_detail

using namespace check_window_detail;

CheckWindow::CheckWindow(Desk& desk, std::string simulator, CheckDeeds deeds, QWidget* mainWindow)
    : ToolFrame(desk, mainWindow), deeds_(std::move(deeds)), service_(std::move(simulator))
{
    setObjectName(QStringLiteral("checkWindow"));
    setAttribute(Qt::WA_AlwaysShowToolTips); // pointing tells, whichever window has the keyboard
    checked_.english = desk.english();
    layOut();
    connectParts();
    recolor();
    relabel();
    const QSize most = room().size() * largestShare;
    resize((wantedSize * desk.textScale).boundedTo(most));
    move(room().center() - rect().center());
}

void CheckWindow::connectParts()
{
    connect(left_, &QSplitter::splitterMoved, this, [this] { handMoved_ = true; });
    service_.checked = [this](const check::Check& result) { take(result); };
    service_.swung = [this](const check::Swing& swing) {
        checked_.swing = swing;
        curves_->followWave();
    };
    rows_->chosen = [this] { followRow(); };
    panel_->guessed = [this](check::Guess guess) { bet(guess); };
    panel_->allOpened = [this] { openAll(); };
    curves_->driven = [this](double drive) {
        service_.swing(check::simulatedBy(checked_.result, checked_.design), drive);
    };
    connect(again_, &QPushButton::clicked, this, [this] { deeds_.again(); });
    connect(report_, &QPushButton::clicked, this, [this] {
        const bool written = deeds_.toReport(shown(table(false)));
        tell(in(written ? check_words::reported : check_words::notReported, checked_.english));
    });
    connect(copy_, &QPushButton::clicked, this, [this] {
        QGuiApplication::clipboard()->setText(shown(table(false)));
        tell(in(check_words::copied, checked_.english));
    });
    const auto onKey = [this](const QKeySequence& keys, auto deed) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, deed);
    };
    onKey(Qt::Key_F5, [this] { deeds_.again(); });
    runs_->chosen = [this](check::Run run) { choose(run); };
    onKey(Qt::Key_F7, [this] { runs_->turn(); });
    onKey(Qt::Key_F6, [this] { desk().nextPane(); });
    onKey(Qt::CTRL | Qt::Key_T, [this] { deeds_.again(); });
    for (const auto& [key, guess] : {std::pair{Qt::Key_1, check::Guess::lower},
                                     {Qt::Key_2, check::Guess::same},
                                     {Qt::Key_3, check::Guess::higher}})
        onKey(key, [this, guess = guess] {
            if (panel_->takesBet())
                bet(guess);
        });
}

void CheckWindow::begin(const check::Design& design, const QString& sheetTitle)
{
    sheetTitle_ = sheetTitle;
    checked_.design = design;
    checked_.bet = {};
    simulate();
    relabel();
    giveRowsTheirRoom();
}

void CheckWindow::simulate()
{
    checked_.result = expectedOf(checked_.design);
    checked_.swing = {};
    checked_.freshness = Freshness::running;
    curves_->resetDrive();
    tell(QString());
    service_.begin(checked_.design, checked_.run);
}

// It is the same design: what was bet on it stays bet.
void CheckWindow::choose(check::Run run)
{
    if (run == checked_.run)
        return;
    checked_.run = run;
    simulate();
    follow();
}

// The table has what its rows need, the row in hand the rest; who has moved the handle, has moved it.
void CheckWindow::giveRowsTheirRoom()
{
    if (handMoved_)
        return;
    const int all = left_->height();
    const int wanted = std::min(rows_->wholeHeight(), all * mostRowsShare / 100);
    left_->setSizes({wanted, all - wanted});
}

void CheckWindow::resizeEvent(QResizeEvent* event)
{
    ToolFrame::resizeEvent(event);
    giveRowsTheirRoom();
}

void CheckWindow::showEvent(QShowEvent* event)
{
    ToolFrame::showEvent(event);
    giveRowsTheirRoom();
}

void CheckWindow::take(const check::Check& result)
{
    checked_.result = result;
    checked_.swing = result.swing;
    checked_.freshness = Freshness::fresh;
    follow();
}

void CheckWindow::compare(const check::Design* now)
{
    if (checked_.freshness == Freshness::running && now != nullptr && !sameDesign(*now, checked_.design)) {
        // Nobody asks for what the sheet no longer has.
        service_.stop();
        checked_.freshness = Freshness::changed;
        return follow();
    }
    const Freshness fresh = checked_.freshness == Freshness::running ? Freshness::running : Freshness::fresh;
    const Freshness next = now == nullptr                      ? Freshness::asleep
                           : sameDesign(*now, checked_.design) ? fresh
                                                               : Freshness::changed;
    if (next == checked_.freshness)
        return;
    if (checked_.freshness == Freshness::running)
        service_.stop();
    // A check that was broken off has nothing to come back to.
    const bool hasResult = !checked_.result.details.empty() || !checked_.result.excuse.en.empty() ||
                           std::any_of(checked_.result.rows.begin(), checked_.result.rows.end(),
                                       [](const check::Row& row) { return row.simulated.has_value(); });
    checked_.freshness = next == Freshness::fresh && !hasResult ? Freshness::changed : next;
    follow();
}

void CheckWindow::follow()
{
    state_->setText(state());
    const bool old = checked_.freshness == Freshness::changed;
    again_->setVisible(old);
    runs_->setVisible(checked_.hasPreset());
    runs_->setEnabled(checked_.freshness == Freshness::running || checked_.freshness == Freshness::fresh);
    runs_->follow(checked_.run, checked_.english);
    QPalette colors = state_->palette();
    const bool stands = old || checked_.freshness == Freshness::asleep;
    colors.setColor(QPalette::Window, stands ? desk().inks->hint : desk().inks->voice);
    colors.setColor(QPalette::WindowText, desk().inks->ink);
    state_->parentWidget()->setPalette(colors);
    rows_->follow();
    followRow();
    followPages();
}

QString CheckWindow::state() const
{
    const bool english = checked_.english;
    switch (checked_.freshness) {
    case Freshness::running:
        return in(check_words::atWork, english);
    case Freshness::changed:
        return in(check_words::changed, english);
    case Freshness::asleep:
        return in(check::whyAsleep(), english);
    case Freshness::fresh:
        break;
    }
    if (!checked_.result.excuse.en.empty())
        return in(checked_.result.excuse, english);
    const auto& rows = checked_.result.rows;
    const auto open = [this](const check::Row& row) { return checked_.isOpen(row); };
    if (!std::all_of(rows.begin(), rows.end(), open) && checked_.bet.placed() == 0)
        return in(check_words::invitation, english);
    const auto compared = std::count_if(rows.begin(), rows.end(), [&](const check::Row& row) {
        return open(row) && row.judgement < check::Judgement::unexplained;
    });
    const auto agreed = std::count_if(rows.begin(), rows.end(), [&](const check::Row& row) {
        return open(row) && row.judgement <= check::Judgement::met;
    });
    QString text = in(check_words::tally, english).arg(compared).arg(agreed);
    if (checked_.bet.placed() > 0)
        text += QLatin1Char(' ') +
                in(check_words::score, english).arg(checked_.bet.won(checked_.result)).arg(checked_.bet.placed());
    return text;
}

void CheckWindow::followRow()
{
    panel_->follow(rows_->inHand());
}

void CheckWindow::followPages()
{
    const bool english = checked_.english;
    // What has no signal has no curves.
    const auto& parts = checked_.design.circuit.parts;
    const bool isDriven = std::any_of(parts.begin(), parts.end(),
                                      [](const check::Part& part) { return part.kind == check::PartKind::generator; });
    const bool hasCurves = isDriven || checked_.design.table == nullptr;
    if (const int page = pages_->indexOf(curves_); pages_->isTabVisible(page) != hasCurves)
        pages_->setTabVisible(page, hasCurves);
    curves_->follow();
    QStringList lines{in(check_words::assumedHead, english)};
    if (checked_.design.table != nullptr)
        for (const host::BiText& text : checked_.design.table->assumed)
            lines.append(QStringLiteral("\n• ") + check_words::prose(in(text, english)));
    if (checked_.result.preset.isThere())
        lines.append(QStringLiteral("\n• ") +
                     check_words::prose(in(check::presetWords(checked_.result.preset), english)));
    assumed_->setPlainText(lines.join(QLatin1Char('\n')));
    if (netlist_->toPlainText() != shown(checked_.result.netlist).trimmed())
        netlist_->setPlainText(shown(checked_.result.netlist).trimmed());
    const QString details = shown(checked_.result.details).trimmed();
    details_->setPlainText(details.isEmpty() ? in(check_words::noDetails, english) : details);
}

void CheckWindow::bet(check::Guess guess)
{
    if (const auto quantity = rows_->inHand(); quantity && checked_.freshness != Freshness::running) {
        checked_.bet.guess(*quantity, guess);
        follow();
        rows_->setFocus();
    }
}

void CheckWindow::openAll()
{
    checked_.bet.openAll();
    follow();
    rows_->setFocus();
}

// Who takes the table away takes all of it.
std::string CheckWindow::table(bool csv)
{
    if (checked_.freshness != Freshness::running)
        openAll();
    return csv ? check::csvTable(checked_.result, checked_.english)
               : check::textTable(checked_.result, checked_.design, checked_.english);
}

CurvesPaper CheckWindow::paper() const
{
    CurvesPaper paper{.title = windowTitle(),
                      .note = check_words::prose(in(check::presetWords(checked_.result.preset), checked_.english)),
                      .english = checked_.english};
    for (const PlotView* view : curves_->views())
        if (view->plot().hasData())
            paper.plots.push_back(&view->plot());
    return paper;
}

void CheckWindow::saveAs(const host::BiText& title, const QString& filter, const QString& ending,
                         const std::function<bool(const QString&)>& write)
{
    const bool english = checked_.english;
    QString words = in(title, english);
    words.remove(QStringLiteral("..."));
    const QString path = deeds_.fileFor(words, QStringLiteral("%1|*.%2").arg(filter, ending), QString());
    activateWindow();
    if (path.isEmpty())
        return;
    const bool written = write(path);
    tell(in(written ? check_words::written : check_words::notWritten, english).arg(QFileInfo(path).fileName()));
}

void CheckWindow::tell(const QString& words)
{
    told_->setText(words);
    told_->setAccessibleName(words);
}

void CheckWindow::relabel()
{
    const bool english = desk().english();
    checked_.english = english;
    speakInFrame();
    // A sheet may have no title of its own.
    const QString whole = in(check_words::title, english).arg(sheetTitle_);
    const QString caption = sheetTitle_.isEmpty() ? whole.section(QLatin1Char(':'), 0, 0) : whole;
    title().setTitle(caption);
    setWindowTitle(shownTitle(held(caption)));
    again_->setText(in(check_words::again, english));
    report_->setText(in(check_words::toReport, english));
    report_->setToolTip(shownTip(in(check_words::toReportTip, english)));
    copy_->setText(in(check_words::toClipboard, english));
    save_->setText(in(check_words::save, english));
    const host::BiText pages[] = {check_words::curves, check_words::assumedPage, check_words::netlistPage,
                                  check_words::detailsPage};
    for (int page = 0; page < pages_->count(); ++page) {
        pages_->setTabText(page, in(pages[page], english));
        pages_->widget(page)->setAccessibleName(in(pages[page], english).remove(QLatin1Char('&')));
    }
    saving_->clear();
    const auto offer = [&](const host::BiText& text, const char* filter, const char* ending,
                           std::function<bool(const QString&)> write) {
        saving_->addAction(in(text, english), this, [this, &text, filter, ending, write = std::move(write)] {
            saveAs(text, QLatin1String(filter), QLatin1String(ending), write);
        });
    };
    offer(check_words::saveTable, "CSV", "csv", [this](const QString& path) { return exportText(path, table(true)); });
    offer(check_words::saveSvg, "SVG", "svg", [this](const QString& path) {
        openAll();
        return exportCurvesSvg(path, paper());
    });
    offer(check_words::savePdf, "PDF", "pdf", [this](const QString& path) {
        openAll();
        return exportCurvesPdf(path, paper());
    });
    offer(check_words::saveNetlist, "SPICE", "cir",
          [this](const QString& path) { return exportText(path, checked_.result.netlist); });
    follow();
}

void CheckWindow::recolor()
{
    const Inks& inks = *desk().inks;
    setPalette(colorsOf(inks));
    recolorFrame();
    rows_->setInks(inks);
    panel_->setInks(inks);
    curves_->setInks(inks);
    follow();
}

void CheckWindow::changeEvent(QEvent* event)
{
    ToolFrame::changeEvent(event);
    if (event->type() == QEvent::ApplicationPaletteChange && curves_ != nullptr)
        recolor();
}

void CheckWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else
        ToolFrame::keyPressEvent(event);
}

void CheckWindow::closeEvent(QCloseEvent* event)
{
    service_.stop();
    ToolFrame::closeEvent(event);
    if (deeds_.closed)
        deeds_.closed();
}

} // namespace velmor::desktop
