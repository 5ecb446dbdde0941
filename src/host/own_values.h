// SPDX-License-Identifier: MIT
// The values that a window holds beside its controls (flags, names, working numbers), told as tables of members, so that
// they can be copied, compared and written by whoever does not know the window. Knows no window and no state.
#pragma once

#include <array>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace velmor::host {

enum class OwnKind : std::uint8_t {
    flag,   ///< bool
    whole,  ///< 16-bit integer
    number, ///< floating point, or a type made of one with `value()`
    text,
};

/// One member of a record, behind pointers that forget its type. All but a text go by double, which holds each exactly.
struct OwnRow {
    std::string_view name{};
    OwnKind kind = OwnKind::number;
    double (*number)(const void* record) = nullptr;
    void (*setNumber)(void* record, double value) = nullptr;
    const std::string& (*text)(const void* record) = nullptr;
    void (*setText)(void* record, std::string_view value) = nullptr;
};

/// The rows of one type of record.
template <class Record, std::size_t Count>
struct OwnTable {
    std::array<OwnRow, Count> rows;
};

namespace own_detail {

template <class Member>
struct Taken;
template <class Owner, class Type>
struct Taken<Type Owner::*> {
    using Record = Owner;
    using Value = Type;
};

template <class Value>
constexpr OwnKind kindOf()
{
    if constexpr (std::same_as<Value, bool>)
        return OwnKind::flag;
    else if constexpr (std::same_as<Value, std::int16_t>)
        return OwnKind::whole;
    else if constexpr (std::same_as<Value, std::string>)
        return OwnKind::text;
    else
        return OwnKind::number;
}

template <auto Member>
double numberOf(const void* record)
{
    using Own = Taken<decltype(Member)>;
    const auto& value = static_cast<const typename Own::Record*>(record)->*Member;
    if constexpr (requires { value.value(); })
        return value.value();
    else
        return static_cast<double>(value);
}

template <auto Member>
void setNumber(void* record, double value)
{
    using Own = Taken<decltype(Member)>;
    auto& member = static_cast<typename Own::Record*>(record)->*Member;
    if constexpr (std::same_as<typename Own::Value, bool>)
        member = value != 0.0;
    else
        member = static_cast<typename Own::Value>(value);
}

template <auto Member>
const std::string& textOf(const void* record)
{
    return static_cast<const typename Taken<decltype(Member)>::Record*>(record)->*Member;
}

template <auto Member>
void setText(void* record, std::string_view value)
{
    static_cast<typename Taken<decltype(Member)>::Record*>(record)->*Member = value;
}

/// Becomes whatever a member is, to find out how many members an aggregate takes.
struct Anything {
    template <class Type>
    operator Type() const; // NOLINT(google-explicit-constructor): that is what it is for
};

template <class Record, std::size_t... Index>
constexpr bool takes(std::index_sequence<Index...>)
{
    return requires
    {
        Record{((void)Index, Anything{})...};
    };
}

constexpr bool namesDiffer(std::span<const OwnRow> rows)
{
    for (std::size_t i = 0; i < rows.size(); ++i)
        for (std::size_t k = i + 1; k < rows.size(); ++k)
            if (rows[i].name == rows[k].name)
                return false;
    return true;
}

template <class One, class... Others>
constexpr bool isOneOf = (std::same_as<One, Others> || ...);
template <class... Rows>
constexpr bool allDiffer = true;
template <class First, class... Rest>
constexpr bool allDiffer<First, Rest...> = !isOneOf<First, Rest...> && allDiffer<Rest...>;

} // namespace own_detail

/// A row of a table before it forgets which member it is about.
template <auto Member>
struct OwnMember {
    using Record = typename own_detail::Taken<decltype(Member)>::Record;
    std::string_view name;

    constexpr OwnRow row() const
    {
        using namespace own_detail;
        constexpr OwnKind kind = kindOf<typename Taken<decltype(Member)>::Value>();
        if constexpr (kind == OwnKind::text)
            return {.name = name, .kind = kind, .text = textOf<Member>, .setText = setText<Member>};
        else
            return {.name = name, .kind = kind, .number = numberOf<Member>, .setNumber = setNumber<Member>};
    }
};

/// A row of a table: a member and its name in files.
template <auto Member>
constexpr OwnMember<Member> own(std::string_view name)
{
    return {name};
}

/// True for an aggregate of exactly so many members, each a value of its own (no arrays, nothing nested).
template <class Record, std::size_t Count>
constexpr bool hasMembers = own_detail::takes<Record>(std::make_index_sequence<Count>{}) &&
                            !own_detail::takes<Record>(std::make_index_sequence<Count + 1>{});

/// Some members of a record. No member and no name comes twice.
template <class Record, class... Rows>
requires(std::same_as<Record, typename Rows::Record>&&...) &&
    own_detail::allDiffer<Rows...> consteval OwnTable<Record, sizeof...(Rows)> someMembers(Rows... rows)
{
    const OwnTable<Record, sizeof...(Rows)> table{{rows.row()...}};
    if (!own_detail::namesDiffer(table.rows))
        throw "a name comes twice";
    return table;
}

/// All members of a record: the table does not compile when one is left out.
template <class Record, class... Rows>
requires hasMembers<Record, sizeof...(Rows)>
consteval OwnTable<Record, sizeof...(Rows)> everyMember(Rows... rows)
{
    return someMembers<Record>(rows...);
}

/// Whether a step that is undone takes the values back.
enum class Undo : std::uint8_t { takesBack, leaves };

/// The record of one window with its table, which lives as long as the program.
struct OwnView {
    void* record = nullptr;
    std::span<const OwnRow> rows{};
    Undo undo = Undo::takesBack;
};

} // namespace velmor::host
