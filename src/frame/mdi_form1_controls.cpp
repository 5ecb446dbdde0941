// SPDX-License-Identifier: MIT
// Table of the main window: its menus in the order in which they stand, the welcome panel, the page pictures and the
// circuit bar. Captions are written at load, from the tables of texts.
#include "frame/mdi_form1_controls.h"

#include "frame/button_drawings.h"
#include "frame/mdi_form1.h"
#include "frame/mdi_form1_layout.h"
#include "frame/mdi_form1_menus.h"
#include "frame/page_drawings.h"

namespace velmor::main_window {

using host::Event;
using host::KeyAction;
using host::Kind;
using host::Look;
using host::noControl;
using host::slot;

namespace controls_table {

constexpr int windowWidth = 20250;
constexpr int windowHeight = 10125;
constexpr int barWidth = circuitBar.width;
constexpr host::Place pagePlace{0, headPictureHeight, windowWidth - 2 * barWidth, 7000};

constexpr host::Mark guideDrawing[] = {
    {.symbol = host::Symbol::book, .from = {16, 18}, .to = {52, 54}, .ink = host::Ink::accent}};

// clang-format off
// The item `onceB` does what `mnuEmisor` does, and `mnuContexto` pops up over the circuit bar: neither is seen in the
// menu bar.
constexpr host::ControlRow controls[] = {
    {.id = mnuArchivo,        .name = "mnuArchivo",       .kind = Kind::menu},
    {.id = mnuCirc,           .name = "mnuCirc",          .kind = Kind::menu, .parent = mnuArchivo},
    {.id = mnuDif,            .name = "mnuDif",           .kind = Kind::menu, .parent = mnuCirc},
    {.id = uno,               .name = "uno",              .kind = Kind::menu, .parent = mnuDif},
    {.id = Dos,               .name = "Dos",              .kind = Kind::menu, .parent = mnuDif},
    {.id = cuatro,            .name = "cuatro",           .kind = Kind::menu, .parent = mnuDif},
    {.id = mnuBasCom,         .name = "mnuBasCom",        .kind = Kind::menu, .parent = mnuCirc},
    {.id = tres,              .name = "tres",             .kind = Kind::menu, .parent = mnuBasCom},
    {.id = mnuColCom,         .name = "mnuColCom",        .kind = Kind::menu, .parent = mnuCirc},
    {.id = seis,              .name = "seis",             .kind = Kind::menu, .parent = mnuColCom},
    {.id = cinco,             .name = "cinco",            .kind = Kind::menu, .parent = mnuColCom},
    {.id = mnuPota,           .name = "mnuPota",          .kind = Kind::menu, .parent = mnuCirc},
    {.id = ocho,              .name = "ocho",             .kind = Kind::menu, .parent = mnuPota},
    {.id = siete,             .name = "siete",            .kind = Kind::menu, .parent = mnuPota},
    {.id = mnuPotB,           .name = "mnuPotB",          .kind = Kind::menu, .parent = mnuCirc},
    {.id = nueve,             .name = "nueve",            .kind = Kind::menu, .parent = mnuPotB},
    {.id = diez,              .name = "diez",             .kind = Kind::menu, .parent = mnuPotB},
    {.id = mnuEmCom,          .name = "mnuEmCom",         .kind = Kind::menu, .parent = mnuCirc},
    {.id = once,              .name = "once",             .kind = Kind::menu, .parent = mnuEmCom},
    {.id = mnuRealTen,        .name = "mnuRealTen",       .kind = Kind::menu, .parent = mnuEmCom},
    {.id = doce,              .name = "doce",             .kind = Kind::menu, .parent = mnuRealTen},
    {.id = trece,             .name = "trece",            .kind = Kind::menu, .parent = mnuRealTen},
    {.id = mnuFile0,          .name = "mnuFile(0)",       .kind = Kind::menu, .parent = mnuArchivo},
    {.id = mnudifB,           .name = "mnudifB",          .kind = Kind::menu, .parent = mnuFile0},
    {.id = unoB,              .name = "unoB",             .kind = Kind::menu, .parent = mnudifB},
    {.id = dosB,              .name = "dosB",             .kind = Kind::menu, .parent = mnudifB},
    {.id = cuatroB,           .name = "cuatroB",          .kind = Kind::menu, .parent = mnudifB},
    {.id = mnuBasComB,        .name = "mnuBasComB",       .kind = Kind::menu, .parent = mnuFile0},
    {.id = tresB,             .name = "tresB",            .kind = Kind::menu, .parent = mnuBasComB},
    {.id = mnuColComB,        .name = "mnuColComB",       .kind = Kind::menu, .parent = mnuFile0},
    {.id = seisB,             .name = "seisB",            .kind = Kind::menu, .parent = mnuColComB},
    {.id = cincoB,            .name = "cincoB",           .kind = Kind::menu, .parent = mnuColComB},
    {.id = mnuPotaB,          .name = "mnuPotaB",         .kind = Kind::menu, .parent = mnuFile0},
    {.id = sieteB,            .name = "sieteB",           .kind = Kind::menu, .parent = mnuPotaB},
    {.id = ochoB,             .name = "ochoB",            .kind = Kind::menu, .parent = mnuPotaB},
    {.id = mnuPotbB,          .name = "mnuPotbB",         .kind = Kind::menu, .parent = mnuFile0},
    {.id = nueveB,            .name = "nueveB",           .kind = Kind::menu, .parent = mnuPotbB},
    {.id = diezB,             .name = "diezB",            .kind = Kind::menu, .parent = mnuPotbB},
    {.id = mnuEmComB,         .name = "mnuEmComB",        .kind = Kind::menu, .parent = mnuFile0},
    {.id = onceB,             .name = "onceB",            .kind = Kind::menu, .look = Look::invisible, .parent = mnuEmComB},
    {.id = mnuEmisor,         .name = "mnuEmisor",        .kind = Kind::menu, .parent = mnuEmComB},
    {.id = mnuDesac,          .name = "mnuDesac",         .kind = Kind::menu, .parent = mnuEmComB},
    {.id = MnuParc,           .name = "MnuParc",          .kind = Kind::menu, .parent = mnuEmComB},
    {.id = mnuRealTenB,       .name = "mnuRealTenB",      .kind = Kind::menu, .parent = mnuFile0},
    {.id = doceB,             .name = "doceB",            .kind = Kind::menu, .parent = mnuRealTenB},
    {.id = treceB,            .name = "treceB",           .kind = Kind::menu, .parent = mnuRealTenB},
    {.id = mnuFile1,          .name = "mnuFile(1)",       .kind = Kind::menu, .parent = mnuArchivo},
    {.id = mnuFile2,          .name = "mnuFile(2)",       .kind = Kind::menu, .parent = mnuArchivo},
    {.id = mnuFile3,          .name = "mnuFile(3)",       .kind = Kind::menu, .parent = mnuArchivo},
    {.id = mnuSalir2,         .name = "mnuSalir2",        .kind = Kind::menu, .parent = mnuArchivo},
    {.id = mnuEdicion,        .name = "mnuEdicion",       .kind = Kind::menu},
    {.id = mnuDeshacer,       .name = "mnuDeshacer",      .kind = Kind::menu, .parent = mnuEdicion},
    {.id = mnuRehacer,        .name = "mnuRehacer",       .kind = Kind::menu, .parent = mnuEdicion},
    {.id = mnuVer,            .name = "mnuVer",           .kind = Kind::menu},
    {.id = mnuCas,            .name = "mnuCas",           .kind = Kind::menu, .parent = mnuVer},
    {.id = mnuHoriz,          .name = "mnuHoriz",         .kind = Kind::menu, .parent = mnuVer},
    {.id = mnuVert,           .name = "mnuVert",          .kind = Kind::menu, .parent = mnuVer},
    {.id = mnuTools,          .name = "mnuTools",         .kind = Kind::menu},
    {.id = mnuEdit,           .name = "mnuEdit",          .kind = Kind::menu, .parent = mnuTools},
    {.id = mnuImpor,          .name = "mnuImpor",         .kind = Kind::menu, .parent = mnuTools},
    {.id = mnuProy,           .name = "mnuProy",          .kind = Kind::menu, .parent = mnuTools},
    {.id = mnuOp,             .name = "mnuOp",            .kind = Kind::menu},
    {.id = mnuid,             .name = "mnuid",            .kind = Kind::menu, .parent = mnuOp},
    {.id = mnuIng,            .name = "mnuIng",           .kind = Kind::menu, .parent = mnuid},
    {.id = mnuEsp,            .name = "mnuEsp",           .kind = Kind::menu, .parent = mnuid},
    {.id = mnuBarra,          .name = "mnuBarra",         .kind = Kind::menu, .parent = mnuOp},
    {.id = mnuFija,           .name = "mnuFija",          .kind = Kind::menu, .parent = mnuBarra},
    {.id = mnuFlotante,       .name = "mnuFlotante",      .kind = Kind::menu, .parent = mnuBarra},
    {.id = mnuPrederminados,  .name = "mnuPrederminados", .kind = Kind::menu, .parent = mnuOp},
    {.id = mnuPredet0,        .name = "mnuPredet(0)",     .kind = Kind::menu, .parent = mnuPrederminados},
    {.id = mnuLenguaje0,      .name = "mnuLenguaje(0)",   .kind = Kind::menu, .parent = mnuPredet0},
    {.id = mnuLenguaje1,      .name = "mnuLenguaje(1)",   .kind = Kind::menu, .parent = mnuPredet0},
    {.id = mnuPredet1,        .name = "mnuPredet(1)",     .kind = Kind::menu, .parent = mnuPrederminados},
    {.id = mnuScreen1,        .name = "mnuScreen(1)",     .kind = Kind::menu, .parent = mnuPredet1},
    {.id = mnuayu,            .name = "mnuayu",           .kind = Kind::menu},
    {.id = mnuayuda,          .name = "mnuayuda",         .kind = Kind::menu, .parent = mnuayu},
    {.id = mnuAcerca,         .name = "mnuAcerca",        .kind = Kind::menu, .parent = mnuayu},
    {.id = mnuActu,           .name = "mnuActu",          .kind = Kind::menu, .parent = mnuayu},
    {.id = mnuvac,            .name = "mnuvac",           .kind = Kind::menu, .parent = mnuayu},
    {.id = mnuContexto,       .name = "mnuContexto",      .kind = Kind::menu, .look = Look::invisible},
    {.id = mnudise,           .name = "mnudise",          .kind = Kind::menu, .parent = mnuContexto},

    {.id = SSPanel1, .name = "SSPanel1", .kind = Kind::panel, .place = {barWidth, 0, windowWidth - barWidth, windowHeight},
     .look = Look::group},
    {.id = Image1,   .name = "Image1",   .kind = Kind::image, .place = {700, 3200, 16000, 5000}, .look = Look::paper,
     .drawing = page_drawings::emblem, .parent = SSPanel1},
    {.id = Label35,  .name = "Label35",  .kind = Kind::label, .place = {700, 450, 9000, 1100}, .look = Look::title,
     .parent = SSPanel1, .fontSize = 36},
    {.id = Label3,   .name = "Label3",   .kind = Kind::label, .place = {700, 1600, 9000, 400}, .look = Look::heading,
     .parent = SSPanel1, .fontSize = 12},
    {.id = Label4,   .name = "Label4",   .kind = Kind::label, .place = {700, 2050, 9000, 700}, .parent = SSPanel1, .fontSize = 10},

    {.id = Picture1, .name = "Picture1", .kind = Kind::image, .place = pagePlace, .visible = false, .look = Look::paper,
     .drawing = page_drawings::longTailedPair},
    {.id = Picture2, .name = "Picture2", .kind = Kind::image, .place = pagePlace, .visible = false, .look = Look::paper,
     .drawing = page_drawings::cascodePair},
    {.id = Picture3, .name = "Picture3", .kind = Kind::image, .place = pagePlace, .visible = false, .look = Look::paper,
     .drawing = page_drawings::commonBase},
    {.id = Picture4, .name = "Picture4", .kind = Kind::image, .place = pagePlace, .visible = false, .look = Look::paper,
     .drawing = page_drawings::currentSource},
    {.id = Picture5, .name = "Picture5", .kind = Kind::image, .place = pagePlace, .visible = false, .look = Look::paper,
     .drawing = page_drawings::paraphase},
    {.id = Picture6, .name = "Picture6", .kind = Kind::image, .place = pagePlace, .visible = false, .look = Look::paper,
     .drawing = page_drawings::emitterFollower},
    {.id = Picture7, .name = "Picture7", .kind = Kind::image, .place = pagePlace, .visible = false, .look = Look::paper,
     .drawing = page_drawings::classADarlington},
    {.id = Picture8, .name = "Picture8", .kind = Kind::image, .place = pagePlace, .visible = false, .look = Look::paper,
     .drawing = page_drawings::classASimple},
    {.id = Picture9, .name = "Picture9", .kind = Kind::image, .place = pagePlace, .visible = false, .look = Look::paper,
     .drawing = page_drawings::classBSimple},
    {.id = Picture10, .name = "Picture10", .kind = Kind::image, .place = pagePlace, .visible = false, .look = Look::paper,
     .drawing = page_drawings::classBDarlington},
    {.id = Picture11, .name = "Picture11", .kind = Kind::image, .place = pagePlace, .visible = false, .look = Look::paper,
     .drawing = page_drawings::commonEmitter},
    {.id = Picture12, .name = "Picture12", .kind = Kind::image, .place = pagePlace, .visible = false, .look = Look::paper,
     .drawing = page_drawings::voltageFeedback},
    {.id = Picture13, .name = "Picture13", .kind = Kind::image, .place = pagePlace, .visible = false, .look = Look::paper,
     .drawing = page_drawings::poemPicture},

    {.id = Label1,  .name = "Label1",  .kind = Kind::label, .place = {100, 20, 6000, 3400}, .visible = false,
     .look = Look::prompt, .fontSize = 11},
    {.id = Label21, .name = "Label21", .kind = Kind::label, .place = {100, 20, 3700, 2000}, .visible = false,
     .look = Look::hint, .fontSize = 11},
    {.id = Label20, .name = "Label20", .kind = Kind::label, .place = {100, 7000, 6000, 1400}, .visible = false,
     .look = Look::note, .fontSize = 9},
    {.id = Label22, .name = "Label22", .kind = Kind::label, .place = {100, 7000, 6000, 1400}, .visible = false,
     .look = Look::note, .fontSize = 9},
    {.id = Label24, .name = "Label24", .kind = Kind::label, .place = {100, 7000, 6000, 1400}, .visible = false,
     .look = Look::note, .fontSize = 9},
    {.id = Label25, .name = "Label25", .kind = Kind::label, .place = {100, 7000, 6000, 1400}, .visible = false,
     .look = Look::note, .fontSize = 9},
    {.id = Label26, .name = "Label26", .kind = Kind::label, .place = {100, 7000, 6000, 1400}, .visible = false,
     .look = Look::note, .fontSize = 9},
    {.id = Label33, .name = "Label33", .kind = Kind::label, .place = {100, 7000, 6000, 1400}, .visible = false,
     .look = Look::note, .fontSize = 9},

    {.id = Picture14, .name = "Picture14", .kind = Kind::panel, .place = {0, 0, barWidth, windowHeight}, .visible = false,
     .look = Look::group},
    {.id = Shape1_0, .name = "Shape1(0)", .kind = Kind::shape, .place = {30, 0, 360, 360}, .parent = Picture14},
    {.id = Shape1_1, .name = "Shape1(1)", .kind = Kind::shape, .place = {390, 0, 360, 360}, .parent = Picture14},
    {.id = Shape1_2, .name = "Shape1(2)", .kind = Kind::shape, .place = {750, 0, 360, 360}, .parent = Picture14},
    {.id = Shape1_3, .name = "Shape1(3)", .kind = Kind::shape, .place = {1110, 0, 360, 360}, .parent = Picture14},
    {.id = Shape1_4, .name = "Shape1(4)", .kind = Kind::shape, .place = {1470, 0, 360, 360}, .parent = Picture14},
    {.id = Shape1_5, .name = "Shape1(5)", .kind = Kind::shape, .place = {1860, 0, 360, 360}, .parent = Picture14},
    {.id = Shape1_6, .name = "Shape1(6)", .kind = Kind::shape, .place = {2250, 0, 360, 360}, .parent = Picture14},
    {.id = Shape1_7, .name = "Shape1(7)", .kind = Kind::shape, .place = {2550, 0, 360, 360}, .parent = Picture14},
    {.id = Shape1_8, .name = "Shape1(8)", .kind = Kind::shape, .place = {2910, 0, 360, 360}, .parent = Picture14},
    {.id = Shape1_9, .name = "Shape1(9)", .kind = Kind::shape, .place = {3270, 0, 360, 360}, .parent = Picture14},
    {.id = Shape1_10, .name = "Shape1(10)", .kind = Kind::shape, .place = {3630, 0, 360, 360}, .parent = Picture14},
    {.id = Shape1_11, .name = "Shape1(11)", .kind = Kind::shape, .place = {3990, 0, 360, 360}, .parent = Picture14},
    {.id = Shape1_12, .name = "Shape1(12)", .kind = Kind::shape, .place = {4350, 0, 360, 360}, .parent = Picture14},
    {.id = imgButton0, .name = "imgButton(0)", .kind = Kind::image, .place = {30, 0, 360, 360},
     .meaning = {.es = "Amplificador Diferencial Simple", .en = "Long Tail Pairs Simple"}, .look = Look::toolButton,
     .drawing = palette::button_drawings::longTailedPair, .parent = Picture14},
    {.id = imgButton1, .name = "imgButton(1)", .kind = Kind::image, .place = {390, 0, 360, 360},
     .meaning = {.es = "Amplificador Diferencial Compuesto", .en = "Long Tail Pairs Compound"}, .look = Look::toolButton,
     .drawing = palette::button_drawings::cascodePair, .parent = Picture14},
    {.id = imgButton2, .name = "imgButton(2)", .kind = Kind::image, .place = {750, 0, 360, 360},
     .meaning = {.es = "Circuito con Base Común", .en = "Common Base"}, .look = Look::toolButton,
     .drawing = palette::button_drawings::commonBase, .parent = Picture14},
    {.id = imgButton3, .name = "imgButton(3)", .kind = Kind::image, .place = {1110, 0, 360, 360},
     .meaning = {.es = "Fuente de Corriente Constante", .en = "DC Current Source"}, .look = Look::toolButton,
     .drawing = palette::button_drawings::currentSource, .parent = Picture14},
    {.id = imgButton4, .name = "imgButton(4)", .kind = Kind::image, .place = {1470, 0, 360, 360},
     .meaning = {.es = "Inversor de Fase", .en = "Paraphase"}, .look = Look::toolButton, .drawing = palette::button_drawings::paraphase,
     .parent = Picture14},
    {.id = imgButton5, .name = "imgButton(5)", .kind = Kind::image, .place = {1860, 0, 360, 360},
     .meaning = {.es = "Colector Común", .en = "Common Collector"}, .look = Look::toolButton,
     .drawing = palette::button_drawings::emitterFollower, .parent = Picture14},
    {.id = imgButton6, .name = "imgButton(6)", .kind = Kind::image, .place = {2250, 0, 360, 360},
     .meaning = {.es = "Potencia en Clase A mejorada...", .en = "Power Amplifier. (Class A - Darlington)"}, .look = Look::toolButton,
     .drawing = palette::button_drawings::classADarlington, .parent = Picture14},
    {.id = imgButton7, .name = "imgButton(7)", .kind = Kind::image, .place = {2550, 0, 360, 360},
     .meaning = {.es = "Amplificador Clase A Simple", .en = "Power Amplifier Class A Simple"}, .look = Look::toolButton,
     .drawing = palette::button_drawings::classASimple, .parent = Picture14},
    {.id = imgButton8, .name = "imgButton(8)", .kind = Kind::image, .place = {2910, 0, 360, 360},
     .meaning = {.es = "Amplificador Clase B", .en = "Power Amplifier Class B"}, .look = Look::toolButton,
     .drawing = palette::button_drawings::classBSimple, .parent = Picture14},
    {.id = imgButton9, .name = "imgButton(9)", .kind = Kind::image, .place = {3270, 0, 360, 360},
     .meaning = {.es = "Clase B mejorado...", .en = "Power Amplifier Class B Darlington."}, .look = Look::toolButton,
     .drawing = palette::button_drawings::classBDarlington, .parent = Picture14},
    {.id = imgButton10, .name = "imgButton(10)", .kind = Kind::image, .place = {3630, 0, 360, 360},
     .meaning = {.es = "Emisor Común Realimentado por Corriente", .en = "Common Emmiter (feedback for current)"}, .look = Look::toolButton,
     .drawing = palette::button_drawings::commonEmitter, .parent = Picture14},
    {.id = imgButton11, .name = "imgButton(11)", .kind = Kind::image, .place = {3990, 0, 360, 360},
     .meaning = {.es = "Emisor Común Realimentado por tensión", .en = "Common Emmiter (feedback for Voltage)"}, .look = Look::toolButton,
     .drawing = palette::button_drawings::voltageFeedback, .parent = Picture14},
    {.id = imgButton12, .name = "imgButton(12)", .kind = Kind::image, .place = {4350, 0, 360, 360},
     .look = Look::plain, .drawing = palette::button_drawings::ornament, .parent = Picture14},
    {.id = lblButton, .name = "lblButton", .kind = Kind::label, .place = {30, 4350, 360, 360},
     .meaning = {.es = "Todos los circuitos", .en = "All circuits"}, .look = Look::toolButton, .parent = Picture14},
    {.id = Image29,   .name = "Image29",   .kind = Kind::image, .place = {30, 4800, 360, 360},
     .meaning = {.es = "Guía de trabajos prácticos", .en = "Practical-work guide"}, .look = Look::toolButton, .drawing = guideDrawing,
     .parent = Picture14},
};
static_assert(host::rowsInOrder(controls));
static_assert(std::size(controls) == controlCount);

template <std::size_t Count>
constexpr std::array<host::SlotRow, Count> bound(const std::array<Control, Count>& items, host::SlotFunction run,
 Event event = Event::click)
{
    std::array<host::SlotRow, Count> rows{};
    for (std::size_t i = 0; i < Count; ++i)
        rows[i] = {items[i], event, run};
    return rows;
}
constexpr std::array newItems{uno, Dos, tres, cuatro, cinco, seis, siete, ocho, nueve, diez, once, doce, trece};
constexpr std::array openItems{unoB, dosB, tresB, cuatroB, cincoB, seisB, sieteB, ochoB, nueveB, diezB, onceB,
                               doceB, treceB, mnuEmisor, mnuDesac, MnuParc};
constexpr std::array arrangements{mnuCas, mnuHoriz, mnuVert};

constexpr std::array ownSlots{
    host::SlotRow{noControl, Event::load, slot<&MDIForm1::load>},
    host::SlotRow{noControl, Event::activate, slot<&MDIForm1::activate>},
    host::SlotRow{noControl, Event::resize, slot<&MDIForm1::resize>},
    host::SlotRow{noControl, Event::queryClose, slot<&MDIForm1::askExit>},
    host::SlotRow{noControl, Event::unload, slot<&MDIForm1::endProgram>},
    host::SlotRow{noControl, Event::click, slot<&MDIForm1::showBarAsChosen>},
    host::SlotRow{noControl, Event::mouseDown, slot<&MDIForm1::pressBackground>},
    host::SlotRow{mnudise, Event::click, slot<&MDIForm1::showBarAsChosen>},
    host::SlotRow{noControl, Event::shortcut, slot<&MDIForm1::runShortcut>},
    host::SlotRow{lblButton, Event::hover, slot<&MDIForm1::hoverBarLabel>},
    host::SlotRow{lblButton, Event::click, slot<&MDIForm1::clickBarLabel>},
    host::SlotRow{Picture14, Event::mouseDown, slot<&MDIForm1::pressBar>},
    host::SlotRow{Label21, Event::hover, slot<&MDIForm1::hoverMaxim>},
    host::SlotRow{Label35, Event::click, slot<&MDIForm1::clickTitle>},
    host::SlotRow{mnuFile1, Event::click, slot<&MDIForm1::save>},
    host::SlotRow{mnuFile2, Event::click, slot<&MDIForm1::saveAs>},
    host::SlotRow{mnuFile3, Event::click, slot<&MDIForm1::closeActive>},
    host::SlotRow{mnuSalir2, Event::click, slot<&MDIForm1::exitWithoutSaving>},
    host::SlotRow{mnuEdicion, Event::menuOpen, slot<&MDIForm1::markSteps>},
    host::SlotRow{mnuDeshacer, Event::click, slot<&MDIForm1::stepBack>},
    host::SlotRow{mnuRehacer, Event::click, slot<&MDIForm1::stepForth>},
    host::SlotRow{mnuEdit, Event::click, slot<&MDIForm1::openGuide>},
    host::SlotRow{Image29, Event::click, slot<&MDIForm1::openGuide>},
    host::SlotRow{mnuProy, Event::click, slot<&MDIForm1::openProject>},
    host::SlotRow{mnuImpor, Event::click, slot<&MDIForm1::showImport>},
    host::SlotRow{mnuOp, Event::menuOpen, slot<&MDIForm1::markScreenMode>},
    host::SlotRow{mnuIng, Event::click, slot<&MDIForm1::switchToEnglish>},
    host::SlotRow{mnuEsp, Event::click, slot<&MDIForm1::switchToSpanish>},
    host::SlotRow{mnuFija, Event::click, slot<&MDIForm1::fixBar>},
    host::SlotRow{mnuFlotante, Event::click, slot<&MDIForm1::floatBar>},
    host::SlotRow{mnuLenguaje0, Event::click, slot<&MDIForm1::chooseEnglishAtStart>},
    host::SlotRow{mnuLenguaje1, Event::click, slot<&MDIForm1::chooseSpanishAtStart>},
    host::SlotRow{mnuScreen1, Event::click, slot<&MDIForm1::chooseScreen>},
    host::SlotRow{mnuayuda, Event::click, slot<&MDIForm1::showHelp>},
    host::SlotRow{mnuAcerca, Event::click, slot<&MDIForm1::showAbout>},
    host::SlotRow{mnuvac, Event::click, slot<&MDIForm1::showAbout>},
    host::SlotRow{mnuActu, Event::click, slot<&MDIForm1::showContact>},
};
// clang-format on

// clang-format off
// What the mouse does in menus, on bar and on panel, by key. The last row has a deed of its own: the right button on the background.
constexpr host::ShortcutRow shortcuts[] = {
    {.keys = "Ctrl+N",        .control = mnuCirc,  .meaning = {.es = "Los diseños nuevos", .en = "The new designs"}},
    {.keys = "Ctrl+O",        .control = mnuFile0, .meaning = {.es = "Los circuitos guardados", .en = "The circuits to open"}},
    {.keys = "Ctrl+S",        .control = mnuFile1, .meaning = {.es = "Salvar el circuito", .en = "Save the circuit"}},
    {.keys = "Ctrl+Shift+S",  .control = mnuFile2, .meaning = {.es = "Salvar con otro nombre", .en = "Save under another name"}},
    {.keys = "Ctrl+W",        .control = mnuFile3, .meaning = {.es = "Cerrar la hoja", .en = "Close the sheet"}},
    {.keys = "Ctrl+Z",        .control = mnuDeshacer, .meaning = {.es = "Un paso atrás", .en = "One step back"}},
    {.keys = "Ctrl+Y",        .control = mnuRehacer,  .meaning = {.es = "Un paso adelante", .en = "One step forward"}},
    {.keys = "Ctrl+Shift+I",  .control = mnuIng,   .meaning = {.es = "Inglés", .en = "English"}},
    {.keys = "Ctrl+Shift+E",  .control = mnuEsp,   .meaning = {.es = "Español", .en = "Spanish"}},
    {.keys = "Ctrl+Shift+F1", .control = imgButton0, .action = KeyAction::hover,
     .meaning = {.es = "Explicar el circuito", .en = "Explain the circuit"}},
    {.keys = "Ctrl+Shift+F2", .control = imgButton1, .action = KeyAction::hover,
     .meaning = {.es = "Explicar el circuito", .en = "Explain the circuit"}},
    {.keys = "Ctrl+Shift+F3", .control = imgButton2, .action = KeyAction::hover,
     .meaning = {.es = "Explicar el circuito", .en = "Explain the circuit"}},
    {.keys = "Ctrl+Shift+F4", .control = imgButton3, .action = KeyAction::hover,
     .meaning = {.es = "Explicar el circuito", .en = "Explain the circuit"}},
    {.keys = "Ctrl+Shift+F5", .control = imgButton4, .action = KeyAction::hover,
     .meaning = {.es = "Explicar el circuito", .en = "Explain the circuit"}},
    {.keys = "Ctrl+Shift+F6", .control = imgButton5, .action = KeyAction::hover,
     .meaning = {.es = "Explicar el circuito", .en = "Explain the circuit"}},
    {.keys = "Ctrl+Shift+F7", .control = imgButton6, .action = KeyAction::hover,
     .meaning = {.es = "Explicar el circuito", .en = "Explain the circuit"}},
    {.keys = "Ctrl+Shift+F8", .control = imgButton7, .action = KeyAction::hover,
     .meaning = {.es = "Explicar el circuito", .en = "Explain the circuit"}},
    {.keys = "Ctrl+Shift+F9", .control = imgButton8, .action = KeyAction::hover,
     .meaning = {.es = "Explicar el circuito", .en = "Explain the circuit"}},
    {.keys = "Ctrl+Shift+F10", .control = imgButton9, .action = KeyAction::hover,
     .meaning = {.es = "Explicar el circuito", .en = "Explain the circuit"}},
    {.keys = "Ctrl+Shift+F11", .control = imgButton10, .action = KeyAction::hover,
     .meaning = {.es = "Explicar el circuito", .en = "Explain the circuit"}},
    {.keys = "Ctrl+Shift+F12", .control = imgButton11, .action = KeyAction::hover,
     .meaning = {.es = "Explicar el circuito", .en = "Explain the circuit"}},
    {.keys = "Alt+Shift+F1",  .control = imgButton0, .action = KeyAction::click,
     .meaning = {.es = "Abrir el diseño", .en = "Open the design"}},
    {.keys = "Alt+Shift+F2",  .control = imgButton1, .action = KeyAction::click,
     .meaning = {.es = "Abrir el diseño", .en = "Open the design"}},
    {.keys = "Alt+Shift+F3",  .control = imgButton2, .action = KeyAction::click,
     .meaning = {.es = "Abrir el diseño", .en = "Open the design"}},
    {.keys = "Alt+Shift+F4",  .control = imgButton3, .action = KeyAction::click,
     .meaning = {.es = "Abrir el diseño", .en = "Open the design"}},
    {.keys = "Alt+Shift+F5",  .control = imgButton4, .action = KeyAction::click,
     .meaning = {.es = "Abrir el diseño", .en = "Open the design"}},
    {.keys = "Alt+Shift+F6",  .control = imgButton5, .action = KeyAction::click,
     .meaning = {.es = "Abrir el diseño", .en = "Open the design"}},
    {.keys = "Alt+Shift+F7",  .control = imgButton6, .action = KeyAction::click,
     .meaning = {.es = "Abrir el diseño", .en = "Open the design"}},
    {.keys = "Alt+Shift+F8",  .control = imgButton7, .action = KeyAction::click,
     .meaning = {.es = "Abrir el diseño", .en = "Open the design"}},
    {.keys = "Alt+Shift+F9",  .control = imgButton8, .action = KeyAction::click,
     .meaning = {.es = "Abrir el diseño", .en = "Open the design"}},
    {.keys = "Alt+Shift+F10",  .control = imgButton9, .action = KeyAction::click,
     .meaning = {.es = "Abrir el diseño", .en = "Open the design"}},
    {.keys = "Alt+Shift+F11",  .control = imgButton10, .action = KeyAction::click,
     .meaning = {.es = "Abrir el diseño", .en = "Open the design"}},
    {.keys = "Alt+Shift+F12",  .control = imgButton11, .action = KeyAction::click,
     .meaning = {.es = "Abrir el diseño", .en = "Open the design"}},
    {.keys = "Alt+Shift+Home", .control = lblButton, .action = KeyAction::hover, .meaning = {.es = "Página general", .en = "General page"}},
    {.keys = "Alt+Shift+End",  .control = lblButton, .action = KeyAction::click,
     .meaning = {.es = "Despejar la ventana", .en = "Clear the window"}},
    {.keys = "Ctrl+Shift+M",   .control = Label21,   .action = KeyAction::hover,
     .meaning = {.es = "Notas de la página", .en = "Notes of the page"}},
    {.keys = "Ctrl+Shift+P",   .control = Label35,   .action = KeyAction::click, .meaning = {.es = "Poema", .en = "Poem"}},
    {.keys = "Ctrl+Shift+G",   .control = Image29,   .action = KeyAction::click, .meaning = {.es = "Guía", .en = "Guide"}},
    {.keys = "Ctrl+Shift+B",   .control = mnudise,   .action = KeyAction::click,
     .meaning = {.es = "Mostrar los diseños", .en = "Show the designs"}},
    {.keys = "Ctrl+Shift+H",   .action = KeyAction::run, .meaning = {.es = "Ocultar la barra", .en = "Hide the bar"}},
};
// clang-format on

constexpr auto newSlots = bound(newItems, slot<&MDIForm1::clickNewItem>);
constexpr auto openSlots = bound(openItems, slot<&MDIForm1::clickOpenItem>);
constexpr std::array barButtons{imgButton0, imgButton1, imgButton2, imgButton3, imgButton4,  imgButton5,
                                imgButton6, imgButton7, imgButton8, imgButton9, imgButton10, imgButton11};
constexpr auto hoverSlots = bound(barButtons, slot<&MDIForm1::hoverBarButton>, Event::hover);
constexpr auto pressSlots = bound(barButtons, slot<&MDIForm1::pressBarButton>, Event::mouseDown);
constexpr auto releaseSlots = bound(barButtons, slot<&MDIForm1::releaseBarButton>, Event::mouseUp);
constexpr auto clickSlots = bound(barButtons, slot<&MDIForm1::clickBarButton>);
constexpr auto arrangementSlots = bound(arrangements, slot<&MDIForm1::clickArrangement>);

template <std::size_t... Counts>
constexpr auto joined(const std::array<host::SlotRow, Counts>&... parts)
{
    std::array<host::SlotRow, (Counts + ...)> all{};
    std::size_t at = 0;
    const auto add = [&](const auto& part) {
        for (const host::SlotRow& row : part)
            all[at++] = row;
    };
    (add(parts), ...);
    return all;
}
constexpr auto slots =
    joined(ownSlots, newSlots, openSlots, arrangementSlots, hoverSlots, pressSlots, releaseSlots, clickSlots);

} // namespace controls_table

const host::WindowSpec spec{
    .name = "MDIForm1",
    .role = host::Role::mainWindow,
    .caption = "Velmor",
    .place = {0, 0, controls_table::windowWidth, controls_table::windowHeight},
    .controls = controls_table::controls,
    .slots = controls_table::slots,
    .shortcuts = controls_table::shortcuts,
    .create = create,
    .shownPlace = shownPlaceOf,
    .mainParts = {.bar = Picture14,
                  .welcome = SSPanel1,
                  .windows = mnuVer,
                  .pageStrip = pageStrip,
                  .files = mnuArchivo,
                  .menuNames = captionsOf},
};

std::unique_ptr<host::Window> create(host::SheetHost& host)
{
    return std::make_unique<MDIForm1>(host);
}

} // namespace velmor::main_window
