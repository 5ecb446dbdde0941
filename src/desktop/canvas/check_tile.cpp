// SPDX-License-Identifier: MIT
#include "desktop/canvas/check_tile.h"

#include <utility>

#include <QAccessible>
#include <QPushButton>
#include <QRegion>
#include <QToolTip>

#include "check/check.h"
#include "desktop/canvas/canvas.h"
#include "desktop/canvas/finished.h"
#include "desktop/drawing/control_painter.h"
#include "desktop/drawing/texts.h"
#include "sheets/check_tool.h"

namespace velmor::desktop {

namespace check_tile_detail {

/// For the tree alone: the canvas has painted it.
class UnpaintedButton final : public QPushButton {
public:
    using QPushButton::QPushButton;

protected:
    void paintEvent(QPaintEvent*) override {}
};

} // namespace check_tile_detail

using namespace check_tile_detail;

CheckTile::CheckTile(Canvas& canvas)
    : canvas_(canvas), there_(canvas.model()->role() == host::Role::sheet && canvas.desk().canCheck &&
                              canvas.desk().canCheck(*canvas.model())),
      awake_(there_ && hasPassed(*canvas.model()))
{}

CheckTile::~CheckTile() = default;

bool CheckTile::isAt(QPoint point) const
{
    return there_ && box().contains(point) && canvas_.controlAt(point) == host::noControl;
}

QRect CheckTile::box() const
{
    return boxOf(sheets::checkPlace, canvas_.view()).toAlignedRect();
}

void CheckTile::set(bool& flag, bool value)
{
    if (there_ && std::exchange(flag, value) != value)
        canvas_.update(box().adjusted(-1, -1, 1, 1));
}

void CheckTile::follow()
{
    if (!there_ || canvas_.model() == nullptr)
        return;
    set(awake_, hasPassed(*canvas_.model()));
    label();
}

void CheckTile::label()
{
    if (!there_ || canvas_.model() == nullptr || !QAccessible::isActive())
        return;
    if (!button_) {
        button_ = new UnpaintedButton(&canvas_);
        button_->setObjectName(QStringLiteral("check"));
        button_->setFocusPolicy(Qt::NoFocus);
        button_->setAttribute(Qt::WA_TransparentForMouseEvents);
        QObject::connect(button_, &QPushButton::clicked, &canvas_, [this] { press(); });
        button_->show();
    }
    button_->setGeometry(box());
    button_->setAccessibleName(tip().section(QLatin1Char('\n'), 0, 0));
    button_->setAccessibleDescription(tip().section(QLatin1Char('\n'), 1));
}

void CheckTile::paint(QPainter& painter, const QRegion& clip) const
{
    if (!there_ || !clip.intersects(box().adjusted(-1, -1, 1, 1)))
        return;
    const Tile tile{.place = sheets::checkPlace,
                    .drawing = sheets::checkFace,
                    .awake = awake_,
                    .hovered = hovered_ && awake_,
                    .pressed = pressed_ && awake_};
    paintTile(painter, *canvas_.model(), tile, canvas_.view());
}

void CheckTile::hover(QPoint point)
{
    const bool over = isAt(point);
    if (over == hovered_)
        return;
    set(hovered_, over);
    canvas_.setCursor(over && awake_ ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void CheckTile::leave()
{
    set(hovered_, false);
    set(pressed_, false);
}

void CheckTile::press()
{
    if (!there_ || canvas_.model() == nullptr || !canvas_.desk().idle())
        return;
    if (!awake_) {
        tellAbout(canvas_.mapToGlobal(box().bottomLeft()));
        return;
    }
    set(pressed_, true);
    canvas_.desk().check(*canvas_.model());
}

void CheckTile::release()
{
    set(pressed_, false);
}

void CheckTile::tellAbout(QPoint at) const
{
    QToolTip::showText(at, shownTip(tip()), &canvas_, box());
}

QString CheckTile::tip() const
{
    const bool english = canvas_.desk().english();
    const host::BiText& meaning = sheets::checkMeaning;
    QString text = QStringLiteral("%1  (%2)").arg(shown(english ? meaning.en : meaning.es), shown(sheets::checkKey));
    if (!awake_)
        text += QLatin1Char('\n') + shown(english ? check::whyAsleep().en : check::whyAsleep().es);
    return text;
}

} // namespace velmor::desktop
