// SPDX-License-Identifier: MIT
// The values that the student rounds to what can be bought: the negative supply, Res, RL and the positive supply, and the
// end of the design. Leaving one of them decides by itself where the focus goes on.
#include "designs/differential/form3.h"
#include "designs/differential/form3_texts.h"
#include "sheets/formulas.h"

namespace velmor::form3 {

using host::Handle;

namespace supply {

constexpr double leastRL = 1e-08; // kohm
constexpr double leastEs = 1.0;
constexpr double leastRLcalc = 0.1; // ohm; below, the load is too heavy for the current
constexpr double emptiedEbias = 20.0;
constexpr double emptiedRes = 22.0;
constexpr double emptiedRL = 20.0;
constexpr double perKilo = 1000.0;
constexpr double microfarads = 1000000.0;
constexpr std::int32_t white = 0xFFFFFF;

} // namespace supply

using namespace supply;

// --- what the four have in common

// The slot of the field left always moves the focus, so any control that can take it serves to start the move.
void Form3::leaveTo(Handle field)
{
    for (const Handle other : spec().tabOrder)
        if (other != field && canTakeFocus(other)) {
            host().SetFocus(*this, other);
            return;
        }
}

void Form3::keyResult(host::EventArgs& args)
{
    if (entered(args))
        leaveTo(args.control);
}

// A field that was emptied gets a value and stays in hand.
bool Form3::refilled(Handle field, double value)
{
    if (!sayEmpty(field))
        return false;
    write(field, value);
    setBackColor(field, white);
    host::EventArgs args{.control = field};
    runSlot(field, host::Event::focus, args);
    host().SetFocus(*this, field);
    return true;
}

void Form3::offer(Handle field, const std::string& proposal)
{
    grow(field);
    setText(field, proposal);
    goTo(field);
}

// --- Ebias

// Text4 left: the least negative supply, and 1 V more as the proposal.
void Form3::proposeEbias()
{
    enable(Text8, Text16, Text17, Text18);
    q_.passed = false;
    q_.dQic = at(Text1);
    q_.T = at(Text6);
    q_.dVbe = at(Text7);
    if (q_.dQic != Real(0.0))
        q_.EResMin = leastERes(q_.T, q_.dVbe, q_.dQic);
    const std::string proposal = shown(q_.EResMin + 1.0);
    offer(Text8, proposal);
    setText(SSPanel1, words(texts::minimumSource) + proposal + words(texts::minimumSourceEnd));
}

void Form3::focusEbias(host::EventArgs& args)
{
    disable(Text16, Text17, Text18);
    focusField(args);
}

// The field stays enabled, although the bench that is put away disables it.
void Form3::clickEbias(host::EventArgs& args)
{
    HideBench();
    enable(Text8);
    focusEbias(args);
}

void Form3::leaveEbias()
{
    refilled(Text8, emptiedEbias);
    if (!correct(Text8) && at(Text8) < q_.EResMin)
        tell(texts::belowEResMin);
    makeBare(Text8);
    q_.Ebias = at(Text8);
    q_.QIc = at(Text9);
    proposeRes();
}

// --- Res

void Form3::proposeRes()
{
    q_.passed = false;
    if (q_.QIc != Real(0.0))
        q_.ResCalc = resOf(q_.Ebias, q_.QIc);
    const std::string proposal = shown(q_.ResCalc);
    setText(Label28, words(texts::resValue) + proposal + words(texts::resValueEnd));
    write(SSPanel1, texts::pointAtResults);
    offer(Text16, proposal);
}

void Form3::leaveRes()
{
    if (refilled(Text16, emptiedRes))
        return;
    correct(Text16);
    makeBare(Text16);
    takeRes();
    if (tooMuchQIc()) {
        tell(texts::stability);
        goTo(Text3);
        return;
    }
    if (!takeRL()) {
        disable(Text17);
        hide(Text17);
        tell(texts::insufficientQIc);
        goTo(Text9);
        return;
    }
    setText(Label29, "Rlac = " + whole(q_.RLac) + " ohms");
    const std::string proposal = shown(q_.RLcalc / perKilo);
    setText(Label30, "RL=" + proposal + " K \n" + words(texts::commercialRL));
    offer(Text17, proposal);
}

// The quiescent current follows from the resistor that the student chose.
void Form3::takeRes()
{
    q_.Res = at(Text16);
    q_.Ebias = at(Text8);
    q_.Vj = at(Text4);
    q_.TailCurrent = q_.Ebias / q_.Res;
    q_.ReDyn = sheets::junctionResistance(q_.TailCurrent / 2.0);
    q_.ERes = q_.Ebias - q_.Vj;
    setText(Label22, "r'e = " + whole(q_.ReDyn) + " ohms");
    setText(Label28, "Res: " + digits(q_.Res) + "  K\nERes: " + shown(q_.ERes) + " V");
    setText(Text9, shown(q_.TailCurrent / 2.0));
    q_.QIc = at(Text9);
    q_.IcMax = at(Text3);
}

// --- RL

// False when the load is too heavy.
bool Form3::takeRL()
{
    q_.RLw = at(Text10);
    q_.RLac = rlacOf(q_.Vg, q_.ReDyn);
    if (loadEqualsRlac(q_.RLw, q_.RLac))
        return false;
    q_.RLcalc = sheets::collectorResistor(q_.RLw * perKilo, q_.RLac);
    return q_.RLcalc >= leastRLcalc;
}

void Form3::focusRL(host::EventArgs& args)
{
    show(Label44);
    focusField(args);
}

void Form3::leaveRL()
{
    hide(Text21);
    if (refilled(Text17, emptiedRL))
        return;
    if (at(Text17) < leastRL)
        setText(Text17, shown(q_.RLcalc / perKilo + 1.0));
    takeERL();
    q_.Eopp = at(Text14);
    tellERL();
    if (q_.ERL < q_.Eopp / 2.0) {
        raiseRL();
    } else {
        takeLeast();
        q_.Eopp = benchEopp(q_.Eopp);
        setText(Label31, words(texts::leastSource) + shown(q_.EsMin) + " V");
    }
    offer(Text18, shown(q_.EsMin));
}

void Form3::takeERL()
{
    q_.RL = at(Text17);
    q_.QIc = at(Text9);
    q_.ERL = q_.QIc * q_.RL;
}

void Form3::takeLeast()
{
    q_.EQMin = Real(1.0) + q_.Eopp;
    q_.EsMin = q_.EQMin + q_.ERL;
}

void Form3::tellERL()
{
    setText(Label30, "Rl= " + digits(q_.RL) + " K\n ERl = " + shown(q_.ERL) + " Volts");
}

// The field is in hand for a moment, then Es is. What follows is worked out from the rewritten value, which is a whole number
// and may even be 0.
void Form3::raiseRL()
{
    tell(texts::lowERL);
    if (q_.QIc != Real(0.0))
        write(Text17, rlForEopp(q_.Eopp, q_.QIc));
    host::EventArgs args{.control = Text17};
    focusRL(args);
    takeERL();
    takeLeast();
}

// --- Es

void Form3::focusEs()
{
    hide(Text21);
    tellAbout(Text18);
    tellERL();
}

void Form3::keyEs(host::EventArgs& args)
{
    if (entered(args))
        goTo(Text1); // the bench may have hidden it
}

void Form3::leaveEs()
{
    disable(Text17, Text16);
    if (sayEmpty(Text18)) {
        focusEs();
        goTo(Text17);
    } else if (takeEs()) {
        finishDesign();
    }
    hide(Label44);
}

// False when a box has sent the student back.
bool Form3::takeEs()
{
    q_.passed = false;
    takeERL();
    if (at(Text18) < leastEs)
        setText(Text18, shown(q_.EsMin));
    q_.Es = at(Text18);
    q_.EcMax = at(Text2);
    q_.EQ = q_.Es - q_.ERL;
    if (q_.EQ > q_.EcMax) {
        tell(texts::highEQ);
        goTo(Text2);
        return false;
    }
    setText(Label32, "EQ1=  " + shown(q_.EQ) + "   V ");
    setText(Label35, "EQ2=  " + shown(q_.EQ) + "   V ");
    q_.Eopp = at(Text14);
    takeLeast();
    setText(Label31, words(texts::leastVoltage) + digits(q_.EsMin) + " V");
    if (q_.EQ < q_.EQMin) {
        tell(texts::lowEQ);
        write(Text18, q_.EsMin);
        goTo(Text18);
        return false;
    }
    return true;
}

// --- the end of the design

void Form3::finishDesign()
{
    const std::string rl = " RL=" + digits(q_.RL) + "  K\n ERl =" + shown(q_.ERL) + "  Volts";
    setText(Label29, rl);
    setText(Label30, rl);
    showFinishedPicture();
    hide(Image30);
    show(Image33);
    q_.S = at(Text11);
    q_.fo = at(Text13);
    q_.Rb2 = rules::CurrencyValue(q_.S * q_.Res).toDouble();
    q_.Zin = zinOf(q_.Beta, q_.ReDyn);
    q_.Cci = sheets::couplingCapacitor(q_.fo, q_.Zin);
    q_.Cco = ccoOf(q_.fo, q_.RLw);
    q_.VgFinal = vgOf(q_.RL, q_.RLw, q_.ReDyn);
    setText(Label33, "Rb2=\n" + shown(q_.Rb2) + " K");
    setText(Label38, "Cci = " + shown(q_.Cci * microfarads) + " microF");
    setText(Label40, text(Label38));
    setText(Label39, "Cco = " + shown(q_.Cco * microfarads) + " microF");
    show(Label33, Label38, Label39, Label40);
    write(Text12, q_.VgFinal);
    hide(Label42);
    host::Place place = placeOf(Label43);
    place.left = finishedLeftOfLabel43;
    setPlaceOf(Label43, place);
    q_.Eopp = benchEopp(q_.Eopp);
    q_.passed = true;
}

void Form3::showFinishedPicture()
{
    hide(Image1);
    clearDrawing();
    show(image2);
    for (const PointPlaces& row : pointPlaces)
        setPlaceOf(row.point, row.finished);
    for (const Handle point : meterPoints)
        borrowDrawing(point, Shape6);
    setPlaceOf(Image23, wavePlaces[0].finished);
    setPlaceOf(Image25, wavePlaces[1].finished);
}

} // namespace velmor::form3
