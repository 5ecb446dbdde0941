// SPDX-License-Identifier: MIT
#include "desktop/drawing/quiet_style.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <optional>
#include <utility>

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QScreen>
#include <QStyleOptionButton>
#include <QStyleOptionMenuItem>
#include <QStyleOptionSlider>
#include <QStyleOptionTitleBar>
#include <QWidget>

#include "desktop/drawing/box_sign.h"
#include "desktop/drawing/lettering.h"
#include "desktop/drawing/palette_of_inks.h"
#include "desktop/drawing/program_icon.h"
#include "desktop/drawing/quiet_buttons.h"

namespace velmor::desktop {

namespace quiet_style_detail {

constexpr double menuShare = 1.55; ///< height of a line of a menu, by that of its letters
constexpr double titleShare = 1.6; ///< height of a title, by that of its letters
constexpr double frameShare =
    1.3;                         ///< side of a maximised child's buttons, by the height of the letters of the menu bar
constexpr double airShare = 0.6; ///< beside the caption of a button, by the height of its letters
constexpr int countedMark = 20;  ///< logical pixels that the toolkit counts for the mark of a menu's line

struct ButtonRow {
    QStyle::SubControl part;
    QStyle::SubControl glyph; ///< what is drawn: minimise, maximise, restore or close
};

constexpr ButtonRow frameButtons[] = {{QStyle::SC_MdiMinButton, QStyle::SC_TitleBarMinButton},
                                      {QStyle::SC_MdiNormalButton, QStyle::SC_TitleBarNormalButton},
                                      {QStyle::SC_MdiCloseButton, QStyle::SC_TitleBarCloseButton}};

bool offered(const QStyleOptionTitleBar& bar, QStyle::SubControl part)
{
    const bool minimised = (bar.titleBarState & Qt::WindowMinimized) != 0;
    const bool maximised = (bar.titleBarState & Qt::WindowMaximized) != 0;
    switch (part) {
    case QStyle::SC_TitleBarMinButton:
        return (bar.titleBarFlags & Qt::WindowMinimizeButtonHint) && !minimised;
    case QStyle::SC_TitleBarMaxButton:
        return (bar.titleBarFlags & Qt::WindowMaximizeButtonHint) && !maximised;
    case QStyle::SC_TitleBarNormalButton:
        return ((bar.titleBarFlags & Qt::WindowMinimizeButtonHint) && minimised) ||
               ((bar.titleBarFlags & Qt::WindowMaximizeButtonHint) && maximised);
    case QStyle::SC_TitleBarCloseButton:
        return (bar.titleBarFlags & Qt::WindowSystemMenuHint) != 0;
    default:
        return false;
    }
}

void drawGlyph(QPainter& painter, QStyle::SubControl part, const QRect& box)
{
    const QPoint middle = box.center();
    const int half = std::max(4, qRound(box.height() / 4.5));
    const QRect square(middle.x() - half, middle.y() - half, 2 * half, 2 * half);
    switch (part) {
    case QStyle::SC_TitleBarMinButton:
        painter.drawLine(square.bottomLeft(), square.bottomRight());
        break;
    case QStyle::SC_TitleBarMaxButton:
        painter.drawRect(square);
        break;
    case QStyle::SC_TitleBarNormalButton:
        painter.drawRect(square.adjusted(0, 2, -2, 0));
        painter.drawPolyline(QPolygon({{square.left() + 2, square.top()},
                                       {square.right() + 1, square.top()},
                                       {square.right() + 1, square.bottom() - 1}}));
        break;
    default:
        painter.setRenderHint(QPainter::Antialiasing);
        painter.drawLine(QPointF(square.left(), square.top()), QPointF(square.right() + 1, square.bottom() + 1));
        painter.drawLine(QPointF(square.right() + 1, square.top()), QPointF(square.left(), square.bottom() + 1));
        painter.setRenderHint(QPainter::Antialiasing, false);
    }
}

bool mayBeLate(QStyle::StandardPixmap sign)
{
    switch (sign) {
    case QStyle::SP_TitleBarMinButton:
    case QStyle::SP_TitleBarMaxButton:
    case QStyle::SP_TitleBarNormalButton:
    case QStyle::SP_TitleBarCloseButton:
    case QStyle::SP_TitleBarShadeButton:
    case QStyle::SP_TitleBarUnshadeButton:
    case QStyle::SP_TitleBarMenuButton:
    case QStyle::SP_ToolBarHorizontalExtensionButton:
        return true;
    default:
        return false;
    }
}

/// A trough and a slider, without arrows: the wheel, the keys and a press beside the slider do what these did.
QRect partOfScrollBar(const QStyleOptionSlider& bar, QStyle::SubControl part, int smallest)
{
    const bool across = bar.orientation == Qt::Horizontal;
    const int room = across ? bar.rect.width() : bar.rect.height();
    const long long range = static_cast<long long>(bar.maximum) - bar.minimum;
    const long long wished = range > 0 ? static_cast<long long>(bar.pageStep) * room / (range + bar.pageStep) : room;
    const int length = std::min(room, std::max(static_cast<int>(wished), smallest));
    const int start =
        QStyle::sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition, room - length, bar.upsideDown);
    const auto stretch = [&](int from, int to) {
        const QRect piece = across ? QRect(bar.rect.left() + from, bar.rect.top(), to - from, bar.rect.height())
                                   : QRect(bar.rect.left(), bar.rect.top() + from, bar.rect.width(), to - from);
        return QStyle::visualRect(bar.direction, bar.rect, piece);
    };
    switch (part) {
    case QStyle::SC_ScrollBarSlider:
        return stretch(start, start + length);
    case QStyle::SC_ScrollBarSubPage:
        return stretch(0, start);
    case QStyle::SC_ScrollBarAddPage:
        return stretch(start + length, room);
    case QStyle::SC_ScrollBarGroove:
        return bar.rect;
    default:
        return {};
    }
}

/// A child window's title, with what stands twice in it for the toolkit's sake said once.
QString titleOf(const QStyleOptionTitleBar& bar, const QWidget* widget)
{
    return widget == nullptr || widget->windowTitle().isEmpty()
               ? bar.text
               : widget->windowTitle().replace(QStringLiteral("[*][*]"), QStringLiteral("[*]"));
}

/// A sign of the toolkit's own that is read from its files when it is first seen. Most never are: they stand in the menus of
/// child windows and at the end of a menu bar that is too long.
class LateSign final : public QIconEngine {
public:
    explicit LateSign(std::function<QIcon()> read) : read_(std::move(read)) {}

