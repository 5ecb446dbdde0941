// SPDX-License-Identifier: MIT
// Answers by chance, and the folder in which the files of the play lie.
#include "player/player_screen.h"

#include <cstdlib>
#include <fstream>
#include <stdlib.h>

#include "places.h"

namespace velmor::player {

namespace screen_detail {

namespace fs = std::filesystem;

constexpr std::size_t longestClipboard = 2000;

void put(const fs::path& path, std::string_view bytes)
{
    std::ofstream(path, std::ios::binary) << bytes;
}

// In memory where there is such a place: a million saves shall not wear out a disk.
fs::path newFolder()
{
    std::error_code ignored;
    const fs::path memory = "/dev/shm";
    const fs::path parent = fs::is_directory(memory, ignored) ? memory : fs::temp_directory_path();
    std::string name = (parent / "velmor-player-XXXXXX").string();
    if (::mkdtemp(name.data()) == nullptr)
        name = fs::temp_directory_path().string();
    return name;
}

} // namespace screen_detail

Playground::Playground() : path_(screen_detail::newFolder())
{
    using namespace screen_detail;
    fs::create_directories(path_ / "Archivos");
    fs::create_directories(path_ / "folder");
    for (const auto& guide : fs::directory_iterator(places::source() + "/guides")) {
        fs::copy_file(guide.path(), path_ / guide.path().filename(), fs::copy_options::skip_existing);
        fs::copy_file(guide.path(), path_ / "Archivos" / guide.path().filename(), fs::copy_options::skip_existing);
    }
    std::string circuit;
    for (int line = 0; line < 60; ++line)
        circuit += std::to_string(line * 7 % 40) + (line % 5 == 0 ? " mA" : "") + "\r\n";
    put(path_ / "circuit.RPC", circuit);
    put(path_ / "short.RPC", "10\r\n20 V\r\n");
    put(path_ / "feeds.RPC", "1\n2\n3\n4\n5\n6\n7\n8\n");
    put(path_ / "binary.RPC", std::string("\0\x01\xFF\r\n\x80\x81\xFE\0\r\n", 11));
    put(path_ / "empty.RPC", "");
    put(path_ / "long.RPC", std::string(70'000, '7'));
    put(path_ / "huge.RPC", "1\r\n");
    fs::resize_file(path_ / "huge.RPC", std::uintmax_t{1} << 30);
    put(path_ / "text.txt", "tensi\xF3n\r\nde la se\xF1"
                            "al\r\n");
    put(path_ / "utf8.txt", "\xEF\xBB\xBFΩ líneas\n\n\n");
    put(path_ / "picture.bmp", "BM");
    put(path_ / "program.exe", "MZ");
    put(path_ / "circuit.ewb", "");
    for (const char* name :
         {"circuit.RPC", "short.RPC", "feeds.RPC", "binary.RPC", "empty.RPC", "long.RPC", "huge.RPC", "text.txt",
          "utf8.txt", "saved1.RPC", "saved2.CEC", "saved3", "folder", "none/none.RPC", "", "a.b"})
        files_.push_back((path_ / name).string());
}

Playground::~Playground()
{
    std::error_code ignored;
    if (path_.filename().string().starts_with("velmor-player-"))
        std::filesystem::remove_all(path_, ignored);
}

void PlayerScreen::something()
{
    ++questions;
    if (meanwhile && chance_.in(5))
        meanwhile();
}

host::Answer PlayerScreen::messageBox(const host::MessageBox& box)
{
    something();
    constexpr host::Answer all[] = {host::Answer::ok, host::Answer::cancel, host::Answer::yes, host::Answer::no};
    host::Answer answer = chance_.one(all);
    while (!box.offers(answer))
        answer = chance_.one(all);
    return answer;
}

std::optional<std::string> PlayerScreen::fileDialog(const host::FileDialog&)
{
    something();
    if (chance_.in(25))
        return std::nullopt;
    return chance_.one(ground_.files());
}

std::optional<std::string> PlayerScreen::inputBox(const host::InputBox& box)
{
    something();
    if (chance_.in(15))
        return std::nullopt;
    return chance_.in(30) ? box.initial : plausibleNumber(chance_);
}

std::optional<std::int32_t> PlayerScreen::colourDialog(std::int32_t initial)
{
    something();
    if (chance_.in(30))
        return std::nullopt;
    return chance_.in(20) ? initial : static_cast<std::int32_t>(chance_.below(0x1000000));
}

std::optional<host::Font> PlayerScreen::fontDialog(const host::Font& initial)
{
    something();
    if (chance_.in(30))
        return std::nullopt;
    host::Font font = initial;
    font.size = chance_.between(1, 72);
    font.bold = chance_.in(50);
    return font;
}

int PlayerScreen::printedWidth(const host::Font& font, std::string_view text)
{
    return static_cast<int>(static_cast<double>(text.size()) * font.size * 12);
}

void PlayerScreen::setClipboardText(std::string_view text)
{
    clipboard_ = text.size() <= screen_detail::longestClipboard ? text : std::string_view("too long");
}

void PlayerScreen::popupMenu(host::Window& owner, host::Handle menu)
{
    popupOwner = &owner;
    popup = menu;
}

void PlayerScreen::windowGone(host::Window& window)
{
    if (popupOwner == &window)
        popupOwner = nullptr;
}

std::string usualNumber(Chance& chance)
{
    // clang-format off
    static constexpr const char* numbers[] = {
        "1",   "2",    "3",   "5",   "9",  "10",  "12",  "15",  "18",  "20",  "24",  "30",  "33",  "40",    "47",   "50",   "60",
        "75",  "80",   "90",  "100", "120", "150", "200", "300", "470", "500", "1000", "2000", "10000", "0.01", "0.05", "0.1",
        "0.3", "0.5",  "0.6", "1.5", "2.2", "2.5", "2.7", "3.3", "4.7", "6.8", "7.5", "8",   "16"};
    // clang-format on
    return chance.one(numbers);
}

std::string plausibleNumber(Chance& chance)
{
    static constexpr const char* odd[] = {
        "0",      "-1", "",   "1e3", "1.2.3", "99999999",        "0.000001", ".", "-",    "&HFFFF", "1e308",
        "1e-300", "Si", "Ge", "1,5", "32768", "922337203685477", "ñ",        "Ω", "12 V", "s/uso"};
    if (chance.in(88))
        return usualNumber(chance);
    if (chance.in(50))
        return chance.one(odd);
    return std::to_string(chance.between(0, 400)) + "." + std::to_string(chance.between(0, 99));
}

} // namespace velmor::player
