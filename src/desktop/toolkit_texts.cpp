// SPDX-License-Identifier: MIT
#include "desktop/toolkit_texts.h"

#include <QCoreApplication>
#include <QLibraryInfo>

#include "desktop/drawing/texts.h"
#include "host/bitext.h"

namespace velmor::desktop {

namespace toolkit_texts_detail {

// clang-format off
constexpr host::BiText gaps[] = {
    {"Páginas",                          "Pages"},
    {"Páginas:",                         "Page Set:"},
    {"No",                               "Off"},
    {"Encuadernado por el lado largo",   "Long side binding"},
    {"Encuadernado por el lado corto",   "Short side binding"},
    {"Impares",                          "Odd Pages"},
    {"Pares",                            "Even Pages"},
    {"Todas",                            "All Pages"},
    {"Página actual",                    "Current Page"},
};
constexpr std::string_view printDialog = "QPrintSettingsOutput";
// clang-format on

} // namespace toolkit_texts_detail

QString GapsInSpanish::translate(const char* context, const char* source, const char*, int) const
{
    using namespace toolkit_texts_detail;
    if (context == nullptr || source == nullptr || context != printDialog)
        return {};
    for (const host::BiText& text : gaps)
        if (text.en == source)
            return shown(text.es);
    return {};
}

void ToolkitTexts::speak(bool english)
{
    asked_ = true;
    if (!loaded_ && !english)
        loaded_ = spanish_.load(QStringLiteral("qtbase_es"), QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    const bool wanted = loaded_ && !english;
    if (wanted == installed_)
        return;
    installed_ = wanted;
    for (QTranslator* texts : {&spanish_, static_cast<QTranslator*>(&gaps_)}) {
        if (wanted)
            QCoreApplication::installTranslator(texts);
        else
            QCoreApplication::removeTranslator(texts);
    }
}

void ToolkitTexts::follow(bool english)
{
    if (asked_)
        speak(english);
}

} // namespace velmor::desktop
