// SPDX-License-Identifier: MIT
// One window of the program, or one panel of it, as a painted drawing with real widgets over it. It shows the model's
// state and passes on what the person does; it never changes the state itself.
#pragma once

#include <functional>
#include <memory>
#include <unordered_map>
#include <vector>

#include <QPointer>
#include <QWidget>

#include "desktop/canvas/canvas_plan.h"
#include "desktop/canvas/desk.h"
#include "desktop/drawing/view.h"
#include "host/window.h"

class QPainter;
class QPlainTextEdit;

namespace velmor::desktop {

class CheckTile;
class Keyboard;
class Pointer;

class Canvas final : public QWidget {
    Q_OBJECT

public:
    /// Shows the whole window, or with an `area` that panel and what lies in it; what lies in `except` is left out.
    Canvas(Desk& desk, host::Window& model, host::Handle area = host::noControl, host::Handle except = host::noControl);
    ~Canvas() override;

    Desk& desk() const { return desk_; }
    /// Null once the window is gone.
    host::Window* model() const { return model_; }
    void forgetModel();

    /// The part of the window, in twips, that fills the canvas.
    void setDesign(const host::Place& design);
    const host::Place& design() const { return design_; }
    /// Logical pixels of 15 twips with which the design fits into `room`.
    double scaleFor(QSize room) const;
    void layOut(double scale, QSize size);
    double scale() const { return view_.pixelsPerUnit(); }
    const View& view() const { return view_; }

    /// Controls that changed in the model since the last call.
    void apply(const std::vector<host::Handle>& changes);
    void applyAll();
    /// Names and tool tips in the language of the moment.
    void relabel();
    void recolor();

    bool shows(host::Handle control) const;
    QRect boxInPixels(host::Handle control) const;
    /// The control that the mouse meets there; noControl for the background.
    host::Handle controlAt(QPoint point) const;
    QWidget* widgetOf(host::Handle control) const;
    /// Where Qt's focus belongs: the widget of the control that has the model's, else the canvas.
    QWidget* focusTarget();
    void setHovered(host::Handle control);
    void setPressed(host::Handle control);
    /// That button comes forward, until another does; noControl: none.
    void setForward(host::Handle control);
    /// Something is being dragged: the places where it may be let go glow.
    void setOffering(bool offering);
    void repaintControl(host::Handle control);
    /// Paints a control that reaches into `clip`; with an empty one, without asking whether it does.
    void paintOne(QPainter& painter, host::Handle control, const QRegion& clip);
    const CanvasPlan::Entry& planOf(host::Handle control) const { return plan_.entries[control]; }
    QString tipOf(host::Handle control) const;
    Pointer& pointer() { return *pointer_; }
    CheckTile& checkTile() { return *checkTile_; }

    /// What a key asks of the search line of an editor.
    enum class Search { open, openReplacing, on, back };
    std::function<void(Search)> search;

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    bool focusNextPrevChild(bool) override { return false; }

private:
    bool belongs(host::Handle control) const;
    bool isGround(host::Handle control) const;
    bool liesOpen(host::Handle control) const;
    bool paints(host::Handle control) const;
    const QRectF& ink(host::Handle control) const;
    void followPlaces();
    void refresh(host::Handle control);
    void retone(host::Handle control);
    void refreshWidget(host::Handle control, bool shown);
    bool wantsWidget(host::Handle control) const;
    void paintPaleFields(QPainter& painter, const QRegion& clip);
    void paintGlow(QPainter& painter);
    void tellAbout(host::Handle control, QPoint at);
    QPoint tipPlace(host::Handle control, QPoint at, const QString& text) const;
    void paintWhole(QPainter& painter);
    void measureWhatHangsOver();
    bool paintAsFirstSeen(QPainter& painter);
    void paintGround(QPainter& painter, const QRect& box) const;
    void paintPicture(QPainter& painter, const RunPicture& picture) const;
    QRectF pictured() const;
    bool liesInPicture() const;
    QWidget* makeWidget(host::Handle control);
    QWidget* makeField(host::Handle control);
    QWidget* makePage(host::Handle control);
    QWidget* makeEditor(host::Handle control);
    QWidget* makeList(host::Handle control);
    void dressEditor(host::Handle editor, QPlainTextEdit& edit);
    bool opensFolders(host::Handle list) const;
    void place(host::Handle control, QWidget& widget);
    void label(host::Handle control, QWidget& widget);
    void raiseOverlays();
    bool filterMouse(host::Handle control, QWidget& widget, QEvent& event);
    QRect keptInside(QRect box) const;

    Desk& desk_;
    host::Window* model_;
    host::Handle area_;
    host::Handle except_;
    const CanvasPlan& plan_;
    host::Place design_;
    View view_;
    std::vector<QWidget*> widgets_;
    std::unordered_map<const QObject*, host::Handle> handles_;
    mutable std::vector<QRectF> ink_;
    std::vector<host::Place> places_; ///< where each control was shown last
    bool offering_ = false;
    bool laidOut_ = false; ///< has a size; until then nothing is worth placing
    bool seen_ = false;    ///< has been painted whole
    std::unique_ptr<Pointer> pointer_;
    std::unique_ptr<Keyboard> keyboard_;
    std::unique_ptr<CheckTile> checkTile_;
};

} // namespace velmor::desktop
