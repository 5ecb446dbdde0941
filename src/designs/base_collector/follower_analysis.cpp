// SPDX-License-Identifier: MIT
// Filling the analysis page, line by line.
#include "designs/base_collector/follower_analysis.h"

#include "designs/base_collector/follower_texts.h"

namespace velmor::base_collector {

namespace analysis_detail {

constexpr std::string_view leafWindow = "Form6";
constexpr int leafLeft = 4100;
constexpr int leafTop = 40;

} // namespace analysis_detail

using namespace analysis_detail;

std::string verdict(const sheets::DesignSheet& sheet, const Powers& powers, bool light)
{
    const auto pick = [&sheet](const BiText& text) { return std::string(sheet.pick(text)); };
    std::string text = pick(outputPower) + "\n" + pick(outputFormula) + powers.output + "\n";
    if (light)
        return text + pick(lightLoad);
    text += pick(generatorPower) + "\n" + pick(powers.generatorFormula) + powers.generator + "\n";
    return text + pick(heavyLoad) + "\n" + pick(inputFormula) + powers.input;
}

host::Window* prepareLeaf(host::SheetHost& host)
{
    host::Window* leaf = host.Load(leafWindow);
    if (leaf == nullptr)
        return nullptr;
    host::Place place = leaf->place();
    place.left = leafLeft;
    place.top = leafTop;
    leaf->setPlace(place);
    return leaf;
}

void openLeaf(host::SheetHost& host, std::string_view text, std::initializer_list<std::string_view> pictures)
{
    host.Unload(leafWindow);
    host::Window* leaf = prepareLeaf(host);
    if (leaf == nullptr)
        return;
    host.setText(leafWindow, "Label1", text);
    for (const std::string_view picture : pictures)
        host.setVisible(leafWindow, picture, true);
    host.Show(*leaf);
}

} // namespace velmor::base_collector
