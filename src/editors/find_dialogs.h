// SPDX-License-Identifier: MIT
// The two small dialogs that search the editor of the language. They always work on the default instance of that editor,
// never on the one that opened them.
#pragma once

#include <optional>
#include <string>

#include "host/sheet_host.h"
#include "host/window.h"

namespace velmor::find_dialogs {

/// Controls of `frmReplace`; `frmFind` has those up to `cmdCancel`.
enum Control : host::Handle {
    txtFind,
    chkIgnoreCase,
    cmdFind,
    cmdCancel,
    findControls,
    txtReplace = findControls,
    cmdReplace,
    Label1,
    Label2
};

extern const host::WindowSpec frmFind;
extern const host::WindowSpec frmReplace;

class SearchDialog final : public host::Window {
public:
    SearchDialog(host::SheetHost& host, const host::WindowSpec& spec);

    void load();
    void activate();
    void find();
    void replace();
    void cancel();

private:
    host::Window* editor() const;
    bool hitStands(host::Window& editor);
    void runFind(host::Window& editor);
    void sayNotFound();
    bool replaces() const;
};

/// Where `wanted` stands in `text` from `start` on. With `upperCased` the text, and not the search text, is taken to upper
/// case: a search text with small letters is then never found, and it is to stay so.
std::optional<std::size_t> findIn(const std::u32string& text, const std::u32string& wanted, std::size_t start,
                                  bool upperCased);

} // namespace velmor::find_dialogs
