// SPDX-License-Identifier: MIT
// The slots and steps that the two sheets fed back by voltage share, in the order of the chain.
#include "designs/common_emitter/feedback_sheet.h"

#include "designs/common_emitter/feedback_formulas.h"
#include "sheets/formulas.h"

namespace velmor::feedback {

using host::Handle;

namespace sheet_detail {

constexpr int analysisWidth = 1200; // twips
constexpr int answerYes = 6;
constexpr double tolerance = 20; // per cent, of what is bought or turned by hand

} // namespace sheet_detail

using namespace sheet_detail;

FeedbackSheet::FeedbackSheet(host::SheetHost& host, const host::WindowSpec& window, const sheets::SheetSpec& sheet)
    : DesignSheet(host, window, sheet)
{
    holds(q_, quantityTable, host::Undo::takesBack);
}

void FeedbackSheet::load()
{
    host().setVisible("MDIForm1", "SSPanel1", false);
    write(Label6, transistorHeading);
    write(Label11, circuitHeading);
}

void FeedbackSheet::clickBackground()
{
    host().Hide("frmEdito3");
}

// A text editor with the report as it would be now. It looks for no guide, and the next editor finds the guide's name as it was.
void FeedbackSheet::clickEditor()
{
    constexpr BiText editor{.es = "frmEdito1", .en = "frmEdito3"};
    host::Window* opened = host().NewInstance(pick(editor));
    if (opened == nullptr)
        return;
    const std::string guide = host().values().ArchivoGuia;
    host().values().ArchivoGuia.clear();
    host().Show(*opened);
    host().values().ArchivoGuia = guide;
    host().SetWindowState(*opened, 0);
    opened->setText(opened->named("txtEdit"), reportText());
}

// --- fields

Press FeedbackSheet::pressed(host::EventArgs& args)
{
    const Press press = DesignSheet::pressed(args);
    if (args.control != Text15 && args.key != 0)
        q_.passed = false;
    return press;
}

void FeedbackSheet::keyField(host::EventArgs& args)
{
    const Press press = pressed(args);
    if (goesOn(args.control, press))
        goOn(args.control, press);
}

void FeedbackSheet::mark(Handle field)
{
    LimpiarTags();
    setTag(field, "1");
}

void FeedbackSheet::clickField(host::EventArgs& args)
{
    mark(args.control);
}

void FeedbackSheet::fade(Handle field)
{
    for (const host::GrowthRow& row : spec().growth)
        if (row.field == field)
            hide(row.part);
}

// --- Ec(max)

// A 0 is written as 30 and tested as 0, so that its box comes once.
void FeedbackSheet::keyText5(host::EventArgs& args)
{
    if (pressed(args) != Press::enter)
        return;
    const Real EcMax = at(Text5);
    q_.Eq = Eopp() * 0.66;
    correctFrom(Text5, 0.000001, 30);
    if (q_.Eq > EcMax)
        tell(overTransistorVoltage);
    else
        goOn(Text5, Press::enter);
}

// --- Vj

void FeedbackSheet::keyText7(host::EventArgs& args)
{
    if (pressed(args) != Press::enter)
        return;
    enable(Text8, Text9);
    goOn(Text7, Press::enter);
}

void FeedbackSheet::lostText7()
{
    correctFrom(Text7, 0.2, 0.2);
    correct(Text7, 0.2, 0.6, 0.6);
}

// --- QIc

void FeedbackSheet::lostText8(host::EventArgs& args)
{
    leaveField(args);
    if (QIc() <= at(Text6) * 40.0 / 100.0)
        return;
    tell(overTransistorCurrent);
    goTo(Text8);
}

// --- Ein

// Without a gain, as an odd file may bring it, the field keeps its text.
void FeedbackSheet::focusText14(host::EventArgs& args)
{
    focusField(args);
    if (at(Text11) == 0)
        return;
    q_.Ein = sheets::inputForOutput(Eopp(), at(Text11));
    setText(Text14, shown(q_.Ein));
}

void FeedbackSheet::lostText14()
{
    if (at(Text14) < 0.00001 && at(Text11) != 0)
        setText(Text14, shown(sheets::inputForOutput(Eopp(), at(Text11))));
    setText(Text13, shown(sheets::outputForInput(at(Text14), at(Text11))));
}

// --- the first design

bool FeedbackSheet::workOutLoad(Real& RLac)
{
    if (QIc() == 0)
        return false;
    q_.rE = sheets::junctionResistance(QIc());
    RLac = alternatingLoad(at(Text11), q_.rE);
    setText(Label32, "r'e = " + shown(q_.rE) + " Ohms");
    q_.RLCalc = sheets::collectorResistor(at(Text9), RLac / 1000.0);
    return true;
}

bool FeedbackSheet::loadVoltageSuffices(const Saying& box)
{
    if (q_.ERL >= Eopp() * 0.5)
        return true;
    tell(box);
    goTo(Text8);
    return false;
}

// --- RL

void FeedbackSheet::lockParameters()
{
    disable(Text12, Text5, Text6, Text7, Text8, Text9, Text13, Text14, Text11, Text10, Text2);
}

void FeedbackSheet::askAboutSupply()
{
    write(Frame1, frameCaption);
    write(Command1, changeCaption);
    write(Command2, followCaption);
    show(Frame1, Command1, Command2);
    enable(Shape5);
}

void FeedbackSheet::testResistor()
{
    if (!isBeyond(at(Text17), q_.RLCalc, tolerance))
        return;
    if (tell(changeSupply) == answerYes) {
        goTo(Text16);
        tell(raiseSupply);
    } else {
        goTo(Text17);
    }
}

void FeedbackSheet::closeQuestion()
{
    hide(Frame1, Command1, Command2);
}

void FeedbackSheet::clickCommand1()
{
    closeQuestion();
    goTo(Text16);
    tell(raiseSupply);
}

// --- what the RL in use gives

bool FeedbackSheet::workOutLoadInUse(Real& RLac)
{
    const Real RL = at(Text17);
    const Real RLw = at(Text9);
    if (RL + RLw == 0)
        return false;
    RLac = sheets::parallel(RL, RLw);
    setText(statu18, "Rlac= " + whole(RLac * 1000.0) + " ohms");
    return true;
}

void FeedbackSheet::takeGain(Real RLac)
{
    if (q_.rE != 0)
        setText(Text11, whole(gainOfLoad(RLac, q_.rE)));
}

// What would divide by nothing stays as it is.
void FeedbackSheet::writeCapacitors()
{
    const Real fo = at(Text12);
    if (fo == 0)
        return;
    if (q_.Zin != 0)
        setText(statu32, "Cin= " + shown(sheets::couplingCapacitor(fo, q_.Zin) * 1000000.0) + " mF");
    if (at(Text9) != 0)
        setText(statu33, "Cco= " + shown(outputCapacitor(fo, at(Text9)) * 1000000.0) + " mF");
}

void FeedbackSheet::writeDecoupling(Real half)
{
    const Real fo = at(Text12);
    if (fo != 0 && half != 0)
        setText(stas, shown(sheets::couplingCapacitor(fo, half) * 1000000.0) + " mF");
}

// --- the analysis

// It opens as if just made: whatever sheet showed it before has left nothing on it.
void FeedbackSheet::openAnalysis(const std::string& page)
{
    host().Unload("Form6");
    host::Window* analysis = host().Show("Form6");
    if (analysis == nullptr)
        return;
    host::Place place = analysis->place();
    place.width = analysisWidth;
    analysis->setPlace(place);
    host().setVisible("Form6", "image2", !isHeavy());
    host().setVisible("Form6", "Image5", isHeavy());
    host().setText("Form6", "Label1", page);
}

std::string FeedbackSheet::lightPage(Real Pout) const
{
    const AnalysisWords& words = analysisWords();
    std::string page(words.outputPower);
    page.append("\n").append(words.lightFormula).append(whole(Pout * 1000000.0)).append(microwatt);
    return page.append("\n").append(words.light);
}

std::string FeedbackSheet::heavyPage(const AnalysisWords& words, std::string_view Pout, std::string_view Pg,
                                     std::string_view Pin) const
{
    std::string page(words.outputPower);
    page.append("\n").append(words.heavyFormula).append(Pout).append(microwatt);
    page.append("\n").append(words.generatorPower);
    page.append("\n").append(generatorFormula).append(Pg).append(microwatt);
    page.append("\n").append(words.heavy);
    return page.append("\n").append(inputFormula).append(Pin).append(microwatt);
}

} // namespace velmor::feedback
