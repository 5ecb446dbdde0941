// SPDX-License-Identifier: MIT
// The values that the student rounds to what can be bought: the negative supply, Res, RL and the positive supply, and the
// end of the design. Leaving one of them decides by itself where the focus goes on.
#include "designs/differential/form3.h"
#include "designs/differential/form3_texts.h"

namespace velmor::form3 {

using host::BiText;
using host::Handle;
using sheets::digits;
using sheets::isEmpty;
using sheets::makeBare;
using sheets::number;
using sheets::writeNumber;

namespace supply {

constexpr double leastValue = 1e-08;
constexpr double leastEs = 1.0;
constexpr double leastRLcalc = 0.1; ///< ohm; below, the load is too heavy for the current
constexpr double perKilo = 1000.0;
constexpr double microfarads = 1000000.0;
constexpr std::int32_t white = 0xFFFFFF;

} // namespace supply

using namespace supply;

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
    if (!isEnter(args))
        return;
    if (!isEmpty(*this, args.control))
        makeBare(*this, args.control);
    leaveTo(args.control);
}

void Form3::ink(const GrowingPart& part)
{
    if (finished())
        return;
    hide(part.pale);
    show(part.inked);
}

// Text4 left: the least negative supply, and 1 V more as the proposal.
void Form3::proposeEbias()
{
    enable(Text8, Text16, Text17, Text18);
    q_.dQic = number(*this, Text1);
    q_.T = number(*this, Text6);
    q_.dVbe = number(*this, Text7);
    if (q_.dQic != Real(0.0))
        q_.EResMin = leastERes(q_.T, q_.dVbe, q_.dQic);
    const std::string proposal = sheets::shown(*this, q_.EResMin + 1.0);
    show(Text8);
    ink(growingParts[0]);
    setText(Text8, proposal);
    focusEbias();
    enable(Text8);
    host().SetFocus(*this, Text8);
    setText(SSPanel1, std::string(pick(texts::minimumSource)) + proposal + std::string(pick(texts::minimumSourceEnd)));
}

void Form3::focusEbias()
{
    disable(Text16, Text17, Text18);
    beginField(Text8);
}

// The field stays enabled, although the bench that is put away disables it.
void Form3::clickEbias()
{
    HideBench();
    enable(Text8);
    focusEbias();
}

void Form3::leaveEbias()
{
    if (sayEmpty(Text8)) {
        setBackColor(Text8, white);
        focusEbias();
        host().SetFocus(*this, Text8);
        writeNumber(*this, Text8, texts::fieldRow(Text8)->left);
    }
    if (!sheets::correctFrom(*this, Text8, leastValue, texts::fieldRow(Text8)->otherwise) &&
        number(*this, Text8) < q_.EResMin)
        say(*this, texts::belowEResMin);
    makeBare(*this, Text8);
    q_.Ebias = number(*this, Text8);
    q_.QIc = number(*this, Text9);
    proposeRes();
}

void Form3::proposeRes()
{
    if (q_.QIc != Real(0.0))
        q_.ResCalc = resOf(q_.Ebias, q_.QIc);
    const std::string proposal = sheets::shown(*this, q_.ResCalc);
    setText(Label28, std::string(pick(texts::resValue)) + proposal + std::string(pick(texts::resValueEnd)));
    setText(SSPanel1, pick(texts::pointAtResults));
    ink(growingParts[1]);
    show(Text16);
    setText(Text16, proposal);
    sheets::goTo(*this, Text16);
}

void Form3::focusRes()
{
    beginField(Text16);
    setText(SSPanel1, pick(texts::resPrompt));
}

void Form3::leaveRes()
{
    if (sayEmpty(Text16)) {
        setBackColor(Text16, white);
        focusRes();
        host().SetFocus(*this, Text16);
        return;
    }
    sheets::correctFrom(*this, Text16, leastValue, texts::fieldRow(Text16)->otherwise);
    makeBare(*this, Text16);
    computeTail();
    if (tooMuchQIc()) {
        say(*this, texts::stability);
        sheets::goTo(*this, Text3);
        return;
    }
    if (!computeRL()) {
        disable(Text17);
        hide(Text17);
        say(*this, texts::insufficientQIc);
        sheets::goTo(*this, Text9);
        return;
    }
    setText(Label29, "Rlac = " + digits(*this, rules::TruncToInteger(q_.RLac)) + " ohms");
    const std::string proposal = sheets::shown(*this, q_.RLcalc / perKilo);
    setText(Label30, "RL=" + proposal + " K \n" + std::string(pick(texts::commercialRL)));
    ink(growingParts[2]);
    show(Text17);
    enable(Text17);
    setText(Text17, proposal);
    focusRL();
    host().SetFocus(*this, Text17);
}

