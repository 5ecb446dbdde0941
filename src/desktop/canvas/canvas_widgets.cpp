// SPDX-License-Identifier: MIT
// The widgets over a canvas: which control has one, how it follows the model, what it is called.
#include <utility>

#include <QAccessible>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include "desktop/canvas/canvas.h"
#include "desktop/canvas/check_tile.h"
#include "desktop/canvas/control_pane.h"
#include "desktop/canvas/document_store.h"
#include "desktop/canvas/editor_edit.h"
#include "desktop/canvas/field_edit.h"
#include "desktop/canvas/report_dress.h"
#include "desktop/canvas/text_page.h"
#include "desktop/drawing/control_painter.h"
#include "desktop/drawing/growth_plan.h"
#include "desktop/drawing/texts.h"
#include "desktop/drawing/typefaces.h"

namespace velmor::desktop {

using host::Handle;
using host::Kind;
using host::noControl;

namespace canvas_widgets_detail {

constexpr double smallestText = 9.0; ///< logical pixels
constexpr double pageMargin = 0.8;   ///< around a long text, in heights of its letters
constexpr double rowHeight = 1.6;    ///< of a list, in heights of its letters
constexpr int blanksOfATab = 8;
constexpr double readablePoints = 11.5; ///< of a report

QColor colorOr(std::int32_t own, const QColor& usual)
{
    return own < 0 ? usual : QColor::fromRgb(static_cast<QRgb>(own));
}

// Long texts keep the proportions of the sheet they lie on.
void setTextSize(QWidget& widget, int points, double pixelsPerUnit)
{
    QFont font = widget.font();
    const int pixels = qRound(std::max(smallestText, points * 20.0 / twipsPerUnit * pixelsPerUnit));
    if (font.pixelSize() == pixels)
        return;
    font.setPixelSize(pixels);
    widget.setFont(font);
}

void colorText(QWidget& widget, const QColor& ground, const QColor& wished)
{
    QPalette colors = widget.palette();
    colors.setColor(QPalette::Base, ground);
    colors.setColor(QPalette::Text, readableOn(ground, wished));
    if (colors != widget.palette())
        widget.setPalette(colors);
}

void setPageMargin(QPlainTextEdit& page)
{
    const int margin = qRound(page.font().pixelSize() * pageMargin);
    if (qRound(page.document()->documentMargin()) != margin)
        page.document()->setDocumentMargin(margin);
}

/// Rows of a list with room to hit them.
class RoomyRows final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const QSize usual = QStyledItemDelegate::sizeHint(option, index);
        return {usual.width(), qRound(option.fontMetrics.height() * rowHeight)};
    }
};

bool isUntouched(const host::Font& font)
{
    host::Font usual;
    usual.color = font.color;
    return font == usual;
}

// The student's own choice of typeface, in true points. A report in which none was made is shown in the letters of the sheets;
// on paper it has those that are given. On a large screen both are larger, as the sheets are.
void setEditorFont(QPlainTextEdit& editor, const host::Font& chosen, bool report, double scale)
{
    const bool readable = report && isUntouched(chosen);
    QFont font = readable ? interfaceFont(12.0) : QFont(shown(chosen.name));
    if (!readable)
        font.setStyleHint(QFont::Monospace);
    font.setPointSizeF((readable ? readablePoints : std::max(1.0, chosen.size)) * scale);
    font.setBold(chosen.bold);
    font.setItalic(chosen.italic);
    font.setUnderline(chosen.underline);
    font.setStrikeOut(chosen.strikeout);
    if (font != editor.font())
        editor.setFont(font);
    const double tab = (readable ? 2 : 1) * blanksOfATab * QFontMetricsF(font).horizontalAdvance(QLatin1Char(' '));
    if (editor.tabStopDistance() != tab)
        editor.setTabStopDistance(tab);
}

// Painted texts and pictures that cannot hold the keyboard are widgets only for whoever reads the screen by its tree.
bool hasPane(const host::ControlRow& row)
{
    if (row.overlay || host::takesFocus(row.kind))
        return true;
    const bool tells =
        row.kind == Kind::label || row.kind == Kind::panel || (row.kind == Kind::image && !row.meaning.es.empty());
    return tells && QAccessible::isActive();
}

