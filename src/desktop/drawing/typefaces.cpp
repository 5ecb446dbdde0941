// SPDX-License-Identifier: MIT
// Finds the families once and hands out fonts in whole pixels.
#include "desktop/drawing/typefaces.h"

#include <algorithm>
#include <cmath>

#include <QFontInfo>
#include <QGuiApplication>
#include <QStringList>

namespace velmor::desktop {

namespace families {

QString firstPresent(const QStringList& families)
{
    for (const QString& family : families)
        if (QFontInfo(QFont(family)).family().compare(family, Qt::CaseInsensitive) == 0)
            return family;
    return QStringLiteral("serif");
}

int wholePixels(double pixels)
{
    return std::max(1, static_cast<int>(std::lround(pixels)));
}

} // namespace families

QString drawingFamily()
{
    static const QString family = families::firstPresent(
        {QStringLiteral("TeX Gyre Termes"), QStringLiteral("TeX Gyre Schola"), QStringLiteral("Liberation Serif"),
         QStringLiteral("FreeSerif"), QStringLiteral("Noto Serif"), QStringLiteral("DejaVu Serif")});
    return family;
}

QFont drawingFont(double pixels, bool italic)
{
    static const QFont upright = [] {
        QFont font(drawingFamily());
        font.setStyleHint(QFont::Serif);
        font.setHintingPreference(QFont::PreferNoHinting);
        return font;
    }();
    QFont font(upright);
    font.setPixelSize(families::wholePixels(pixels));
    font.setItalic(italic);
    return font;
}

QFont interfaceFont(double pixels, bool bold)
{
    QFont font(QGuiApplication::font());
    font.setPixelSize(families::wholePixels(pixels));
    font.setBold(bold);
    return font;
}

} // namespace velmor::desktop