// The quiescent current follows from the resistor that the student chose.
void Form3::computeTail()
{
    q_.Res = number(*this, Text16);
    q_.Ebias = number(*this, Text8);
    q_.Vj = number(*this, Text4);
    q_.TailCurrent = q_.Ebias / q_.Res;
    q_.ReDyn = dynamicRe(q_.TailCurrent);
    q_.ERes = q_.Ebias - q_.Vj;
    setText(Label22, "r'e = " + digits(*this, rules::TruncToInteger(q_.ReDyn)) + " ohms");
    setText(Label28, "Res: " + digits(*this, q_.Res) + "  K\nERes: " + sheets::shown(*this, q_.ERes) + " V");
    setText(Text9, sheets::shown(*this, q_.TailCurrent / 2.0));
    q_.QIc = number(*this, Text9);
    q_.IcMax = number(*this, Text3);
}

bool Form3::computeRL()
{
    q_.RLw = number(*this, Text10);
    q_.RLac = rlacOf(q_.Vg, q_.ReDyn);
    if (loadEqualsRlac(q_.RLw, q_.RLac))
        return false;
    q_.RLcalc = rlOf(q_.RLw, q_.RLac);
    return q_.RLcalc >= leastRLcalc;
}

void Form3::focusRL()
{
    beginField(Text17);
    setText(Label44, pick(texts::nextField));
    show(Label44);
    setText(SSPanel1, pick(texts::rlPrompt));
}

void Form3::clickRL()
{
    HideBench();
    host().SetFocus(*this, Text17);
}

void Form3::leaveRL()
{
    if (leavingRL_)
        return;
    hide(Text21);
    if (sayEmpty(Text17)) {
        writeNumber(*this, Text17, texts::fieldRow(Text17)->left);
        setBackColor(Text17, white);
        focusRL();
        host().SetFocus(*this, Text17);
        return;
    }
    leavingRL_ = true;
    if (number(*this, Text17) < leastValue)
        setText(Text17, sheets::shown(*this, q_.RLcalc / perKilo + 1.0));
    q_.RL = number(*this, Text17);
    q_.QIc = number(*this, Text9);
    q_.ERL = q_.QIc * q_.RL;
    q_.Eopp = number(*this, Text14);
    writeRlLabel();
    if (q_.ERL < q_.Eopp / 2.0)
        correctRL();
    else
        computeSource();
    offerEs();
    leavingRL_ = false;
}

void Form3::writeRlLabel()
{
    setText(Label30, "Rl= " + digits(*this, q_.RL) + " K\n ERl = " + sheets::shown(*this, q_.ERL) + " Volts");
}

// What follows is worked out from the rewritten value, which is a whole number and may even be 0.
void Form3::correctRL()
{
    say(*this, texts::lowERL);
    if (q_.QIc != Real(0.0))
        writeNumber(*this, Text17, rlForEopp(q_.Eopp, q_.QIc));
    host().SetFocus(*this, Text17);
    q_.RL = number(*this, Text17);
    q_.ERL = q_.QIc * q_.RL;
    q_.EQMin = Real(1.0) + q_.Eopp;
    q_.EsMin = q_.EQMin + q_.ERL;
}

// The clamp of Eopp comes after EQMin: it reaches the bench alone.
void Form3::computeSource()
{
    q_.EQMin = Real(1.0) + q_.Eopp;
    if (q_.Eopp < leastBenchEopp)
        q_.Eopp = leastBenchEopp;
    q_.EsMin = q_.EQMin + q_.ERL;
    setText(Label31, std::string(pick(texts::leastSource)) + sheets::shown(*this, q_.EsMin) + " V");
}

