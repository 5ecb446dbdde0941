// SPDX-License-Identifier: MIT
// The process-wide values. One object holds them and is handed down, so that two programs can run side by side.
#pragma once

#include <cstdint>
#include <string>

namespace velmor::host {

/// Values that all windows of one program share. Sheets share nothing else.
struct ProgramValues {
    std::int16_t LanguageIsEnglish = 0;  ///< -1 English, else Spanish
    std::uint8_t ScreenMode = 0;         ///< 0 or 1, stored as `Pantalla`
    std::string ArchivoGuia;             ///< bare name of the guide that the next editor opens
    double TemperaturaCompartida = 75.0; ///< default of a sheet's temperature field, degrees Celsius
    std::string DecimalSeparator = ".";  ///< what number-to-text conversion writes as point
    std::string MeasurementSystem = "1"; ///< "0" metric
};

} // namespace velmor::host
