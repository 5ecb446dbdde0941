// SPDX-License-Identifier: MIT
// A paint device that writes what is painted on it as SVG: paths and texts in plain colours, which is all that the
// program's drawings hold.
#pragma once

#include <memory>

#include <QPaintDevice>
#include <QSizeF>
#include <QString>

namespace velmor::desktop {

class SvgEngine;

class SvgDevice final : public QPaintDevice {
public:
    /// `size` in user units, of which `unitsPerPixel` make a CSS pixel.
    SvgDevice(QSizeF size, double unitsPerPixel, const QString& title);
    ~SvgDevice() override;

    QPaintEngine* paintEngine() const override;
    /// The whole document; call it when painting has ended.
    QByteArray document() const;

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    QSizeF size_;
    double unitsPerPixel_;
    QString title_;
    std::unique_ptr<SvgEngine> engine_;
};

} // namespace velmor::desktop
