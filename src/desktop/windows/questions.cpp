// SPDX-License-Identifier: MIT
// Message box, input box, colour and font. The file dialog stands in file_question.cpp.
#include "desktop/windows/questions.h"

#include <vector>

#include <QColorDialog>
#include <QFontDialog>
#include <QFontInfo>
#include <QLineEdit>
#include <QPushButton>

#include "desktop/drawing/texts.h"

namespace velmor::desktop {

namespace questions_detail {

using host::Answer;

struct ButtonRow {
    Answer answer;
    host::BiText caption;
};

// clang-format off
constexpr ButtonRow buttonRows[] = {
    // answer        Spanish      English
    {Answer::ok,     {"&Aceptar",  "&OK"}},
    {Answer::yes,    {"&Sí",       "&Yes"}},
    {Answer::no,     {"&No",       "&No"}},
    {Answer::cancel, {"&Cancelar", "&Cancel"}},
};
// clang-format on

QPushButton* addButton(QuietBox& dialog, const ButtonRow& row, bool english)
{
    return dialog.addButton(shown(english ? row.caption.en : row.caption.es));
}

} // namespace questions_detail

host::Answer askMessage(QWidget* parent, const host::MessageBox& box, const Stage& stage)
{
    using namespace questions_detail;
    QuietBox dialog(parent, stage, shown(box.title), box.icon());
    dialog.setObjectName(QStringLiteral("messageBox"));
    dialog.setText(shown(box.text));
    host::Answer answer = box.escape();
    for (const ButtonRow& row : buttonRows)
        if (box.offers(row.answer))
            QObject::connect(addButton(dialog, row, stage.english), &QPushButton::clicked, &dialog,
                             [&dialog, &answer, given = row.answer] {
                                 answer = given;
                                 dialog.accept();
                             });
    const std::vector<QPushButton*>& made = dialog.buttons();
    QPushButton* first = made[box.secondIsDefault() && made.size() > 1 ? 1 : 0];
    first->setDefault(true);
    first->setFocus();
    dialog.settle();
    return dialog.exec() == QDialog::Accepted ? answer : box.escape();
}

std::optional<std::string> askInput(QWidget* parent, const host::InputBox& box, QPoint at, const Stage& stage)
{
    using namespace questions_detail;
    QuietBox dialog(parent, stage, shown(box.title));
    dialog.setObjectName(QStringLiteral("inputBox"));
    dialog.setText(shown(box.prompt));
    auto* edit = new QLineEdit(shown(box.initial));
    edit->setAccessibleName(shown(box.prompt));
    edit->setMinimumWidth(20 * edit->fontMetrics().averageCharWidth());
    edit->selectAll();
    dialog.add(edit);
    QPushButton* accept = addButton(dialog, buttonRows[0], stage.english);
    QObject::connect(accept, &QPushButton::clicked, &dialog, &QDialog::accept);
    QObject::connect(addButton(dialog, buttonRows[3], stage.english), &QPushButton::clicked, &dialog, &QDialog::reject);
    accept->setDefault(true);
    edit->setFocus();
    dialog.settleAt(at);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return held(edit->text());
}

std::optional<std::size_t> askChoice(QWidget* parent, const host::Choice& choice, const Stage& stage)
{
    using namespace questions_detail;
    QuietBox dialog(parent, stage, shown(choice.title), host::BoxIcon::question);
    dialog.setObjectName(QStringLiteral("choiceBox"));
    dialog.setText(shown(choice.text));
    std::optional<std::size_t> chosen;
    for (std::size_t i = 0; i < choice.options.size(); ++i) {
        auto* button = new QPushButton(shown(choice.options[i]).replace(QLatin1Char('&'), QStringLiteral("&&")));
        button->setMinimumHeight(button->fontMetrics().height() * 7 / 4);
        QObject::connect(button, &QPushButton::clicked, &dialog, [&dialog, &chosen, i] {
            chosen = i;
            dialog.accept();
        });
        dialog.add(button);
        if (i == 0)
            button->setFocus();
    }
    QObject::connect(addButton(dialog, buttonRows[3], stage.english), &QPushButton::clicked, &dialog, &QDialog::reject);
    dialog.settle();
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

} // namespace velmor::desktop
