// SPDX-License-Identifier: MIT
#include "desktop/windows/prompt_strip.h"

#include <algorithm>
#include <cmath>

#include <QMouseEvent>
#include <QPainter>

#include "desktop/canvas/canvas.h"
#include "desktop/drawing/control_painter.h"

namespace velmor::desktop {

using host::Handle;
using host::Kind;
using host::Look;

namespace prompt_strip_detail {

constexpr int margin = 8; ///< logical pixels to the right

/// The teacher's voice, and what lies across the sheet below it.
bool liesOnTop(const host::ControlRow& row, const host::Place& sheet)
{
    const bool across = row.place.width * 3 >= sheet.width * 2 && row.place.top * 4 < sheet.height;
    return row.look == Look::prompt || (row.look == Look::hint && across);
}

bool isBox(const host::ControlRow& row)
{
    return row.kind == Kind::label || row.kind == Kind::panel;
}

} // namespace prompt_strip_detail

PromptStrip::PromptStrip(Canvas& canvas, QWidget* parent) : QWidget(parent), canvas_(canvas)
{
    setObjectName(QStringLiteral("promptStrip"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::NoFocus);
    hide();
}

int PromptStrip::reach() const
{
    using namespace prompt_strip_detail;
    const host::Window* model = canvas_.model();
    int reach = 0;
    if (model == nullptr)
        return reach;
    for (const host::ControlRow& row : model->spec().controls)
        if (liesOnTop(row, model->spec().place))
            reach = std::max(reach, row.place.top + row.place.height);
    for (const host::ControlRow& row : model->spec().controls) {
        const host::Place place = host::shownPlace(*model, row.id);
        if (isBox(row) && canvas_.shows(row.id) && row.look != Look::invisible && place.top < reach &&
            place.top + place.height > reach)
            return 0;
    }
    return reach;
}

void PromptStrip::takeHeight(int reach, double scale)
{
    reach_ = reach;
    scale_ = scale;
    setFixedHeight(static_cast<int>(std::ceil(reach * scale / twipsPerUnit)));
    update();
}

bool PromptStrip::isPrompt(Handle control) const
{
    const host::Window& model = *canvas_.model();
    const host::Place place = host::shownPlace(model, control);
    return prompt_strip_detail::isBox(model.row(control)) && place.top + place.height <= reach_;
}

bool PromptStrip::shows(const std::vector<Handle>& changes) const
{
    return canvas_.model() != nullptr && std::any_of(changes.begin(), changes.end(), [this](Handle control) {
               return prompt_strip_detail::isBox(canvas_.model()->row(control));
           });
}

void PromptStrip::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), canvas_.view().inks->paper);
    if (canvas_.model() == nullptr)
        return;
    View view = canvas_.view();
    view.pixelsPerTwip = scale_ / twipsPerUnit;
    view.origin = QPointF(canvas_.view().origin.x(), 0.0); // over the columns, where the sheet leaves room at its sides
    view.widest = width() - prompt_strip_detail::margin;
    for (const host::ControlRow& row : canvas_.model()->spec().controls)
        if (isPrompt(row.id) && canvas_.shows(row.id))
            paintControl(painter, *canvas_.model(), row.id, view);
}

// A prompt is pressed here as on the sheet: some open to be read.
void PromptStrip::mousePressEvent(QMouseEvent* event)
{
    if (canvas_.model() == nullptr || canvas_.desk().closing || event->button() != Qt::LeftButton)
        return;
    const QPointF at = event->position() * (twipsPerUnit / scale_);
    host::Window& model = *canvas_.model();
    for (const host::ControlRow& row : model.spec().controls) {
        const host::Place place = host::shownPlace(model, row.id);
        const bool under = at.y() >= place.top && at.y() < place.top + place.height;
        if (under && isPrompt(row.id) && canvas_.planOf(row.id).target && canvas_.shows(row.id)) {
            canvas_.desk().engine->userClick(model, row.id);
            return;
        }
    }
}

} // namespace velmor::desktop
