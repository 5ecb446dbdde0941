// SPDX-License-Identifier: MIT
// The program's questions as real dialogs: message box, file, input, colour, font. Texts appear to the letter.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include <QPoint>
#include <QString>
#include <QStringList>

#include "desktop/windows/quiet_box.h"
#include "host/screen.h"

class QWidget;

namespace velmor::desktop {

host::Answer askMessage(QWidget* parent, const host::MessageBox& box, const Stage& stage);

/// `folder` is where the dialog starts when the program names none; `proposed` the name of a file that is saved.
std::optional<std::string> askFile(QWidget* parent, const host::FileDialog& dialog, const QString& folder,
                                   const QString& proposed = {});

/// `at` is the wished left top corner on the screen; the box is kept inside the screen and off the field in hand.
std::optional<std::string> askInput(QWidget* parent, const host::InputBox& box, QPoint at, const Stage& stage);

/// One button below the other; the index of the one pressed.
std::optional<std::size_t> askChoice(QWidget* parent, const host::Choice& choice, const Stage& stage);

std::optional<std::int32_t> askColour(QWidget* parent, std::int32_t initial);
std::optional<host::Font> askFont(QWidget* parent, const host::Font& initial);

/// "description|pattern|..." as the file dialog wants it, each pattern in any capitals.
QStringList nameFilters(const std::string& filter);
/// The ending, without a point, that the pattern of a name filter asks for; empty when it takes any.
QString endingOf(const QString& nameFilter);

} // namespace velmor::desktop
