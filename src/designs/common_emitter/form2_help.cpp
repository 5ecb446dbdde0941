// SPDX-License-Identifier: MIT
// The help pages of `Form2`, Spanish and English side by side. "¶" stands for pi, as on the course's blackboard.
#include "designs/common_emitter/form2_texts.h"

namespace velmor::form2 {

namespace help_detail {

// clang-format off
constexpr auto pages = std::to_array<sheets::HelpPage>({
    {.field = Text1, .shortName = " Delta QIc...", .page = {
        .es = "              Delta QIc\n\n"
              "En este cuadro Ud. asigna cuánto puede cambiar la corriente de reposo (QIc), en porcentaje, cuando la "
              "temperatura pasa de 20 °C a la de trabajo.\n\n"
              "Se acepta de 1 a 10 %. Para circuitos críticos (electromedicina) utilice de 1 a 3; para audio alcanza "
              "con 10.\n\n"
              "Cuanto menor sea la variación permitida, más tensión habrá que dejar sobre el resistor de emisor "
              "(ERes) y más fuente pedirá el circuito: la estabilidad se paga con tensión.",
        .en = "              Delta QIc\n\n"
              "Here you say how much the quiescent current (QIc) may change, in per cent, when the temperature goes "
              "from 20 °C to that of work.\n\n"
              "From 1 to 10 % is accepted. For critical circuits (electromedicine) use 1 to 3; for audio, 10 is "
              "enough.\n\n"
              "The smaller the change you allow, the more voltage must stay on the emitter resistor (ERes) and the "
              "higher the supply: stability is paid for in volts."}},
    {.field = Text3, .shortName = " Temperatura...", .page = {
        .es = "            Temperatura\n\n"
              "En este cuadro Ud. coloca la temperatura ambiente más alta, en grados centígrados, en la que trabajará "
              "el equipo. No es la de su banco: adentro de un gabinete cerrado, al sol, 75 °C es un valor normal.\n\n"
              "Se acepta de 25 a 200. Si tiene el dato en Fahrenheit ó en Kelvin, la ventana de conversión lo pasa a "
              "centígrados y lo deja en el cuadro.\n\n"
              "      ERes = ((T - 20) x Delta Vbe x 100) / Delta QIc",
        .en = "            Temperature\n\n"
              "Here you put the highest ambient temperature, in degrees centigrade, in which the equipment will work. "
              "It is not that of your bench: inside a closed case, in the sun, 75 °C is nothing strange.\n\n"
              "From 25 to 200 is accepted. If you have it in Fahrenheit or Kelvin, the conversion window turns it into "
              "centigrade and leaves it in the field.\n\n"
              "      ERes = ((T - 20) x Delta Vbe x 100) / Delta QIc"}},
    {.field = Text4, .shortName = " Delta Vbe...", .page = {
        .es = "              Delta Vbe\n\n"
              "La tensión Base - Emisor que necesita un transistor para una misma corriente baja unos 2.5 mV por cada "
              "grado. Si la tensión aplicada no cambia, es como si la polarización directa aumentara: sube la "
              "corriente, el transistor se calienta más y la corriente vuelve a subir (efecto avalancha).\n\n"
              "Para QIc inferior a 10 mA coloque de 2.5 a 3; para corrientes mayores, 3. Se acepta de 2 a 3 mV.\n\n"
              "Al salir de este cuadro el programa calcula ERes, la tensión que frena esa avalancha.",
        .en = "              Delta Vbe\n\n"
              "The Base - Emitter voltage that a transistor needs for one and the same current falls about 2.5 mV for "
              "each degree. If the voltage applied does not change, it is as if the forward bias had grown: the current "
              "rises, the transistor heats up more, and the current rises again (avalanche effect).\n\n"
              "For QIc below 10 mA put 2.5 to 3; for higher currents, 3. From 2 to 3 mV is accepted.\n\n"
              "When you leave this field the program works out ERes, the voltage that holds the avalanche back."}},
    {.field = Text8, .shortName = " QIc...", .page = {
        .es = "                 QIc\n\n"
              "QIc es la corriente de reposo: la que circula de Colector a Emisor sin señal de entrada. Es aconsejable "
              "asignar la corriente a la cual el fabricante probó los parámetros del transistor, según el Manual.\n\n"
              "Con ella queda fijada la resistencia interna de la juntura Base - Emisor:\n\n"
              "        r'e = 25 mV / QIc\n\n"
              "(con QIc en mA el resultado es en ohms). No debe superar el 40 % de la corriente máxima de colector, "
              "y si la carga (RLw) es pequeña deberá elevarla. No se aceptan menos de 0.4 mA.",
        .en = "                 QIc\n\n"
              "QIc is the quiescent current: the one that flows from Collector to Emitter without an input signal. It "
              "is advisable to take the current at which the maker tested the transistor's parameters, as the Manual "
              "says.\n\n"
              "It fixes the internal resistance of the Base - Emitter junction:\n\n"
              "        r'e = 25 mV / QIc\n\n"
              "(with QIc in mA the result is in ohms). It should not pass 40 % of the maximum collector current, and "
              "with a small load (RLw) you will have to raise it. Less than 0.4 mA is not accepted."}},
    {.field = Text15, .shortName = " Res", .page = {
        .es = "          Resistor de Emisor\n\n"
              "Res desarrolla la tensión de estabilidad ERes. El programa propone el valor exacto, ERes / QIc: coloque "
              "el normalizado más cercano (pulse el botón derecho para ver la tabla).\n\n"
              "El valor normalizado hará cambiar la corriente de reposo, pero NO la tensión de estabilidad: el programa "
              "vuelve a calcular QIc = ERes / Res.\n\n"
              "Sin desacoplar, Res también fija la ganancia:\n\n"
              "        Vg = RLac / Res",
        .en = "           Emitter resistor\n\n"
              "Res develops the stability voltage ERes. The program proposes the exact value, ERes / QIc: put the "
              "nearest standard one (press the right button to see the table).\n\n"
              "The standard value will change the quiescent current, but NOT the stability voltage: the program works "
              "out QIc = ERes / Res again.\n\n"
              "Without bypass, Res also fixes the gain:\n\n"
              "        Vg = RLac / Res"}},
    {.field = Text9, .shortName = " RLw..", .page = {
        .es = "                 RLw\n\n"
              "Es la carga del amplificador, en Kohm: el equipo, el parlante ó la etapa siguiente sobre la que se "
              "desarrolla la tensión de salida Eopp. Si lo que sigue es otra etapa, coloque su impedancia de entrada.\n\n"
              "Para cargas pequeñas el circuito exige más corriente y ofrece menos impedancia de entrada. Si RLac llega "
              "a igualar a RLw no queda lugar para el resistor RL y el diseño no puede continuar: eleve QIc ó disminuya "
              "Vg.",
        .en = "                 RLw\n\n"
              "It is the load of the amplifier, in Kohm: the equipment, the loudspeaker or the next stage, on which the "
              "output voltage Eopp is developed. If another stage follows, put its input impedance.\n\n"
              "For small loads the circuit demands more current and offers less input impedance. If RLac comes to equal "
              "RLw there is no room left for the resistor RL and the design cannot go on: raise QIc or lower Vg."}},
    {.field = Text10, .shortName = " S..", .page = {
        .es = "          Estabilidad  ( S )\n\n"
              "El factor de estabilidad relaciona el resistor de base con el de emisor y fija Rb2:\n\n"
              "        Rb2 = S x Res\n\n"
              "Valores bajos (1 a 6) dan circuitos muy estables, pero el divisor de base drena más señal y baja la "
              "impedancia de entrada. Con 10 el circuito es menos estable y exige menos al generador: es un buen valor "
              "para audio.\n\n"
              "Al llegar a Rb1 el programa vuelve a calcular S con el Rb2 comercial que haya elegido.",
        .en = "            Stability  ( S )\n\n"
              "The stability factor ties the base resistor to that of the emitter and fixes Rb2:\n\n"
              "        Rb2 = S x Res\n\n"
              "Low values (1 to 6) give very stable circuits, but the base divider drains more signal and the input "
              "impedance falls. With 10 the circuit is less stable and asks less of the generator: a good value for "
              "audio.\n\n"
              "When you reach Rb1 the program works out S again with the standard Rb2 that you have chosen."}},
    {.field = Text11, .shortName = "...Vg", .page = {
        .es = "         Ganancia de tensión\n\n"
              "Vg son las veces que el circuito amplifica la señal de entrada:\n\n"
              "        Vg = Eopp/Ein\n\n"
              "(las dos en el mismo valor, pico a pico ó eficaz). Con Res totalmente desacoplado la fija el "
              "transistor:\n\n"
              "        Vg = RLac / r'e\n\n"
              "y sin desacoplar la fija el resistor de emisor:\n\n"
              "        Vg = RLac / Res\n\n"
              "La primera es alta y cambia con QIc; la segunda es baja y no cambia casi nada. Pruebe de colocar valores "
              "elevados, a modo de ejercicio: el programa le dirá por qué no puede.",
        .en = "            Voltage gain\n\n"
              "Vg is how many times the circuit amplifies the input signal:\n\n"
              "        Vg = Eopp/Ein\n\n"
              "(both of a kind, peak to peak or r.m.s.). With Res fully bypassed the transistor fixes it:\n\n"
              "        Vg = RLac / r'e\n\n"
              "and without bypass the emitter resistor does:\n\n"
              "        Vg = RLac / Res\n\n"
              "The first is high and changes with QIc; the second is low and hardly changes at all. Try high values, as "
              "an exercise: the program will tell you why it cannot be."}},
    {.field = Text17, .shortName = "RL..", .page = {
        .es = "         Resistor de Colector\n\n"
              "RLac es la carga que ve la señal: RL y RLw en paralelo. Conocidas RLac y RLw se despeja:\n\n"
              "   RL = (RLw x RLac) / (Rlw - RLac)\n\n"
              "Coloque el valor normalizado más cercano, en Kohm; el programa vuelve a calcular la ganancia real.\n\n"
              "La tensión continua sobre este resistor, ERL = QIc x RL, deberá ser como mínimo la mitad de la salida "
              "pico a pico (Eopp): si es menor, la señal se recorta.",
        .en = "          Collector resistor\n\n"
              "RLac is the load that the signal sees: RL and RLw in parallel. Knowing RLac and RLw,\n\n"
              "   RL = (RLw x RLac) / (Rlw - RLac)\n\n"
              "Put the nearest standard value, in Kohm; the program works out the real gain again.\n\n"
              "The d.c. voltage on this resistor, ERL = QIc x RL, must be at least half of the peak to peak output "
              "(Eopp): if it is less, the signal is clipped."}},
    {.field = Text12, .shortName = " fo...", .page = {
        .es = "        Frecuencia de corte\n\n"
              "fo es la menor frecuencia de interés, en Hertz. A esta frecuencia cada capacitor de acoplamiento tendrá "
              "una reactancia igual a la décima parte de la resistencia que alimenta:\n\n"
              "  Cout = 1 / (2 x ¶ x fo x 0.1 x Rlw )\n\n"
              "Para Cin la cuenta es la misma, con la impedancia de entrada (Zin) en lugar de RLw. Para audio, 20 Hz; "
              "si sólo le interesa la voz, con 300 Hz los capacitores serán quince veces más pequeños.",
        .en = "          Cut-off frequency\n\n"
              "fo is the lowest frequency of interest, in Hertz. At this frequency each coupling capacitor will have a "
              "reactance of a tenth of the resistance that it feeds:\n\n"
              "  Cout = 1 / (2 x ¶ x fo x 0.1 x Rlw )\n\n"
              "For Cin the sum is the same, with the input impedance (Zin) in the place of RLw. For audio, 20 Hz; if "
              "you only care for speech, with 300 Hz the capacitors will be fifteen times smaller."}},
    {.field = Text13, .shortName = " Eopp...", .page = {
        .es = "          Tensión de salida\n\n"
              "Eopp es la tensión alterna, de pico a pico, que deberá manejar la carga. Si no posee el dato pulse Esc y "
              "coloque la señal de entrada: el programa calcula la salida con la ganancia.\n\n"
              "El transistor necesita conservar, además de la excursión, un volt para no saturarse:\n\n"
              "        Eq(min) = Eopp + 1 Volt\n\n"
              "y sobre RL debe haber en reposo al menos Eopp / 2.",
        .en = "            Output voltage\n\n"
              "Eopp is the alternating voltage, peak to peak, that the load must handle. If you do not have it, press "
              "Esc and put the input signal: the program works out the output with the gain.\n\n"
              "Besides the swing, the transistor must keep one volt so as not to saturate:\n\n"
              "        Eq(min) = Eopp + 1 Volt\n\n"
              "and on RL there must be, at rest, at least Eopp / 2."}},
    {.field = Text16, .shortName = "Es...", .page = {
        .es = "         Fuente de alimentación\n\n"
              "La fuente se reparte entre el resistor de emisor, el transistor y el resistor de colector:\n\n"
              "      Es(min) = ERes + EQ + ERL\n\n"
              "El programa propone esa suma; coloque la tensión que tiene disponible, igual ó superior. Lo que sobre "
              "quedará entre Colector y Emisor (Eq). Si el valor es inusualmente alto asígnelo sin miedo: Ud. maneja "
              "la corriente de reposo.\n\n"
              "Cuide que Eq no supere la máxima Ec(max) del Manual, ni baje de 3 Volts.",
        .en = "            Supply voltage\n\n"
              "The supply is shared by the emitter resistor, the transistor and the collector resistor:\n\n"
              "      Es(min) = ERes + EQ + ERL\n\n"
              "The program proposes that sum; put the voltage you have at hand, the same or higher. What is left over "
              "will stay between Collector and Emitter (Eq). If the value is unusually high do not be afraid of it: it "
              "is you who manages the quiescent current.\n\n"
              "Take care that Eq neither passes the Ec(max) of the Manual nor falls below 3 Volts."}},
    {.field = Text21, .shortName = "-Es...", .page = {
        .es = "           Fuente negativa\n\n"
              "Cuando el circuito se polariza por emisor, Res no va a masa sino a una fuente negativa, y la base queda "
              "prácticamente a masa a través de Rb2. No hace falta Rb1.\n\n"
              "Casi toda la fuente negativa cae en Res:\n\n"
              "        Res = -Es / QIc\n\n"
              "Como esa tensión es mucho mayor que la variación de Vbe, la corriente queda firme aunque cambie la "
              "temperatura. No debe ser menor que ERes.",
        .en = "           Negative supply\n\n"
              "When the circuit is polarized by emitter, Res does not go to ground but to a negative supply, and the "
              "base is practically at ground through Rb2. No Rb1 is needed.\n\n"
              "Nearly all of the negative supply drops on Res:\n\n"
              "        Res = -Es / QIc\n\n"
              "As that voltage is much greater than the change of Vbe, the current stays firm though the temperature "
              "changes. It must not be less than ERes."}},
    {.field = Text2, .shortName = "Beta...", .page = {
        .es = "             Beta  (hFE)\n\n"
              "Es la ganancia de corriente estática del transistor, Ic / Ib. El Manual la da según QIc, y de un "
              "transistor a otro del mismo tipo puede variar al doble ó al triple: tome el valor mínimo, ó mida el "
              "suyo.\n\n"
              "No la confunda con hfe, que es la ganancia para pequeñas señales.\n\n"
              "Un buen diseño depende poco de Beta: interviene en la impedancia de entrada y en Rb1, que por eso se "
              "reemplaza por un preset.",
        .en = "             Beta  (hFE)\n\n"
              "It is the static current gain of the transistor, Ic / Ib. The Manual gives it for each QIc, and from one "
              "transistor to another of the same type it may double or treble: take the minimum value, or measure "
              "yours.\n\n"
              "Do not mistake it for hfe, which is the gain for small signals.\n\n"
              "A good design depends little on Beta: it comes into the input impedance and into Rb1, which is why a "
              "preset takes its place."}},
    {.field = Text5, .shortName = "Ec(max)", .page = {
        .es = "      Tensión máxima de colector\n\n"
              "Es la mayor tensión que soporta el transistor entre Colector y Emisor (VCEO en el Manual). A este cuadro "
              "se llega con un click.\n\n"
              "La tensión Eq del circuito debe ser menor; conviene quedarse un 20 % por debajo. Si la supera, cambie de "
              "transistor ó baje la fuente.",
        .en = "       Maximum collector voltage\n\n"
              "It is the highest voltage that the transistor stands between Collector and Emitter (VCEO in the Manual). "
              "You reach this field with a click.\n\n"
              "The voltage Eq of the circuit must be less; it is wise to stay 20 % below. If it is passed, change the "
              "transistor or lower the supply."}},
    {.field = Text6, .shortName = "Ic(max)", .page = {
        .es = "      Corriente máxima de colector\n\n"
              "Es dato del Manual, en mA. No se aceptan valores inferiores a 10 mA.\n\n"
              "La corriente de reposo no debe superar el 40 % de este valor: así queda lugar para la señal, que la hace "
              "subir y bajar, y el transistor trabaja frío. Por encima de ese límite la ganancia cae y el diseño se "
              "vuelve inestable.",
        .en = "       Maximum collector current\n\n"
              "It is a fact of the Manual, in mA. Values under 10 mA are not accepted.\n\n"
              "The quiescent current should not pass 40 % of this value: so there is room for the signal, which makes it "
              "rise and fall, and the transistor works cool. Above that limit the gain falls and the design becomes "
              "unstable."}},
    {.field = Text7, .shortName = "Si/Ge", .page = {
        .es = "         Tensión de juntura\n\n"
              "Es la tensión Base - Emisor con la que el transistor conduce: 0.6 Volt para silicio y 0.2 Volt para "
              "germanio. Se acepta de 0.2 a 0.7.\n\n"
              "El programa la suma a ERes para saber qué tensión debe haber en la base, y con ella calcula Rb1.",
        .en = "          Junction voltage\n\n"
              "It is the Base - Emitter voltage with which the transistor conducts: 0.6 Volt for silicon and 0.2 Volt for "
              "germanium. From 0.2 to 0.7 is accepted.\n\n"
              "The program adds it to ERes to know what voltage there must be at the base, and works out Rb1 with it."}},
    {.field = Text18, .shortName = "Rb2", .page = {
        .es = "           Resistor Rb2\n\n"
              "Va de la base a masa y drena el excedente de corriente:\n\n"
              "        Rb2 = S x Res\n\n"
              "Coloque un valor normalizado, en Kohm. Si es más bajo que el calculado obtendrá mejor estabilidad (S) "
              "pero menor impedancia de entrada; si es más alto, al revés. Es conveniente que no sea menor a Res.\n\n"
              "Aquí el criterio es suyo: depende de lo que pueda entregar el generador.",
        .en = "            Resistor Rb2\n\n"
              "It goes from the base to ground and drains the spare current:\n\n"
              "        Rb2 = S x Res\n\n"
              "Put a standard value, in Kohm. Lower than the calculated one gives better stability (S) but a smaller "
              "input impedance; higher, the other way round. It should not be less than Res.\n\n"
              "Here the judgement is yours: it depends on what the generator can give."}},
    {.field = Text19, .shortName = "Rb1", .page = {
        .es = "       Resistor Rb1  (preset)\n\n"
              "Va de la fuente a la base y provee la corriente de polarización. Como Beta y Vbe cambian de un transistor "
              "a otro, en el armado se coloca un preset del doble del valor y se ajusta hasta leer la corriente de "
              "reposo del diseño.\n\n"
              "Haga lo mismo aquí: varíe el valor de a unidades hasta que la corriente obtenida no difiera en más del "
              "10 % de QIc. Recién entonces las tensiones serán las calculadas.\n\n"
              "En el banco no abra el colector para medir: lea la tensión sobre Res y divida por su valor.",
        .en = "       Resistor Rb1  (preset)\n\n"
              "It goes from the supply to the base and provides the bias current. As Beta and Vbe change from one "
              "transistor to another, what is fitted is a preset of twice the value, turned until the quiescent current "
              "of the design is read.\n\n"
              "Do the same here: vary the value by units until the current obtained differs from QIc by no more than "
              "10 %. Only then will the voltages be those calculated.\n\n"
              "On the bench do not open the collector to measure: read the voltage on Res and divide by its value."}},
});
// clang-format on

} // namespace help_detail

const std::span<const sheets::HelpPage> helpPages = help_detail::pages;

} // namespace velmor::form2
