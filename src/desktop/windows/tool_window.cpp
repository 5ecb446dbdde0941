// SPDX-License-Identifier: MIT
#include "desktop/windows/tool_window.h"

#include <algorithm>
#include <array>
#include <numeric>

#include <QCloseEvent>
#include <QScreen>
#include <QTimer>

#include "desktop/canvas/field_edit.h"
#include "desktop/drawing/texts.h"
#include "desktop/windows/placing.h"
#include "desktop/windows/sheet_view.h"
#include "desktop/windows/title_line.h"

namespace velmor::desktop {

namespace tool_window_detail {

constexpr int gap = 12;               ///< logical pixels to the edge of the screen
constexpr double largestShare = 0.92; ///< of the screen
constexpr int movedByHand = 64;       ///< logical pixels; window managers move a little on their own

int areaOf(const QRegion& region)
{
    return std::accumulate(region.begin(), region.end(), 0,
                           [](int sum, const QRect& part) { return sum + part.width() * part.height(); });
}

} // namespace tool_window_detail

ToolWindow::ToolWindow(Desk& desk, host::Window& model, QWidget* mainWindow)
    : ToolWindow(desk, model, mainWindow, Stands::beside)
{}

ToolWindow::ToolWindow(Desk& desk, host::Window& model, QWidget& inside)
    : ToolWindow(desk, model, &inside, Stands::inside)
{}

ToolWindow::ToolWindow(Desk& desk, host::Window& model, QWidget* parent, Stands where)
    : ToolFrame(desk, parent, where), view_(new SheetView(desk, model))
{
    hold(*view_);
    setObjectName(shown(model.name()));
    setFocusProxy(view_);
    setAttribute(Qt::WA_AlwaysShowToolTips); // pointing tells, whichever window has the keyboard
    setAttribute(Qt::WA_ShowWithoutActivating, isQuiet());
    if (model.spec().modal)
        setWindowModality(Qt::ApplicationModal);
}

host::Window* ToolWindow::model() const
{
    return view_->model();
}

void ToolWindow::followWindow()
{
    if (model() == nullptr)
        return;
    const QString shownCaption = shownTitle(model()->caption()).simplified();
    if (windowTitle() != shownCaption)
        setWindowTitle(shownCaption);
    title().setTitle(shown(model()->caption()).simplified());
    followSize();
    const bool minimised = model()->windowState() == 1;
    if (model()->shown() && !isVisible()) {
        place();
        beginAtField();
    }
    if (isVisible() != (model()->shown() && !minimised))
        setVisible(model()->shown() && !minimised);
}

// A question that is asked again begins at its field, not at the button that ended it the last time.
void ToolWindow::beginAtField()
{
    QTimer::singleShot(0, this, [this] {
        if (model() == nullptr || !model()->shown() || !desk().idle())
            return;
        for (const host::Handle control : host::Engine::tabOrder(*model()))
            if (model()->canTakeFocus(control)) {
                if (model()->row(control).kind == host::Kind::field)
                    beginIn(control);
                return;
            }
    });
}

// What stands there from the last time gives way to the first key, also where the field has had the focus all the time.
void ToolWindow::beginIn(host::Handle field)
{
    desk().engine->userFocus(*model(), field);
    if (model() == nullptr || model()->focus() != field)
        return;
    if (auto* edit = dynamic_cast<FieldEdit*>(view_->canvas().widgetOf(field)))
        edit->selectWhole();
}

void ToolWindow::followSize()
{
    const host::Place design = view_->designOfTool();
    if (design.width == told_.width && design.height == told_.height)
        return;
    told_ = design;
    view_->canvas().setDesign(design);
    const QSize around(2 * frame, 2 * frame + title().sizeHint().height());
    const QSize wanted = view_->wantedSize() + around;
    const QSize most = room().size() * tool_window_detail::largestShare;
    resize(wanted.width() > most.width() || wanted.height() > most.height() ? wanted.scaled(most, Qt::KeepAspectRatio)
                                                                            : wanted);
    view_->layOutCanvas();
}

bool ToolWindow::isMovedByHand() const
{
    return placed_ && (onScreen().topLeft() - wished_).manhattanLength() > tool_window_detail::movedByHand;
}

// Beside the field that it was asked for at; where that would hide another tool or what is to be dragged, wherever it hides least
// of them. What a hand has moved stays there.
void ToolWindow::place()
{
    if (isMovedByHand())
        return;
    placed_ = true;
    const QRect all = room();
    const int gap = tool_window_detail::gap;
    const QRect field = desk().inHand ? desk().inHand() : QRect();
    const QRegion taken = desk().taken ? desk().taken() : QRegion();
    const QPoint middle = all.center() - rect().center();
    const int right = all.right() + 1 - width() - gap;
    const int bottom = all.bottom() + 1 - height() - 3 * gap;
    const int top = all.top() + 3 * gap;
    const int left = all.left() + gap;
    const QPoint beside = sidewaysOf(field, size(), all.adjusted(gap, gap, -gap, -gap));
    if (model()->spec().modal) {
        moveTo(clearOfThing(field, size(), all));
        return;
    }
    const std::array wishes{field.isEmpty() ? QPoint(right, middle.y()) : beside,
                            QPoint(right, middle.y()),
                            QPoint(right, top),
                            QPoint(right, bottom),
                            QPoint(middle.x(), top),
                            QPoint(left, top),
                            QPoint(left, middle.y()),
                            middle};
    const auto hides = [&](QPoint wished) { return tool_window_detail::areaOf(taken & QRect(wished, size())); };
    const auto* best = std::min_element(wishes.begin(), wishes.end(),
                                        [&](QPoint one, QPoint other) { return hides(one) < hides(other); });
    moveTo(insideRoom(*best, size(), all));
}

bool ToolWindow::isQuiet() const
{
    return model() != nullptr && model()->spec().reading;
}

void ToolWindow::moveTo(QPoint place)
{
    if (std::exchange(wished_, place) != place || onScreen().topLeft() != place)
        moveOnScreen(place);
}

// Where there is a place for it, not over what else is read on either.
void ToolWindow::giveWayTo(const QRect& field, const QRect& readOn)
{
    if (!isVisible() || !onScreen().intersects(field))
        return;
    const QRect all = room();
    const int gap = tool_window_detail::gap;
    const QSize mine = onScreen().size();
    const int lefts[] = {all.right() + 1 - mine.width() - gap, all.left() + gap, all.center().x() - mine.width() / 2};
    const int tops[] = {all.bottom() + 1 - mine.height() - gap, all.top() + gap, all.center().y() - mine.height() / 2};
    for (const QRect& also : {readOn, QRect()})
        for (const int top : tops)
            for (const int left : lefts) {
                const QRect there(QPoint(left, top), mine);
                if (!there.intersects(field) && !there.intersects(also)) {
                    moveTo({left, top});
                    return;
                }
            }
}

void ToolWindow::followControls()
{
    view_->bringUpToDate();
}

void ToolWindow::bringToFront()
{
    if (!isVisible())
        return;
    raise();
    if (!isQuiet() && !isInside())
        activateWindow();
}

void ToolWindow::relabel()
{
    view_->relabel();
    speakInFrame();
}

void ToolWindow::recolor()
{
    view_->recolor();
    recolorFrame();
}

void ToolWindow::farewell()
{
    view_->forgetModel();
    hide();
    deleteLater();
}

void ToolWindow::closeEvent(QCloseEvent* event)
{
    event->ignore();
    if (model() != nullptr && !desk().closing)
        desk().engine->userClose(*model());
}

} // namespace velmor::desktop
