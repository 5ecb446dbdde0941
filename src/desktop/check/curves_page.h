// SPDX-License-Identifier: MIT
// The page of curves: gain, wave and harmonics, and the slider of the input under the wave.
#pragma once

#include <functional>

#include <QWidget>

#include "desktop/check/plot_view.h"

class QLabel;
class QSlider;

namespace velmor::desktop {

class CurvesPage final : public QWidget {
public:
    CurvesPage(const Checked& checked, const Inks& inks, QWidget* parent);

    void follow();
    /// The wave alone has changed.
    void followWave();
    void setInks(const Inks& inks);
    /// Back to the input of the course, without a word to anyone.
    void resetDrive();
    double drive() const;
    std::vector<const PlotView*> views() const { return {gain_, wave_, harmonics_}; }

    /// Another input is wished for, in times that of the course.
    std::function<void(double)> driven;

    /// The slider's value for a drive, and back: fine where the wave begins to bend.
    static int valueOf(double drive);
    static double driveOf(int value);

private:
    void arrange();
    void tellDrive();

    const Checked& checked_;
    PlotView* gain_;
    PlotView* wave_;
    PlotView* harmonics_;
    QLabel* name_;
    QSlider* slider_;
    QLabel* amount_;
    bool isFirst_ = true;
};

} // namespace velmor::desktop
