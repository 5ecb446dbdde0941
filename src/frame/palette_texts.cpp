// SPDX-License-Identifier: MIT
// The palette's texts, Spanish and English side by side. Slips of captions and maxims are the program's own.
#include "frame/palette_texts.h"

#include "sheets/sheet_titles.h"

namespace velmor::palette {

// clang-format off
constexpr std::array<DesignPage, 12> designPages{{
    {
        .text = {.es = "En este programa podremos realizar mediciones de señal de salida, de fase y de Rechazo de Modo "
                       "Común, para luego concretar un circuito präctico de una entrada  y una salida en fase. "
                       "Arrastre las senoides hacia las dos entradas y descubra por qué lo que es igual en ambas "
                       "desaparece a la salida: el ruido entra por las dos puertas, la señal por una sola.",
                 .en = "In this program we will be able to carry out mensurations of exit sign, of phase and of Common "
                       "Mode Rejection, then we will carry out a circuit of an entrance and an exit in phase. "
                       "Drag the sine waves to the two inputs and find out why whatever is equal on both vanishes at "
                       "the output: noise comes in by both doors, the signal by one alone."},
        .maxim = {.es = "Prefiero esperar a tener que sufrir una decision apresurada",
                  .en = "I prefer to wait to have to suffer an accelerated decision"},
        .hoverMainCaption    = {.es = " Amplificador Diferencial Simple", .en = " Long Tail Pairs Simple "},
        .hoverPaletteCaption = {.es = " Amplificador Diferencial Simple", .en = " Long Tail Pairs Simple "},
        .sheetTitle = sheets::titleOf("Form3"),
        .sheet = "Form3",
    },
    {
        .text = {.es = "Dos pares diferenciales en cascada multiplican sus ganancias hasta pasar las mil veces, y un "
                       "transistor fuente de corriente ocupa el lugar del resistor de emisor. Los datos son pocos "
                       "(temperatura, ganancia, salida y fuente) y el programa explica cada decisión: conviene leerla "
                       "antes de pulsar Enter.",
                 .en = "Two differential pairs in cascade multiply their gains beyond a thousand times, and a transistor "
                       "current source takes the place of the emitter resistor. The data are few (temperature, gain, "
                       "output and supply) and the program explains every decision: read it before you press Enter."},
        .maxim = {.es = "Donde termina el esfuerzo, empieza el fracaso...",
                  .en = "Where it finishes the effort, the failure begins... "},
        .hoverMainCaption    = {.es = "Amplificador Diferencial Compuesto", .en = "Long Tail Pairs Compound"},
        .hoverPaletteCaption = {.es = "Amplificador Diferencial Compuesto", .en = "Long Tail Pairs Compound"},
        .sheetTitle = sheets::titleOf("Form13"),
        .sheet = "Form13",
    },
    {
        .text = {.es = "Con la base a masa la señal entra por el emisor: la impedancia de entrada es apenas r'e y la "
                       "corriente no se amplifica, pero la ganancia de tensión es alta y la fase no se invierte. La "
                       "práctica enseña cuándo conviene, con generadores de baja resistencia y en altas frecuencias; al "
                       "final podrá llevar la señal a la base y comparar las dos conexiones.",
                 .en = "With the base at ground the signal enters at the emitter: the input impedance is a mere r'e and "
                       "current is not amplified, yet the voltage gain is high and the phase is not turned over. The "
                       "practice shows when this pays, with generators of low resistance and at high frequencies; at the "
                       "end you may carry the signal to the base and compare the two connections."},
        .maxim = {.es = "", .en = ""},
        .hoverMainCaption    = {.es = " Circuito con Base Común", .en = " Common Base "},
        .hoverPaletteCaption = {.es = " Circuito con Base Común", .en = " Common Base "},
        .sheetTitle = sheets::titleOf("Form4"),
        .sheet = "Form4",
    },
    {
        .text = {.es = "Un transistor, un diodo y tres resistores bastan para que una corriente no dependa de la carga "
                       "que alimenta. El objetivo es reemplazar el resistor común de un amplificador diferencial y "
                       "comprobar, con los valores comerciales elegidos, cuánta corriente circula de verdad.",
                 .en = "One transistor, one diode and three resistors are enough to make a current that does not depend "
                       "on the load it feeds. The aim is to replace the common resistor of a differential amplifier and "
                       "to check, with the standard values chosen, how much current really flows."},
        .maxim = {.es = "", .en = ""},
        .hoverMainCaption    = {.es = " Fuente de Corriente Constante", .en = " DC Current Source"},
        .hoverPaletteCaption = {.es = " Fuente de Corriente Constante", .en = " DC Current Source"},
        .sheetTitle = sheets::titleOf("Form12"),
        .sheet = "Form12",
    },
    {
        .text = {.es = "De una sola señal se obtienen dos iguales y opuestas, una en el colector y otra en el emisor, "
                       "con la misma resistencia en ambos. La ganancia es uno y no se discute: lo que se diseña es la "
                       "fuente, la excursión de la salida y una impedancia de entrada que no moleste al generador.",
                 .en = "Out of one signal come two, equal and opposite, one at the collector and one at the emitter, with "
                       "the same resistance in both. The gain is one and there is no arguing with it: what you design is "
                       "the supply, the swing of the output and an input impedance that does not trouble the generator."},
        .maxim = {.es = "", .en = ""},
        .hoverMainCaption    = {.es = " Inversor de Fase", .en = " Paraphase"},
        .hoverPaletteCaption = {.es = " Inversor de Fase", .en = " Paraphase"},
        .sheetTitle = sheets::titleOf("Form9"),
        .sheet = "Form9",
    },
    {
        .text = {.es = "El seguidor por emisor no gana tensión: gana corriente, y por eso adapta una impedancia alta a "
                       "una carga pequeña. El objetivo es elegir Res y el divisor de base para que el generador trabaje "
                       "descansado; el semáforo del final le dirá si lo consiguió.",
                 .en = "The emitter follower gains no voltage: it gains current, and so it fits a high impedance to a "
                       "small load. The aim is to choose Res and the base divider so that the generator works at its "
                       "ease; the traffic light at the end will tell you whether you managed."},
        .maxim = {.es = "", .en = ""},
        .hoverMainCaption    = {.es = " Colector Común", .en = " Common Collector"},
        .hoverPaletteCaption = {.es = " Colector Común", .en = " Common Collector"},
        .sheetTitle = sheets::titleOf("Form17"),
        .sheet = "Form17",
    },
    {
        .text = {.es = "Dos transistores en conexión Darlington multiplican sus Betas y el excitador casi no siente la "
                       "carga. Compare este diseño con el Clase A simple a igual potencia: la corriente de reposo de la "
                       "salida sigue siendo la misma, la que se le pide al excitador es mucho menor.",
                 .en = "Two transistors in Darlington connection multiply their Betas, and the driver hardly feels the "
                       "load. Compare this design with the simple Class A at the same power: the quiescent current of "
                       "the output is still the same, what is asked of the driver is far less."},
        .maxim = {.es = "La tarea de los politicos es la del buen mediador entre las distintas fuerzas sociales ",
                  .en = "The task of the politicians is to be good mediator among the different social forces"},
        .hoverMainCaption    = {.es = " Potencia en Clase A mejorada...",
                                .en = " Power Amplifier. (Class A - Darlington) "},
        .hoverPaletteCaption = {.es = " Potencia en Clase A mejorada...",
                                .en = " Power Amplifier. (Class A - Darlington) "},
        .sheetTitle = sheets::titleOf("form20"),
        .sheet = "form20",
    },
    {
        .text = {.es = "Desde la potencia y la carga se trabaja hacia atrás: fuente, corriente de reposo, excitador y "
                       "generador. En clase A la corriente es la misma aun en silencio, así que la práctica termina con "
                       "una pregunta para llevarse: de los watts que entrega la fuente, ¿cuántos llegan a la carga?",
                 .en = "From the power and the load you work backwards: supply, quiescent current, driver and generator. "
                       "In class A the current is the same even in silence, so the practice ends with a question to take "
                       "home: of the watts the supply gives, how many reach the load?"},
        .maxim = {.es = "Empiece, empiece... el tiempo pasa y nada ni nadie lo esperará",
                  .en = "Begins, begin... the time passes and anything neither nobody waited for you"},
        .hoverMainCaption    = {.es = " Amplificador Clase A Simple ", .en = " Power Amplifier Class A Simple  "},
        .hoverPaletteCaption = {.es = " Amplificador Clase A Simple ", .en = " Power Amplifier Class A Simple  "},
        .sheetTitle = sheets::titleOf("Form15"),
        .sheet = "Form15",
    },
    {
        .text = {.es = "En clase B cada transistor de salida atiende medio ciclo y en reposo casi no consume. La práctica "
                       "fija la tensión media, la corriente de polarización y los capacitores de bootstrapping, y enseña "
                       "a reconocer dos recortes distintos: el de la salida y el del excitador.",
                 .en = "In class B each output transistor attends to half a cycle and draws next to nothing at rest. The "
                       "practice fixes the middle voltage, the bias current and the bootstrap capacitors, and teaches "
                       "you to tell two kinds of clipping apart: that of the output and that of the driver."},
        .maxim = {.es = "Es preferible equivocarse y arrepentirse que el equívoco del obstinado error",
                  .en = "It is preferable to make a mistake and to be sorry that the misunderstanding of the obstinate "
                        "error "},
        .hoverMainCaption    = {.es = " Amplificador Clase B ", .en = " Power Amplifier Class B "},
        .hoverPaletteCaption = {.es = " Amplificador Clase B ", .en = " Power Amplifier Class B "},
        .sheetTitle = sheets::titleOf("Form10"),
        .sheet = "Form10",
    },
    {
        .text = {.es = "Con salidas Darlington complementarias y un transistor que vigila la corriente de reposo, el "
                       "clase B llega a potencias de uso diario sin distorsión de cruce. Antes de encenderlo lea las "
                       "recomendaciones de puesta en marcha: diez pasos cuestan menos que cuatro transistores.",
                 .en = "With complementary Darlington outputs and a transistor that watches over the quiescent current, "
                       "class B reaches everyday powers without crossover distortion. Before you switch it on, read the "
                       "start-up recommendations: ten steps cost less than four transistors."},
        .maxim = {.es = "La mejor definición de una verdad es uma mentira contada 100 veces...",
                  .en = "The best definition of a true is  a lie related 100 times... "},
        .hoverMainCaption    = {.es = " Clase B mejorado...", .en = " Power Amplifier Class B Darlington."},
        .hoverPaletteCaption = {.es = " Clase B mejorado...", .en = " Power Amplifier Class B Darlington."},
        .sheetTitle = sheets::titleOf("Form11"),
        .sheet = "Form11",
    },
    {
        .text = {.es = "El criterio de esta practica es mantener la tensión de Emisor (ERes) calculada durante el diseño, "
                       "para asegurar la estabilidad del circuito ante los cambios de temperatura. Cuanto menos se "
                       "admita que varíe QIc y más calor haga donde trabaje el equipo, más tensión habrá que dejar en "
                       "Res; el resto de la fuente se reparte entre el transistor y la carga.",
                 .en = "The approach of this practices it is to maintain the Emitter voltage (ERes) calculated during the "
                       "design, to assure the stability of the circuit in the face of the changes of temperature. The "
                       "less you let QIc drift and the hotter the place where the circuit works, the more voltage Res "
                       "must keep; what is left of the supply is shared by the transistor and the load."},
        .maxim = {.es = "Aceptemoslo, siempre estamos solos", .en = "Let us accept it, we are always alone "},
        .hoverMainCaption    = {.es = " Emisor Común Realimentado por Corriente  (clase A) ",
                                .en = "Common Emmiter (class A, feedback for current)"},
        .hoverPaletteCaption = {.es = " Emisor Común Realimentado por Corriente ",
                                .en = "Common Emmiter (feedback for current)"},
        .sheetTitle = sheets::titleOf("Form2"),
        .sheet = "Form2",
    },
    {
        .text = {.es = "Aquí el resistor de base nace en el colector: si la corriente crece, baja la tensión que la "
                       "alimenta y todo vuelve a su lugar. Elija entre el circuito simple, que deja a RL lo que sobra de "
                       "la fuente, y el estable, que lo deja al transistor y fija el punto Q con un resistor a masa.",
                 .en = "Here the base resistor starts at the collector: if the current grows, the voltage that feeds it "
                       "falls and all comes back to its place. Choose between the simple circuit, which leaves to RL what "
                       "is spare of the supply, and the stable one, which leaves it to the transistor and fixes the Q "
                       "point with a resistor to ground."},
        .maxim = {.es = "El pensamiento abstracto es el ejercicio más hermoso que podemos realizar",
                  .en = "The abstract thought is the most beautiful exercise that we can carry out "},
        .hoverMainCaption    = {.es = " Emisor Común Realimentado por tensión    (clase A)",
                                .en = " Common Emmiter (class A, feedback for Voltage)"},
        .hoverPaletteCaption = {.es = " Emisor Común Realimentado por tensión   ",
                                .en = "Common Emmiter (feedback for Voltage)"},
        .sheetTitle = {.es = "", .en = ""},
        .sheet = "Form7",
    },
}};

constexpr Poem poem{
    .label1  = {.es = "Los sonidos formaron \n"
                      "una ronda en el aire;\n"
                      "nadie los había llamado\n"
                      "y vinieron igual.\n"
                      "\n"
                      "Uno era grave y lento,\n"
                      "como un tren a lo lejos;\n"
                      "otro, agudo y pequeño:\n"
                      "una llave al girar.",
                .en = "The sounds formed\n"
                      "a ring in the air;\n"
                      "nobody had called them\n"
                      "and still they were there.\n"
                      "\n"
                      "One low and unhurried,\n"
                      "a train far away;\n"
                      "one thin as a key\n"
                      "at the end of the day."},
    .label21 = {.es = "Alguien tendió un alambre\n"
                      "sobre un grano de arena\n"
                      "y el susurro más tímido\n"
                      "aprendió a caminar.\n"
                      "\n"
                      "Hoy descansa en tu mesa,\n"
                      "hecho de cables y estaño:\n"
                      "si lo escuchas despacio\n"
                      "te lo vuelve a contar.",
                .en = "Then someone strung copper\n"
                      "across a grain of sand,\n"
                      "and the shyest of whispers\n"
                      "learned how to stand.\n"
                      "\n"
                      "It rests on your table\n"
                      "in solder and wire:\n"
                      "go slowly, and listen;\n"
                      "it sings by the fire."},
};

constexpr std::array<SymbolNote, 6> symbolNotes{{
    {.label = "Label20", .button = 10,
     .text = {.es = "Simbologia\n"
                    "hFE = ganancia de corriente sin señal\n"
                    "hfe = Ganancia para pequeñas señales",
              .en = "Letter symbol\n"
                    "hFE = D.C. gain (static value of the forward current transfer ratio; (output voltage held constant)\n"
                    "hfe = small-signal current gain (output voltage held constant)"}},
    {.label = "Label22", .button = 0,
     .text = {.es = "SMC = señal de modo común, la que llega igual a las dos entradas\n"
                    "CMRR = Vg / SMC, cuánto mejor se amplifica la diferencia",
              .en = "SMC = common-mode signal, the one that reaches both inputs alike\n"
                    "CMRR = Vg / SMC, how much better the difference is amplified"}},
    {.label = "Label24", .button = 2,
     .text = {.es = "r'e = 25 mV / QIc, resistencia interna de la juntura Base - Emisor\n"
                    "Con la base a masa: Zin = r'e",
              .en = "r'e = 25 mV / QIc, internal resistance of the Base - Emitter junction\n"
                    "With the base at ground: Zin = r'e"}},
    {.label = "Label25", .button = 5,
     .text = {.es = "Zin = resistencia que ve el generador\n"
                    "Rg = resistencia propia del generador\n"
                    "Zin mayor que Rg: el generador trabaja liviano",
              .en = "Zin = resistance that the generator sees\n"
                    "Rg = the generator's own resistance\n"
                    "Zin above Rg: the generator works lightly"}},
    {.label = "Label26", .button = 7,
     .text = {.es = "Po = potencia eficaz (r.m.s.) en la carga\n"
                    "Eopp = tensión de salida pico a pico\n"
                    "Eopp = SQR(Po.8.RLw)",
              .en = "Po = effective power (r.m.s.) in the load\n"
                    "Eopp = output voltage, peak to peak\n"
                    "Eopp = SQR(Po.8.RLw)"}},
    {.label = "Label33", .button = 11,
     .text = {.es = "Q = punto de reposo: la corriente QIc y la tensión Eq sin señal\n"
                    "Vj = tensión de juntura: 0.6 V silicio, 0.2 V germanio",
              .en = "Q = quiescent point: current QIc and voltage Eq without signal\n"
                    "Vj = junction voltage: 0.6 V silicon, 0.2 V germanium"}},
}};
// clang-format on

} // namespace velmor::palette
