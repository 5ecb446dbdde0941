// SPDX-License-Identifier: MIT
// The analysis of what the commercial values really give, and the field from which the design starts over.
#include "designs/differential/form12.h"
#include "designs/differential/form12_texts.h"

namespace velmor::form12 {

// The design keeps its own numbers, so that it can be gone through again from any field.
void Form12::analyse()
{
    q_.EbAnalysis = q_.Rb1 * q_.IbiasRb2;
    if (q_.Res != Real(0.0))
        q_.QIcAnalysis = lowerDrop(q_.Ebias, q_.EbAnalysis) / q_.Res;
    q_.EResAnalysis = q_.QIcAnalysis * q_.Res;
    q_.EqAnalysis = eqOfAnalysis(q_.Ebias, q_.EResAnalysis);
}

void Form12::focusAnalysis()
{
    analyse();
    tellAnalysis();
    q_.passed = q_.biasAccepted;
}

void Form12::tellAnalysis()
{
    grow(Text10);
    show(Label6, Label7, Text8);
    setText(Text8, shown(q_.EResAnalysis) + "V");
    setText(Text7, shown(q_.Rb2) + "  K");
    setText(Text2, shown(q_.EbAnalysis) + " v");
    setText(Text1, shown(q_.QIcAnalysis) + "mA");
    setText(Text3, shown(q_.EqAnalysis) + "V");
    tellVoltages();
    tell(Text10, sheets::When::focus);
    setText(SSPanel1, words(texts::analysisPage) + std::string(texts::analysisFormulas) + shown(q_.EResAnalysis) +
                          words(texts::analysisEnd));
}

// Enter has nothing to go on to, and rewrites nothing: a click begins anew.
void Form12::keyAnalysis(host::EventArgs& args)
{
    const std::int16_t key = filteredKey(args);
    if (key == sheets::enterKey && isEmpty(Text10))
        tell(Text10, sheets::When::empty);
}

void Form12::clickAnalysis()
{
    enable(Text1, Text2, Text3);
    host().SetFocus(*this, Text1);
}

} // namespace velmor::form12
