// SPDX-License-Identifier: MIT
#include "desktop/canvas/first_pictures.h"

#include <algorithm>
#include <utility>

namespace velmor::desktop {

namespace first_pictures_detail {

// Where the window lies and what it is called does not show on the sheet.
template <class Kept>
void leaveWindowOut(std::vector<Kept>& list)
{
    std::erase_if(list, [](const Kept& kept) {
        return kept.key.control == host::noControl && kept.key.attribute != host::Attribute::focus;
    });
}

} // namespace first_pictures_detail

SheetFace faceOf(const host::Window& window, const host::Place& part, const View& view, double pixelRatio,
                 std::vector<bool> widgets)
{
    SheetFace face{.state = host::copyOf(window),
                   .widgets = std::move(widgets),
                   .part = part,
                   .pixelsPerTwip = view.pixelsPerTwip,
                   .pixelRatio = pixelRatio,
                   .inks = view.inks,
                   .languageIsEnglish = view.languageIsEnglish};
    first_pictures_detail::leaveWindowOut(face.state.numbers);
    first_pictures_detail::leaveWindowOut(face.state.texts);
    return face;
}

FirstPictures::FirstPictures()
{
    forgetting_.setSingleShot(true);
    forgetting_.setInterval(kept);
    forgetting_.callOnTimeout([this] { entries_.clear(); });
}

std::deque<FirstPictures::Entry>::iterator FirstPictures::entryOf(const SheetFace& face)
{
    return std::find_if(entries_.begin(), entries_.end(), [&](const Entry& entry) { return entry.face == face; });
}

const RunPicture* FirstPictures::find(const SheetFace& face)
{
    forgetting_.start();
    const auto entry = entryOf(face);
    return entry == entries_.end() || entry->picture.isNull() ? nullptr : &entry->picture;
}

bool FirstPictures::returns(const SheetFace& face)
{
    if (entryOf(face) != entries_.end())
        return true;
    entries_.push_back({face, RunPicture()});
    if (entries_.size() > mostFaces)
        entries_.pop_front();
    return false;
}

void FirstPictures::keep(const SheetFace& face, RunPicture picture)
{
    const auto entry = entryOf(face);
    if (entry != entries_.end() && bytes() + picture.bytes() <= mostBytes)
        entry->picture = std::move(picture);
}

std::size_t FirstPictures::pictures() const
{
    return static_cast<std::size_t>(
        std::count_if(entries_.begin(), entries_.end(), [](const Entry& entry) { return !entry.picture.isNull(); }));
}

std::size_t FirstPictures::bytes() const
{
    std::size_t sum = 0;
    for (const Entry& entry : entries_)
        sum += entry.picture.bytes();
    return sum;
}

} // namespace velmor::desktop
