// SPDX-License-Identifier: MIT
// What the menus of the main window hold, as data: the design items (new and open) and the captions of all others.
#pragma once

#include <array>
#include <string_view>

#include "frame/mdi_form1_controls.h"
#include "host/bitext.h"

namespace velmor::main_window {

/// One design: its item among the new sheets, its open items, and what they write. Captions are empty where none is
/// written.
struct DesignItem {
    host::Handle newItem = host::noControl;
    std::array<host::Handle, 2> openItems{host::noControl, host::noControl};
    std::string_view sheet{};
    host::BiText itemCaption{};
    host::BiText windowCaption{};
    bool unloadsForm7 = false;
};

/// The class A items cross: `siete` belongs to `ochoB`, `ocho` to `sieteB`.
extern const std::array<DesignItem, 15> designItems;

/// The design whose new or open item this is; null when it is another item.
const DesignItem* designOfNewItem(host::Handle item);
const DesignItem* designOfOpenItem(host::Handle item);
const DesignItem* designOfSheet(std::string_view sheet);

struct ItemCaption {
    host::Handle item = host::noControl;
    host::BiText caption{};
};

/// Captions of the items that are neither designs nor heads of groups.
extern const std::array<ItemCaption, 29> itemCaptions;

/// What an item is called in either language; empty for designs and heads of groups.
host::BiText captionsOf(host::Handle item);

/// An item that needs windows which the program may not have; it is disabled at load when it has none of them.
struct NeededWindow {
    host::Handle item = host::noControl;
    std::array<std::string_view, 2> windows{};
};
extern const std::array<NeededWindow, 8> neededWindows;

} // namespace velmor::main_window
