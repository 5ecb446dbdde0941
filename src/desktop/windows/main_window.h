// SPDX-License-Identifier: MIT
// The main window: menus, the child windows' area, the welcome panel over or in front of it, the circuit bar beside it.
#pragma once

#include <QMainWindow>
#include <QPointer>

#include "desktop/canvas/desk.h"
#include "desktop/windows/window_frame.h"

class QMdiArea;

namespace velmor::desktop {

class Canvas;
class ChildRounds;
class MenuBar;
class Menus;
class OfferLine;
class PaletteStrip;

class MainWindow final : public QMainWindow, public WindowFrame {
public:
    MainWindow(Desk& desk, host::Window& model);
    ~MainWindow() override;

    host::Window* model() const override { return model_; }
    QWidget& widget() override { return *this; }
    SheetView* view() override { return nullptr; }
    void followWindow() override;
    void followControls() override;
    void bringToFront() override;
    void relabel() override;
    void recolor() override;
    void farewell() override;

    QMdiArea& area() const { return *area_; }
    /// Made when they are first asked for: the window is on its way to the screen by then.
    Menus& menus();
    /// The active child, null for none: its menus stand in the menu bar, and the frame bears the name of a maximised one.
    void followChild(const host::Window* child, Menus* menus);
    /// What holds the panels, the sheets and the palette.
    QWidget& panel() const { return *middle_; }
    /// The palette lies in a strip at the lower edge while it rests.
    void setStrip(PaletteStrip* strip);
    /// The child that was in hand last and is no icon; null without one.
    host::Window* lastChildInSight() const;
    /// A child window is shown, so the welcome panel leaves it room.
    void setHasChildren(bool hasChildren);
    /// The pointer is over a control of some window: a button that talks brings the page of its design over the sheets.
    void hovered(const host::Window& window, host::Handle control);
    /// The page that lies over the sheets goes.
    void hush();
    /// The line that offers what was left; it is above everything inside the window while it is shown.
    OfferLine& offerLine();
    void showOfferLine(bool shown);
    /// Takes the size that it will have on this screen before it is shown, so that the first sheets are made to it.
    void foresee();

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void followTitle(const host::Window* child);
    void followButtons(const host::Window* child);
    bool openMenu(host::Handle control);
    void pressBackground(const QMouseEvent& event);
    void layOutPanels();
    void layOutStrip(QRect& rest);
    void layOutWelcome(const QRect& rest);
    bool hasPage() const;
    QRect pageStripIn(const QRect& rest) const;
    void tellClientArea();

    Desk& desk_;
    host::Window* model_;
    Menus* menus_ = nullptr;
    MenuBar* bars_ = nullptr;
    ChildRounds* rounds_ = nullptr;
    QMdiArea* area_;
    QWidget* middle_;
    Canvas* welcome_ = nullptr;
    Canvas* bar_ = nullptr;
    QWidget* edge_ = nullptr;
    OfferLine* offer_ = nullptr;          ///< made when it is first needed
    const host::Window* below_ = nullptr; ///< active child at the last layout; compared only
    QPointer<PaletteStrip> strip_;
    bool hasChildren_ = false;
    bool talking_ = false;
    bool following_ = false;
};

} // namespace velmor::desktop
