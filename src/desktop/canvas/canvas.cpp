// SPDX-License-Identifier: MIT
// Painting, places and the way of events; the child widgets stand in canvas_widgets.cpp.
#include "desktop/canvas/canvas.h"

#include <algorithm>

#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScreen>
#include <QStyle>
#include <QToolTip>
#include <QtMath>

#include "desktop/canvas/check_tile.h"
#include "desktop/canvas/control_pane.h"
#include "desktop/canvas/field_edit.h"
#include "desktop/canvas/keyboard.h"
#include "desktop/canvas/pointer.h"
#include "desktop/canvas/waiting.h"
#include "desktop/drawing/control_painter.h"
#include "desktop/drawing/growth_plan.h"
#include "desktop/drawing/page_picture.h"
#include "desktop/drawing/pale_field.h"
#include "desktop/drawing/texts.h"

namespace velmor::desktop {

using host::Handle;
using host::noControl;

namespace canvas_detail {

constexpr float glow = 0.14F; ///< how much of the accent a drop target takes on
constexpr float glowUnderDrag = 0.32F;
constexpr int glowReach = 4; ///< logical pixels around it

bool isMostOf(const QRegion& region, const QRect& whole)
{
    double area = 0.0;
    for (const QRect& part : region)
        area += static_cast<double>(part.width()) * part.height();
    return area > 0.7 * whole.width() * whole.height();
}

} // namespace canvas_detail

Canvas::Canvas(Desk& desk, host::Window& model, Handle area, Handle except)
    : desk_(desk), model_(&model), area_(area), except_(except), plan_(CanvasPlan::of(model.spec())),
      widgets_(model.controlCount()), ink_(model.controlCount()), pointer_(std::make_unique<Pointer>(*this)),
      keyboard_(std::make_unique<Keyboard>(*this)), checkTile_(std::make_unique<CheckTile>(*this))
{
    design_ = area == noControl ? host::Place{0, 0, model.spec().place.width, model.spec().place.height}
                                : host::shownPlace(model, area);
    for (const host::ControlRow& row : model.spec().controls)
        places_.push_back(host::shownPlace(model, row.id));
    view_.inks = desk.inks;
    view_.languageIsEnglish = desk.engine->values().LanguageIsEnglish;
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setContextMenuPolicy(Qt::PreventContextMenu);
}

Canvas::~Canvas() = default;

void Canvas::forgetModel()
{
    model_ = nullptr;
    pointer_->forget();
}

void Canvas::setDesign(const host::Place& design)
{
    design_ = design;
}

double Canvas::scaleFor(QSize room) const
{
    if (design_.width <= 0 || design_.height <= 0)
        return 1.0;
    return std::min(room.width() * twipsPerUnit / design_.width, room.height() * twipsPerUnit / design_.height);
}

void Canvas::layOut(double scale, QSize size)
{
    laidOut_ = true;
    resize(size);
    view_.pixelsPerTwip = scale / twipsPerUnit;
    const double spare = std::max(0.0, size.width() - design_.width * view_.pixelsPerTwip) / 2.0;
    view_.origin = QPointF(std::floor(spare) - design_.left * view_.pixelsPerTwip, -design_.top * view_.pixelsPerTwip);
    std::fill(ink_.begin(), ink_.end(), QRectF());
    if (model_ == nullptr)
        return;
    for (std::size_t control = 0; control < widgets_.size(); ++control)
        if (widgets_[control] != nullptr)
            place(static_cast<Handle>(control), *widgets_[control]);
    checkTile_->label();
    update();
}

bool Canvas::belongs(Handle control) const
{
    const host::WindowSpec& spec = model_->spec();
    return hasPlace(model_->row(control).kind) && (area_ == noControl || liesIn(spec, control, area_)) &&
           (except_ == noControl || !liesIn(spec, control, except_));
}

// A panel that is the canvas itself is shown with it: while no sheet is open the welcome is there, even when a sheet has
// sent it away before.
bool Canvas::liesOpen(Handle control) const
{
    for (Handle part = control; part != noControl; part = model_->row(part).parent)
        if (!model_->visible(part) && !isGround(part))
            return false;
    return true;
}

bool Canvas::shows(Handle control) const
{
    return model_ != nullptr && belongs(control) && liesOpen(control);
}

// What is pale is seen, and is not there for mouse and keyboard.
bool Canvas::paints(Handle control) const
{
    if (shows(control))
        return true;
    const bool pale = toneOf(GrowthPlan::of(model_->spec()), *model_, control) == host::Tone::pale;
    return pale && belongs(control) && liesOpen(model_->row(control).parent);
}

const QRectF& Canvas::ink(Handle control) const
{
    QRectF& held = ink_[control];
    if (held.isNull())
        held = inkBounds(*model_, control, view_).adjusted(-1, -1, 1, 1);
    return held;
}

// Help boxes are placed by the width of the main window, which a sheet scaled by itself need not have.
QRect Canvas::keptInside(QRect box) const
{
    box.moveLeft(std::clamp(box.left(), 0, std::max(0, width() - box.width())));
    box.moveTop(std::clamp(box.top(), 0, std::max(0, height() - box.height())));
    return box.intersected(rect());
}

QRect Canvas::boxInPixels(Handle control) const
{
    const QRectF box = boxOf(*model_, control, view_);
    const QPoint leftTop(qRound(box.left()), qRound(box.top()));
    const QPoint rightBottom(qRound(box.right()), qRound(box.bottom()));
    const QRect exact(leftTop, QSize(rightBottom.x() - leftTop.x(), rightBottom.y() - leftTop.y()));
    const host::ControlRow& row = model_->row(control);
    if (row.kind == host::Kind::editor && model_->role() == host::Role::editor)
        return rect();
    return row.overlay && row.kind == host::Kind::page ? keptInside(exact) : exact;
}

Handle Canvas::controlAt(QPoint point) const
{
    if (model_ == nullptr)
        return noControl;
    for (const bool overlay : {true, false})
        for (std::size_t i = model_->controlCount(); i-- > 0;) {
            const auto control = static_cast<Handle>(i);
            if (model_->row(control).overlay == overlay && plan_.entries[control].target && shows(control) &&
                boxInPixels(control).contains(point))
                return control;
        }
    return noControl;
}

QWidget* Canvas::widgetOf(Handle control) const
{
    return control < widgets_.size() ? widgets_[control] : nullptr;
}

QWidget* Canvas::focusTarget()
{
    if (model_ == nullptr || model_->focus() == noControl)
        return this;
    if (widgetOf(model_->focus()) == nullptr)
        refresh(model_->focus());
    QWidget* widget = widgetOf(model_->focus());
    return widget != nullptr && widget->isVisibleTo(this) && widget->isEnabled() ? widget : this;
}

// The panels of the main window are the canvas itself there.
bool Canvas::isGround(Handle control) const
{
    const host::ControlRow& row = model_->row(control);
    return model_->role() == host::Role::mainWindow && row.kind == host::Kind::panel && row.parent == noControl;
}

void Canvas::paintOne(QPainter& painter, Handle control, const QRegion& clip)
{
    if (model_ == nullptr || !paints(control) || model_->row(control).look == host::Look::invisible ||
        isGround(control) || host::shownPlace(*model_, control) == host::Place{})
        return;
    if (!clip.isEmpty() && !clip.intersects(ink(control).toAlignedRect()))
        return;
    if (isPagePicture(*model_, control))
        paintPagePicture(painter, *model_, control, view_);
    else
        paintControl(painter, *model_, control, view_);
}

void Canvas::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    // Measuring what a control paints on costs as much as painting it: the most of a canvas is painted without asking.
    const bool most = canvas_detail::isMostOf(event->region(), rect());
    const bool painted = model_ != nullptr && most && !std::exchange(seen_, true) && paintAsFirstSeen(painter);
    if (!painted)
        paintGround(painter, event->rect());
    if (model_ == nullptr)
        return;
    if (!most) {
        inOrderOfPainting(*model_, [&](Handle control) { paintOne(painter, control, event->region()); });
        paintPaleFields(painter, event->region());
    } else if (!painted) {
        paintWhole(painter);
    }
    if (most)
        measureWhatHangsOver();
    else
        checkTile_->paint(painter, event->region());
    if (offering_)
        paintGlow(painter);
}

