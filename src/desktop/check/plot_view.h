// SPDX-License-Identifier: MIT
// A plot as a widget: its values are read under the pointer, or with the arrow keys.
#pragma once

#include <memory>
#include <optional>

#include <QWidget>

#include "desktop/check/plots.h"

namespace velmor::desktop {

class PlotView final : public QWidget {
public:
    PlotView(const char* name, std::unique_ptr<Plot> plot, const Inks& inks, QWidget* parent);

    const Plot& plot() const { return *plot_; }
    /// Its data or its language have changed.
    void follow(bool english);
    void setInks(const Inks& inks);
    /// What is read just now; empty while nobody reads.
    QString reading() const;
    QSize sizeHint() const override { return {360, 170}; }
    QSize minimumSizeHint() const override { return {110, 110}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void read(std::optional<double> place);
    PlotLook look() const;

    std::unique_ptr<Plot> plot_;
    const Inks* inks_;
    std::optional<double> place_;
    bool english_ = false;
};

} // namespace velmor::desktop
