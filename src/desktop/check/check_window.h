// SPDX-License-Identifier: MIT
// The window of a check, one a sheet: table, row in hand, curves, what was assumed, netlist. It shows and asks; whoever made it
// knows the sheet and does the deeds.
#pragma once

#include <functional>
#include <string>

#include "desktop/check/check_service.h"
#include "desktop/check/checked.h"
#include "desktop/check/curves_export.h"
#include "desktop/windows/tool_frame.h"

class QLabel;
class QMenu;
class QPlainTextEdit;
class QPushButton;
class QSplitter;
class QTabWidget;

namespace velmor::desktop {

class CurvesPage;
class RowPanel;
class RowsTable;
class RunSwitch;

/// What a window of a check asks for.
struct CheckDeeds {
    std::function<void()> again{};
    /// A name for a file to save; empty when there is to be none.
    std::function<QString(const QString& title, const QString& filter, const QString& name)> fileFor{};
    /// False when there is no report to write to.
    std::function<bool(const QString& text)> toReport{};
    std::function<void()> closed{};
};

class CheckWindow final : public ToolFrame {
public:
    CheckWindow(Desk& desk, std::string simulator, CheckDeeds deeds, QWidget* mainWindow);

    /// Checks the design; what came before is gone.
    void begin(const check::Design& design, const QString& sheetTitle);
    /// The sheet has that design now, or none that is finished.
    void compare(const check::Design* now);
    void relabel();
    void recolor();
    const Checked& checked() const { return checked_; }
    const CheckService& service() const { return service_; }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void layOut();
    QWidget* makeTop();
    QWidget* makePages();
    QWidget* makeBottom();
    QPlainTextEdit* makeText(const char* name);
    void connectParts();
    void giveRowsTheirRoom();
    void simulate();
    void choose(check::Run run);
    void take(const check::Check& result);
    void follow();
    void followRow();
    void followPages();
    QString state() const;
    void bet(check::Guess guess);
    void openAll();
    void saveAs(const host::BiText& title, const QString& filter, const QString& ending,
                const std::function<bool(const QString&)>& write);
    CurvesPaper paper() const;
    void tell(const QString& words);
    std::string table(bool csv);

    CheckDeeds deeds_;
    Checked checked_;
    CheckService service_;
    QString sheetTitle_;
    QSplitter* left_ = nullptr;
    bool handMoved_ = false; ///< the handle between the rows and the row in hand
    QLabel* state_ = nullptr;
    QPushButton* again_ = nullptr;
    RunSwitch* runs_ = nullptr;
    RowsTable* rows_ = nullptr;
    RowPanel* panel_ = nullptr;
    QTabWidget* pages_ = nullptr;
    CurvesPage* curves_ = nullptr;
    QPlainTextEdit* assumed_ = nullptr;
    QPlainTextEdit* netlist_ = nullptr;
    QPlainTextEdit* details_ = nullptr;
    QPushButton* report_ = nullptr;
    QPushButton* copy_ = nullptr;
    QPushButton* save_ = nullptr;
    QMenu* saving_ = nullptr;
    QLabel* told_ = nullptr;
};

} // namespace velmor::desktop