void fillList(QListWidget& list, const host::ListState& state)
{
    const QSignalBlocker quiet(&list);
    QStringList items;
    for (const std::string& item : state.items)
        items.append(shown(item));
    bool same = list.count() == items.size();
    for (int i = 0; same && i < list.count(); ++i)
        same = list.item(i)->text() == items[i];
    if (!same) {
        list.clear();
        list.addItems(items);
    }
    if (list.currentRow() != state.selected)
        list.setCurrentRow(state.selected);
}

} // namespace canvas_widgets_detail

void Canvas::applyAll()
{
    if (model_ == nullptr)
        return;
    for (const host::ControlRow& row : model_->spec().controls)
        refresh(row.id);
    raiseOverlays();
    update();
}

void Canvas::apply(const std::vector<Handle>& changes)
{
    if (model_ == nullptr)
        return;
    followPlaces();
    bool overlays = false;
    for (const Handle control : changes) {
        refresh(control);
        overlays = overlays || model_->row(control).overlay;
        repaintControl(control);
        for (const Handle other : plan_.entries[control].seenBy) {
            retone(other);
            repaintControl(other);
        }
        if (model_->row(control).kind == Kind::panel)
            for (const host::ControlRow& row : model_->spec().controls)
                if (row.parent == control) {
                    refresh(row.id);
                    repaintControl(row.id);
                }
    }
    if (overlays)
        raiseOverlays();
}

// Where a control is shown may hang on what another one says: what moved is painted there and here.
void Canvas::followPlaces()
{
    for (const host::ControlRow& row : model_->spec().controls) {
        const host::Place now = host::shownPlace(*model_, row.id);
        if (std::exchange(places_[row.id], now) == now)
            continue;
        repaintControl(row.id);
        if (widgets_[row.id] != nullptr && laidOut_)
            place(row.id, *widgets_[row.id]);
    }
}

void Canvas::refresh(Handle control)
{
    if (belongs(control))
        refreshWidget(control, shows(control) && model_->row(control).look != host::Look::invisible);
}

void Canvas::retone(Handle control)
{
    if (auto* field = dynamic_cast<FieldEdit*>(widgets_[control]))
        field->setPale(toneOf(GrowthPlan::of(model_->spec()), *model_, control) == host::Tone::pale);
}

// A field that cannot be written in is painted: a sheet begins with one that can among twenty. Whoever reads the screen by
// its tree, and what lies above the sheet, gets them all as widgets.
bool Canvas::wantsWidget(Handle control) const
{
    const host::ControlRow& row = model_->row(control);
    return row.kind != Kind::field || row.overlay || model_->enabled(control) || model_->focus() == control ||
           QAccessible::isActive();
}

// A widget is made when its control is first seen: a sheet shows a third of its controls at its start.
void Canvas::refreshWidget(Handle control, bool shown)
{
    QWidget*& widget = widgets_[control];
    if (widget == nullptr) {
        if (!shown || !wantsWidget(control) || (widget = makeWidget(control)) == nullptr)
            return;
        handles_[widget] = control;
        widget->installEventFilter(this);
        widget->setObjectName(desktop::shown(model_->row(control).name));
        label(control, *widget);
    }
    using namespace canvas_widgets_detail;
    const host::Control& state = model_->control(control);
    if (auto* field = dynamic_cast<FieldEdit*>(widget)) {
        if (model_->focus() != control) {
            field->handTaken();
            field->forgetTyping();
        }
        field->showText(desktop::shown(state.text));
        field->setOwnColors(state.backColor, state.foreColor);
        retone(control);
    } else if (auto* page = qobject_cast<QPlainTextEdit*>(widget)) {
        const QString text = desktop::shown(state.text);
        if (model_->row(control).kind != Kind::editor && page->toPlainText() != text)
            page->setPlainText(text);
        colorText(*page, colorOr(state.backColor, desk_.inks->field), colorOr(state.foreColor, desk_.inks->fieldInk));
    } else if (auto* list = qobject_cast<QListWidget*>(widget)) {
        fillList(*list, model_->list(control));
        colorText(*list, colorOr(state.backColor, desk_.inks->field), colorOr(state.foreColor, desk_.inks->fieldInk));
    } else {
        label(control, *widget);
    }
    if (laidOut_)
        place(control, *widget);
    if (widget->isEnabled() != state.enabled)
        widget->setEnabled(state.enabled);
    if (widget->isVisibleTo(this) != shown)
        widget->setVisible(shown);
}

