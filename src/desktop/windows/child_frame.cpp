// SPDX-License-Identifier: MIT
#include "desktop/windows/child_frame.h"

#include <algorithm>

#include <QAction>
#include <QCloseEvent>
#include <QMdiArea>
#include <QMenu>
#include <QScopedValueRollback>
#include <QTimer>

#include "desktop/drawing/texts.h"
#include "desktop/windows/sheet_view.h"

namespace velmor::desktop {

namespace child_frame_detail {

constexpr QSize smallestFrame(240, 120);
constexpr int minimised = 1; ///< state of a child

// clang-format off
/// The toolkit's own menu of a frame, in its order. What has no caption here is left out: edges and title are for the pointer,
/// and no sheet stands above the others for good.
constexpr host::BiText frameItems[] = {
    {"&Restaurar", "&Restore"},
    {},
    {},
    {"Mi&nimizar", "Mi&nimise"},
    {"Ma&ximizar", "Ma&ximise"},
    {},
    {},
    {"&Cerrar",    "&Close"},
};
// clang-format on

/// The box moved, and where it must be made smaller, so that it lies inside the area.
QRect keptInside(QRect box, QSize area)
{
    if (area.isEmpty())
        return box;
    box.setSize(box.size().boundedTo(area.expandedTo(smallestFrame)).expandedTo(smallestFrame));
    box.moveLeft(std::clamp(box.left(), 0, std::max(0, area.width() - box.width())));
    box.moveTop(std::clamp(box.top(), 0, std::max(0, area.height() - box.height())));
    return box;
}

} // namespace child_frame_detail

ChildFrame::ChildFrame(Desk& desk, host::Window& model) : desk_(desk), view_(new SheetView(desk, model))
{
    setWidget(view_);
    setAttribute(Qt::WA_DeleteOnClose, false);
    setObjectName(shown(model.name()));
    // The toolkit's own menu of a frame claims Ctrl+W too, which is the main menu's: neither would work.
    for (QAction* action : systemMenu()->actions())
        if (action->shortcut() == QKeySequence(QKeySequence::Close))
            action->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_F4));
    connect(systemMenu(), &QMenu::aboutToShow, this, [this] { nameFrameMenu(); });
}

// The toolkit names it once, in the language of that moment.
void ChildFrame::nameFrameMenu()
{
    using namespace child_frame_detail;
    const QList<QAction*> actions = systemMenu()->actions();
    for (qsizetype i = 0; i < std::min<qsizetype>(actions.size(), std::ssize(frameItems)); ++i) {
        const std::string_view caption = frameItems[i].in(desk_.engine->values().LanguageIsEnglish);
        actions[i]->setText(shown(caption));
        actions[i]->setIconVisibleInMenu(false);
        if (caption.empty())
            actions[i]->setVisible(false);
    }
}

void ChildFrame::showFrameMenu()
{
    showSystemMenu();
}

host::Window* ChildFrame::model() const
{
    return view_->model();
}

int ChildFrame::shownState() const
{
    return isMinimized() ? 1 : isMaximized() ? 2 : 0;
}

void ChildFrame::followWindow()
{
    if (model() == nullptr)
        return;
    const QScopedValueRollback following(following_, true);
    const QString title = shownTitle(model()->caption()).simplified();
    if (windowTitle() != title)
        setWindowTitle(title);
    followPlace(); // before it is shown, so that it is laid out once
    if (isHidden() == model()->shown())
        setVisible(model()->shown());
    followState();
}

// A minimum of the widget itself would make icons as tall as frames, which the area then moves about without end.
QSize ChildFrame::minimumSizeHint() const
{
    return isMinimized() ? QMdiSubWindow::minimumSizeHint() : child_frame_detail::smallestFrame;
}

// The model's place is the program's to choose; on the screen no frame leaves the area, which has no scroll bars.
QRect ChildFrame::wantedBox() const
{
    const QRect box = desk_.pixelsOf(model()->place());
    return parentWidget() == nullptr ? box : child_frame_detail::keptInside(box, parentWidget()->size());
}

