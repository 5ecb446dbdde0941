// SPDX-License-Identifier: MIT
#include "desktop/toolkit_texts.h"

#include <QCoreApplication>
#include <QLibraryInfo>

#include "desktop/drawing/texts.h"
#include "host/bitext.h"

namespace velmor::desktop {

namespace toolkit_texts_detail {

// clang-format off
struct GapRow {
    std::string_view context;
    host::BiText text;
};
constexpr std::string_view printDialog = "QPrintSettingsOutput";
constexpr std::string_view keys = "QShortcut"; ///< menus name the keys as tips and pages do, before and after the first dialog
constexpr GapRow gaps[] = {
    {printDialog, {"Páginas",                        "Pages"}},
    {printDialog, {"Páginas:",                       "Page Set:"}},
    {printDialog, {"No",                             "Off"}},
    {printDialog, {"Encuadernado por el lado largo", "Long side binding"}},
    {printDialog, {"Encuadernado por el lado corto", "Short side binding"}},
    {printDialog, {"Impares",                        "Odd Pages"}},
    {printDialog, {"Pares",                          "Even Pages"}},
    {printDialog, {"Todas",                          "All Pages"}},
    {printDialog, {"Página actual",                  "Current Page"}},
    {keys,        {"Ctrl",                           "Ctrl"}},
    {keys,        {"Shift",                          "Shift"}},
    {keys,        {"Alt",                            "Alt"}},
};
// clang-format on

} // namespace toolkit_texts_detail

QString GapsInSpanish::translate(const char* context, const char* source, const char*, int) const
{
    using namespace toolkit_texts_detail;
    if (context == nullptr || source == nullptr)
        return {};
    for (const GapRow& row : gaps)
        if (row.context == context && row.text.en == source)
            return shown(row.text.es);
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
