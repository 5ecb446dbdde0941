// SPDX-License-Identifier: MIT
// A file browser whose chosen file is dropped on the picture of a computer to be shown or run.
#pragma once

#include <memory>
#include <string>

#include "host/sheet_host.h"
#include "host/window.h"

namespace velmor::frm_drag {

enum Control : host::Handle { Drive1, Dir1, File1, Picture1, Image1, Label1 };

extern const host::WindowSpec spec;
std::unique_ptr<host::Window> create(host::SheetHost& host);

class FrmDrag final : public host::Window {
public:
    explicit FrmDrag(host::SheetHost& host);
    void load();
    void activate();
    void driveChanged();
    void folderChanged();
    void dragEntersComputer();
    void dragLeavesComputer();
    void dropped(host::EventArgs& args);

private:
    void openFolder(const std::string& folder);
    std::string chosenPath();
};

} // namespace velmor::frm_drag
