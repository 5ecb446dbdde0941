// SPDX-License-Identifier: MIT
// The tables of properties.
#include "console/properties.h"

#include <algorithm>
#include <span>
#include <utility>

#include "console/sheet_access.h"
#include "console/walk.h"
#include "rules/numbers.h"

namespace velmor::console {

namespace properties_detail {

using host::Handle;
using host::Place;
using host::Window;

std::string text(Window& window, Handle control)
{
    if (window.row(control).kind != host::Kind::list)
        return window.wholeText(control);
    const host::ListState& list = window.list(control);
    const auto at = static_cast<std::size_t>(list.selected);
    return list.selected >= 0 && at < list.items.size() ? list.items[at] : std::string();
}

std::string truth(bool value)
{
    return value ? "true" : "false";
}

std::string visible(Window& window, Handle control)
{
    return truth(window.visible(control));
}

std::string enabled(Window& window, Handle control)
{
    return truth(window.enabled(control));
}

std::string checked(Window& window, Handle control)
{
    return truth(window.checked(control));
}

std::string tag(Window& window, Handle control)
{
    return window.tag(control);
}

template <int Place::*Part>
std::string place(Window& window, Handle control)
{
    return std::to_string(window.placeOf(control).*Part);
}

template <std::int32_t host::Control::*Colour>
std::string colour(Window& window, Handle control)
{
    return colourText(window.control(control).*Colour);
}

std::string fontSize(Window& window, Handle control)
{
    return std::to_string(window.control(control).fontSize);
}

std::string focus(Window& window, Handle control)
{
    return truth(window.focus() == control);
}

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
    {"left",      place<&Place::left>},
    {"top",       place<&Place::top>},
    {"width",     place<&Place::width>},
    {"height",    place<&Place::height>},
    {"backcolor", colour<&host::Control::backColor>},
    {"forecolor", colour<&host::Control::foreColor>},
    {"fontsize",  fontSize},
    {"focus",     focus},
};
// clang-format on

std::string windowCaption(Walk&, Window& window)
{
    return window.caption();
}

std::string windowVisible(Walk&, Window& window)
{
    return truth(window.shown());
}

std::string windowState(Walk&, Window& window)
{
    return std::to_string(window.windowState());
}

template <int Place::*Part>
std::string windowPlace(Walk&, Window& window)
{
    return std::to_string(window.place().*Part);
}

std::string windowFocus(Walk& walk, Window& window)
{
    return truth(&walk.current() == &window);
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
    {"left",        windowPlace<&Place::left>},
    {"top",         windowPlace<&Place::top>},
    {"width",       windowPlace<&Place::width>},
    {"height",      windowPlace<&Place::height>},
    {"focus",       windowFocus},
};
// clang-format on

template <auto Value>
std::string wholeValue(const host::ProgramValues& values)
{
    return std::to_string(values.*Value);
}

template <std::string host::ProgramValues::*Value>
std::string textValue(const host::ProgramValues& values)
{
    return values.*Value;
}

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
    {"LanguageIsEnglish",     wholeValue<&host::ProgramValues::LanguageIsEnglish>},
    {"ScreenMode",            wholeValue<&host::ProgramValues::ScreenMode>},
    {"ArchivoGuia",           textValue<&host::ProgramValues::ArchivoGuia>},
    {"TemperaturaCompartida", temperaturaCompartida},
    {"DecimalSeparator",      textValue<&host::ProgramValues::DecimalSeparator>},
};
// clang-format on

template <class Row>
const Row& find(std::span<const Row> rows, std::string_view name)
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

} // namespace velmor::console
