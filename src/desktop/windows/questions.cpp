// SPDX-License-Identifier: MIT
// Message box, input box, colour and font. The file dialog stands in file_question.cpp.
#include "desktop/windows/questions.h"

#include <algorithm>

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QFontDialog>
#include <QFontInfo>
#include <QFontMetrics>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include "desktop/drawing/texts.h"

namespace velmor::desktop {

namespace questions_detail {

using host::Answer;

struct ButtonRow {
    Answer answer;
    QMessageBox::ButtonRole role;
    host::BiText caption;
};

// clang-format off
constexpr ButtonRow buttonRows[] = {
    // answer        role                     Spanish      English
    {Answer::ok,     QMessageBox::AcceptRole, {"&Aceptar",  "&OK"}},
    {Answer::yes,    QMessageBox::YesRole,    {"&Sí",       "&Yes"}},
    {Answer::no,     QMessageBox::NoRole,     {"&No",       "&No"}},
    {Answer::cancel, QMessageBox::RejectRole, {"&Cancelar", "&Cancel"}},
};
// clang-format on

constexpr int choiceMargin = 16;
constexpr int choiceWidth = 460;

QString inLanguage(const host::BiText& text, bool english)
{
    return shown(english ? text.en : text.es);
}

/// A short text under a long title: the title shall be read, too.
void makeRoomForTitle(QMessageBox& dialog)
{
    constexpr int buttonsOfTheFrame = 130;
    const int wanted = QFontMetrics(dialog.font()).horizontalAdvance(dialog.windowTitle()) + buttonsOfTheFrame;
    if (auto* grid = qobject_cast<QGridLayout*>(dialog.layout()))
        grid->addItem(new QSpacerItem(wanted, 0, QSizePolicy::Minimum), grid->rowCount(), 0, 1, grid->columnCount());
}

QMessageBox::Icon iconOf(host::BoxIcon icon)
{
    switch (icon) {
    case host::BoxIcon::stop:
        return QMessageBox::Critical;
    case host::BoxIcon::question:
        return QMessageBox::Question;
    case host::BoxIcon::warning:
        return QMessageBox::Warning;
    case host::BoxIcon::information:
        return QMessageBox::Information;
    case host::BoxIcon::none:
        break;
    }
    return QMessageBox::NoIcon;
}

} // namespace questions_detail

host::Answer askMessage(QWidget* parent, const host::MessageBox& box, bool english)
{
    using namespace questions_detail;
    QMessageBox dialog(parent);
    dialog.setObjectName(QStringLiteral("messageBox"));
    dialog.setTextFormat(Qt::PlainText);
    dialog.setIcon(iconOf(box.icon()));
    dialog.setWindowTitle(shownTitle(box.title));
    dialog.setText(shown(box.text));
    std::vector<std::pair<QPushButton*, host::Answer>> made;
    for (const ButtonRow& row : buttonRows)
        if (box.offers(row.answer))
            made.emplace_back(dialog.addButton(inLanguage(row.caption, english), row.role), row.answer);
    const std::size_t first = box.secondIsDefault() && made.size() > 1 ? 1 : 0;
    dialog.setDefaultButton(made[first].first);
    makeRoomForTitle(dialog);
    for (const auto& [button, answer] : made)
        if (answer == box.escape())
            dialog.setEscapeButton(button);
    dialog.exec();
    for (const auto& [button, answer] : made)
        if (button == dialog.clickedButton())
            return answer;
    return box.escape();
}

std::optional<std::string> askInput(QWidget* parent, const host::InputBox& box, QPoint at, bool english)
{
    using namespace questions_detail;
    QDialog dialog(parent);
    dialog.setObjectName(QStringLiteral("inputBox"));
    dialog.setWindowTitle(shownTitle(box.title));
    auto* prompt = new QLabel(shown(box.prompt));
    prompt->setTextFormat(Qt::PlainText);
    prompt->setWordWrap(true);
    prompt->setMinimumWidth(320);
    auto* edit = new QLineEdit(shown(box.initial));
    edit->setAccessibleName(shown(box.prompt));
    edit->selectAll();
    auto* buttons = new QDialogButtonBox;
    buttons->addButton(inLanguage(buttonRows[0].caption, english), QDialogButtonBox::AcceptRole);
    buttons->addButton(inLanguage(buttonRows[3].caption, english), QDialogButtonBox::RejectRole);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto* column = new QVBoxLayout(&dialog);
    column->addWidget(prompt);
    column->addWidget(edit);
    column->addWidget(buttons);
    edit->setFocus();
    dialog.move(insideScreen(at, dialog.sizeHint()));
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return held(edit->text());
}

std::optional<std::size_t> askChoice(QWidget* parent, const host::Choice& choice, bool english)
{
    using namespace questions_detail;
    QDialog dialog(parent);
    dialog.setObjectName(QStringLiteral("choiceBox"));
    dialog.setWindowTitle(shownTitle(choice.title));
    auto* column = new QVBoxLayout(&dialog);
    column->setContentsMargins(choiceMargin, choiceMargin, choiceMargin, choiceMargin);
    auto* text = new QLabel(shown(choice.text));
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    text->setMinimumWidth(choiceWidth);
    column->addWidget(text);
    column->addSpacing(choiceMargin / 2);
    std::optional<std::size_t> chosen;
    for (std::size_t i = 0; i < choice.options.size(); ++i) {
        auto* button = new QPushButton(shown(choice.options[i]).replace(QLatin1Char('&'), QStringLiteral("&&")));
        button->setMinimumHeight(button->sizeHint().height() + choiceMargin / 2);
        QObject::connect(button, &QPushButton::clicked, &dialog, [&dialog, &chosen, i] {
            chosen = i;
            dialog.accept();
        });
        column->addWidget(button);
    }
    column->addSpacing(choiceMargin / 2);
    auto* buttons = new QDialogButtonBox;
    buttons->addButton(inLanguage(buttonRows[3].caption, english), QDialogButtonBox::RejectRole);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    column->addWidget(buttons);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return chosen;
}

std::optional<std::int32_t> askColour(QWidget* parent, std::int32_t initial)
{
    QColorDialog dialog(QColor::fromRgb(static_cast<QRgb>(initial)), parent);
    dialog.setObjectName(QStringLiteral("colourDialog"));
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return static_cast<std::int32_t>(dialog.selectedColor().rgb() & 0xFFFFFFU);
}

std::optional<host::Font> askFont(QWidget* parent, const host::Font& initial)
{
    QFont font(shown(initial.name));
    font.setStyleHint(QFont::Monospace);
    // The dialog begins with the letters that are seen, not with a name that this machine lacks.
    font.setFamily(QFontInfo(font).family());
    font.setPointSizeF(initial.size);
    font.setBold(initial.bold);
    font.setItalic(initial.italic);
    font.setUnderline(initial.underline);
    font.setStrikeOut(initial.strikeout);
    QFontDialog dialog(font, parent);
    dialog.setObjectName(QStringLiteral("fontDialog"));
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    const QFont chosen = dialog.selectedFont();
    host::Font answer = initial;
    answer.name = held(chosen.family());
    answer.size = chosen.pointSizeF() > 0 ? chosen.pointSizeF() : initial.size;
    answer.bold = chosen.bold();
    answer.italic = chosen.italic();
    answer.underline = chosen.underline();
    answer.strikeout = chosen.strikeOut();
    return answer;
}

QPoint insideScreen(QPoint wished, QSize size)
{
    const QScreen* screen = QGuiApplication::screenAt(wished + QPoint(size.width() / 2, size.height() / 2));
    if (screen == nullptr)
        screen = QGuiApplication::primaryScreen();
    if (screen == nullptr)
        return wished;
    const QRect room = screen->availableGeometry();
    const int left = std::clamp(wished.x(), room.left(), std::max(room.left(), room.right() + 1 - size.width()));
    const int top = std::clamp(wished.y(), room.top(), std::max(room.top(), room.bottom() + 1 - size.height()));
    return {left, top};
}

} // namespace velmor::desktop
