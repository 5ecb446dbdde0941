// SPDX-License-Identifier: MIT
#include "desktop/windows/sheet_view.h"

#include <algorithm>

#include <QMenuBar>
#include <QPlainTextEdit>
#include <QStyle>
#include <QTimer>
#include <QVBoxLayout>
#include <QtMath>

#include "desktop/canvas/check_tile.h"
#include "desktop/canvas/field_edit.h"
#include "desktop/canvas/finished.h"
#include "desktop/canvas/keyboard.h"
#include "desktop/canvas/pointer.h"
#include "desktop/windows/menus.h"
#include "desktop/windows/prompt_strip.h"
#include "desktop/windows/search_line.h"

namespace velmor::desktop {

using host::Handle;
using host::Kind;
using host::noControl;
using host::Role;

namespace sheet_view_detail {

/// Below this scale an 8 point text falls under 9 logical pixels: the sheet scrolls instead.
constexpr double smallestScale = 0.85;
/// A sheet goes a shade below it where that spares it a scroll bar: to 8.7 pixels.
constexpr double nearlySmallest = 0.82;
constexpr double smallestOfPictures = 0.4;
constexpr int toolMargin = 120; ///< twips
constexpr int scrollMargin = 40;
constexpr int forwardFor = 6000;   ///< milliseconds
constexpr double stripShare = 0.4; ///< of the height at most, for prompts that stay in view

double wholeScale(QSize room, const host::Place& design)
{
    return twipsPerUnit * std::min(static_cast<double>(room.width()) / std::max(1, design.width),
                                   static_cast<double>(room.height()) / std::max(1, design.height));
}

// Whole where it can be read whole, else as wide as there is room beside a bar, else no smaller than is read with ease.
double readableScale(QSize room, const host::Place& design, int bar)
{
    const double whole = wholeScale(room, design);
    if (whole >= nearlySmallest)
        return whole;
    const double wide = twipsPerUnit * (room.width() - bar) / std::max(1, design.width);
    return wide >= nearlySmallest ? std::min(wide, smallestScale) : smallestScale;
}

} // namespace sheet_view_detail

SheetView::SheetView(Desk& desk, host::Window& model, QWidget* parent)
    : QWidget(parent), desk_(desk), area_(new QScrollArea(this)), canvas_(new Canvas(desk, model)),
      forward_(new QTimer(this)), passed_(hasPassed(model))
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    // A child's menus stand in the main window's bar.
    if (Menus::hasMenus(model.spec()) && model.isChild())
        menus_ = new Menus(desk, model, *this);
    else if (Menus::hasMenus(model.spec())) {
        bar_ = new QMenuBar(this);
        bar_->setNativeMenuBar(false);
        menus_ = new Menus(desk, model, *bar_);
        column->addWidget(bar_);
    }
    if (model.role() == Role::sheet) {
        strip_ = new PromptStrip(*canvas_, this);
        column->addWidget(strip_);
    }
    area_->setFrameShape(QFrame::NoFrame);
    area_->setFocusPolicy(Qt::NoFocus);
    area_->setWidget(canvas_);
    column->addWidget(area_);
    canvas_->search = [this](Canvas::Search deed) { search(deed); };
    forward_->setSingleShot(true);
    forward_->setInterval(sheet_view_detail::forwardFor);
    connect(forward_, &QTimer::timeout, this, [this] { canvas_->setForward(noControl); });
    setFocusProxy(canvas_);
    canvas_->applyAll();
    model.takeChanges();
    for (const host::ControlRow& row : model.spec().controls)
        if (model.role() == Role::sheet && (row.kind == Kind::field || row.look == host::Look::result))
            values_.emplace(row.id, model.text(row.id));
    followTimers();
}

SheetView::~SheetView() = default;

void SheetView::forgetModel()
{
    canvas_->forgetModel();
    if (menus_ != nullptr)
        menus_->forgetModel();
    for (const auto& [handle, timer] : timers_)
        timer->stop();
}

void SheetView::bringUpToDate()
{
    if (model() == nullptr)
        return;
    followDesign();
    const std::vector<Handle> changes = model()->takeChanges();
    if (changes.empty())
        return;
    canvas_->apply(changes);
    followAnswers(changes);
    if (strip_ != nullptr && isScrolled() && strip_->shows(changes)) {
        strip_->update();
        if (strip_->reach() != reach_)
            layOutCanvas();
    }
    if (menus_ != nullptr)
        menus_->apply(changes);
    followTimers();
}

void SheetView::followAnswers(const std::vector<Handle>& changes)
{
    answers_.clear();
    for (const Handle control : changes)
        if (const auto value = values_.find(control);
            value != values_.end() && value->second != model()->text(control)) {
            value->second = model()->text(control);
            answers_.push_back(control);
        }
}

QRegion SheetView::answers() const
{
    QRegion region;
    for (const Handle control : answers_)
        if (model() != nullptr && control != model()->focus() && isShown(*model(), control))
            region += boxOf(control);
    return region;
}