// Where it was must be known when it goes or is written anew; what keeps to its place is found there.
void Canvas::measureWhatHangsOver()
{
    for (const host::ControlRow& row : model_->spec().controls)
        if (row.kind != host::Kind::field && hasPlace(row.kind) && ink_[row.id].isNull() && paints(row.id) &&
            !captionFits(*model_, row.id, view_))
            ink(row.id);
}

// A palette is no sheet: its pictures lie on the desk.
void Canvas::paintGround(QPainter& painter, const QRect& box) const
{
    const bool onDesk = model_ != nullptr && model_->role() == host::Role::palette;
    painter.fillRect(box, onDesk ? view_.inks->desk : view_.inks->paper);
}

void Canvas::paintPicture(QPainter& painter, const RunPicture& picture) const
{
    const QRect room = pictured().toRect();
    for (const QRect& beside : QRegion(rect()) - room)
        paintGround(painter, beside);
    picture.paint(painter, room.topLeft());
}

// Where what is being dragged may be let go; the place under it more so.
void Canvas::paintGlow(QPainter& painter)
{
    painter.setRenderHint(QPainter::Antialiasing);
    for (const host::ControlRow& row : model_->spec().controls) {
        if (!plan_.entries[row.id].dropTarget || !shows(row.id))
            continue;
        const bool under = view_.hovered == row.id;
        QColor ground = view_.inks->accent;
        ground.setAlphaF(under ? canvas_detail::glowUnderDrag : canvas_detail::glow);
        painter.setPen(QPen(view_.inks->accent, under ? 3.0 : 1.5));
        painter.setBrush(ground);
        const int reach = canvas_detail::glowReach;
        painter.drawRoundedRect(QRectF(boxInPixels(row.id)).adjusted(-reach, -reach, reach, reach), 2.0 * reach,
                                2.0 * reach);
    }
}

