// SPDX-License-Identifier: MIT
#include "desktop/print_course.h"

#include <QCoreApplication>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

#include "desktop/drawing/texts.h"
#include "host/bitext.h"

namespace velmor::desktop {

namespace print_course_detail {

using host::BiText;

// clang-format off
constexpr BiText title   = {.es = "Imprimir",                  .en = "Print"};
constexpr BiText begins  = {.es = "Preparando las páginas…",   .en = "Preparing the pages…"};
constexpr BiText prints  = {.es = "Página %1 de %2",           .en = "Page %1 of %2"};
constexpr BiText cancels = {.es = "&Cancelar",                 .en = "&Cancel"};
// clang-format on

constexpr std::chrono::milliseconds betweenLooks{40}; ///< so that the screen follows a hand
constexpr int widestCount = 99999;                    ///< of pages: the box does not grow while it counts
constexpr int barLetters = 32;

QString in(const BiText& text, bool english)
{
    return shown(english ? text.en : text.es);
}

} // namespace print_course_detail

using namespace print_course_detail;

PrintCourse::PrintCourse(QWidget* parent, const Stage& stage, std::chrono::milliseconds until)
    : parent_(parent), stage_(stage), next_(until)
{
    // It speaks of no field: it stands in the middle.
    stage_.inHand = stage_.behind = QRect();
    stage_.beside = false;
    time_.start();
}

PrintCourse::~PrintCourse() = default;

bool PrintCourse::goesOn(int page, int pages)
{
    if (std::chrono::milliseconds(time_.elapsed()) < next_)
        return !cancelled_;
    if (!box_)
        show();
    tell(page, pages);
    QCoreApplication::processEvents();
    next_ = std::chrono::milliseconds(time_.elapsed()) + betweenLooks;
    return !cancelled_;
}

void PrintCourse::show()
{
    box_ = std::make_unique<QuietBox>(parent_, stage_, in(title, stage_.english));
    box_->setObjectName(QStringLiteral("printCourse"));
    box_->setAccessibleDescription(in(begins, stage_.english));
    text_ = new QLabel;
    text_->setTextFormat(Qt::PlainText);
    const QString widest = in(prints, stage_.english).arg(widestCount).arg(widestCount);
    text_->setMinimumWidth(text_->fontMetrics().horizontalAdvance(widest));
    box_->add(text_);
    bar_ = new QProgressBar;
    bar_->setTextVisible(false);
    bar_->setMinimumWidth(barLetters * text_->fontMetrics().averageCharWidth());
    bar_->setFixedHeight(text_->fontMetrics().height() / 2);
    box_->add(bar_);
    QPushButton* cancel = box_->addButton(in(cancels, stage_.english));
    QObject::connect(cancel, &QPushButton::clicked, box_.get(), &QDialog::reject);
    QObject::connect(box_.get(), &QDialog::rejected, box_.get(), [this] { cancelled_ = true; });
    cancel->setFocus();
    box_->setModal(true);
    box_->settle();
    box_->show();
}

void PrintCourse::tell(int page, int pages)
{
    text_->setText(pages == 0 ? in(begins, stage_.english) : in(prints, stage_.english).arg(page).arg(pages));
    bar_->setRange(0, pages);
    bar_->setValue(page);
    bar_->setAccessibleName(text_->text());
}

} // namespace velmor::desktop
