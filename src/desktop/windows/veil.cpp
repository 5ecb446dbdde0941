// SPDX-License-Identifier: MIT
#include "desktop/windows/veil.h"

#include <QPainter>
#include <QPainterPath>
#include <QWidget>

namespace velmor::desktop {

namespace veil {

constexpr int thickness = 120; ///< of 255: what lies behind can still be read
constexpr int margin = 4;      ///< around what stays clear
constexpr double corner = 4.0;

class Veil final : public QWidget {
public:
    Veil(QWidget& window, const QRect& clear, const QColor& colour) : QWidget(&window), clear_(clear), colour_(colour)
    {
        setObjectName(QStringLiteral("veil"));
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setFocusPolicy(Qt::NoFocus);
        setGeometry(window.rect());
        window.installEventFilter(this);
        raise();
        show();
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainterPath covered;
        covered.addRect(rect());
        if (!clear_.isEmpty()) {
            QPainterPath hole;
            const QRect seen(mapFromGlobal(clear_.topLeft()), clear_.size());
            hole.addRoundedRect(seen.adjusted(-margin, -margin, margin, margin), corner, corner);
            covered = covered.subtracted(hole);
        }
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillPath(covered, colour_);
    }
    bool eventFilter(QObject* window, QEvent* event) override
    {
        if (event->type() == QEvent::Resize)
            setGeometry(static_cast<QWidget*>(window)->rect());
        return QWidget::eventFilter(window, event);
    }

private:
    QRect clear_;
    QColor colour_;
};

} // namespace veil

Veils::Veils(const std::vector<QWidget*>& windows, const QRect& clear, const Inks& inks)
{
    QColor colour = inks.desk;
    colour.setAlpha(veil::thickness);
    for (QWidget* window : windows)
        veils_.emplace_back(new veil::Veil(*window, clear, colour));
}

Veils::~Veils()
{
    for (const QPointer<QWidget>& one : veils_)
        delete one;
}

} // namespace velmor::desktop