void Canvas::paintWhole(QPainter& painter)
{
    inOrderOfPainting(*model_, [&](Handle control) { paintOne(painter, control, QRegion()); });
    paintPaleFields(painter, rect());
    checkTile_->paint(painter, rect());
}

// What a first picture shows: the sheet itself, with the hem that plates and shadows at its sides reach into.
QRectF Canvas::pictured() const
{
    const double hem = 240.0 * view_.pixelsPerTwip;
    const QPointF corner = view_.origin + QPointF(design_.left, design_.top) * view_.pixelsPerTwip;
    const QRectF sheet(corner, QSizeF(design_.width, design_.height) * view_.pixelsPerTwip);
    return sheet.adjusted(-hem, 0.0, hem, hem).toAlignedRect();
}

bool Canvas::liesInPicture() const
{
    const QRectF picture = pictured();
    const auto& rows = model_->spec().controls;
    return std::all_of(rows.begin(), rows.end(), [&](const host::ControlRow& row) {
        if (!hasPlace(row.kind) || row.look == host::Look::invisible || !paints(row.id))
            return true;
        const QRectF seen = ink(row.id).intersected(rect());
        return seen.isEmpty() || picture.contains(seen);
    });
}

// True when it was painted: from a picture, or with one made by the way.
bool Canvas::paintAsFirstSeen(QPainter& painter)
{
    const bool asNew =
        view_.hovered == noControl && view_.pressed == noControl && view_.forward == noControl && checkTile_->rests();
    if (model_->role() != host::Role::sheet || !asNew)
        return false;
    std::vector<bool> widgets(widgets_.size());
    std::transform(widgets_.begin(), widgets_.end(), widgets.begin(),
                   [](const QWidget* one) { return one != nullptr; });
    const double ratio = devicePixelRatioF();
    const SheetFace face = faceOf(*model_, design_, view_, ratio, std::move(widgets));
    const QRectF room = pictured();
    if (const RunPicture* picture = desk_.firstPictures->find(face)) {
        paintPicture(painter, *picture);
        return true;
    }
    if (!desk_.firstPictures->returns(face) || !liesInPicture())
        return false;
    QImage picture((room.size() * ratio).toSize(), QImage::Format_RGB32);
    picture.setDevicePixelRatio(ratio);
    picture.fill(view_.inks->paper);
    {
        QPainter inside(&picture);
        inside.translate(-room.topLeft());
        paintWhole(inside);
    }
    RunPicture kept(picture);
    paintPicture(painter, kept);
    desk_.firstPictures->keep(face, std::move(kept));
    return true;
}

