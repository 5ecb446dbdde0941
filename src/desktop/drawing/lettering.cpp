// SPDX-License-Identifier: MIT
// A memory of set texts for the screen; paper and files get the text itself, so that it can be searched there.
#include "desktop/drawing/lettering.h"

#include <QHash>
#include <QPaintEngine>
#include <QPainter>
#include <QStaticText>
#include <QTextLayout>
#include <QTextOption>

namespace velmor::desktop {

namespace lettering {

constexpr qsizetype mostTexts = 3000;

struct Key {
    QString text;
    QFont font;
    double width;
    int flags;
    bool operator==(const Key&) const = default;
};

size_t qHash(const Key& key, size_t seed = 0)
{
    return qHashMulti(seed, key.text, key.font.pixelSize(), key.font.italic(), key.font.bold(), key.width, key.flags);
}

struct Letters {
    QStaticText text;
    double ascent; ///< of its first line: letters of another typeface may stand in it and be taller
};

double ascentOf(const Key& key)
{
    QTextLayout layout(key.text, key.font);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    return line.isValid() ? line.ascent() : 0.0;
}

Letters set(const Key& key)
{
    QStaticText letters(QString(key.text).replace(QLatin1Char('\n'), QChar::LineSeparator));
    letters.setTextFormat(Qt::PlainText);
    QTextOption option(static_cast<Qt::Alignment>(key.flags & Qt::AlignHorizontal_Mask));
    option.setWrapMode((key.flags & Qt::TextWordWrap) != 0 ? QTextOption::WordWrap : QTextOption::ManualWrap);
    letters.setTextOption(option);
    if (key.width >= 0.0)
        letters.setTextWidth(key.width);
    letters.prepare(QTransform(), key.font);
    return {letters, ascentOf(key)};
}

const Letters& known(const Key& key)
{
    static QHash<Key, Letters> texts;
    const auto found = texts.constFind(key);
    if (found != texts.constEnd())
        return *found;
    if (texts.size() > mostTexts)
        texts.clear();
    return *texts.insert(key, set(key));
}

/// A screen that is only moved, not turned or scaled, takes letters as they were set.
bool isPlainScreen(const QPainter& painter)
{
    const QPaintEngine* engine = painter.paintEngine();
    return engine != nullptr && engine->type() == QPaintEngine::Raster &&
           painter.worldTransform().type() <= QTransform::TxTranslate;
}

} // namespace lettering

void writeLine(QPainter& painter, QPointF baseline, const QString& text, const QFont& font)
{
    painter.setFont(font);
    if (!lettering::isPlainScreen(painter)) {
        painter.drawText(baseline, text);
        return;
    }
    const lettering::Key key{text, font, -1.0, 0};
    const lettering::Letters& letters = lettering::known(key);
    painter.drawStaticText(baseline - QPointF(0.0, letters.ascent), letters.text);
}

void writeBlock(QPainter& painter, const QRectF& room, const QRectF& box, int flags, const QString& text,
                const QFont& font)
{
    painter.setFont(font);
    if (lettering::isPlainScreen(painter))
        painter.drawStaticText(QPointF(room.left(), box.top()),
                               lettering::known({text, font, room.width(), flags}).text);
    else
        painter.drawText(room, flags | Qt::TextDontClip, text);
}

void writeInMiddle(QPainter& painter, const QRect& room, const QString& text)
{
    if (!lettering::isPlainScreen(painter)) {
        painter.drawText(room, Qt::AlignCenter | Qt::TextSingleLine,
                         painter.fontMetrics().elidedText(text, Qt::ElideRight, room.width()));
        return;
    }
    const QStaticText* letters = &lettering::known({text, painter.font(), -1.0, 0}).text;
    if (letters->size().width() > room.width())
        letters = &lettering::known(
                       {painter.fontMetrics().elidedText(text, Qt::ElideRight, room.width()), painter.font(), -1.0, 0})
                       .text;
    const QPointF spare((room.width() - letters->size().width()) / 2.0,
                        (room.height() - letters->size().height()) / 2.0);
    painter.drawStaticText((room.topLeft() + spare).toPoint(), *letters);
}

} // namespace velmor::desktop