QWidget* Canvas::makeWidget(Handle control)
{
    const host::ControlRow& row = model_->row(control);
    switch (row.kind) {
    case Kind::field:
        return makeField(control);
    case Kind::page:
        return makePage(control);
    case Kind::editor:
        return makeEditor(control);
    case Kind::list:
        return makeList(control);
    default:
        return canvas_widgets_detail::hasPane(row) ? new ControlPane(*this, control, row.overlay) : nullptr;
    }
}

QWidget* Canvas::makeField(Handle control)
{
    auto* field = new FieldEdit(*desk_.inks, this);
    field->setMouseTracking(true);
    connect(field, &QLineEdit::textEdited, this, [this, control](const QString& text) {
        if (model_ != nullptr && !desk_.closing)
            desk_.engine->userText(*model_, control, held(text));
    });
    return field;
}

QWidget* Canvas::makePage(Handle control)
{
    auto* page = new TextPage(this);
    page->setReadOnly(true);
    // Without a caret the arrow keys scroll, as a reader expects; copying works all the same.
    page->setTextInteractionFlags(Qt::TextSelectableByMouse);
    page->setFocusPolicy(Qt::NoFocus);
    page->setContextMenuPolicy(Qt::NoContextMenu);
    page->viewport()->setMouseTracking(true);
    page->viewport()->installEventFilter(this);
    handles_[page->viewport()] = control;
    return page;
}

QWidget* Canvas::makeEditor(Handle control)
{
    auto* edit = new EditorEdit(this);
    edit->setFocusPolicy(Qt::NoFocus);
    edit->setFrameShape(QFrame::NoFrame);
    edit->setTabChangesFocus(false);
    edit->viewport()->installEventFilter(this);
    handles_[edit->viewport()] = control;
    if (auto* store = dynamic_cast<DocumentStore*>(&model_->store(control))) {
        store->shownBy(edit);
        connect(store->document(), &QTextDocument::contentsChanged, edit, [this, store, control] {
            if (model_ != nullptr && !desk_.closing && !store->programChanges())
                desk_.engine->userEdited(*model_, control);
        });
        // A report that takes the place of another text is dressed when the change is over.
        connect(
            store->document(), &QTextDocument::contentsChanged, edit,
            [this, edit, control, report = false]() mutable {
                if (model_ != nullptr && std::exchange(report, isReport(*edit->document())) != report)
                    dressEditor(control, *edit);
            },
            Qt::QueuedConnection);
    }
    return edit;
}

void Canvas::dressEditor(Handle editor, QPlainTextEdit& edit)
{
    const bool report = isReport(*edit.document());
    const QFont before = edit.font();
    canvas_widgets_detail::setEditorFont(edit, model_->font(editor), report, desk_.textScale);
    auto* dress = edit.document()->findChild<ReportDress*>();
    if (dress == nullptr && report)
        new ReportDress(*edit.document(), desk_.inks->accent);
    else if (dress != nullptr && (before != edit.font() || dress->accent() != desk_.inks->accent))
        dress->follow(desk_.inks->accent);
}

// A list of folders goes where a double click or Enter says; the arrow keys walk through it first.
bool Canvas::opensFolders(Handle list) const
{
    return !model_->list(list).folder.empty() && model_->hasSlot(list, host::Event::change);
}

