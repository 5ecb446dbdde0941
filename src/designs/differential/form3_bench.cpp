// SPDX-License-Identifier: MIT
// The simulated bench: switching it on and off, the sinusoids at the inputs, the probe at the outputs, the meter and the
// common mode. What it answers stands in the tables of the instruments.
#include "designs/differential/form3.h"
#include "designs/differential/form3_texts.h"

#include <algorithm>

namespace velmor::form3 {

using host::Handle;

namespace bench {

struct FunctionButton {
    Handle button = host::noControl;
    Function function = Function::none;
};
constexpr FunctionButton functionButtons[] = {
    {c1, Function::V}, {c4, Function::A}, {c5, Function::W}, {C3, Function::Z}};

/// Image that stands for a signal at an input.
struct SignalMark {
    Signal signal = Signal::none;
    Handle input1 = host::noControl;
    Handle input2 = host::noControl;
};
constexpr SignalMark signalMarks[] = {
    {Signal::A, Image16, Image18}, {Signal::B, Image20, Image21}, {Signal::ground, Image19, Image17}};

std::string pageOf(const ProbeRow& row, std::int16_t language)
{
    const bool isDifference = row.point == Image24 || row.point == Image4;
    const host::BiText& opening = isDifference ? texts::betweenCollectors : texts::toGround;
    std::string page(opening.in(language));
    page += row.inputs == InputSignals{Signal::A, Signal::B} ? "\n\nVg = 100\nEnt 1 = 0.1 V\nEnt 2 = 0.15 V\n"
                                                             : "\n\nVg = 100\nEnt 1 = 0.1 V\n";
    page += row.reading;
    if (row.waves == Waves::neither)
        page.append("\n\n").append(texts::zeroExplained.in(language));
    return page;
}

} // namespace bench

// --- on and off

void Form3::hideReading()
{
    hide(Shape12, Shape13, Shape14, Shape15, Shape16);
}

// The page stands where the fields are while these are hidden.
void Form3::showFields(bool shown)
{
    for (Handle field = Text1; field <= Text15; ++field)
        setVisible(field, shown);
    setVisible(Label6, shown);
    setVisible(Label11, shown);
    setPlaceOf(SSPanel4, shown ? pageBelowTools : pageInsteadOfFields);
}

void Form3::HideBench()
{
    hideReading();
    hide(Image3, c1, C3, c4, c5, SSPanel2, Option1, Option2, Label37);
    hide(Label36, SSPanel3, Image14, Image15, c6, c7);
    hide(Image16, Image17, Image18, Image19, Image20, Image21);
    showFields(true);
    disable(Text8);
}

void Form3::powerOn(host::EventArgs& args)
{
    write(SSPanel4, finished() ? texts::meterPage : texts::benchPage);
    hide(Image23, Image25);
    enable(c1, C3, c4, c5, c6, c7);
    setChecked(Option1, true);
    setChecked(Option2, false);
    setText(SSPanel2, "");
    show(SSPanel4);
    if (finished())
        showMeter();
    if (visible(Image1)) {
        showGenerator();
        if (args.control == Image30)
            hide(Text16);
    }
}

void Form3::showMeter()
{
    hide(Image24);
    for (const GeneratorPart& row : generatorParts)
        setPlaceOf(row.part, row.besideMeter);
    borrowDrawing(Image3, Shape5);
    show(Image3, c1, c4, c5, C3, SSPanel2, Option1, Option2);
}

void Form3::showGenerator()
{
    for (const GeneratorPart& row : generatorParts)
        setPlaceOf(row.part, row.onFace);
    setText(SSPanel3, "");
    show(Image24, SSPanel3, Image3, Image14, Image15, c6, c7);
    showFields(false);
}

void Form3::powerOff()
{
    HideBench();
    if (finished())
        hide(SSPanel4);
}

// What the mouse does with a click and a double click on the instrument, and with a click on the sheet.
void Form3::runKey(host::EventArgs& args)
{
    if (args.key == backKey) {
        HideBench();
        return;
    }
    if (visible(Image3)) {
        powerOff();
        return;
    }
    for (const Handle instrument : {Image30, Image33})
        if (visible(instrument)) {
            args.control = instrument;
            powerOn(args);
            return;
        }
}

// The function in force cannot be pressed again.
void Form3::selectFunction(host::EventArgs& args)
{
    for (const bench::FunctionButton& row : bench::functionButtons)
        setEnabled(row.button, row.button != args.control);
    setText(SSPanel2, "");
    hideReading();
    if (args.control == c4)
        show(Image4);
}

InputSignals Form3::inputs() const
{
    InputSignals result;
    for (const bench::SignalMark& mark : bench::signalMarks) {
        if (visible(mark.input1))
            result.input1 = mark.signal;
        if (visible(mark.input2))
            result.input2 = mark.signal;
    }
    return result;
}

void Form3::setInputs(const InputSignals& signals)
{
    for (const bench::SignalMark& mark : bench::signalMarks) {
        setVisible(mark.input1, mark.signal == signals.input1);
        setVisible(mark.input2, mark.signal == signals.input2);
    }
}

void Form3::dropOnInput1(host::EventArgs& args)
{
    if (args.source != Image14 && args.source != Image15)
        return;
    enable(c6, c7);
    setInputs({args.source == Image14 ? Signal::A : Signal::B, Signal::ground});
    write(SSPanel3, texts::testInOut);
    if (args.source == Image14)
        write(SSPanel4, texts::teachingPage);
}

void Form3::dropOnInput2(host::EventArgs& args)
{
    if (args.source != Image14 && args.source != Image15)
        return;
    enable(c6, c7);
    const Signal dropped = args.source == Image14 ? Signal::A : Signal::B;
    const Signal atInput1 = inputs().input1;
    const bool joins = atInput1 == dropped || (atInput1 == Signal::A && dropped == Signal::B);
    setInputs({joins ? atInput1 : Signal::ground, dropped});
    if (atInput1 != dropped)
        write(SSPanel4, texts::teachingPage);
}

void Form3::clickPoint(host::EventArgs& args)
{
    probe(args.control);
    measure(args.control);
}

void Form3::probe(Handle point)
{
    const ProbeRow* row = probeRow(point, inputs());
    if (row == nullptr)
        return;
    const std::int16_t language = row->englishOnly ? host::trueValue : host().values().LanguageIsEnglish;
    setText(SSPanel4, bench::pageOf(*row, language));
    write(SSPanel3, row->panel);
    showWaves(row->waves, point);
}

// One wave stands at the output that was touched; two stand at outputs 1 and 2.
void Form3::showWaves(Waves waves, Handle point)
{
    if (waves == Waves::asTheyAre)
        return;
    const auto placeAt = [this](std::size_t output) {
        return finished() ? wavePlaces[output].finished : wavePlaces[output].didactic;
    };
    const std::size_t output = point == Image22 ? 0 : point == Image26 ? 1 : 2;
    const bool two = waves == Waves::both;
    setPlaceOf(Image23, placeAt(two ? 0 : output));
    setPlaceOf(Image25, placeAt(two ? 1 : output));
    setVisible(Image23, two || waves == Waves::Image23);
    setVisible(Image25, two || waves == Waves::Image25);
}

// The function in force is the one whose button is disabled.
Function Form3::function() const
{
    for (const bench::FunctionButton& row : bench::functionButtons)
        if (!enabled(row.button))
            return row.function;
    return Function::none;
}

void Form3::measure(Handle point)
{
    if (!visible(SSPanel2) || !isMeterPoint(point))
        return;
    hide(Label37);
    hideReading();
    const MeterRow* row = meterRow(point, checked(Option2) ? Current::dc : Current::ac, function());
    if (row == nullptr || (row->finishedOnly && !finished())) {
        setText(SSPanel2, "");
        return;
    }
    const Real value = row->value(q_);
    setText(SSPanel2, row->whole ? whole(value) : shown(value));
    show(row->unit.onFace);
    write(SSPanel1, row->unit.prompt);
    if (!row->comment.empty()) {
        setText(Label37, row->comment);
        show(Label37);
    }
}

// Both inputs carry the same sinusoid: the emitters follow it, the difference is nothing.
void Form3::clickCommonMode(host::EventArgs& args)
{
    const InputSignals now = inputs();
    if (now.input1 != now.input2 || now.input1 == Signal::none || now.input1 == Signal::ground)
        return;
    setEnabled(c6, args.control != c6);
    setEnabled(c7, args.control != c7);
    write(SSPanel3, texts::testInEmitter);
    if (args.control == c7)
        write(SSPanel4, texts::cmrrPage);
}

void Form3::clickEmitter(host::EventArgs& args)
{
    if (!finished())
        tellCommonMode();
    measure(args.control);
}

void Form3::tellCommonMode()
{
    if (!enabled(c6)) {
        setText(SSPanel3, "SMC = 2");
        write(SSPanel4, texts::smcPage);
    } else if (!enabled(c7)) {
        setText(SSPanel3, "CMRR = 100");
        write(SSPanel4, texts::cmrrMeasured);
    }
}

} // namespace velmor::form3
