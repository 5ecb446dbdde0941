// SPDX-License-Identifier: MIT
#include "desktop/check/curves_page.h"

#include <cmath>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSlider>

#include "desktop/check/check_words.h"

namespace velmor::desktop {

using check_words::in;

namespace curves_page_detail {

constexpr int atCourse = 100; ///< the slider's value of the course's input
constexpr int atMost = 160;
// Heights beside each other.
constexpr int gainHeight = 4;
constexpr int waveHeight = 5;
// Widths beside each other.
constexpr int waveWidth = 7;
constexpr int harmonicsWidth = 4;
constexpr double leastDrive = 0.1;
constexpr double mostDrive = 4;

} // namespace curves_page_detail

using namespace curves_page_detail;

int CurvesPage::valueOf(double drive)
{
    const double share = drive <= 1 ? std::log(drive) / -std::log(leastDrive) : std::log(drive) / std::log(mostDrive);
    return atCourse + static_cast<int>(std::lround(share * (drive <= 1 ? atCourse : atMost - atCourse)));
}

double CurvesPage::driveOf(int value)
{
    if (value <= atCourse)
        return std::pow(leastDrive, static_cast<double>(atCourse - value) / atCourse);
    return std::pow(mostDrive, static_cast<double>(value - atCourse) / (atMost - atCourse));
}

CurvesPage::CurvesPage(const Checked& checked, const Inks& inks, QWidget* parent)
    : QWidget(parent), checked_(checked),
      gain_(new PlotView("checkGain", std::make_unique<GainPlot>(checked), inks, this)),
      wave_(new PlotView("checkWave", std::make_unique<WavePlot>(checked), inks, this)),
      harmonics_(new PlotView("checkHarmonics", std::make_unique<HarmonicsPlot>(checked), inks, this)),
      name_(new QLabel(this)), slider_(new QSlider(Qt::Horizontal, this)), amount_(new QLabel(this))
{
    slider_->setObjectName(QStringLiteral("checkDrive"));
    slider_->setRange(0, atMost);
    slider_->setPageStep(10);
    slider_->setValue(atCourse);
    name_->setBuddy(slider_);
    amount_->setObjectName(QStringLiteral("checkDriveAmount"));
    amount_->setTextFormat(Qt::PlainText);
    amount_->setMinimumWidth(amount_->fontMetrics().averageCharWidth() * 26);
    auto* driving = new QHBoxLayout;
    driving->addWidget(name_);
    driving->addWidget(slider_, 1);
    driving->addWidget(amount_);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(8, 8, 8, 8);
    grid->addWidget(gain_, 0, 0, 1, 2);
    grid->addWidget(wave_, 1, 0);
    grid->addWidget(harmonics_, 1, 1);
    grid->addLayout(driving, 2, 0, 1, 2);
    grid->setColumnStretch(0, waveWidth);
    grid->setColumnStretch(1, harmonicsWidth);
    grid->setRowStretch(0, gainHeight);
    grid->setRowStretch(1, waveHeight);
    connect(slider_, &QSlider::valueChanged, this, [this] {
        tellDrive();
        if (driven)
            driven(drive());
    });
}

double CurvesPage::drive() const
{
    return driveOf(slider_->value());
}

void CurvesPage::resetDrive()
{
    const QSignalBlocker quiet(slider_);
    slider_->setValue(atCourse);
    tellDrive();
}

void CurvesPage::tellDrive()
{
    const QString times = QString::number(drive(), 'f', 2);
    amount_->setText(
        in(check_words::driveAmount, checked_.english).arg(times, volts(drive() * checked_.result.circuit.amplitude)));
    slider_->setAccessibleDescription(amount_->text());
}

void CurvesPage::follow()
{
    arrange();
    gain_->follow(checked_.english);
    name_->setText(in(check_words::drive, checked_.english));
    slider_->setAccessibleName(in(check_words::driveName, checked_.english));
    slider_->setEnabled(checked_.freshness == Freshness::fresh && !checked_.result.swing.output.values.empty());
    tellDrive();
    followWave();
}

// Without a gain plot the wave has its place, and the harmonics lie under it.
void CurvesPage::arrange()
{
    const bool hasGain = checked_.isSmallSignal();
    auto* grid = static_cast<QGridLayout*>(layout());
    if (hasGain == gain_->isVisibleTo(this) && !isFirst_)
        return;
    isFirst_ = false;
    gain_->setVisible(hasGain);
    grid->removeWidget(wave_);
    grid->removeWidget(harmonics_);
    grid->addWidget(wave_, hasGain ? 1 : 0, 0, 1, hasGain ? 1 : 2);
    grid->addWidget(harmonics_, 1, hasGain ? 1 : 0, 1, hasGain ? 1 : 2);
    grid->setRowStretch(0, hasGain ? gainHeight : waveHeight);
    grid->setRowStretch(1, hasGain ? waveHeight : gainHeight);
}

void CurvesPage::followWave()
{
    wave_->follow(checked_.english);
    harmonics_->follow(checked_.english);
}

void CurvesPage::setInks(const Inks& inks)
{
    for (PlotView* view : {gain_, wave_, harmonics_})
        view->setInks(inks);
}

} // namespace velmor::desktop
