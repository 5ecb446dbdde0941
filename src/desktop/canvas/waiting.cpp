// SPDX-License-Identifier: MIT
// On a sheet the chain tells it: a field before the one in hand is settled, one behind it has its turn later.
#include "desktop/canvas/waiting.h"

#include <algorithm>

#include "desktop/canvas/canvas_plan.h"
#include "desktop/drawing/texts.h"
#include "host/engine.h"

namespace velmor::desktop {

using host::BiText;
using host::Handle;
using host::Kind;

namespace waiting_detail {

// clang-format off
constexpr BiText laterBehind{"Espera: el diseño llega aquí después de %1.", "It waits: the design comes here after %1."};
constexpr BiText later      {"Espera: el diseño llega aquí más adelante.",  "It waits: the design comes here later on."};
constexpr BiText settled    {"Ya está en el diseño: con Alt+Retroceso se vuelve a él, paso a paso.",
                             "It is in the design already: Alt+Backspace leads back to it, step by step."};
constexpr BiText inForce    {"Es lo elegido ahora.",                        "This is what is chosen now."};
constexpr BiText notYet     {"Espera: en este punto del diseño no se usa.", "It waits: the design has no use for it at this point."};
constexpr BiText notNow     {"Ahora no se puede usar.",                     "It cannot be used just now."};
constexpr std::string_view noUse = "Sin uso";
// clang-format on

QString inLanguage(const BiText& text, bool english)
{
    return shown(english ? text.en : text.es);
}

bool isField(const host::Window& window, Handle control)
{
    return window.row(control).kind == Kind::field;
}

QString nameOf(const host::Window& window, Handle field, bool english)
{
    const std::string symbol = plainSymbol(window.row(field).symbol);
    return symbol.empty() ? inLanguage(window.row(field).meaning, english) : shown(symbol);
}

QString whyAFieldWaits(const host::Window& window, Handle field, bool english)
{
    if (window.row(field).meaning.es.starts_with(noUse))
        return {};
    const std::vector<Handle> order = host::Engine::tabOrder(window);
    const auto here = std::find(order.begin(), order.end(), field);
    const auto inHand = std::find(order.begin(), order.end(), window.focus());
    if (inHand != order.end() && here < inHand)
        return inLanguage(settled, english);
    const auto before = std::find_if(std::make_reverse_iterator(here), order.rend(),
                                     [&](Handle other) { return isField(window, other); });
    const QString name = before == order.rend() ? QString() : nameOf(window, *before, english);
    return name.isEmpty() ? inLanguage(later, english) : inLanguage(laterBehind, english).arg(name);
}

} // namespace waiting_detail

QString whyItWaits(const host::Window& window, Handle control, bool english)
{
    using namespace waiting_detail;
    const host::ControlRow& row = window.row(control);
    const bool acts = host::takesFocus(row.kind) || row.look == host::Look::toolButton;
    if (window.enabled(control) || row.clickableWhenDisabled || !acts)
        return {};
    if (host::isChosen(window, control))
        return inLanguage(inForce, english);
    if (window.role() != host::Role::sheet)
        return inLanguage(notNow, english);
    return isField(window, control) ? whyAFieldWaits(window, control, english) : inLanguage(notYet, english);
}

} // namespace velmor::desktop