// When a design has passed, the tile of what comes next stands forward for a while, once.
void SheetView::followDesign()
{
    if (std::exchange(stirrings_, model()->stirrings()) == model()->stirrings())
        return;
    const bool now = hasPassed(*model());
    if (std::exchange(passed_, now) == now)
        return;
    canvas_->checkTile().follow();
    forward_->stop();
    canvas_->setForward(now ? reportTool(model()->spec()) : noControl);
    if (now)
        forward_->start();
}

void SheetView::search(Canvas::Search deed)
{
    auto* text = model() == nullptr || model()->focus() == noControl
                     ? nullptr
                     : qobject_cast<QPlainTextEdit*>(canvas_->widgetOf(model()->focus()));
    if (text == nullptr)
        return;
    if (search_ == nullptr) {
        search_ = new SearchLine(*text, *desk_.inks, desk_.english(), this);
        search_->installEventFilter(this);
        search_->isOfText = [this](const QKeyEvent& key) {
            return model() != nullptr && (shortcutRow(model()->spec(), keysOf(key)) != noRow || isBetweenWindows(key));
        };
        layout()->addWidget(search_);
    }
    switch (deed) {
    case Canvas::Search::open:
    case Canvas::Search::openReplacing:
        return search_->open(deed == Canvas::Search::openReplacing);
    case Canvas::Search::on:
        return search_->go(SearchLine::Way::forward);
    case Canvas::Search::back:
        return search_->go(SearchLine::Way::backward);
    }
}

// The text makes room for its search line, and for the row that replaces when that opens.
bool SheetView::eventFilter(QObject* object, QEvent* event)
{
    const bool changesSize =
        event->type() == QEvent::Show || event->type() == QEvent::Hide || event->type() == QEvent::Resize;
    if (object == search_ && changesSize)
        QTimer::singleShot(0, this, [this] {
            layout()->activate();
            layOutCanvas();
        });
    return QWidget::eventFilter(object, event);
}

void SheetView::relabel()
{
    canvas_->relabel();
    if (menus_ != nullptr)
        menus_->relabel();
    if (strip_ != nullptr)
        strip_->update();
    if (search_ != nullptr)
        search_->speak(desk_.english());
}

void SheetView::recolor()
{
    canvas_->recolor();
    if (strip_ != nullptr)
        strip_->update();
    if (search_ != nullptr)
        search_->setInks(*desk_.inks);
}

void SheetView::followFocus()
{
    if (search_ != nullptr && search_->hasKeyboard())
        return;
    QWidget* target = canvas_->focusTarget();
    if (model() != nullptr && model()->focus() != noControl)
        last_ = model()->focus();
    if (target->hasFocus())
        return;
    target->setFocus(Qt::OtherFocusReason);
    if (auto* field = dynamic_cast<FieldEdit*>(target))
        if (!canvas_->pointer().placesCaretIn(*field))
            field->selectWhole();
    bringIntoView();
}

host::Place SheetView::designOfTool() const
{
    host::Place design{0, 0, model()->place().width, model()->place().height};
    for (const host::ControlRow& row : model()->spec().controls) {
        if (!hasPlace(row.kind) || row.overlay || row.look == host::Look::invisible)
            continue;
        const host::Place place = host::shownPlace(*model(), row.id);
        if (place.left + place.width > design.width)
            design.width = place.left + place.width + sheet_view_detail::toolMargin;
        if (place.top + place.height > design.height)
            design.height = place.top + place.height + sheet_view_detail::toolMargin;
    }
    return design;
}

QRect SheetView::inHand() const
{
    return model() == nullptr ? QRect() : boxOf(model()->focus());
}

QRect SheetView::spokenOf() const
{
    return model() == nullptr ? QRect() : boxOf(model()->focus() != noControl ? model()->focus() : last_);
}

QRect SheetView::boxOf(Handle control) const
{
    if (control == noControl)
        return {};
    QRect box = canvas_->boxInPixels(control);
    QWidget* on = canvas_;
    if (auto* editor = qobject_cast<QPlainTextEdit*>(canvas_->widgetOf(control))) {
        box = editor->cursorRect().adjusted(-sheet_view_detail::scrollMargin, 0, sheet_view_detail::scrollMargin, 0);
        on = editor->viewport();
    }
    return {on->mapToGlobal(box.topLeft()), box.size()};
}

QRegion SheetView::carried() const
{
    QRegion region;
    if (model() == nullptr)
        return region;
    for (const host::ControlRow& row : model()->spec().controls) {
        const CanvasPlan::Entry& plan = canvas_->planOf(row.id);
        if (plan.draggable && isShown(*model(), row.id) && model()->enabled(row.id)) {
            const QRect box = canvas_->boxInPixels(row.id);
            region += QRect(canvas_->mapToGlobal(box.topLeft()), box.size());
        }
    }
    return region;
}

