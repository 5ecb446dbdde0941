// SPDX-License-Identifier: MIT
// One small function per look. What a text's size and room are is decided in caption_fit, what a drawing looks like in
// schematic_painter.
#include "desktop/drawing/control_painter.h"

#include <algorithm>
#include <vector>

#include <QPainter>
#include <QPainterPath>
#include <QPen>

#include "desktop/drawing/caption_fit.h"
#include "desktop/drawing/field_marks.h"
#include "desktop/drawing/growth_plan.h"
#include "desktop/drawing/lettering.h"
#include "desktop/drawing/plates.h"
#include "desktop/drawing/schematic_painter.h"
#include "desktop/drawing/typefaces.h"

namespace velmor::desktop {

using host::Handle;
using host::Kind;
using host::Look;

namespace painting {

constexpr double fadedInk = 0.45;    ///< of the drawing of a tool that cannot be used
constexpr double buttonCorner = 5.0; ///< units

/// All that one control's painting needs.
struct Scene {
    QPainter& painter;
    const host::Window& window;
    Handle control;
    const View& view;
    QRectF box;

    const host::ControlRow& row() const { return window.row(control); }
    std::span<const host::Mark> drawing() const { return window.drawing(control); }
    const host::Control& state() const { return window.control(control); }
    const Inks& inks() const { return *view.inks; }
    double unit() const { return view.pixelsPerUnit(); }
    /// Blanks alone are nothing to frame.
    bool speaks() const { return state().text.find_first_not_of(" \n") != std::string::npos; }
    bool enabled() const { return state().enabled; }
    bool focused() const { return !view.forPrint && window.focus() == control && takesFocus(row().kind); }
    bool chosen() const { return host::isChosen(window, control); }
    bool hovered() const { return !view.forPrint && enabled() && view.hovered == control; }
    bool forward() const { return !view.forPrint && enabled() && view.forward == control; }
    bool pressed() const { return !view.forPrint && enabled() && view.pressed == control; }
};

QColor colorOf(std::int32_t rgb)
{
    return QColor::fromRgb(static_cast<QRgb>(rgb));
}

/// A box on whole device pixels, so that its border is one crisp line.
QRectF crisp(const QPainter& painter, const View& view, const QRectF& box)
{
    if (view.forPrint)
        return box;
    const double ratio = painter.deviceTransform().m11();
    const QTransform& transform = painter.deviceTransform();
    const QRect pixels = transform.mapRect(box).toRect();
    return transform.inverted().mapRect(QRectF(pixels)).adjusted(0.5 / ratio, 0.5 / ratio, -0.5 / ratio, -0.5 / ratio);
}

QRectF crisp(const Scene& scene, const QRectF& box)
{
    return crisp(scene.painter, scene.view, box);
}

double hairline(const QPainter& painter, const View& view)
{
    if (view.forPrint)
        return 0.8 * view.pixelsPerUnit();
    const double ratio = painter.deviceTransform().m11();
    return std::max(1.0, std::floor(view.pixelsPerUnit() * ratio + 0.2)) / ratio;
}

double hairline(const Scene& scene)
{
    return hairline(scene.painter, scene.view);
}

void plate(QPainter& painter, const View& view, const QRectF& box, PlateLook look)
{
    look.round = std::min(look.round * view.pixelsPerUnit(), std::min(box.width(), box.height()) / 2.0);
    (view.forPrint ? paintPlate : paintPlateOnScreen)(painter, crisp(painter, view, box), look);
}

void plate(const Scene& scene, const QColor& ground, const QColor& border, double radius, double width)
{
    plate(scene.painter, scene.view, scene.box, {ground, border, radius, width});
}

void focusRing(const Scene& scene)
{
    if (!scene.focused())
        return;
    const double width = 2.0 * hairline(scene);
    scene.painter.setPen(QPen(scene.inks().accent, width));
    scene.painter.setBrush(Qt::NoBrush);
    const double inset = width / 2.0;
    scene.painter.drawRoundedRect(crisp(scene, scene.box).adjusted(inset, inset, -inset, -inset), 4.0 * scene.unit(),
                                  4.0 * scene.unit());
}

/// A soft shadow under what lies above the sheet.
void shadow(const Scene& scene)
{
    if (scene.view.forPrint)
        return;
    scene.painter.setPen(Qt::NoPen);
    for (int ring = 3; ring > 0; --ring) {
        const double spread = ring * 1.5 * scene.unit();
        scene.painter.setBrush(QColor(0, 0, 0, scene.inks().dark ? 40 : 14));
        scene.painter.drawRoundedRect(scene.box.adjusted(-spread, -spread + 2.0, spread, spread + 2.0), spread + 6.0,
                                      spread + 6.0);
    }
}

/// A sheet's own colour for the ground, else the look's.
QColor groundOr(const Scene& scene, const QColor& own)
{
    return scene.state().backColor >= 0 ? colorOf(scene.state().backColor) : own;
}

void writeCaption(const Scene& scene, const QColor& ink, const QColor& ground)
{
    const CaptionSetting setting = setCaption(scene.window, scene.control, scene.view);
    if (setting.text.isEmpty())
        return;
    const QColor own = scene.state().foreColor >= 0 ? colorOf(scene.state().foreColor) : ink;
    const QColor wished = scene.view.pale ? scene.inks().quiet : own;
    scene.painter.setPen(readableOn(ground, wished));
    writeBlock(scene.painter, setting.room, setting.box, setting.flags, setting.text, setting.font);
}

void paintDrawing(const Scene& scene)
{
    const auto drawing = scene.drawing();
    if (drawing.empty())
        return;
    const bool faded = !scene.enabled() && !scene.chosen() && scene.row().look == Look::toolButton;
    scene.painter.setOpacity(faded ? fadedInk : 1.0);
    View view = scene.view;
    view.onButton = scene.row().look == Look::toolButton;
    paintMarks(scene.painter, scene.window, drawing, scene.box.topLeft(), view);
    scene.painter.setOpacity(1.0);
}

void paintPrompt(const Scene& scene)
{
    if (!scene.speaks())
        return;
    const QColor ground = groundOr(scene, scene.inks().voice);
    plate(scene, ground, QColor(), 5.0, 0.0);
    // The bar of the accent at the left edge: the teacher speaks.
    QPainterPath edge;
    edge.addRoundedRect(scene.box, 5.0 * scene.unit(), 5.0 * scene.unit());
    QPainterPath strip;
    strip.addRect(QRectF(scene.box.topLeft(), QSizeF(4.0 * scene.unit(), scene.box.height())));
    scene.painter.fillPath(edge.intersected(strip), scene.inks().accent);
    writeCaption(scene, scene.inks().ink, ground);
}

void paintHint(const Scene& scene)
{
    if (!scene.speaks())
        return;
    const QColor ground = groundOr(scene, scene.inks().hint);
    plate(scene, ground, QColor(), 4.0, 0.0);
    writeCaption(scene, scene.inks().ink, ground);
}

void paintBalloon(const Scene& scene)
{
    if (!scene.speaks())
        return;
    const QColor ground = groundOr(scene, scene.inks().balloon);
    plate(scene, ground, QColor(), 5.0, 0.0);
    writeCaption(scene, scene.inks().onBalloon, ground);
}

/// A triangle with an exclamation mark: a warning is told by its shape, not by its colour alone.
void warningSign(const Scene& scene)
{
    const double size = std::min(14.0 * scene.unit(), scene.box.height() * 0.7);
    const QPointF centre(scene.box.left() + std::min(13.0 * scene.unit(), scene.box.width() * 0.12),
                         scene.box.center().y());
    QPainterPath triangle(centre + QPointF(0.0, -0.5) * size);
    triangle.lineTo(centre + QPointF(0.56, 0.45) * size);
    triangle.lineTo(centre + QPointF(-0.56, 0.45) * size);
    triangle.closeSubpath();
    QPen pen(scene.inks().warning, size * 0.12, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    scene.painter.setPen(pen);
    scene.painter.setBrush(Qt::NoBrush);
    scene.painter.drawPath(triangle);
    scene.painter.drawLine(centre + QPointF(0.0, -0.14) * size, centre + QPointF(0.0, 0.12) * size);
    scene.painter.drawPoint(centre + QPointF(0.0, 0.30) * size);
}

void paintWarning(const Scene& scene)
{
    if (!scene.speaks())
        return;
    const QColor ground = groundOr(scene, scene.inks().warningTint);
    plate(scene, ground, scene.inks().warning, 4.0, hairline(scene));
    warningSign(scene);
    writeCaption(scene, scene.inks().warning, ground);
}

void paintHeading(const Scene& scene)
{
    const QColor ground = groundOr(scene, scene.inks().paper);
    if (scene.state().backColor >= 0)
        plate(scene, ground, QColor(), 3.0, 0.0);
    writeCaption(scene, scene.inks().ink, ground);
}

void paintGroup(const Scene& scene)
{
    const QColor ground = groundOr(scene, scene.inks().paper);
    plate(scene, ground, scene.inks().rule, 6.0, hairline(scene));
    writeCaption(scene, scene.inks().quiet, ground);
    paintDrawing(scene);
}

void paintPaper(const Scene& scene)
{
    const QColor ground = groundOr(scene, scene.inks().paper);
    plate(scene, ground, scene.inks().rule, 6.0, hairline(scene));
    paintDrawing(scene);
    writeCaption(scene, scene.inks().ink, ground);
    focusRing(scene);
}

/// The name of a result that is still to come: it would stand there as if it named what is beside it.
bool awaitsItsResult(const Scene& scene)
{
    const auto isName = [&scene](const host::Mark& mark) {
        const bool isWritten = mark.symbol == host::Symbol::text || mark.symbol == host::Symbol::label;
        return isWritten && valueText(scene.window, mark).isEmpty();
    };
    const auto drawing = scene.drawing();
    return scene.row().look == Look::result && !scene.speaks() && !scene.view.pale &&
           std::all_of(drawing.begin(), drawing.end(), isName);
}

void paintText(const Scene& scene)
{
    QColor ground = scene.inks().paper;
    if (scene.state().backColor >= 0) {
        ground = colorOf(scene.state().backColor);
        plate(scene, ground, QColor(), 3.0, 0.0);
    }
    const Look look = scene.row().look;
    const bool steppingBack = look == Look::note || !scene.enabled();
    if (!awaitsItsResult(scene))
        paintDrawing(scene);
    writeCaption(scene, steppingBack ? scene.inks().quiet : scene.inks().ink, ground);
}

void paintPanel(const Scene& scene)
{
    const bool floats = scene.row().overlay;
    const QColor ground = groundOr(scene, scene.inks().paper);
    if (floats)
        shadow(scene);
    plate(scene, ground, floats ? scene.inks().edge : scene.inks().rule, 6.0, hairline(scene));
    paintDrawing(scene);
    writeCaption(scene, scene.enabled() ? scene.inks().ink : scene.inks().quiet, ground);
}

QColor buttonGround(const Scene& scene)
{
    if (scene.chosen())
        return scene.inks().accentTint;
    if (!scene.enabled())
        return scene.inks().buttonOff;
    if (scene.pressed() || scene.forward())
        return scene.inks().accentTint;
    return groundOr(scene, scene.hovered() ? scene.inks().buttonHover : scene.inks().button);
}

QColor buttonBorder(const Scene& scene)
{
    if (scene.chosen() || scene.hovered() || scene.forward())
        return scene.inks().accent;
    return scene.enabled() ? scene.inks().edge : scene.inks().rule;
}

/// A bar along the lower edge, as under the tab in front: the choice in force is told by its form, not by its colour alone. It
/// keeps clear of what hangs below the line of a caption.
void chosenBar(const Scene& scene)
{
    const double height = std::min(3.0 * scene.unit(), scene.box.height() / 6.0);
    const double inset = std::min(10.0 * scene.unit(), scene.box.width() / 6.0);
    const QRectF bar(scene.box.left() + inset, scene.box.bottom() - scene.unit() - height,
                     scene.box.width() - 2.0 * inset, height);
    scene.painter.setPen(Qt::NoPen);
    scene.painter.setBrush(scene.inks().accent);
    scene.painter.drawRoundedRect(bar, height / 2.0, height / 2.0);
}

void paintButton(const Scene& scene)
{
    const QColor ground = buttonGround(scene);
    const double weight = scene.chosen() || scene.forward() ? 2.0 : 1.0;
    plate(scene, ground, buttonBorder(scene), buttonCorner, hairline(scene) * weight);
    paintDrawing(scene);
    if (scene.chosen())
        chosenBar(scene);
    writeCaption(scene, scene.enabled() || scene.chosen() ? scene.inks().ink : scene.inks().buttonOffInk, ground);
    focusRing(scene);
}

void paintPicture(const Scene& scene)
{
    QColor ground = scene.inks().paper;
    if (scene.state().backColor >= 0) {
        ground = colorOf(scene.state().backColor);
        plate(scene, ground, QColor(), 3.0, 0.0);
    }
    paintDrawing(scene);
    writeCaption(scene, scene.enabled() ? scene.inks().ink : scene.inks().quiet, ground);
    focusRing(scene);
}

void paintChoice(const Scene& scene)
{
    const double size = std::min(13.0 * scene.unit(), scene.box.height());
    const QPointF centre(scene.box.left() + size / 2.0 + 1.0, scene.box.center().y());
    const QRectF mark(centre - QPointF(size, size) / 2.0, QSizeF(size, size));
    const bool round = scene.row().kind == Kind::option;
    const bool on = scene.state().checked;
    const QColor ink = scene.enabled() ? scene.inks().accent : scene.inks().quiet;
    scene.painter.setPen(QPen(on || scene.hovered() ? ink : scene.inks().edge, hairline(scene) * 1.3));
    scene.painter.setBrush(on && !round ? ink : scene.enabled() ? scene.inks().field : scene.inks().fieldOff);
    if (round)
        scene.painter.drawEllipse(mark);
    else
        scene.painter.drawRoundedRect(mark, size / 5.0, size / 5.0);
    if (on && round) {
        scene.painter.setPen(Qt::NoPen);
        scene.painter.setBrush(ink);
        scene.painter.drawEllipse(centre, size * 0.27, size * 0.27);
    } else if (on) {
        QPainterPath tick(centre + QPointF(-0.26, 0.02) * size);
        tick.lineTo(centre + QPointF(-0.06, 0.22) * size);
        tick.lineTo(centre + QPointF(0.28, -0.22) * size);
        scene.painter.setBrush(Qt::NoBrush);
        scene.painter.setPen(QPen(scene.inks().onAccent, size * 0.14, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        scene.painter.drawPath(tick);
    }
    writeCaption(scene, scene.enabled() ? scene.inks().ink : scene.inks().quiet, scene.inks().paper);
    focusRing(scene);
}

void paintLine(const Scene& scene)
{
    scene.painter.setPen(QPen(scene.inks().rule, hairline(scene) * 1.3));
    if (scene.drawing().empty())
        scene.painter.drawLine(scene.box.topLeft(), scene.box.bottomRight());
    paintDrawing(scene);
}

void paintShape(const Scene& scene)
{
    const bool marked = scene.state().backColor >= 0;
    if (scene.drawing().empty())
        plate(scene, marked ? colorOf(scene.state().backColor) : QColor(),
              marked ? scene.inks().accent : scene.inks().rule, 4.0, hairline(scene) * (marked ? 2.0 : 1.0));
    paintDrawing(scene);
}

/// A field on paper: its text in a plain box.
void paintPrintedField(const Scene& scene)
{
    plate(scene, QColor(), scene.inks().edge, 2.0, hairline(scene));
    writeCaption(scene, scene.inks().ink, scene.inks().paper);
}

void paintByKind(const Scene& scene)
{
    switch (scene.row().kind) {
    case Kind::button:
        return paintButton(scene);
    case Kind::picture:
    case Kind::image:
        return scene.row().look == Look::toolButton ? paintButton(scene) : paintPicture(scene);
    case Kind::option:
    case Kind::check:
        return paintChoice(scene);
    case Kind::panel:
        return paintPanel(scene);
    case Kind::line:
        return paintLine(scene);
    case Kind::shape:
        return paintShape(scene);
    case Kind::timer:
    case Kind::menu:
        return;
    default:
        return paintText(scene);
    }
}

void paintByLook(const Scene& scene)
{
    switch (scene.row().look) {
    case Look::prompt:
        return paintPrompt(scene);
    case Look::hint:
    case Look::lesson:
        return paintHint(scene);
    case Look::balloon:
        return paintBalloon(scene);
    case Look::warning:
        return paintWarning(scene);
    case Look::heading:
    case Look::title:
        return paintHeading(scene);
    case Look::group:
        return paintGroup(scene);
    case Look::paper:
        return paintPaper(scene);
    case Look::toolButton:
        return paintButton(scene);
    case Look::note:
    case Look::result:
        return paintText(scene);
    case Look::drawn:
        // Its text stands at the mark that bears it; what has a frame shows that all the same.
        if (scene.row().kind == Kind::label || scene.row().kind == Kind::panel)
            return;
        break;
    case Look::plain:
    case Look::invisible:
        break;
    }
    paintByKind(scene);
}

bool isWidget(Kind kind)
{
    return kind == Kind::field || kind == Kind::page || kind == Kind::editor || kind == Kind::list;
}

void paintExposed(QPainter& painter, const host::Window& window, Handle control, const View& view)
{
    if (isPainted(window, control) &&
        (view.exposed.isEmpty() || inkBounds(window, control, view).intersects(view.exposed)))
        paintControl(painter, window, control, view);
}

void paintInTone(QPainter& painter, const host::Window& window, Handle control, const View& view)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const Scene scene{painter, window, control, view, boxOf(window, control, view)};
    if (isWidget(window.row(control).kind)) {
        if (view.forPrint && window.row(control).kind == Kind::field)
            paintPrintedField(scene);
        paintFieldMarks(painter, window, control, view);
    } else {
        paintByLook(scene);
    }
    painter.restore();
}

} // namespace painting

bool isPainted(const host::Window& window, Handle control)
{
    const host::ControlRow& row = window.row(control);
    if (toneOf(GrowthPlan::of(window.spec()), window, control) == host::Tone::away)
        return false;
    if (host::shownPlace(window, control) == host::Place{})
        return false;
    for (Handle part = row.parent; part != host::noControl; part = window.row(part).parent)
        if (!window.visible(part))
            return false;
    return row.look != Look::invisible && row.kind != Kind::timer && row.kind != Kind::menu;
}

void paintTile(QPainter& painter, const host::Window& window, const Tile& tile, const View& view)
{
    const Inks& inks = *view.inks;
    const QRectF box = boxOf(tile.place, view);
    const QColor ground = !tile.awake    ? inks.buttonOff
                          : tile.pressed ? inks.accentTint
                          : tile.hovered ? inks.buttonHover
                                         : inks.button;
    const QColor border = !tile.awake ? inks.rule : tile.hovered ? inks.accent : inks.edge;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painting::plate(painter, view, box, {ground, border, painting::buttonCorner, painting::hairline(painter, view)});
    View onButton = view;
    onButton.onButton = true;
    painter.setOpacity(tile.awake ? 1.0 : painting::fadedInk);
    paintMarks(painter, window, tile.drawing, box.topLeft(), onButton);
    painter.restore();
}

QRectF boxOf(const host::Window& window, Handle control, const View& view)
{
    return boxOf(host::shownPlace(window, control), view);
}

QRectF boxOf(const host::Place& place, const View& view)
{
    const double scale = view.pixelsPerTwip;
    const double left = view.origin.x() + place.left * scale;
    const double room = view.widest > 0.0 ? std::max(0.0, view.widest - left) : place.width * scale;
    return {left, view.origin.y() + place.top * scale, std::min(place.width * scale, room), place.height * scale};
}

void paintControl(QPainter& painter, const host::Window& window, Handle control, const View& view)
{
    if (view.pale || toneOf(GrowthPlan::of(window.spec()), window, control) != host::Tone::pale)
        return painting::paintInTone(painter, window, control, view);
    View faint = view;
    faint.pale = true;
    painting::paintInTone(painter, window, control, faint);
}

void paintWindow(QPainter& painter, const host::Window& window, const View& view)
{
    const host::Place& place = window.spec().place;
    const QRectF sheet(view.origin, QSizeF(place.width, place.height) * view.pixelsPerTwip);
    painter.fillRect(sheet, view.inks->paper);
    inOrderOfPainting(window, [&](Handle control) { painting::paintExposed(painter, window, control, view); });
    for (const host::ControlRow& row : window.spec().controls)
        if (row.overlay)
            painting::paintExposed(painter, window, row.id, view);
}

QRectF inkBounds(const host::Window& window, Handle control, const View& view)
{
    const double margin = 7.0 * view.pixelsPerUnit();
    const double overhang = 2.0 * view.pixelsPerUnit(); // of slanted letters
    QRectF bounds = boxOf(window, control, view).adjusted(-margin, -margin, margin, margin);
    bounds |= boundsOfMarks(window, window.drawing(control), boxOf(window, control, view).topLeft(), view);
    if (painting::isWidget(window.row(control).kind)) {
        for (const QRectF& box : {symbolBounds(window, control, view), unitBounds(window, control, view)})
            if (!box.isEmpty())
                bounds |= box.adjusted(-overhang, -overhang, overhang, overhang);
    } else if (const QRectF caption = captionBounds(window, control, view); !caption.isEmpty()) {
        // A text of too many lines hangs over its place.
        bounds |= caption.adjusted(-overhang, -overhang, overhang, overhang);
    }
    return bounds;
}

QFont captionFont(const host::Window& window, Handle control, const View& view)
{
    if (painting::isWidget(window.row(control).kind))
        return interfaceFont(fieldLetters(window, control, view));
    return setCaption(window, control, view).font;
}

QRectF captionBounds(const host::Window& window, Handle control, const View& view)
{
    return setCaption(window, control, view).box;
}

} // namespace velmor::desktop