    void paint(QPainter* painter, const QRect& box, QIcon::Mode mode, QIcon::State state) override
    {
        sign().paint(painter, box, Qt::AlignCenter, mode, state);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return sign().pixmap(size, mode, state);
    }
    QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return sign().actualSize(size, mode, state);
    }
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override
    {
        return sign().availableSizes(mode, state);
    }
    QIconEngine* clone() const override { return new LateSign(*this); }

private:
    const QIcon& sign()
    {
        if (sign_.isNull())
            sign_ = read_();
        return sign_;
    }

    std::function<QIcon()> read_;
    QIcon sign_;
};

/// The sign of a box that the toolkit asks by itself, as a file dialog does before it replaces a file.
std::optional<host::BoxIcon> boxSignOf(QStyle::StandardPixmap sign)
{
    switch (sign) {
    case QStyle::SP_MessageBoxCritical:
        return host::BoxIcon::stop;
    case QStyle::SP_MessageBoxWarning:
        return host::BoxIcon::warning;
    case QStyle::SP_MessageBoxQuestion:
        return host::BoxIcon::question;
    case QStyle::SP_MessageBoxInformation:
        return host::BoxIcon::information;
    default:
        return std::nullopt;
    }
}

/// Not measured: the first measure of letters reads all typefaces, and the menu bar asks before the main window is shown.
int likelyHeightOfLetters()
{
    constexpr double pointsPerInch = 72.0;
    constexpr double lineShare = 1.164; ///< height of a line of the usual letters, by their size
    const QScreen* screen = QGuiApplication::primaryScreen();
    const double dots = screen == nullptr ? pointsPerInch : screen->logicalDotsPerInchY();
    return static_cast<int>(std::ceil(QApplication::font().pointSizeF() * dots / pointsPerInch * lineShare));
}

