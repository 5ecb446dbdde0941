// SPDX-License-Identifier: MIT
// The elements are written as they come; every one carries its own colours, so that any viewer shows it alike.
#include "desktop/drawing/svg_device.h"

#include <cmath>

#include <QFont>
#include <QPaintEngine>
#include <QPainterPath>
#include <QPen>
#include <QTransform>

namespace velmor::desktop {

namespace svg {

QString number(double value)
{
    const double rounded = std::round(value * 1000.0) / 1000.0;
    return QString::number(rounded == 0.0 ? 0.0 : rounded, 'g', 9);
}

QString pathData(const QPainterPath& path)
{
    QString data;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element element = path.elementAt(i);
        const char* letter = element.isMoveTo() ? "M" : element.isLineTo() ? "L" : element.isCurveTo() ? "C" : "";
        data += QLatin1String(letter) + number(element.x) + QLatin1Char(' ') + number(element.y) + QLatin1Char(' ');
    }
    return data.trimmed();
}

QString paint(const char* property, const QColor& color)
{
    QString text = QStringLiteral(" %1=\"%2\"").arg(QLatin1String(property), color.name());
    if (color.alpha() < 255)
        text += QStringLiteral(" %1-opacity=\"%2\"").arg(QLatin1String(property), number(color.alphaF()));
    return text;
}

QString strokeOf(const QPen& pen)
{
    if (pen.style() == Qt::NoPen)
        return {};
    const bool miter = pen.joinStyle() == Qt::MiterJoin;
    const bool flat = pen.capStyle() == Qt::FlatCap;
    QString text = paint("stroke", pen.color()) + QStringLiteral(" stroke-width=\"%1\"").arg(number(pen.widthF()));
    text += QStringLiteral(" stroke-linejoin=\"%1\"").arg(miter ? QStringLiteral("miter") : QStringLiteral("round"));
    text += QStringLiteral(" stroke-linecap=\"%1\"").arg(flat ? QStringLiteral("butt") : QStringLiteral("round"));
    if (pen.style() == Qt::CustomDashLine) {
        QStringList dashes;
        for (const qreal dash : pen.dashPattern())
            dashes << number(dash * pen.widthF());
        text += QStringLiteral(" stroke-dasharray=\"%1\"").arg(dashes.join(QLatin1Char(' ')));
    }
    return text;
}

QString transformOf(const QTransform& transform)
{
    if (transform.isIdentity())
        return {};
    return QStringLiteral(" transform=\"matrix(%1 %2 %3 %4 %5 %6)\"")
        .arg(number(transform.m11()), number(transform.m12()), number(transform.m21()), number(transform.m22()),
             number(transform.dx()), number(transform.dy()));
}

} // namespace svg

class SvgEngine final : public QPaintEngine {
public:
    SvgEngine() : QPaintEngine(AllFeatures & ~(PatternBrush | PerspectiveTransform | ConicalGradientFill | PorterDuff))
    {}

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }

    void updateState(const QPaintEngineState& changed) override
    {
        pen_ = changed.pen();
        brush_ = changed.brush();
        transform_ = changed.transform();
        opacity_ = changed.opacity();
    }

    void drawPath(const QPainterPath& path) override
    {
        const bool filled = brush_.style() != Qt::NoBrush;
        QString text = QStringLiteral("<path d=\"%1\"").arg(svg::pathData(path));
        text += filled ? svg::paint("fill", brush_.color()) : QStringLiteral(" fill=\"none\"");
        if (filled && path.fillRule() == Qt::OddEvenFill)
            text += QStringLiteral(" fill-rule=\"evenodd\"");
        write(text + svg::strokeOf(pen_) + common() + QStringLiteral("/>\n"));
    }

    void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override
    {
        QPainterPath path(points[0]);
        for (int i = 1; i < count; ++i)
            path.lineTo(points[i]);
        const QBrush brush = brush_;
        if (mode == PolylineMode)
            brush_ = Qt::NoBrush;
        else
            path.closeSubpath();
        drawPath(path);
        brush_ = brush;
    }

    void drawTextItem(const QPointF& at, const QTextItem& item) override
    {
        const QFont font = item.font();
        QString text =
            QStringLiteral("<text x=\"%1\" y=\"%2\" xml:space=\"preserve\" font-family=\"%3, serif\" font-size=\"%4\"")
                .arg(svg::number(at.x()), svg::number(at.y()), font.family().toHtmlEscaped(),
                     svg::number(font.pixelSize()));
        if (font.italic())
            text += QStringLiteral(" font-style=\"italic\"");
        if (font.bold())
            text += QStringLiteral(" font-weight=\"bold\"");
        text += svg::paint("fill", pen_.color()) + common();
        write(text + QLatin1Char('>') + item.text().toHtmlEscaped() + QStringLiteral("</text>\n"));
    }

    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {} // drawings hold no pixels

    const QString& body() const { return body_; }

private:
    QString common() const
    {
        QString text = svg::transformOf(transform_);
        if (opacity_ < 1.0)
            text += QStringLiteral(" opacity=\"%1\"").arg(svg::number(opacity_));
        return text;
    }
    void write(const QString& element) { body_ += element; }

    QString body_;
    QPen pen_;
    QBrush brush_;
    QTransform transform_;
    double opacity_ = 1.0;
};

SvgDevice::SvgDevice(QSizeF size, double unitsPerPixel, const QString& title)
    : size_(size), unitsPerPixel_(unitsPerPixel), title_(title), engine_(std::make_unique<SvgEngine>())
{}

SvgDevice::~SvgDevice() = default;

QPaintEngine* SvgDevice::paintEngine() const
{
    return engine_.get();
}

QByteArray SvgDevice::document() const
{
    const QString head =
        QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                       "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"%1\" height=\"%2\" viewBox=\"0 0 %3 %4\">\n"
                       "<title>%5</title>\n")
            .arg(svg::number(size_.width() / unitsPerPixel_), svg::number(size_.height() / unitsPerPixel_),
                 svg::number(size_.width()), svg::number(size_.height()), title_.toHtmlEscaped());
    return (head + engine_->body() + QStringLiteral("</svg>\n")).toUtf8();
}

int SvgDevice::metric(PaintDeviceMetric metric) const
{
    switch (metric) {
    case PdmWidth:
        return static_cast<int>(std::ceil(size_.width()));
    case PdmHeight:
        return static_cast<int>(std::ceil(size_.height()));
    case PdmWidthMM:
        return static_cast<int>(size_.width() * 25.4 / 96.0);
    case PdmHeightMM:
        return static_cast<int>(size_.height() * 25.4 / 96.0);
    case PdmDevicePixelRatio:
        return 1;
    case PdmDevicePixelRatioScaled:
        return static_cast<int>(devicePixelRatioFScale());
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY:
        return 96;
    case PdmNumColors:
        return 0x7fffffff;
    case PdmDepth:
        return 32;
    default:
        return QPaintDevice::metric(metric);
    }
}

} // namespace velmor::desktop
