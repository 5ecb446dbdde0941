// SPDX-License-Identifier: MIT
#include "desktop/windows/main_window.h"

#include <algorithm>

#include <QApplication>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QScreen>

#include "desktop/canvas/canvas.h"
#include "desktop/canvas/canvas_plan.h"
#include "desktop/canvas/keyboard.h"
#include "desktop/drawing/page_picture.h"
#include "desktop/drawing/texts.h"
#include "desktop/windows/child_rounds.h"
#include "desktop/windows/menu_bar.h"
#include "desktop/windows/menus.h"
#include "desktop/windows/offer_line.h"
#include "desktop/windows/palette_strip.h"

namespace velmor::desktop {

using host::Handle;
using host::noControl;

namespace main_window_detail {

/// The inner area for which places were drawn, in units of 15 twips; a larger window shows everything larger.
constexpr double drawnWidth = 1350.0;
constexpr double drawnHeight = 675.0;
constexpr int likelyTitleHeight = 30;
constexpr int likelyMenuHeight = 20;
constexpr QSize smallestWindow(640, 420);
constexpr double textShare = 0.8; ///< of the window's growth that menus and boxes take part in
constexpr double largestTexts = 3.0;
constexpr int maximised = 2; ///< state of a child

double scaleFor(QSize inner)
{
    return std::min(inner.width() / drawnWidth, inner.height() / drawnHeight);
}

// On a large screen everything is shown larger: menus, questions and long texts shall not look lost beside it.
double textScaleFor(double scale)
{
    return std::clamp(textShare * scale, 1.0, largestTexts);
}

void proportionTexts(double textScale)
{
    static const QFont usual = QApplication::font();
    QFont font = usual;
    if (usual.pointSizeF() > 0)
        font.setPointSizeF(usual.pointSizeF() * textScale);
    if (font != QApplication::font())
        QApplication::setFont(font);
}
constexpr int edgeHeight = 2; ///< of the line between a sheet and the page that lies over it

} // namespace main_window_detail

MainWindow::MainWindow(Desk& desk, host::Window& model)
    : desk_(desk), model_(&model), area_(new QMdiArea), middle_(new QWidget)
{
    setObjectName(shown(model.name()));
    setMinimumSize(main_window_detail::smallestWindow);
    menuBar()->hide();
    area_->setParent(middle_);
    area_->setOption(QMdiArea::DontMaximizeSubWindowOnActivation);
    area_->setFrameShape(QFrame::NoFrame);
    area_->setBackground(desk.inks->desk);
    // Bars that come and go move icons and maximised children, which changes the bars again, for ever. Frames keep inside.
    area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    rounds_ = new ChildRounds(desk, *this); // after the area, whose own rounds go by age
    const Handle bar = model.spec().mainParts.bar;
    welcome_ = new Canvas(desk, model, noControl, bar);
    welcome_->setParent(middle_);
    welcome_->setFocusPolicy(Qt::NoFocus);
    if (bar != noControl) {
        bar_ = new Canvas(desk, model, bar);
        bar_->setParent(middle_);
        bar_->setFocusPolicy(Qt::NoFocus);
    }
    edge_ = new QWidget(middle_);
    edge_->setAutoFillBackground(true);
    edge_->setPalette(QPalette(desk.inks->accent));
    middle_->installEventFilter(this);
    area_->viewport()->installEventFilter(this);
    setCentralWidget(middle_);
    welcome_->applyAll();
    if (bar_ != nullptr)
        bar_->applyAll();
}

MainWindow::~MainWindow() = default;

void MainWindow::foresee()
{
    using namespace main_window_detail;
    const QScreen* on = QGuiApplication::primaryScreen();
    const QRect room = on == nullptr ? QRect(0, 0, 1366, 768) : on->availableGeometry();
    setGeometry(room.adjusted(0, likelyTitleHeight, 0, 0));
    desk_.textScale = textScaleFor(scaleFor(room.size()));
    proportionTexts(desk_.textScale);
    const QSize inner(room.width(), room.height() - likelyTitleHeight - likelyMenuHeight);
    middle_->resize(inner);
    area_->setGeometry(QRect(QPoint(), inner));
    desk_.scale = scaleFor(inner);
    desk_.engine->setClientArea(desk_.twips(inner.width()), desk_.twips(inner.height()));
    model_->setPlace({0, 0, desk_.twips(inner.width()), desk_.twips(inner.height())});
}

void MainWindow::followWindow()
{
    if (model_ == nullptr)
        return;
    const QScopedValueRollback following(following_, true);
    followTitle(desk_.engine->activeChild());
    const Qt::WindowStates wanted = model_->windowState() == 2   ? Qt::WindowMaximized
                                    : model_->windowState() == 1 ? Qt::WindowMinimized
                                                                 : Qt::WindowNoState;
    const Qt::WindowStates compared = Qt::WindowMaximized | Qt::WindowMinimized;
    if ((windowState() & compared) != wanted)
        setWindowState((windowState() & ~compared) | wanted);
    if (isVisible() != model_->shown())
        setVisible(model_->shown());
    // The menus are many, and the machine's fonts are first read for their bar: the window manager has the window already.
    if (isVisible() && menuBar()->isHidden()) {
        menus();
        menuBar()->show();
    }
}

void MainWindow::followControls()
{
    if (model_ == nullptr)
        return;
    const std::vector<Handle> changes = model_->takeChanges();
    if (changes.empty())
        return;
    if (menus_ != nullptr)
        menus_->apply(changes);
    welcome_->apply(changes);
    if (bar_ != nullptr)
        bar_->apply(changes);
    layOutPanels();
}

Menus& MainWindow::menus()
{
    if (menus_ == nullptr) {
        menus_ = new Menus(desk_, *model_, *menuBar());
        bars_ = new MenuBar(desk_, *this, *menus_, model_->spec().mainParts);
    }
    return *menus_;
}

void MainWindow::setHasChildren(bool hasChildren)
{
    const host::Window* below = desk_.engine->activeChild();
    const bool changed = hasChildren_ != hasChildren || below_ != below;
    hasChildren_ = hasChildren;
    if (std::exchange(below_, below) != below)
        talking_ = false;
    if (changed)
        layOutPanels();
}

void MainWindow::setStrip(PaletteStrip* strip)
{
    strip_ = strip;
    strip_->moved = [this] {
        talking_ = false; // the page would come under the hand that moves the palette
        layOutPanels();
    };
    layOutPanels();
}

void MainWindow::layOutStrip(QRect& rest)
{
    if (strip_ == nullptr || !strip_->rests())
        return;
    const int height = std::min(rest.height(), strip_->restHeight());
    strip_->restIn({rest.left(), rest.bottom() + 1 - height, rest.width(), height});
    rest.setBottom(rest.bottom() - height);
}

void MainWindow::followChild(const host::Window* child, Menus* menus)
{
    this->menus();
    bars_->follow(menus);
    rounds_->follow();
    followTitle(child);
    followButtons(child);
}

host::Window* MainWindow::lastChildInSight() const
{
    return rounds_->lastUsed();
}

// The buttons of a maximised child stand in the menu bar; while another one is in front, they would act on what lies behind it.
void MainWindow::followButtons(const host::Window* child)
{
    const bool shown = child != nullptr && child->windowState() == main_window_detail::maximised;
    for (const Qt::Corner corner : {Qt::TopLeftCorner, Qt::TopRightCorner})
        if (QWidget* buttons = menuBar()->cornerWidget(corner); buttons != nullptr && buttons->isHidden() == shown)
            buttons->setVisible(shown);
}

// A maximised child has no title of its own: the frame bears its name too.
void MainWindow::followTitle(const host::Window* child)
{
    if (model_ == nullptr)
        return;
    QString title = shownTitle(model_->caption()).simplified();
    if (child != nullptr && child->windowState() == main_window_detail::maximised)
        title += QStringLiteral(" - [%1]").arg(shownTitle(child->caption()).simplified());
    if (windowTitle() != title)
        setWindowTitle(title);
}

OfferLine& MainWindow::offerLine()
{
    if (offer_ == nullptr) {
        offer_ = new OfferLine(*desk_.inks, desk_.english(), middle_);
        offer_->hide();
    }
    return *offer_;
}

void MainWindow::showOfferLine(bool shown)
{
    if (offer_ == nullptr || offer_->isVisibleTo(middle_) == shown)
        return;
    offer_->setVisible(shown);
    layOutPanels();
}

void MainWindow::bringToFront()
{
    if (isVisible() && !isActiveWindow()) {
        raise();
        activateWindow();
    }
}

void MainWindow::relabel()
{
    welcome_->relabel();
    if (offer_ != nullptr)
        offer_->speak(desk_.english());
    if (bar_ != nullptr)
        bar_->relabel();
}

void MainWindow::recolor()
{
    area_->setBackground(desk_.inks->desk);
    edge_->setPalette(QPalette(desk_.inks->accent));
    welcome_->recolor();
    if (offer_ != nullptr)
        offer_->setInks(*desk_.inks);
    if (bar_ != nullptr)
        bar_->recolor();
}

void MainWindow::farewell()
{
    welcome_->forgetModel();
    if (bar_ != nullptr)
        bar_->forgetModel();
    if (menus_ != nullptr)
        menus_->forgetModel();
    model_ = nullptr;
}

// The bar takes a strip of its own.
void MainWindow::layOutPanels()
{
    if (model_ == nullptr || middle_->width() <= 0)
        return;
    QRect rest = middle_->rect();
    if (offer_ != nullptr && offer_->isVisibleTo(middle_)) {
        const int height = offer_->sizeHint().height();
        offer_->setGeometry(rest.left(), rest.top(), rest.width(), height);
        rest.setTop(rest.top() + height);
    }
    const Handle bar = model_->spec().mainParts.bar;
    const bool barShown = bar_ != nullptr && model_->visible(bar);
    if (barShown) {
        const host::Place& place = host::shownPlace(*model_, bar);
        bar_->setDesign(place);
        if (place.height >= place.width) {
            const double scale = std::min(desk_.scale, rest.height() * twipsPerUnit / std::max(1, place.height));
            const int width = qRound(place.width * scale / twipsPerUnit);
            bar_->layOut(scale, QSize(width, rest.height()));
            bar_->move(rest.left(), rest.top());
            rest.setLeft(rest.left() + width);
        } else {
            const double scale = std::min(desk_.scale, rest.width() * twipsPerUnit / std::max(1, place.width));
            const int height = qRound(place.height * scale / twipsPerUnit);
            bar_->layOut(scale, QSize(rest.width(), height));
            bar_->move(rest.left(), rest.top());
            rest.setTop(rest.top() + height);
        }
    }
    if (bar_ != nullptr)
        bar_->setVisible(barShown);
    layOutStrip(rest);
    if (area_->geometry() != rest)
        area_->setGeometry(rest);
    layOutWelcome(rest);
    tellClientArea();
}

bool MainWindow::hasPage() const
{
    for (Handle control = 0; control < model_->controlCount(); ++control)
        if (model_->visible(control) && isPagePicture(*model_, control) && model_->row(control).parent == noControl)
            return true;
    return false;
}

// At the lower edge, where the palette rests; at the upper one when a palette moved by hand stands in the way.
QRect MainWindow::pageStripIn(const QRect& rest) const
{
    const host::Place& strip = model_->spec().mainParts.pageStrip;
    const int height = std::min(rest.height(), rest.width() * strip.height / strip.width);
    const QRect low(rest.left(), rest.bottom() + 1 - height, rest.width(), height);
    const bool covered =
        strip_ != nullptr && strip_->floats() && strip_->isVisible() && low.intersects(strip_->geometry());
    return covered ? QRect(rest.topLeft(), low.size()) : low;
}

// The welcome panel fills the rest while no child is open. With sheets open it lies behind them; only the page of the
// design under the mouse comes in front, so that its coming and going moves nothing that a student is working on.
void MainWindow::layOutWelcome(const QRect& rest)
{
    const Handle panel = model_->spec().mainParts.welcome;
    const bool page = hasChildren_ && talking_ && hasPage();
    const bool whole = panel != noControl && !hasChildren_;
    if (page || whole) {
        const QRect place = page ? pageStripIn(rest) : rest;
        welcome_->setDesign(page ? model_->spec().mainParts.pageStrip : host::shownPlace(*model_, panel));
        welcome_->layOut(welcome_->scaleFor(place.size()), place.size());
        welcome_->move(place.topLeft());
        welcome_->raise();
        edge_->raise();
    }
    welcome_->setVisible(page || whole);
    edge_->setGeometry(welcome_->x(), welcome_->y(), welcome_->width(), main_window_detail::edgeHeight);
    edge_->setVisible(page);
}

void MainWindow::hovered(const host::Window& window, Handle control)
{
    if (model_ == nullptr)
        return;
    const Handle bar = model_->spec().mainParts.bar;
    const bool onButtons =
        window.role() == host::Role::palette || (&window == model_ && liesIn(window.spec(), control, bar));
    if (!onButtons && &window != model_)
        hush();
    else if (onButtons && control != noControl && window.hasSlot(control, host::Event::hover) &&
             !std::exchange(talking_, true))
        layOutPanels();
}

void MainWindow::hush()
{
    if (std::exchange(talking_, false))
        layOutPanels();
}

// What stands in the area keeps its share of it: a sheet that fills the area goes on filling it.
void MainWindow::tellClientArea()
{
    using namespace main_window_detail;
    if (!isVisible() || desk_.closing || isMinimized())
        return;
    const double scale = scaleFor(middle_->size());
    const QSize inner = area_->size();
    const host::Place before = desk_.engine->clientArea();
    desk_.scale = scale;
    const int width = desk_.twips(inner.width());
    const int height = desk_.twips(inner.height());
    if (before.width == width && before.height == height)
        return;
    desk_.engine->userRun([this, before, width, height] {
        desk_.engine->setClientArea(width, height);
        for (host::Window* window : desk_.engine->windows()) {
            if (!window->isChild() || window->windowState() != 0)
                continue;
            const host::Place& old = window->place();
            const auto across = [&](int value) {
                return static_cast<int>(static_cast<long long>(value) * width / before.width);
            };
            const auto down = [&](int value) {
                return static_cast<int>(static_cast<long long>(value) * height / before.height);
            };
            window->setPlace({across(old.left), down(old.top), across(old.width), down(old.height)});
        }
    });
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    const bool goes = desk_.closing || model_ == nullptr;
    event->setAccepted(goes);
    if (!goes)
        desk_.engine->userClose(*model_);
}

void MainWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() != QEvent::WindowStateChange || following_ || model_ == nullptr || desk_.closing || !isVisible())
        return;
    const int state = isMinimized() ? 1 : isMaximized() ? 2 : 0;
    if (state != model_->windowState())
        desk_.engine->userState(*model_, state);
}

