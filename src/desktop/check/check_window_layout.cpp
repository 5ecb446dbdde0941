// SPDX-License-Identifier: MIT
// Where the parts of the window of a check stand.
#include "desktop/check/check_window.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSplitter>
#include <QTabWidget>
#include <QVBoxLayout>

#include "desktop/canvas/text_page.h"
#include "desktop/check/curves_page.h"
#include "desktop/check/row_panel.h"
#include "desktop/check/rows_table.h"
#include "desktop/check/run_switch.h"

namespace velmor::desktop {

namespace check_window_layout_detail {

constexpr int tableShare = 54; ///< of a hundred; the curves have the rest
constexpr int margin = 10;

} // namespace check_window_layout_detail

using namespace check_window_layout_detail;

void CheckWindow::layOut()
{
    auto* inside = new QWidget;
    inside->setAutoFillBackground(true);
    auto* column = new QVBoxLayout(inside);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(makeTop());
    auto* left = new QSplitter(Qt::Vertical);
    left_ = left;
    rows_ = new RowsTable(checked_, *desk().inks, nullptr);
    panel_ = new RowPanel(checked_, *desk().inks, nullptr);
    left->addWidget(rows_);
    left->addWidget(panel_);
    left->setStretchFactor(0, 0);
    left->setStretchFactor(1, 1);
    auto* across = new QSplitter(Qt::Horizontal);
    across->addWidget(left);
    across->addWidget(makePages());
    across->setStretchFactor(0, tableShare);
    across->setStretchFactor(1, 100 - tableShare);
    for (QSplitter* splitter : {left, across})
        splitter->setChildrenCollapsible(false);
    across->setSizes({tableShare * 100, (100 - tableShare) * 100});
    column->addWidget(across, 1);
    column->addWidget(makeBottom());
    hold(*inside);
}

QWidget* CheckWindow::makeTop()
{
    auto* top = new QWidget;
    top->setObjectName(QStringLiteral("checkTop"));
    top->setAutoFillBackground(true);
    state_ = new QLabel;
    state_->setObjectName(QStringLiteral("checkState"));
    state_->setTextFormat(Qt::PlainText);
    state_->setWordWrap(true);
    again_ = new QPushButton;
    again_->setObjectName(QStringLiteral("checkAgain"));
    runs_ = new RunSwitch;
    auto* line = new QHBoxLayout(top);
    line->setContentsMargins(margin + 2, margin / 2, margin, margin / 2);
    line->addWidget(state_, 1);
    line->addWidget(again_);
    line->addWidget(runs_);
    return top;
}

QPlainTextEdit* CheckWindow::makeText(const char* name)
{
    auto* text = new TextPage;
    text->setObjectName(QLatin1String(name));
    text->setReadOnly(true);
    text->setFrameShape(QFrame::NoFrame);
    text->setTabChangesFocus(true);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    text->document()->setDocumentMargin(margin);
    return text;
}

QWidget* CheckWindow::makePages()
{
    pages_ = new QTabWidget;
    pages_->setObjectName(QStringLiteral("checkPages"));
    pages_->setDocumentMode(true);
    curves_ = new CurvesPage(checked_, *desk().inks, nullptr);
    assumed_ = makeText("checkAssumed");
    netlist_ = makeText("checkNetlist");
    netlist_->setLineWrapMode(QPlainTextEdit::NoWrap);
    QFont fixed(QStringLiteral("monospace"));
    fixed.setStyleHint(QFont::Monospace);
    fixed.setPointSizeF(font().pointSizeF());
    netlist_->setFont(fixed);
    details_ = makeText("checkDetails");
    details_->setLineWrapMode(QPlainTextEdit::NoWrap);
    details_->setFont(fixed);
    for (QWidget* page : std::initializer_list<QWidget*>{curves_, assumed_, netlist_, details_})
        pages_->addTab(page, QString());
    return pages_;
}

QWidget* CheckWindow::makeBottom()
{
    auto* bottom = new QWidget;
    report_ = new QPushButton;
    copy_ = new QPushButton;
    save_ = new QPushButton;
    saving_ = new QMenu(save_);
    save_->setMenu(saving_);
    report_->setObjectName(QStringLiteral("checkReport"));
    copy_->setObjectName(QStringLiteral("checkCopy"));
    save_->setObjectName(QStringLiteral("checkSave"));
    told_ = new QLabel;
    told_->setObjectName(QStringLiteral("checkTold"));
    told_->setTextFormat(Qt::PlainText);
    auto* line = new QHBoxLayout(bottom);
    line->setContentsMargins(margin, margin / 2, margin, margin);
    for (QPushButton* button : {report_, copy_, save_}) {
        button->setAutoDefault(false);
        line->addWidget(button);
    }
    line->addSpacing(margin);
    line->addWidget(told_, 1);
    return bottom;
}

} // namespace velmor::desktop