void ChildFrame::followPlace()
{
    if (model()->windowState() != 0 || shownState() != 0)
        return;
    const QRect wanted = wantedBox();
    if (std::exchange(told_, wanted) != wanted)
        setGeometry(wanted);
}

void ChildFrame::followState()
{
    const int state = model()->windowState();
    if (state != shownState() && !statePosted_) {
        if (state == 1)
            showMinimized();
        else if (state == 2)
            showMaximized();
        else
            showNormal();
        told_ = QRect(); // the toolkit has put it where it stood as a frame, which may lie outside by now
    }
    followPlace();
}

void ChildFrame::followControls()
{
    view_->bringUpToDate();
}

void ChildFrame::bringToFront()
{
    const QScopedValueRollback following(following_, true);
    if (mdiArea() != nullptr && model() != nullptr && model()->shown())
        mdiArea()->setActiveSubWindow(this);
    raise();
}

void ChildFrame::relabel()
{
    view_->relabel();
}

void ChildFrame::recolor()
{
    view_->recolor();
}

void ChildFrame::farewell()
{
    const QScopedValueRollback following(following_, true);
    view_->forgetModel();
    hide();
    if (mdiArea() != nullptr)
        mdiArea()->removeSubWindow(this);
    deleteLater();
}

// Whether the window may close is the engine's to say; a frame goes by farewell alone.
void ChildFrame::closeEvent(QCloseEvent* event)
{
    event->ignore();
    if (model() != nullptr && !desk_.closing)
        desk_.engine->userClose(*model());
}

void ChildFrame::changeEvent(QEvent* event)
{
    QMdiSubWindow::changeEvent(event);
    if (event->type() != QEvent::WindowStateChange || following_ || model() == nullptr || desk_.closing)
        return;
    // The toolkit is in the middle of its change: slots that answered now would change the frame under its hands.
    if (shownState() != model()->windowState() && !std::exchange(statePosted_, true))
        QTimer::singleShot(0, this, [this] { tellState(); });
}

void ChildFrame::tellState()
{
    statePosted_ = false;
    if (model() != nullptr && !desk_.closing && shownState() != model()->windowState())
        desk_.engine->userState(*model(), shownState());
    if (becameIcon && model() != nullptr && model()->windowState() == child_frame_detail::minimised)
        becameIcon();
}

// The toolkit would shorten a title of its own to the frame's width at every question about the frame's parts, for all frames
// at each activation. It is kept from knowing the title; the style shortens it once for each painting.
bool ChildFrame::event(QEvent* event)
{
    if (event->type() != QEvent::WindowTitleChange || isMaximized())
        return QMdiSubWindow::event(event);
    update(0, 0, width(), view_->y());
    return QWidget::event(event); // NOLINT(bugprone-parent-virtual-call): past the area's own frame, on purpose
}

// Every frame is asked about every event of the main window, of which the toolkit's heeds the title alone: a maximised one would
// write its name into it at each change, also from behind the active child.
bool ChildFrame::eventFilter(QObject* object, QEvent* event)
{
    return (object == view_ || object == systemMenu()) && QMdiSubWindow::eventFilter(object, event);
}

void ChildFrame::moveEvent(QMoveEvent* event)
{
    QMdiSubWindow::moveEvent(event);
    tellPlace();
}

void ChildFrame::resizeEvent(QResizeEvent* event)
{
    QMdiSubWindow::resizeEvent(event);
    tellPlace();
}

void ChildFrame::tellPlace()
{
    if (following_ || model() == nullptr || desk_.closing || isHidden() || shownState() != 0 ||
        model()->windowState() != 0)
        return;
    if (geometry() == wantedBox())
        return;
    told_ = geometry();
    desk_.engine->userResized(*model(), desk_.twipsOf(told_));
}

} // namespace velmor::desktop
