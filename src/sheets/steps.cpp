// SPDX-License-Identifier: MIT
// The steps that slots are made of: saying, reading and writing numbers, moving on, drawing.
#include <algorithm>

#include "sheets/design_sheet.h"

namespace velmor::sheets {

using host::Handle;

// --- saying

int DesignSheet::tell(const Saying& row)
{
    if (row.place == inBox)
        return host().MsgBox(pick(row.text), row.flags, pick(row.title));
    if (!pick(row.text).empty())
        write(row.place, row.text);
    return 0;
}

const Saying* DesignSheet::saying(Handle field, When when) const
{
    const auto found = std::find_if(sheet_.sayings.begin(), sheet_.sayings.end(),
                                    [&](const Saying& row) { return row.about == field && row.when == when; });
    return found == sheet_.sayings.end() ? nullptr : &*found;
}

void DesignSheet::tell(Handle field, When when)
{
    const Handle about = saying(field, when) != nullptr ? field : host::noControl;
    for (const Saying& row : sheet_.sayings)
        if (row.about == about && row.when == when)
            tell(row);
}

void DesignSheet::hideNotes()
{
    for (const Handle note : sheet_.notes)
        hide(note);
}

// --- keys

std::int16_t DesignSheet::filteredKey(host::EventArgs& args)
{
    const rules::KeyFilterResult filtered = rules::KeyFilter(args.key);
    if (filtered.beep)
        host().Beep();
    host().values().DecimalSeparator = ".";
    setModificado(host::trueValue);
    return args.key;
}

Press DesignSheet::pressed(host::EventArgs& args)
{
    const std::int16_t key = filteredKey(args);
    if (key == escapeKey)
        return Press::escape;
    if (key != enterKey)
        return Press::nothing;
    if (isEmpty(args.control)) {
        tell(args.control, When::empty);
        return Press::nothing;
    }
    makeBare(args.control);
    return Press::enter;
}

// --- numbers

Real DesignSheet::at(Handle control) const
{
    return rules::ParseLeadingNumber(text(control));
}

Real DesignSheet::take(Handle field)
{
    makeBare(field);
    return rules::StrictNumber(text(field), decimalSeparator());
}

void DesignSheet::makeBare(Handle field)
{
    write(field, at(field));
}

std::string DesignSheet::digits(Real value) const
{
    return rules::NumberText(value, decimalSeparator());
}

std::string DesignSheet::shown(Real value) const
{
    return rules::CurrencyText(value, decimalSeparator());
}

std::string DesignSheet::whole(Real value) const
{
    return digits(rules::TruncToInteger(value));
}

bool DesignSheet::correct(Handle field, double from, double to, double otherwise)
{
    const Real value = at(field);
    if (value >= from && value <= to)
        return false;
    write(field, otherwise);
    return true;
}

bool DesignSheet::correctFrom(Handle field, double from, double otherwise)
{
    return correct(field, from, noLimit, otherwise);
}

bool DesignSheet::correct(Handle field)
{
    const ChainRow& row = chainRow(field);
    return correct(field, row.from, row.to, row.otherwise);
}

// --- moving on

const ChainRow& DesignSheet::chainRow(Handle field) const
{
    return *std::find_if(sheet_.chain.begin(), sheet_.chain.end(),
                         [field](const ChainRow& row) { return row.field == field; });
}

void DesignSheet::goTo(Handle field)
{
    show(field);
    enable(field);
    host().SetFocus(*this, field);
}

// --- the drawing

void DesignSheet::grow(Handle field)
{
    for (const host::GrowthRow& row : spec().growth)
        if (row.field == field)
            setVisible(row.part, host::belongs(*this, row));
}

void DesignSheet::growWhole()
{
    for (const host::GrowthRow& row : spec().growth)
        setVisible(row.part, host::belongs(*this, row));
}

void DesignSheet::clearDrawing()
{
    for (const host::GrowthRow& row : spec().growth)
        hide(row.part);
}

} // namespace velmor::sheets
