// SPDX-License-Identifier: MIT
#include "check/preset.h"

#include <algorithm>

#include "check/verdict.h"

namespace velmor::check {

namespace preset_detail {

constexpr host::BiText runs[]{{"Presets ajustados", "Presets trimmed"}, {"Sus valores", "Your values"}};

Words trimmedWords(const Preset& preset)
{
    const std::string typed = amountText(preset.typed, "ohm");
    const std::string simulated = amountText(preset.simulated, "ohm");
    if (preset.simulated == preset.typed)
        return {preset.name + " no se pudo ajustar, y queda en " + typed + ".",
                preset.name + " could not be turned, and stays at " + typed + "."};
    return {preset.name + " pasó de " + typed + " a " + simulated + ", hasta que el medio quedó en Es / 2.",
            preset.name + " turned from " + typed + " to " + simulated + ", until the middle stands at Es / 2."};
}

Words yourWords(const Preset& preset)
{
    const std::string typed = amountText(preset.typed, "ohm");
    Words words{preset.name + " como usted lo dejó, " + typed + ".", preset.name + " as you set it, " + typed + "."};
    if (preset.middle) {
        const std::string middle = amountText(*preset.middle, "V");
        const std::string half = amountText(preset.supply / 2, "V");
        words.es += " El medio descansa en " + middle + ", y Es / 2 son " + half + ".";
        words.en += " The middle rests at " + middle + ", and Es / 2 is " + half + ".";
    }
    return words;
}

} // namespace preset_detail

const host::BiText& runText(Run run)
{
    return preset_detail::runs[static_cast<std::size_t>(run)];
}

Words presetWords(const Preset& preset)
{
    if (!preset.isThere())
        return {};
    const host::BiText& run = runText(preset.run);
    const Words words =
        preset.run == Run::trimmed ? preset_detail::trimmedWords(preset) : preset_detail::yourWords(preset);
    return {std::string(run.es) + ": " + words.es, std::string(run.en) + ": " + words.en};
}

Measured roomOfMiddle(const Preset& preset)
{
    if (!preset.middle)
        return std::nullopt;
    return std::max(0.0, std::min(*preset.middle, preset.supply - *preset.middle));
}

double lackOfMiddle(const Preset& preset)
{
    return preset.middle && preset.supply > 0 ? 1 - *preset.middle * 2 / preset.supply : 0;
}

} // namespace velmor::check