void MainWindow::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    if (model_ == nullptr || desk_.closing || !isVisible() || isMinimized())
        return;
    layOutPanels();
    const host::Place place{0, 0, desk_.twips(width()), desk_.twips(height())};
    if (!(place == model_->place()))
        desk_.engine->userResized(*model_, place);
}

// Keys of the main window's own table work whichever window inside it has the keyboard.
void MainWindow::keyPressEvent(QKeyEvent* event)
{
    const std::size_t row = model_ == nullptr || desk_.closing ? noRow : shortcutRow(model_->spec(), keysOf(*event));
    if (row != noRow) {
        const host::ShortcutRow& bound = model_->spec().shortcuts[row];
        if (openMenu(bound.control))
            return;
        desk_.engine->userShortcut(*model_, row);
        if (bound.action == host::KeyAction::hover)
            hovered(*model_, bound.control);
    } else {
        QMainWindow::keyPressEvent(event);
    }
}

// New and open are menus here, one item for each circuit.
bool MainWindow::openMenu(Handle control)
{
    QMenu* menu = control == noControl ? nullptr : menus().menuOf(control);
    if (menu != nullptr)
        menu->popup(middle_->mapToGlobal(QPoint(0, 0)));
    return menu != nullptr;
}

bool MainWindow::eventFilter(QObject* object, QEvent* event)
{
    if (object == middle_ && event->type() == QEvent::Resize)
        layOutPanels();
    else if (object == area_->viewport() && event->type() == QEvent::MouseButtonPress && model_ != nullptr &&
             !desk_.closing)
        pressBackground(*static_cast<QMouseEvent*>(event));
    return QMainWindow::eventFilter(object, event);
}

void MainWindow::pressBackground(const QMouseEvent& event)
{
    if (event.button() == Qt::LeftButton)
        desk_.engine->userClick(*model_, noControl);
    else if (event.button() == Qt::RightButton)
        desk_.engine->userPress(*model_, noControl, host::Button::right);
}

} // namespace velmor::desktop
