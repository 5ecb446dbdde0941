// SPDX-License-Identifier: MIT
// The toolkit's plain style with flat title bars for child windows (one calm colour, four strokes for the buttons), flat
// scroll bars, buttons and marks in the program's own colours.
#pragma once

#include <map>

#include <QIcon>
#include <QProxyStyle>

class QStyleOptionSlider;
class QStyleOptionTitleBar;

namespace velmor::desktop {

class QuietStyle final : public QProxyStyle {
public:
    QuietStyle();
    /// What is marked is marked in the one accent colour, also in menus.
    void polish(QPalette& palette) override;
    void polish(QWidget* widget) override;
    using QProxyStyle::polish;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* more) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override;
    QIcon standardIcon(StandardPixmap sign, const QStyleOption* option, const QWidget* widget) const override;

private:
    void drawScrollBar(const QStyleOptionSlider& bar, QPainter& painter, const QWidget* widget) const;
    void drawFrameButtons(const QStyleOptionComplex& buttons, QPainter& painter, const QWidget* widget) const;
    void drawTitleBar(const QStyleOptionTitleBar& bar, QPainter& painter, const QWidget* widget) const;

    mutable std::map<StandardPixmap, QIcon> signs_;
};

} // namespace velmor::desktop