QIcon iconOf(host::BoxIcon sign)
{
    constexpr int sides[] = {32, 64, 128};
    QIcon icon;
    for (const int side : sides) {
        QPixmap picture(side, side);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paintBoxSign(painter, picture.rect(), sign, inksFor(QApplication::palette()));
        icon.addPixmap(picture);
    }
    return icon;
}

} // namespace quiet_style_detail

QuietStyle::QuietStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void QuietStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                    const QWidget* widget) const
{
    if (control == CC_ScrollBar)
        if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option)) {
            drawScrollBar(*bar, *painter, widget);
            return;
        }
    if (control == CC_TitleBar)
        if (const auto* bar = qstyleoption_cast<const QStyleOptionTitleBar*>(option)) {
            drawTitleBar(*bar, *painter, widget);
            return;
        }
    if (control == CC_MdiControls) {
        drawFrameButtons(*option, *painter, widget);
        return;
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

void QuietStyle::polish(QPalette& palette)
{
    QProxyStyle::polish(palette);
    const Inks& inks = inksFor(palette);
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        palette.setColor(group, QPalette::Highlight, inks.accent);
        palette.setColor(group, QPalette::HighlightedText, inks.onAccent);
    }
}

// The toolkit's own tips are yellow and small on every desktop.
void QuietStyle::polish(QWidget* widget)
{
    QProxyStyle::polish(widget);
    if (!widget->inherits("QTipLabel"))
        return;
    const QPalette desktop = QApplication::palette();
    const Inks& inks = inksFor(desktop);
    QPalette palette = widget->palette();
    palette.setColor(QPalette::ToolTipBase, inks.hint);
    palette.setColor(QPalette::ToolTipText, inks.ink);
    widget->setPalette(palette);
    widget->setFont(QApplication::font());
}

void QuietStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const
{
    const auto* button = element == CE_PushButton ? qstyleoption_cast<const QStyleOptionButton*>(option) : nullptr;
    const auto* item = element == CE_MenuBarItem ? qstyleoption_cast<const QStyleOptionMenuItem*>(option) : nullptr;
    if (item != nullptr && (item->state & State_Selected) != 0) {
        // The style beneath marks an item whose menu is open alone: who walks the bar with the arrows would see nothing.
        QStyleOptionMenuItem marked = *item;
        marked.state |= State_Sunken;
        QProxyStyle::drawControl(element, &marked, painter, widget);
        return;
    }
    if (button == nullptr) {
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }
    paintQuietButton(*painter, *button);
    QStyleOptionButton caption = *button;
    caption.palette.setColor(QPalette::ButtonText, captionInk(*button));
    QProxyStyle::drawControl(CE_PushButtonLabel, &caption, painter, widget);
}