QWidget* Canvas::makeList(Handle control)
{
    auto* list = new QListWidget(this);
    list->setFocusPolicy(Qt::NoFocus);
    list->setUniformItemSizes(true);
    list->setItemDelegate(new canvas_widgets_detail::RoomyRows(list));
    list->setContextMenuPolicy(Qt::NoContextMenu);
    list->viewport()->installEventFilter(this);
    handles_[list->viewport()] = control;
    connect(list, &QListWidget::currentRowChanged, this, [this, control](int row) {
        if (model_ != nullptr && !desk_.closing && !opensFolders(control) && model_->list(control).selected != row)
            desk_.engine->userChoose(*model_, control, row);
    });
    connect(list, &QListWidget::itemActivated, this, [this, control, list] {
        if (model_ != nullptr && !desk_.closing && model_->hasSlot(control, host::Event::change))
            desk_.engine->userChoose(*model_, control, list->currentRow());
    });
    return list;
}

void Canvas::place(Handle control, QWidget& widget)
{
    using namespace canvas_widgets_detail;
    const host::ControlRow& row = model_->row(control);
    const QRect box = row.overlay && dynamic_cast<ControlPane*>(&widget) != nullptr
                          ? ink(control).toAlignedRect().intersected(rect())
                          : boxInPixels(control);
    if (widget.geometry() != box)
        widget.setGeometry(box);
    if (row.kind == Kind::field) {
        const QFont font = captionFont(*model_, control, view_);
        if (font != widget.font())
            widget.setFont(font);
    } else if (row.kind == Kind::page || row.kind == Kind::list) {
        setTextSize(widget, model_->control(control).fontSize, view_.pixelsPerUnit());
        if (auto* page = qobject_cast<QPlainTextEdit*>(&widget))
            setPageMargin(*page);
    } else if (auto* edit = qobject_cast<QPlainTextEdit*>(&widget)) {
        dressEditor(control, *edit);
    }
}

QString Canvas::tipOf(Handle control) const
{
    const host::ControlRow& row = model_->row(control);
    QString tip = desktop::shown(row.meaning.in(view_.languageIsEnglish));
    for (const host::ShortcutRow& shortcut : model_->spec().shortcuts)
        if (shortcut.control == control && !tip.isEmpty() &&
            (shortcut.action == host::KeyAction::click || shortcut.action == host::KeyAction::dragTo))
            tip += QStringLiteral("  (%1)").arg(desktop::shown(shortcut.keys));
    return tip;
}

// "Rb1, base resistor, K": what a screen reader says on the way into a field.
void Canvas::label(Handle control, QWidget& widget)
{
    const host::ControlRow& row = model_->row(control);
    QStringList parts;
    for (const std::string& part :
         {plainSymbol(row.symbol), std::string(row.meaning.in(view_.languageIsEnglish)), std::string(row.unit)})
        if (!part.empty())
            parts.append(desktop::shown(part));
    const bool editable = row.kind == Kind::field || row.kind == Kind::page || row.kind == Kind::editor;
    const QString caption = editable ? QString() : desktop::shown(model_->text(control)).simplified();
    if (!caption.isEmpty() && !parts.contains(caption))
        parts.prepend(caption);
    if (parts.isEmpty() && host::takesFocus(row.kind))
        parts.append(desktop::shown(row.name));
    if (const QString name = parts.join(QStringLiteral(", ")); name != widget.accessibleName())
        widget.setAccessibleName(name);
    if (editable) {
        const QString tip = tipOf(control);
        widget.setToolTip(tip.isEmpty() ? QString() : shownTip(tip));
    }
}

void Canvas::relabel()
{
    if (model_ == nullptr)
        return;
    view_.languageIsEnglish = desk_.engine->values().LanguageIsEnglish;
    std::fill(ink_.begin(), ink_.end(), QRectF());
    for (std::size_t control = 0; control < widgets_.size(); ++control)
        if (widgets_[control] != nullptr)
            label(static_cast<Handle>(control), *widgets_[control]);
    checkTile_->label();
    update();
}

void Canvas::recolor()
{
    view_.inks = desk_.inks;
    for (QWidget* widget : widgets_)
        if (auto* field = dynamic_cast<FieldEdit*>(widget))
            field->setInks(*desk_.inks);
    checkTile_->label();
    applyAll();
}

// Table order above the fields: a later overlay covers an earlier one.
void Canvas::raiseOverlays()
{
    for (const host::ControlRow& row : model_->spec().controls)
        if (row.overlay && widgets_[row.id] != nullptr)
            widgets_[row.id]->raise();
}

} // namespace velmor::desktop
