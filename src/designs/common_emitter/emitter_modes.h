// SPDX-License-Identifier: MIT
// What the two common-emitter sheets do alike that can be polarised by emitter and bootstrapped: which circuit is being designed,
// said by the option pictures, and the steps that hang on it. `Sheet` is what the sheet is besides, `C` are its controls.
#pragma once

#include <string>

#include "designs/common_emitter/emitter_sheet.h"

namespace velmor::common_emitter {

template <class Sheet, class C>
class EmitterModes : public Sheet {
public:
    using Sheet::Sheet;

    void keyText1(host::EventArgs& args);
    void lostText21();
    void clickPicture1();
    void clickPicture11();
    void clickPicture10();

protected:
    bool unbypassed() const { return !this->visible(C::Picture10) && !this->visible(C::Picture1); }
    bool bypassedByBase() const { return this->visible(C::Picture1) && !this->visible(C::Picture10); }
    bool polarisedByEmitter() const { return this->visible(C::Picture10) && !this->visible(C::Picture11); }
    /// What `Text21` shows after a finished design, or out of a file, is no supply to divide.
    bool hasEmitterSupply() const { return this->visible(C::Text21) && this->at(C::Text21) > 0; }

    void goOnByEmitterSupply();
    void drawBootstrapping(bool drawn);
    void writeSecondBootstrap();
    void writeImpedanceByEmitter();
    void writeEbias();
};

template <class Sheet, class C>
void EmitterModes<Sheet, C>::keyText1(host::EventArgs& args)
{
    const Press press = this->pressed(args);
    if (!this->goesOn(C::Text1, press))
        return;
    if (this->visible(C::Picture11)) {
        this->hide(C::Picture10, C::Picture11);
        this->tell(C::Text1, When::enter);
        this->host().Unload("Form21");
    } else if (press == Press::escape) {
        this->show(C::Picture10);
    }
    this->goTo(C::Text3);
}

template <class Sheet, class C>
void EmitterModes<Sheet, C>::lostText21()
{
    if (this->at(C::Text21) < this->q_.ERes)
        this->write(C::Text21, this->q_.ERes);
}

template <class Sheet, class C>
void EmitterModes<Sheet, C>::clickPicture1()
{
    if (this->visible(C::Picture1)) {
        this->goTo(C::Text1);
        this->write(C::STA70, bypassHint);
    }
    this->show(C::Picture6);
    this->hide(C::Picture1, C::Picture10, C::Picture11);
}

template <class Sheet, class C>
void EmitterModes<Sheet, C>::clickPicture11()
{
    this->show(C::Image2, C::Text21, C::Picture10);
    this->hide(C::Picture11, C::Picture6, C::Picture1);
    this->tell(bypassAssigned);
    this->goTo(C::Text1);
    this->setText(C::Text11, "55");
}

template <class Sheet, class C>
void EmitterModes<Sheet, C>::clickPicture10()
{
    this->hide(C::Picture10);
    this->show(C::Picture11);
}

/// The negative supply sets QIc through Res.
template <class Sheet, class C>
void EmitterModes<Sheet, C>::goOnByEmitterSupply()
{
    this->write(C::Text8, quiescentCurrent(this->at(C::Text21), this->takeRes()));
    this->goOn(C::Text15, Press::enter);
}

// Bootstrapping divides both resistors of the base: their plain drawings give way to the halves, and what is known of the plain
// stage to what is known of this one.
template <class Sheet, class C>
void EmitterModes<Sheet, C>::drawBootstrapping(bool drawn)
{
    for (const host::Handle control : std::initializer_list<host::Handle>{
             C::Line20, C::Picture3, C::Picture5, C::Picture7, C::statu61, C::statu62, C::statu71, C::statu72})
        this->setVisible(control, drawn);
    for (const host::Handle control :
         std::initializer_list<host::Handle>{C::Line15, C::Line16, C::Picture2, C::sta1, C::statu31, C::statu32,
                                             C::status5, C::status6, C::status7, C::status8, C::status9})
        this->setVisible(control, !drawn);
}

template <class Sheet, class C>
void EmitterModes<Sheet, C>::writeSecondBootstrap()
{
    const Real Rb1 = this->at(C::Text19);
    if (Rb1 != 0)
        this->setText(C::statu72, "Cbp2=\n" + this->shown(secondBootstrapCapacitor(Rb1, this->at(C::Text12))));
}

/// Without Rb1, and in ohm and microfarads as they are; Cout stands with each sheet.
template <class Sheet, class C>
void EmitterModes<Sheet, C>::writeImpedanceByEmitter()
{
    this->setText(C::Text19, "");
    this->show(C::Text20);
    const Real Zin = inputImpedanceByEmitter(this->takeRb2(), this->takeBeta(), this->takeQIc());
    this->setText(C::statu31, " Zin= " + this->whole(Zin) + "  ohms");
    this->setText(C::statu32, this->shown(couplingMicrofarads(this->at(C::Text12), Zin)) + " mf");
}

// What is left to tell is the voltage of the emitter.
template <class Sheet, class C>
void EmitterModes<Sheet, C>::writeEbias()
{
    this->setText(C::Text19, "");
    host::Place place = this->placeOf(C::Text21);
    place.width = 1500;
    this->setPlaceOf(C::Text21, place);
    const auto volts = rules::RoundToInt16(this->takeRes() * this->takeQIc() / 1000.0);
    this->setText(C::Text21, "- Ebias =" + this->digits(volts) + " Volts");
    this->disable(C::Text2, C::Text6, C::Text7, C::Text19);
}

} // namespace velmor::common_emitter
