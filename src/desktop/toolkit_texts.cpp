// SPDX-License-Identifier: MIT
#include "desktop/toolkit_texts.h"

#include <QCoreApplication>
#include <QLibraryInfo>

namespace velmor::desktop {

void ToolkitTexts::speak(bool english)
{
    asked_ = true;
    if (!loaded_ && !english)
        loaded_ = spanish_.load(QStringLiteral("qtbase_es"), QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    const bool wanted = loaded_ && !english;
    if (wanted == installed_)
        return;
    installed_ = wanted;
    if (wanted)
        QCoreApplication::installTranslator(&spanish_);
    else
        QCoreApplication::removeTranslator(&spanish_);
}

void ToolkitTexts::follow(bool english)
{
    if (asked_)
        speak(english);
}

} // namespace velmor::desktop