// Menus leave their lines the same air whatever the size of their letters, and buttons their captions.
QSize QuietStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                   const QWidget* widget) const
{
    using namespace quiet_style_detail;
    QSize wanted = QProxyStyle::sizeFromContents(type, option, size, widget);
    if (option == nullptr)
        return wanted;
    // Asked for late: the first measure of letters reads all typefaces, and the main window is shown before.
    const auto letters = [option] { return option->fontMetrics.height(); };
    const auto* item = type == CT_MenuItem ? qstyleoption_cast<const QStyleOptionMenuItem*>(option) : nullptr;
    if (item != nullptr && item->menuItemType != QStyleOptionMenuItem::Separator) {
        wanted.setHeight(std::max(wanted.height(), static_cast<int>(letters() * menuShare)));
        // The mark's column is as wide as the line is high.
        wanted.rwidth() += std::max(0, wanted.height() - countedMark);
    }
    if (const auto* button = type == CT_PushButton ? qstyleoption_cast<const QStyleOptionButton*>(option) : nullptr) {
        const int caption = button->fontMetrics.size(Qt::TextShowMnemonic, button->text).width();
        wanted.setWidth(std::max(wanted.width(), caption + 2 * static_cast<int>(letters() * airShare)));
    }
    if (const auto* frame = type == CT_MdiControls ? qstyleoption_cast<const QStyleOptionComplex*>(option) : nullptr) {
        const auto shown = [frame](const ButtonRow& row) { return (frame->subControls & row.part) != 0; };
        const auto count = std::count_if(std::begin(frameButtons), std::end(frameButtons), shown);
        const int side = std::max(wanted.height(), static_cast<int>(letters() * frameShare));
        wanted = QSize(static_cast<int>(count) * (side + 1), side);
    }
    return wanted;
}

// A title grows with its letters, and the sign in it; so does the air around a tip.
int QuietStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    const int usual = QProxyStyle::pixelMetric(metric, option, widget);
    if (metric == PM_ToolTipLabelFrameWidth)
        return std::max(usual, QFontMetrics(QApplication::font()).height() / 3);
    if (metric != PM_TitleBarHeight && metric != PM_SmallIconSize)
        return usual;
    if (metric == PM_SmallIconSize)
        return std::max(usual, quiet_style_detail::likelyHeightOfLetters());
    return std::max(usual,
                    static_cast<int>(QFontMetrics(QApplication::font()).height() * quiet_style_detail::titleShare));
}

// Captions say what the buttons of the toolkit's dialogs do, as everywhere in the program.
int QuietStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* more) const
{
    return hint == SH_DialogButtonBox_ButtonsHaveIcons ? 0 : QProxyStyle::styleHint(hint, option, widget, more);
}

void QuietStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const
{
    if (element != PE_FrameWindow && element != PE_PanelTipLabel) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    const QPalette desktop = QApplication::palette();
    const Inks& inks = inksFor(desktop);
    const QRect box = option->rect;
    if (element == PE_PanelTipLabel)
        painter->fillRect(box, inks.hint);
    const bool strong = element == PE_PanelTipLabel || (option->state & State_Active);
    for (const QRect& side :
         {QRect(box.topLeft(), QSize(box.width(), 1)), QRect(box.bottomLeft(), QSize(box.width(), 1)),
          QRect(box.topLeft(), QSize(1, box.height())), QRect(box.topRight(), QSize(1, box.height()))})
        painter->fillRect(side, strong ? inks.edge : inks.rule);
}

// Every child window asks for the signs of its own menu anew, the menu bar for one before it is shown; a file dialog asks for
// its own with each button and each file, and the toolkit would read them from their pictures each time.
QIcon QuietStyle::standardIcon(StandardPixmap sign, const QStyleOption* option, const QWidget* widget) const
{
    if (const auto box = quiet_style_detail::boxSignOf(sign))
        return quiet_style_detail::iconOf(*box);
    const auto known = signs_.find(sign);
    if (known != signs_.end())
        return known->second;
    if (!quiet_style_detail::mayBeLate(sign))
        return signs_.emplace(sign, QProxyStyle::standardIcon(sign, option, widget)).first->second;
    const auto read = [this, sign] {
        return sign == SP_TitleBarMenuButton ? programIcon() : QProxyStyle::standardIcon(sign, nullptr, nullptr);
    };
    return signs_.emplace(sign, QIcon(new quiet_style_detail::LateSign(read))).first->second;
}