// Over the rest, as their widgets would lie.
void Canvas::paintPaleFields(QPainter& painter, const QRegion& clip)
{
    for (const host::ControlRow& row : model_->spec().controls)
        if (row.kind == host::Kind::field && widgets_[row.id] == nullptr && row.look != host::Look::invisible &&
            shows(row.id) && clip.intersects(boxInPixels(row.id)))
            paintPaleField(painter, *model_, row.id, boxInPixels(row.id), view_);
}

void Canvas::repaintControl(Handle control)
{
    if (control == noControl || model_ == nullptr || !hasPlace(model_->row(control).kind))
        return;
    const QRectF before = std::exchange(ink_[control], QRectF());
    if (!isVisible())
        return; // it is painted whole when it is shown
    const host::ControlRow& row = model_->row(control);
    const bool mayHaveMoved = !row.drawing.empty() || !(model_->placeOf(control) == row.place);
    if (before.isNull() && mayHaveMoved)
        update();
    else
        update(before.united(ink(control)).toAlignedRect());
    auto* pane = dynamic_cast<ControlPane*>(widgetOf(control));
    if (pane != nullptr && pane->paints())
        pane->update();
}

void Canvas::setHovered(Handle control)
{
    const Handle before = std::exchange(view_.hovered, control);
    if (before == control)
        return;
    repaintControl(before);
    repaintControl(control);
}

void Canvas::setPressed(Handle control)
{
    const Handle before = std::exchange(view_.pressed, control);
    if (before == control)
        return;
    repaintControl(before);
    repaintControl(control);
}

void Canvas::setForward(Handle control)
{
    const Handle before = std::exchange(view_.forward, control);
    if (before == control)
        return;
    repaintControl(before);
    repaintControl(control);
}

void Canvas::setOffering(bool offering)
{
    if (std::exchange(offering_, offering) != offering)
        update();
}

