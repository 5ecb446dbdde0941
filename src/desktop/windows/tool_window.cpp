// SPDX-License-Identifier: MIT
#include "desktop/windows/tool_window.h"

#include <QCloseEvent>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>

#include "desktop/drawing/texts.h"
#include "desktop/windows/placing.h"
#include "desktop/windows/sheet_view.h"

namespace velmor::desktop {

namespace tool_window_detail {

constexpr int gap = 12;               ///< logical pixels to the edge of the screen
constexpr double largestShare = 0.92; ///< of the screen
constexpr double paletteShare = 0.8;  ///< of the size in its table: it is seen all the time
constexpr int likelyTitleHeight = 28;
constexpr int movedByHand = 64; ///< logical pixels; window managers move a little on their own

Qt::WindowFlags flagsOf(const host::WindowSpec& spec)
{
    const Qt::WindowFlags buttons =
        Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint | Qt::WindowSystemMenuHint;
    return spec.role == host::Role::palette ? Qt::Tool | buttons : Qt::Dialog | buttons;
}

} // namespace tool_window_detail

ToolWindow::ToolWindow(Desk& desk, host::Window& model, QWidget* mainWindow)
    : QWidget(mainWindow, tool_window_detail::flagsOf(model.spec())), desk_(desk), view_(new SheetView(desk, model))
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(view_);
    setObjectName(shown(model.name()));
    setFocusProxy(view_);
    if (model.role() == host::Role::palette)
        setAttribute(Qt::WA_ShowWithoutActivating);
    resting_ = model.role() == host::Role::palette;
    if (model.spec().modal)
        setWindowModality(Qt::ApplicationModal);
}

host::Window* ToolWindow::model() const
{
    return view_->model();
}

QRect ToolWindow::room() const
{
    const QWidget* beside = parentWidget();
    const QScreen* screen = beside != nullptr ? beside->screen() : this->screen();
    return screen == nullptr ? QRect(0, 0, 1024, 768) : screen->availableGeometry();
}

void ToolWindow::followWindow()
{
    if (model() == nullptr)
        return;
    const QString title = shownTitle(model()->caption()).simplified();
    if (windowTitle() != title)
        setWindowTitle(title);
    followSize();
    if (model()->shown() && !isVisible() && !placed_)
        placeFirst();
    const bool minimised = model()->windowState() == 1;
    if (model()->shown() && !isVisible())
        beginAtField();
    if (isVisible() != (model()->shown() && !minimised))
        setVisible(model()->shown() && !minimised);
}

// A question that is asked again begins at its field, not at the button that ended it the last time.
void ToolWindow::beginAtField()
{
    QTimer::singleShot(0, this, [this] {
        if (model() == nullptr || !model()->shown() || !desk_.idle())
            return;
        for (const host::Handle control : host::Engine::tabOrder(*model()))
            if (model()->canTakeFocus(control)) {
                if (model()->row(control).kind == host::Kind::field)
                    desk_.engine->userFocus(*model(), control);
                return;
            }
    });
}

void ToolWindow::followSize()
{
    const host::Place design = view_->designOfTool();
    if (design.width == told_.width && design.height == told_.height)
        return;
    told_ = design;
    view_->canvas().setDesign(design);
    const QSize wanted =
        view_->wantedSize() * (model()->role() == host::Role::palette ? tool_window_detail::paletteShare : 1.0);
    const QSize most = room().size() * tool_window_detail::largestShare;
    resize(wanted.width() > most.width() || wanted.height() > most.height() ? wanted.scaled(most, Qt::KeepAspectRatio)
                                                                            : wanted);
    view_->layOutCanvas();
}

// The palette at the lower edge, the rest to the right, where sheets have their notes rather than their fields.
void ToolWindow::placeFirst()
{
    placed_ = true;
    const QRect all = room();
    const QPoint middle = all.center() - rect().center();
    const int gap = tool_window_detail::gap;
    const int right = all.right() + 1 - width() - gap;
    const int bottom = all.bottom() + 1 - height() - 3 * gap;
    if (model()->role() == host::Role::palette || model()->spec().modal) {
        moveTo(insideScreen(model()->spec().modal ? middle : QPoint(middle.x(), bottom), size()));
        return;
    }
    const QRegion taken = desk_.taken ? desk_.taken() : QRegion();
    const int top = all.top() + 3 * gap;
    const int left = all.left() + gap;
    QPoint best(right, middle.y());
    for (const QPoint wished : {best, QPoint(right, top), QPoint(right, bottom), QPoint(middle.x(), top),
                                QPoint(left, top), QPoint(left, middle.y()), QPoint(middle.x(), middle.y())})
        if (!taken.intersects(QRect(wished, size()).adjusted(0, -tool_window_detail::likelyTitleHeight, 0, 0))) {
            best = wished;
            break;
        }
    moveTo(insideScreen(best, size()));
}

bool ToolWindow::isPalette() const
{
    return model() != nullptr && model()->role() == host::Role::palette;
}

bool ToolWindow::isShownInModel() const
{
    return model() != nullptr && model()->shown() && model()->windowState() != 1;
}

int ToolWindow::restHeight() const
{
    const int frame = isVisible() ? frameGeometry().height() : height() + tool_window_detail::likelyTitleHeight;
    return frame + 4;
}

void ToolWindow::restIn(const QRect& strip)
{
    const QSize mine =
        isVisible() ? frameGeometry().size() : QSize(width(), height() + tool_window_detail::likelyTitleHeight);
    moveTo({strip.center().x() - mine.width() / 2, strip.center().y() - mine.height() / 2});
}

void ToolWindow::moveTo(QPoint place)
{
    if (std::exchange(wished_, place) != place)
        move(place);
}

void ToolWindow::moveEvent(QMoveEvent* event)
{
    QWidget::moveEvent(event);
    if (resting_ && placed_ && isVisible() &&
        (frameGeometry().topLeft() - wished_).manhattanLength() > tool_window_detail::movedByHand)
        resting_ = false;
}

void ToolWindow::giveWayTo(const QRect& field)
{
    if (!isVisible() || !frameGeometry().intersects(field))
        return;
    const QRect all = room();
    const int gap = tool_window_detail::gap;
    const QSize mine = frameGeometry().size();
    const int lefts[] = {all.right() + 1 - mine.width() - gap, all.left() + gap, all.center().x() - mine.width() / 2};
    const int tops[] = {all.bottom() + 1 - mine.height() - gap, all.top() + gap, all.center().y() - mine.height() / 2};
    for (const int top : tops)
        for (const int left : lefts)
            if (!QRect(QPoint(left, top), mine).intersects(field)) {
                moveTo({left, top});
                return;
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
    if (model() != nullptr && model()->role() != host::Role::palette)
        activateWindow();
}

void ToolWindow::relabel()
{
    view_->relabel();
}

void ToolWindow::recolor()
{
    view_->recolor();
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
    if (model() != nullptr && !desk_.closing)
        desk_.engine->userClose(*model());
}

} // namespace velmor::desktop