QRect QuietStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                 const QWidget* widget) const
{
    if (control == CC_ScrollBar)
        if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option))
            return quiet_style_detail::partOfScrollBar(*bar, part, pixelMetric(PM_ScrollBarSliderMin, bar, widget));
    return QProxyStyle::subControlRect(control, option, part, widget);
}

void QuietStyle::drawScrollBar(const QStyleOptionSlider& bar, QPainter& painter, const QWidget* widget) const
{
    const Inks& inks = inksFor(bar.palette);
    const QRect slider = subControlRect(CC_ScrollBar, &bar, SC_ScrollBarSlider, widget);
    const bool held = (bar.state & State_Sunken) != 0 && (bar.activeSubControls & SC_ScrollBarSlider) != 0;
    const bool under = (bar.state & State_MouseOver) != 0 && (bar.activeSubControls & SC_ScrollBarSlider) != 0;
    painter.fillRect(bar.rect, inks.desk);
    if ((bar.state & State_Enabled) != 0 && bar.maximum > bar.minimum)
        painter.fillRect(slider.adjusted(3, 3, -3, -3), held ? inks.accent : under ? inks.quiet : inks.edge);
}

// As in the title that a maximised child has not.
void QuietStyle::drawFrameButtons(const QStyleOptionComplex& buttons, QPainter& painter, const QWidget* widget) const
{
    const Inks& inks = inksFor(buttons.palette);
    painter.save();
    for (const auto& [part, glyph] : quiet_style_detail::frameButtons) {
        if ((buttons.subControls & part) == 0)
            continue;
        const QRect box = subControlRect(CC_MdiControls, &buttons, part, widget);
        if ((buttons.activeSubControls & part) != 0)
            painter.fillRect(box, (buttons.state & State_Sunken) != 0 ? inks.edge : inks.buttonHover);
        painter.setPen(QPen(inks.ink, std::max(1, box.height() / 22)));
        quiet_style_detail::drawGlyph(painter, glyph, box);
    }
    painter.restore();
}

void QuietStyle::drawTitleBar(const QStyleOptionTitleBar& bar, QPainter& painter, const QWidget* widget) const
{
    using namespace quiet_style_detail;
    const Inks& inks = inksFor(bar.palette);
    const bool active = (bar.titleBarState & State_Active) != 0;
    painter.save();
    painter.fillRect(bar.rect, active ? inks.accentTint : inks.desk);
    painter.fillRect(QRect(bar.rect.left(), bar.rect.top(), bar.rect.width(), active ? 2 : 1),
                     active ? inks.accent : inks.rule);
    if (!bar.icon.isNull() && (bar.titleBarFlags & Qt::WindowSystemMenuHint)) {
        const QRect box = subControlRect(CC_TitleBar, &bar, SC_TitleBarSysMenu, widget);
        standardIcon(SP_TitleBarMenuButton, nullptr, nullptr).paint(&painter, box.adjusted(1, 1, -1, -1));
    }
    painter.setPen(active ? inks.ink : inks.quiet);
    const QRect label = subControlRect(CC_TitleBar, &bar, SC_TitleBarLabel, widget);
    writeInMiddle(painter, label, titleOf(bar, widget));
    for (const SubControl part :
         {SC_TitleBarMinButton, SC_TitleBarMaxButton, SC_TitleBarNormalButton, SC_TitleBarCloseButton}) {
        if (!offered(bar, part))
            continue;
        const QRect box = subControlRect(CC_TitleBar, &bar, part, widget);
        const bool under = (bar.activeSubControls & part) != 0 && (bar.state & State_MouseOver);
        if (under)
            painter.fillRect(box, inks.buttonHover);
        painter.setPen(QPen(active ? inks.ink : inks.quiet, std::max(1, box.height() / 22)));
        drawGlyph(painter, part, box);
    }
    painter.restore();
}

} // namespace velmor::desktop