bool Canvas::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && model_ != nullptr) {
        const auto* help = static_cast<QHelpEvent*>(event);
        const Handle control = controlAt(help->pos());
        if (checkTile_->isAt(help->pos()))
            checkTile_->tellAbout(help->globalPos());
        else
            tellAbout(control, help->globalPos());
        return true;
    }
    if (event->type() == QEvent::ShortcutOverride && keyboard_->wants(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

// What it is and, where it is grey, why it waits.
void Canvas::tellAbout(Handle control, QPoint at)
{
    QStringList parts;
    if (control != noControl)
        parts = {tipOf(control), whyItWaits(*model_, control, view_.languageIsEnglish == host::trueValue)};
    parts.removeAll(QString());
    const QString text = parts.join(QLatin1Char('\n'));
    if (text.isEmpty())
        QToolTip::hideText();
    else
        QToolTip::showText(tipPlace(control, at, shownTip(text)), shownTip(text), this, boxInPixels(control));
}

// Below a button or a field, whose caption or text is read on while the tip stands, or above it at the end of the screen; of a
// large thing where the pointer is. The toolkit would throw a tip that is too wide to the other side of the pointer.
QPoint Canvas::tipPlace(Handle control, QPoint at, const QString& text) const
{
    constexpr int beside = 2; ///< logical pixels that the toolkit adds
    constexpr int below = 16;
    constexpr int largest = 6; ///< height of what a tip stands beside, in lines
    QLabel shownSo(text);      // as the toolkit breaks it
    shownSo.setFont(QApplication::font());
    shownSo.setWordWrap(true);
    shownSo.setMargin(1 + style()->pixelMetric(QStyle::PM_ToolTipLabelFrameWidth));
    const QSize tip = shownSo.sizeHint();
    const QRect box(mapToGlobal(boxInPixels(control).topLeft()), boxInPixels(control).size());
    if (box.height() > largest * shownSo.fontMetrics().height())
        return at;
    const QRect room = screen()->geometry();
    const int left = std::max(room.left(), std::min(at.x(), room.right() - tip.width() - 2 * beside));
    const bool fits = box.bottom() + beside + tip.height() < room.bottom();
    return {left, (fits ? box.bottom() + beside : box.top() - beside - tip.height()) - below};
}

bool Canvas::eventFilter(QObject* object, QEvent* event)
{
    const auto known = handles_.find(object);
    if (known == handles_.end() || model_ == nullptr || desk_.closing)
        return QWidget::eventFilter(object, event);
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        if (keyboard_->wants(*static_cast<QKeyEvent*>(event)))
            event->accept();
        return false;
    case QEvent::ToolTip:
        tellAbout(known->second, static_cast<QHelpEvent*>(event)->globalPos());
        return true;
    case QEvent::KeyPress:
        return keyboard_->pressed(*static_cast<QKeyEvent*>(event));
    case QEvent::InputMethod:
        return keyboard_->composed(*static_cast<QInputMethodEvent*>(event));
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::ContextMenu:
        return filterMouse(known->second, *static_cast<QWidget*>(object), *event);
    default:
        return false;
    }
}

bool Canvas::filterMouse(Handle control, QWidget& widget, QEvent& event)
{
    if (event.type() == QEvent::ContextMenu)
        return true;
    auto& mouse = static_cast<QMouseEvent&>(event);
    const QPoint here = widget.mapTo(this, mouse.position().toPoint());
    if (widgetOf(control) != nullptr && dynamic_cast<ControlPane*>(widgetOf(control)) != nullptr) {
        switch (event.type()) {
        case QEvent::MouseButtonPress:
            pointer_->pressed(here, mouse);
            break;
        case QEvent::MouseButtonDblClick:
            pointer_->doubleClicked(here, mouse);
            break;
        case QEvent::MouseMove:
            pointer_->moved(here, mouse.buttons());
            break;
        default:
            pointer_->released(here, mouse);
        }
        return true;
    }
    return pointer_->filtered(control, here, mouse);
}

void Canvas::keyPressEvent(QKeyEvent* event)
{
    // A key that a text box has left over has been here before.
    if (model_ == nullptr || !hasFocus() || !keyboard_->pressed(*event))
        QWidget::keyPressEvent(event);
}

// The drawing shows the model's focus: the toolkit's would have all of it painted anew.
void Canvas::focusInEvent(QFocusEvent*) {}

void Canvas::focusOutEvent(QFocusEvent*) {}

void Canvas::mousePressEvent(QMouseEvent* event)
{
    pointer_->pressed(event->position().toPoint(), *event);
}

void Canvas::mouseMoveEvent(QMouseEvent* event)
{
    pointer_->moved(event->position().toPoint(), event->buttons());
}

void Canvas::mouseReleaseEvent(QMouseEvent* event)
{
    pointer_->released(event->position().toPoint(), *event);
}

void Canvas::mouseDoubleClickEvent(QMouseEvent* event)
{
    pointer_->doubleClicked(event->position().toPoint(), *event);
}

void Canvas::leaveEvent(QEvent* event)
{
    QWidget::leaveEvent(event);
    pointer_->left();
}

} // namespace velmor::desktop
