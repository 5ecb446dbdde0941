// SPDX-License-Identifier: MIT
// Search, replacement and tables of the two dialogs.
#include "editors/find_dialogs.h"

#include <algorithm>

#include "editors/editor.h"
#include "host/engine.h"

namespace velmor::find_dialogs {

using host::BiText;
using host::Event;
using host::Kind;
using host::slot;

namespace texts {

struct CaptionRow {
    host::Handle control;
    BiText caption;
};

// clang-format off
constexpr BiText findTitle{.es = "Buscando a alguien...", .en = "Looking for someone..."};
constexpr BiText replaceTitle{.es = "Reemplazar", .en = "Replace"};
constexpr CaptionRow captions[] = {
    {cmdFind,       {.es = "Buscar",                       .en = "Find"}},
    {cmdCancel,     {.es = "Cancelar",                     .en = "Cancel"}},
    {chkIgnoreCase, {.es = "Ignorar Mayúsculas/Minúsculas", .en = "Ignore Word"}},
    {cmdReplace,    {.es = "Reemplazar",                   .en = "Replace"}},
    {Label1,        {.es = "Buscar",                       .en = "Find"}},
    {Label2,        {.es = "Reemplazar con...",            .en = "Replace with.."}},
};
// clang-format on

constexpr std::string_view boxTitle = "Buscar";
constexpr std::string_view notFound = "No se ha encontrado ";
constexpr BiText notFoundForReplace{.es = "No se ha encontrado ", .en = "No Found "};
constexpr std::string_view nothingReplaced = "No found ";
constexpr int notFoundFlags = 64;
constexpr std::string_view applicationTitle = "Velmor";
constexpr int findTop = 48; // pixels
constexpr int findWidth = 200;

} // namespace texts

namespace search {

char32_t upper(char32_t letter)
{
    switch (letter) {
    case U'š':
    case U'œ':
    case U'ž':
        return letter - 1;
    case U'ÿ':
        return U'Ÿ';
    default:
        break;
    }
    const bool small = (letter >= U'a' && letter <= U'z') || (letter >= U'à' && letter <= U'þ' && letter != U'÷');
    return small ? letter - 32 : letter;
}

} // namespace search

std::optional<std::size_t> findIn(const std::u32string& text, const std::u32string& wanted, std::size_t start,
                                  bool upperCased)
{
    const auto same = [upperCased](char32_t inText, char32_t inWanted) {
        return (upperCased ? search::upper(inText) : inText) == inWanted;
    };
    if (wanted.empty() || start > text.size())
        return std::nullopt;
    const auto from = text.begin() + static_cast<std::ptrdiff_t>(start);
    const auto at = std::search(from, text.end(), wanted.begin(), wanted.end(), same);
    if (at == text.end())
        return std::nullopt;
    return static_cast<std::size_t>(at - text.begin());
}

SearchDialog::SearchDialog(host::SheetHost& host, const host::WindowSpec& spec) : host::Window(host, spec) {}

bool SearchDialog::replaces() const
{
    return controlCount() > findControls;
}

void SearchDialog::load()
{
    if (replaces())
        return;
    host::Place wished = place();
    wished.top = texts::findTop;
    wished.width = texts::findWidth;
    setPlace(wished);
}

void SearchDialog::activate()
{
    setCaption(host().pick(replaces() ? texts::replaceTitle : texts::findTitle));
    for (const texts::CaptionRow& row : texts::captions)
        if (row.control < controlCount())
            setText(row.control, host().pick(row.caption));
}

host::Window* SearchDialog::editor() const
{
    return host().find(host().pick({.es = "frmEdito1", .en = "frmEdito3"}));
}

void SearchDialog::cancel()
{
    host().Hide(*this);
}

void SearchDialog::find()
{
    host().Hide(*this);
    if (text(txtFind).empty())
        return;
    if (host::Window* searched = editor())
        runFind(*searched);
    else
        sayNotFound();
}

/// Whether the selection is what the dialog looks for.
bool SearchDialog::hitStands(host::Window& editor)
{
    const host::TextStore& store = editor.store(editors::txtEdit);
    const std::u32string wanted = host::toCodePoints(text(txtFind));
    if (store.selectionLength() != wanted.size())
        return false;
    const std::u32string selected = host::toCodePoints(store.slice(store.selectionStart(), store.selectionLength()));
    return findIn(selected, wanted, 0, checked(chkIgnoreCase)).has_value();
}

// A search goes on behind a hit that still stands, else from the caret; there is no wrapping.
void SearchDialog::runFind(host::Window& editor)
{
    host::TextStore& store = editor.store(editors::txtEdit);
    const std::u32string wanted = host::toCodePoints(text(txtFind));
    const std::u32string whole = host::toCodePoints(store.all());
    const std::size_t start = store.selectionStart() + (hitStands(editor) ? wanted.size() : 0);
    if (const auto hit = findIn(whole, wanted, start, checked(chkIgnoreCase))) {
        store.select(*hit, wanted.size());
        return;
    }
    store.select(whole.size(), 0);
    sayNotFound();
}

void SearchDialog::sayNotFound()
{
    const std::string_view words = replaces() ? host().pick(texts::notFoundForReplace) : texts::notFound;
    host().MsgBox(std::string(words) + text(txtFind), texts::notFoundFlags, texts::boxTitle);
}

// A hit that the student sees selected is the one to be replaced; otherwise the next one is looked for.
void SearchDialog::replace()
{
    host().Hide(*this);
    if (text(txtFind).empty())
        return;
    host::Window* searched = editor();
    if (searched == nullptr)
        sayNotFound();
    else if (!hitStands(*searched))
        runFind(*searched);
    if (searched == nullptr || searched->store(editors::txtEdit).selectionLength() == 0) {
        host().MsgBox(std::string(texts::nothingReplaced) + text(txtFind), 0, texts::applicationTitle);
        return;
    }
    searched->store(editors::txtEdit).replaceSelection(text(txtReplace));
    host().engine().programEdited(*searched, editors::txtEdit);
}

namespace tables {

// clang-format off
constexpr host::ControlRow findRows[] = {
    {.id = txtFind, .name = "txtFind", .kind = Kind::field, .place = {300, 300, 5400, 420},
     .meaning = {.es = "Texto que se busca", .en = "Text to look for"}},
    {.id = chkIgnoreCase, .name = "chkIgnoreCase", .kind = Kind::check, .place = {300, 870, 5400, 390},
     .text = "Ignorar Mayúsculas/Minúsculas"},
    {.id = cmdFind, .name = "cmdFind", .kind = Kind::button, .place = {2100, 1470, 1725, 480}, .text = "Buscar"},
    {.id = cmdCancel, .name = "cmdCancel", .kind = Kind::button, .place = {3975, 1470, 1725, 480}, .text = "Cancelar"},
};
constexpr host::ControlRow replaceRows[] = {
    {.id = txtFind, .name = "txtFind", .kind = Kind::field, .place = {2250, 300, 3900, 420},
     .meaning = {.es = "Texto que se busca", .en = "Text to look for"}},
    {.id = chkIgnoreCase, .name = "chkIgnoreCase", .kind = Kind::check, .place = {300, 1470, 5850, 390},
     .text = "Ignorar Mayúsculas/Minúsculas"},
    {.id = cmdFind, .name = "cmdFind", .kind = Kind::button, .place = {300, 2070, 1800, 480}, .text = "Buscar"},
    {.id = cmdCancel, .name = "cmdCancel", .kind = Kind::button, .place = {4350, 2070, 1800, 480}, .text = "Cancelar"},
    {.id = txtReplace, .name = "txtReplace", .kind = Kind::field, .place = {2250, 870, 3900, 420},
     .meaning = {.es = "Texto nuevo", .en = "New text"}},
    {.id = cmdReplace, .name = "cmdReplace", .kind = Kind::button, .place = {2325, 2070, 1800, 480}, .text = "Reemplazar"},
    {.id = Label1, .name = "Label1", .kind = Kind::label, .place = {300, 330, 1800, 360}, .text = "Buscar"},
    {.id = Label2, .name = "Label2", .kind = Kind::label, .place = {300, 900, 1800, 360}, .text = "Reemplazar con..."},
};
static_assert(host::rowsInOrder(findRows) && host::rowsInOrder(replaceRows));

constexpr host::SlotRow findSlots[] = {
    {host::noControl, Event::load,     slot<&SearchDialog::load>},
    {host::noControl, Event::activate, slot<&SearchDialog::activate>},
    {cmdFind,         Event::click,    slot<&SearchDialog::find>},
    {cmdCancel,       Event::click,    slot<&SearchDialog::cancel>},
};
constexpr host::SlotRow replaceSlots[] = {
    {host::noControl, Event::load,     slot<&SearchDialog::load>},
    {host::noControl, Event::activate, slot<&SearchDialog::activate>},
    {cmdFind,         Event::click,    slot<&SearchDialog::find>},
    {cmdCancel,       Event::click,    slot<&SearchDialog::cancel>},
    {cmdReplace,      Event::click,    slot<&SearchDialog::replace>},
};
constexpr host::Handle findOrder[] = {txtFind, chkIgnoreCase, cmdFind, cmdCancel};
constexpr host::Handle replaceOrder[] = {txtFind, txtReplace, chkIgnoreCase, cmdFind, cmdReplace, cmdCancel};
// clang-format on

template <const host::WindowSpec& Spec>
std::unique_ptr<host::Window> create(host::SheetHost& host)
{
    return std::make_unique<SearchDialog>(host, Spec);
}

} // namespace tables

const host::WindowSpec frmFind{.name = "frmFind",
                               .role = host::Role::tool,
                               .caption = "Buscando a alguien...",
                               .place = {0, 0, 6000, 2250},
                               .controls = tables::findRows,
                               .slots = tables::findSlots,
                               .tabOrder = tables::findOrder,
                               .create = tables::create<frmFind>};
const host::WindowSpec frmReplace{.name = "frmReplace",
                                  .role = host::Role::tool,
                                  .caption = "Reemplazar",
                                  .place = {0, 0, 6450, 2850},
                                  .controls = tables::replaceRows,
                                  .slots = tables::replaceSlots,
                                  .tabOrder = tables::replaceOrder,
                                  .create = tables::create<frmReplace>};

} // namespace velmor::find_dialogs
