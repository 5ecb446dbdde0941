// SPDX-License-Identifier: MIT
// What the flags of a message box mean, and what a screen does that asks no choice and has no widgets.
#include "host/screen.h"

namespace velmor::host {

BoxButtons MessageBox::buttons() const
{
    switch (flags & 15) {
    case 1:
        return BoxButtons::okCancel;
    case 3:
        return BoxButtons::yesNoCancel;
    case 4:
        return BoxButtons::yesNo;
    default:
        return BoxButtons::ok;
    }
}

BoxIcon MessageBox::icon() const
{
    switch (flags & 0x70) {
    case 16:
        return BoxIcon::stop;
    case 32:
        return BoxIcon::question;
    case 48:
        return BoxIcon::warning;
    case 64:
        return BoxIcon::information;
    default:
        return BoxIcon::none;
    }
}

bool MessageBox::offers(Answer answer) const
{
    switch (buttons()) {
    case BoxButtons::ok:
        return answer == Answer::ok;
    case BoxButtons::okCancel:
        return answer == Answer::ok || answer == Answer::cancel;
    case BoxButtons::yesNoCancel:
        return answer != Answer::ok;
    case BoxButtons::yesNo:
        return answer == Answer::yes || answer == Answer::no;
    }
    return false;
}

Answer MessageBox::escape() const
{
    if (offers(Answer::cancel))
        return Answer::cancel;
    return offers(Answer::no) ? Answer::no : Answer::ok;
}

std::optional<std::size_t> Screen::choose(const Choice& choice)
{
    (void)choice;
    return std::nullopt;
}

std::unique_ptr<TextStore> Screen::makeTextStore(Window& window, Handle editor)
{
    (void)window;
    (void)editor;
    return std::make_unique<PlainTextStore>();
}

} // namespace velmor::host
