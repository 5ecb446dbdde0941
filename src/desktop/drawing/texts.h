// SPDX-License-Identifier: MIT
// Between the program's texts (UTF-8) and Qt's, and the places where Qt would otherwise read markup or shortcuts into a
// text that a student or a file has written.
#pragma once

#include <string>
#include <string_view>

#include <QString>
#include <QStringList>

namespace velmor::desktop {

inline QString shown(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string held(const QString& text)
{
    const QByteArray bytes = text.toUtf8();
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

/// A window's title: Qt reads "[*]" as the place of a mark for changed documents unless it stands twice.
inline QString shownTitle(std::string_view text)
{
    return shown(text).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"));
}

/// A tool tip wraps only as rich text, so the plain text is escaped and said to be rich.
inline QString shownTip(const QString& text)
{
    constexpr qsizetype shortLine = 64; // the toolkit would break it into three
    QStringList lines = text.toHtmlEscaped().split(QLatin1Char('\n'));
    for (QString& line : lines)
        if (line.size() <= shortLine)
            line.replace(QLatin1Char(' '), QStringLiteral("&nbsp;"));
    return QStringLiteral("<qt>%1</qt>").arg(lines.join(QStringLiteral("<br>")));
}

} // namespace velmor::desktop