void Form3::offerEs()
{
    ink(growingParts[3]);
    show(Text18);
    enable(Text18);
    setText(Text18, sheets::shown(*this, q_.EsMin));
    host().SetFocus(*this, Text18);
}

void Form3::focusEs()
{
    hide(Text21);
    tellAbout(Text18);
    writeRlLabel();
}

void Form3::keyEs(host::EventArgs& args)
{
    if (!isEnter(args))
        return;
    if (!isEmpty(*this, Text18))
        makeBare(*this, Text18);
    host().SetFocus(*this, Text1);
}

void Form3::leaveEs()
{
    disable(Text17, Text16);
    if (sayEmpty(Text18)) {
        focusEs();
        sheets::goTo(*this, Text17);
    } else if (checkSupply()) {
        finishDesign();
    }
    hide(Label44);
}

// False when a box has sent the student back.
bool Form3::checkSupply()
{
    q_.RL = number(*this, Text17);
    q_.QIc = number(*this, Text9);
    q_.ERL = q_.QIc * q_.RL;
    if (number(*this, Text18) < leastEs)
        setText(Text18, sheets::shown(*this, q_.EsMin));
    q_.Es = number(*this, Text18);
    q_.EcMax = number(*this, Text2);
    q_.EQ = q_.Es - q_.ERL;
    if (q_.EQ > q_.EcMax) {
        say(*this, texts::highEQ);
        sheets::goTo(*this, Text2);
        return false;
    }
    setText(Label32, "EQ1=  " + sheets::shown(*this, q_.EQ) + "   V ");
    setText(Label35, "EQ2=  " + sheets::shown(*this, q_.EQ) + "   V ");
    q_.Eopp = number(*this, Text14);
    q_.EQMin = Real(1.0) + q_.Eopp;
    q_.EsMin = q_.EQMin + q_.ERL;
    setText(Label31, std::string(pick(texts::leastVoltage)) + digits(*this, q_.EsMin) + " V");
    if (q_.EQ < q_.EQMin) {
        say(*this, texts::lowEQ);
        writeNumber(*this, Text18, q_.EsMin);
        sheets::goTo(*this, Text18);
        return false;
    }
    return true;
}

void Form3::finishDesign()
{
    const std::string rl = " RL=" + digits(*this, q_.RL) + "  K\n ERl =" + sheets::shown(*this, q_.ERL) + "  Volts";
    setText(Label29, rl);
    setText(Label30, rl);
    showFinishedPicture();
    hide(Image30);
    show(Image33);
    q_.S = number(*this, Text11);
    q_.fo = number(*this, Text13);
    q_.Rb2 = rules::CurrencyValue(q_.S * q_.Res).toDouble();
    q_.Zin = zinOf(q_.Beta, q_.ReDyn);
    q_.Cci = cciOf(q_.fo, q_.Zin);
    q_.Cco = ccoOf(q_.fo, q_.RLw);
    q_.VgFinal = vgOf(q_.RL, q_.RLw, q_.ReDyn);
    setText(Label33, "Rb2=\n" + sheets::shown(*this, q_.Rb2) + " K");
    setText(Label38, "Cci = " + sheets::shown(*this, q_.Cci * microfarads) + " microF");
    setText(Label40, text(Label38));
    setText(Label39, "Cco = " + sheets::shown(*this, q_.Cco * microfarads) + " microF");
    show(Label33, Label38, Label39, Label40);
    writeNumber(*this, Text12, q_.VgFinal);
    hide(Label42);
    host::Place place = placeOf(Label43);
    place.left = finishedLeftOfLabel43;
    setPlaceOf(Label43, place);
    if (q_.Eopp < leastBenchEopp)
        q_.Eopp = leastBenchEopp;
}

void Form3::showFinishedPicture()
{
    hide(Image1);
    for (const GrowingPart& part : growingParts)
        hide(part.pale, part.inked);
    show(image2);
    for (const PointPlaces& row : pointPlaces)
        setPlaceOf(row.point, row.finished);
    for (const Handle point : meterPoints)
        borrowDrawing(point, Shape6);
    setPlaceOf(Image23, wavePlaces[0].finished);
    setPlaceOf(Image25, wavePlaces[1].finished);
}

} // namespace velmor::form3
