// SPDX-License-Identifier: MIT
// The tables of properties.
#include "console/properties.h"

#include <algorithm>
#include <span>
#include <utility>

#include "console/sheet_access.h"
#include "console/walk.h"
#include "frame/rules/numbers.h"

namespace velmor::console {

namespace properties_detail {

using host::Handle;
using host::Window;

std::string text(Window& window, Handle control)
{
    if (window.row(control).kind != host::Kind::list)
        return window.wholeText(control);
    const host::ListState& list = window.list(control);
    const auto at = static_cast<std::size_t>(list.selected);
    return list.selected >= 0 && at < list.items.size() ? list.items[at] : std::string();
}

std::string visible(Window& window, Handle control) { return std::string(truthText(window.visible(control))); }
std::string enabled(Window& window, Handle control) { return std::string(truthText(window.enabled(control))); }
std::string checked(Window& window, Handle control) { return std::string(truthText(window.checked(control))); }
std::string tag(Window& window, Handle control) { return window.tag(control); }
std::string left(Window& window, Handle control) { return std::to_string(window.placeOf(control).left); }
std::string top(Window& window, Handle control) { return std::to_string(window.placeOf(control).top); }
std::string width(Window& window, Handle control) { return std::to_string(window.placeOf(control).width); }
std::string height(Window& window, Handle control) { return std::to_string(window.placeOf(control).height); }
std::string backColor(Window& window, Handle control) { return colourText(window.control(control).backColor); }
std::string foreColor(Window& window, Handle control) { return colourText(window.control(control).foreColor); }
std::string fontSize(Window& window, Handle control) { return std::to_string(window.control(control).fontSize); }
std::string focus(Window& window, Handle control) { return std::string(truthText(window.focus() == control)); }

struct ControlProperty {
    std::string_view name;
    std::string (*read)(Window&, Handle);
};

// clang-format off
constexpr ControlProperty controlProperties[] = {
    {"text",      text},
    {"caption",   text},
    {"visible",   visible},
    {"enabled",   enabled},
    {"checked",   checked},
    {"tag",       tag},
    {"left",      left},
    {"top",       top},
    {"width",     width},
    {"height",    height},
    {"backcolor", backColor},
    {"forecolor", foreColor},
    {"fontsize",  fontSize},
    {"focus",     focus},
};
// clang-format on

std::string windowCaption(Walk&, Window& window) { return window.caption(); }
std::string windowVisible(Walk&, Window& window) { return std::string(truthText(window.shown())); }
std::string windowState(Walk&, Window& window) { return std::to_string(window.windowState()); }
std::string windowLeft(Walk&, Window& window) { return std::to_string(window.place().left); }
std::string windowTop(Walk&, Window& window) { return std::to_string(window.place().top); }
std::string windowWidth(Walk&, Window& window) { return std::to_string(window.place().width); }
std::string windowHeight(Walk&, Window& window) { return std::to_string(window.place().height); }
std::string windowFocus(Walk& walk, Window& window)
{
    return std::string(truthText(&walk.current() == &window));
}

struct WindowProperty {
    std::string_view name;
    std::string (*read)(Walk&, Window&);
};

// clang-format off
constexpr WindowProperty windowProperties[] = {
    {"caption",     windowCaption},
    {"text",        windowCaption},
    {"visible",     windowVisible},
    {"windowstate", windowState},
    {"left",        windowLeft},
    {"top",         windowTop},
    {"width",       windowWidth},
    {"height",      windowHeight},
    {"focus",       windowFocus},
};
// clang-format on

std::string languageIsEnglish(const host::ProgramValues& values) { return std::to_string(values.LanguageIsEnglish); }
std::string screenMode(const host::ProgramValues& values) { return std::to_string(values.ScreenMode); }
std::string archivoGuia(const host::ProgramValues& values) { return values.ArchivoGuia; }
std::string decimalSeparator(const host::ProgramValues& values) { return values.DecimalSeparator; }
std::string temperaturaCompartida(const host::ProgramValues& values)
{
    return rules::NumberText(values.TemperaturaCompartida, ".");
}

struct ProgramProperty {
    std::string_view name;
    std::string (*read)(const host::ProgramValues&);
};

// clang-format off
constexpr ProgramProperty programProperties[] = {
    {"LanguageIsEnglish",     languageIsEnglish},
    {"ScreenMode",            screenMode},
    {"ArchivoGuia",           archivoGuia},
    {"TemperaturaCompartida", temperaturaCompartida},
    {"DecimalSeparator",      decimalSeparator},
};
// clang-format on

template <class Row> const Row& find(std::span<const Row> rows, std::string_view name)
{
    const auto found =
        std::find_if(rows.begin(), rows.end(), [name](const Row& row) { return host::sameName(row.name, name); });
    if (found == rows.end())
        throw WalkError("unknown property " + inQuotes(name));
    return *found;
}

} // namespace properties_detail

std::string propertyText(Walk& walk, host::Window& window, std::string_view word)
{
    using namespace properties_detail;
    const PropertyWord wanted = propertyWord(word);
    if (wanted.owner == ".")
        return find<WindowProperty>(windowProperties, wanted.property).read(walk, window);
    const host::Handle control = walk.control(window, wanted.owner);
    return find<ControlProperty>(controlProperties, wanted.property).read(window, control);
}

std::string propertyText(Walk& walk, std::string_view word)
{
    using namespace properties_detail;
    const PropertyWord wanted = propertyWord(word);
    if (host::sameName(wanted.owner, "program"))
        return find<ProgramProperty>(programProperties, wanted.property).read(walk.engine().values());
    if (host::sameName(wanted.owner, "sheet"))
        return sheetProperty(walk.current(), wanted.property);
    return propertyText(walk, walk.current(), word);
}

void checkProperty(const host::WindowSpec& window, std::string_view word)
{
    using namespace properties_detail;
    const PropertyWord wanted = propertyWord(word);
    if (wanted.owner == ".") {
        find<WindowProperty>(windowProperties, wanted.property);
        return;
    }
    find<ControlProperty>(controlProperties, wanted.property);
    for (const host::ControlRow& row : window.controls)
        if (host::sameName(row.name, wanted.owner))
            return;
    throw WalkError("unknown control " + inQuotes(wanted.owner) + " of " + std::string(window.name));
}

std::string_view truthText(bool value)
{
    return value ? "true" : "false";
}

} // namespace velmor::console
