// SPDX-License-Identifier: MIT
// One window of the program inside its frame: menus of its own where it has some, the canvas as large as it fits, scroll
// bars below a readable size, its timers. The frame around it (child window or window of its own) is not known here.
#pragma once

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include <QScrollArea>
#include <QWidget>

#include "desktop/canvas/canvas.h"
#include "desktop/canvas/desk.h"

class QMenuBar;
class QTimer;

namespace velmor::desktop {

class Menus;
class PromptStrip;
class SearchLine;

class SheetView final : public QWidget {
public:
    SheetView(Desk& desk, host::Window& model, QWidget* parent = nullptr);
    ~SheetView() override;

    host::Window* model() const { return canvas_->model(); }
    Canvas& canvas() const { return *canvas_; }
    Menus* menus() const { return menus_; }
    void forgetModel();

    /// Follows what changed in the model since the last time.
    void bringUpToDate();
    /// Puts Qt's focus where the model's is; a field that gets it this way is selected whole.
    void followFocus();
    void relabel();
    void recolor();
    /// The search line of an editor; null before it was first wanted.
    SearchLine* searchLine() const { return search_; }
    void layOutCanvas();
    /// The size of a tool: its window's, made larger where a control would be cut off.
    host::Place designOfTool() const;
    /// What the keyboard works on, in screen coordinates: the field in hand, in an editor the line; empty without one.
    QRect inHand() const;
    /// What can be dragged, on the screen.
    QRegion carried() const;
    /// The same; while a field is being left, that one.
    QRect spokenOf() const;
    /// On the screen, the values that the last event has changed, but for the field in hand.
    QRegion answers() const;
    /// Size in logical pixels that shows the window as its table wants it.
    QSize wantedSize() const;

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    QRect boxOf(host::Handle control) const;
    void followTimers();
    void followDesign();
    void followAnswers(const std::vector<host::Handle>& changes);
    void layOutPrompts();
    void search(Canvas::Search deed);
    void bringIntoView();
    int barExtent() const;
    QSize roomBesideBars(QSize needed) const;
    void showCaret();
    bool isScrolled() const;

    Desk& desk_;
    QMenuBar* bar_ = nullptr;
    Menus* menus_ = nullptr;
    QScrollArea* area_;
    host::Handle last_ = host::noControl; ///< the last one in hand
    Canvas* canvas_;
    PromptStrip* strip_ = nullptr; ///< of a sheet
    int reach_ = 0;                ///< of its prompts, at the last layout
    SearchLine* search_ = nullptr;
    QTimer* forward_; ///< how long the tile of what comes next stands forward
    unsigned stirrings_ = 0;
    bool passed_;
    std::unordered_map<host::Handle, QTimer*> timers_;
    std::unordered_map<host::Handle, std::string> values_; ///< of fields and results, as they were last followed
    std::vector<host::Handle> answers_;
};

} // namespace velmor::desktop