// A small window beside a small main window keeps its readable size rather than scroll.
QSize SheetView::wantedSize() const
{
    const host::Place& design = canvas_->design();
    const int menuHeight = bar_ == nullptr ? 0 : bar_->sizeHint().height();
    const bool pictures = model() != nullptr && model()->role() == Role::palette;
    const double scale = pictures ? desk_.scale : std::max(desk_.scale, sheet_view_detail::smallestScale);
    return {qCeil(design.width * scale / twipsPerUnit), qCeil(design.height * scale / twipsPerUnit) + menuHeight};
}

bool SheetView::isScrolled() const
{
    return canvas_->width() > area_->viewport()->width() || canvas_->height() > area_->viewport()->height();
}

// A sheet that would be too small to read scrolls, and its prompts keep out of that, as long as they leave it room.
void SheetView::layOutPrompts()
{
    const host::Place& table = model()->spec().place;
    const QSize room(width(), height() - (bar_ == nullptr || bar_->isHidden() ? 0 : bar_->sizeHint().height()));
    const double scale = sheet_view_detail::readableScale(room, table, barExtent());
    reach_ = strip_->reach();
    const bool scrolls = sheet_view_detail::wholeScale(room, table) < scale;
    const bool leavesRoom = reach_ * scale / twipsPerUnit <= room.height() * sheet_view_detail::stripShare;
    const bool shown = scrolls && reach_ > 0 && leavesRoom;
    const int cut = shown ? reach_ : 0;
    if (shown)
        strip_->takeHeight(reach_, scale);
    if (strip_->isHidden() == shown)
        strip_->setVisible(shown);
    canvas_->setDesign({0, cut, table.width, table.height - cut});
    layout()->activate();
}

void SheetView::layOutCanvas()
{
    if (model() == nullptr)
        return;
    if (model()->role() == Role::sheet)
        layOutPrompts();
    else if (model()->role() != Role::editor)
        canvas_->setDesign(designOfTool());
    const QSize room = area_->maximumViewportSize();
    if (model()->role() == Role::editor) {
        canvas_->layOut(desk_.scale, room);
        return;
    }
    const host::Place& design = canvas_->design();
    const double scale = model()->role() == Role::palette
                             ? std::max(canvas_->scaleFor(room), sheet_view_detail::smallestOfPictures)
                             : sheet_view_detail::readableScale(room, design, barExtent());
    const QSize needed(static_cast<int>(design.width * scale / twipsPerUnit),
                       static_cast<int>(design.height * scale / twipsPerUnit));
    canvas_->layOut(scale, needed.expandedTo(roomBesideBars(needed)));
    bringIntoView();
}

int SheetView::barExtent() const
{
    return style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, area_);
}

// One scroll bar takes room and must not bring the other along for that alone.
QSize SheetView::roomBesideBars(QSize needed) const
{
    const QSize room = area_->maximumViewportSize();
    const int bar = barExtent();
    const bool across = needed.width() > room.width();
    const bool down = needed.height() > room.height() - (across ? bar : 0);
    return {room.width() - (down ? bar : 0),
            room.height() - (across || (down && needed.width() > room.width() - bar) ? bar : 0)};
}

void SheetView::bringIntoView()
{
    if (model() == nullptr || model()->focus() == noControl || !isScrolled())
        return;
    const QRect box = canvas_->boxInPixels(model()->focus());
    const int margin = sheet_view_detail::scrollMargin;
    area_->ensureVisible(box.center().x(), box.center().y(), box.width() / 2 + margin, box.height() / 2 + margin);
}

// A text laid out before its box had a size may stand scrolled past its first line.
void SheetView::showCaret()
{
    QTimer::singleShot(0, this, [this] {
        if (model() == nullptr || model()->role() != Role::editor || model()->focus() == noControl)
            return;
        if (auto* editor = qobject_cast<QPlainTextEdit*>(canvas_->widgetOf(model()->focus())))
            editor->ensureCursorVisible();
    });
}

void SheetView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (isVisible())
        layOutCanvas();
}

void SheetView::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    layOutCanvas();
    followTimers();
    showCaret();
}

// A timer ticks while its control is enabled and its window is shown; while a slot runs or a box waits it stands still.
void SheetView::followTimers()
{
    if (model() == nullptr)
        return;
    for (const host::ControlRow& row : model()->spec().controls) {
        if (row.kind != Kind::timer || row.interval <= 0)
            continue;
        QTimer*& timer = timers_[row.id];
        if (timer == nullptr) {
            timer = new QTimer(this);
            timer->setInterval(row.interval);
            connect(timer, &QTimer::timeout, this, [this, handle = row.id] {
                if (model() != nullptr && isVisible() && desk_.idle())
                    desk_.engine->userTimer(*model(), handle);
            });
        }
        const bool runs = model()->enabled(row.id) && model()->shown();
        if (runs != timer->isActive())
            runs ? timer->start() : timer->stop();
    }
}

} // namespace velmor::desktop
