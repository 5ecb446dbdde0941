// SPDX-License-Identifier: MIT
// Temperature conversion: turns Fahrenheit, Kelvin or Centigrade into Centigrade for a sheet's temperature field.
#pragma once

#include <memory>

#include "host/sheet_host.h"
#include "host/window.h"
#include "rules/real.h"

namespace velmor::form22 {

enum Control : host::Handle { Command1, Command2, Command3 };

extern const host::WindowSpec spec;
std::unique_ptr<host::Window> create(host::SheetHost& host);

/// K - 273: degrees Celsius of a temperature in kelvin.
rules::Real KelvinACentigrados(rules::Real kelvin);
/// (C / (5 / 9)) + 32: degrees Fahrenheit.
rules::Real CentigradosAFahrenheit(rules::Real celsius);
/// C + 273: kelvin.
rules::Real CentigradosAKelvin(rules::Real celsius);
/// ((F - 32) x 5) / 9: degrees Celsius.
rules::Real FahrenheitACentigrados(rules::Real fahrenheit);

class Form22 final : public host::Window {
public:
    explicit Form22(host::SheetHost& host);
    void fahrenheit();
    void kelvin();
    void centigrade();

private:
    rules::Real asked(const host::BiText& prompt, std::string_view proposal);
    void store(rules::Real celsius);
};

} // namespace velmor::form22
