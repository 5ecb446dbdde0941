// SPDX-License-Identifier: MIT
// The long texts of `Form3`: the pages of the bench, the two help pages and the table of commercial values. The example of
// the bench is always Vg = 100 with 0.1 V at input 1.
#include "designs/differential/form3_texts.h"

#include "designs/differential/form3_controls.h"

namespace velmor::form3::texts {

namespace pages {

// clang-format off
constexpr StatusRow lessons[] = {
    {Text1, {.es = "La estabilidad primero.\n\n"
                   "¿Cuánto puede cambiar la corriente de reposo cuando la temperatura sube de 20 ºC a la de trabajo?\n\n"
                   "Cuanto menos permita, mayor será la fuente negativa.",
             .en = "Stability first.\n\n"
                   "How much may the quiescent current change when the temperature rises from 20 ºC to that of work?\n\n"
                   "The less you allow, the higher the negative supply."}},
    {Text6, {.es = "La temperatura más alta en la que trabajará el equipo, adentro de su gabinete.\n\n"
                   "Con el botón derecho puede convertirla desde Fahrenheit ó Kelvin.",
             .en = "The highest temperature in which the equipment will work, inside its case.\n\n"
                   "With the right button you can convert it from Fahrenheit or Kelvin."}},
    {Text7, {.es = "La tensión Base - Emisor cae unos milivoltios por cada grado.\n\n"
                   "En un par diferencial los dos transistores cambian juntos, y la diferencia se cancela. La corriente de reposo no: de ella cuida Res.",
             .en = "The Base - Emitter voltage falls some millivolts for each degree.\n\n"
                   "In a long tail pair both transistors change together, and the difference cancels. The quiescent current does not: Res takes care of it."}},
    {Text9, {.es = "La corriente de cada transistor sin señal. Por Res circulan las dos.\n\n"
                   "Fija r'e = 25 mV / Qic, y con ella la ganancia y la impedancia de entrada.\n\n"
                   "Con cargas pequeñas deberá elevarla.",
             .en = "The current of each transistor without a signal. In Res flow both.\n\n"
                   "It fixes r'e = 25 mV / Qic, and with it the gain and the input impedance.\n\n"
                   "With small loads you will have to raise it."}},
    {Text10, {.es = "La resistencia que se conecta a cada salida, después de Cco.\n\n"
                    "Debe ser mayor que RLac = Vg x 2.5 x r'e; si no, Qic es insuficiente.",
              .en = "The resistance connected to each output, behind Cco.\n\n"
                    "It must be larger than RLac = Vg x 2.5 x r'e; if not, Qic is insufficient."}},
    {Text11, {.es = "Cuántas veces mayor que Res puede ser el resistor de base: Rb2 = S x Res.\n\n"
                    "Con S = 1 la base queda firme; con S mayor sube la impedancia y baja la estabilidad.",
              .en = "How many times larger than Res the resistor of the base may be: Rb2 = S x Res.\n\n"
                    "With S = 1 the base stands firm; a larger S raises the impedance and lowers the stability."}},
    {Text12, {.es = "La ganancia de tensión de una salida contra masa. Entre los dos colectores obtendrá el doble.\n\n"
                    "Al final del diseño el cuadro muestra la ganancia que resulta con los valores comerciales.",
              .en = "The voltage gain of one output against ground. Between the two collectors you get twice as much.\n\n"
                    "At the end of the design the field shows the gain that comes out with the commercial values."}},
    {Text13, {.es = "La frecuencia más baja de interés. En ella la ganancia cae un 10 %.\n\n"
                    "De fo salen los capacitores: cuanto más baja, más grandes.",
              .en = "The lowest frequency of interest. There the gain falls 10 %.\n\n"
                    "From fo come the capacitors: the lower it is, the larger they are."}},
    {Text14, {.es = "La tensión de salida pico a pico que debe entregar cada colector.\n\n"
                    "EQ(min) = 1 + Eopp: la señal necesita lugar para moverse, y un voltio más.",
              .en = "The output voltage peak to peak that each collector must deliver.\n\n"
                    "EQ(min) = 1 + Eopp: the signal needs room to move, and one volt more."}},
    {Text15, {.es = "La señal de entrada, en valor eficaz, que produce esa salida.\n\n"
                    "Si la cambia, Eopp se calcula de nuevo.",
              .en = "The input signal, r.m.s., that makes that output.\n\n"
                    "If you change it, Eopp is worked out anew."}},
    {Text5, {.es = "Beta (hFE) según el Manual del transistor, a la corriente Qic. Los dos deben ser apareados.\n\n"
                   "Zin = Beta x 2 x r'e",
             .en = "Beta (hFE) as the transistor's Manual gives it, at the current Qic. Both must be matched.\n\n"
                   "Zin = Beta x 2 x r'e"}},
    {Text2, {.es = "La tensión que soporta el transistor entre Colector y Emisor. EQ no debe superarla.",
             .en = "The voltage that the transistor supports between Collector and Emitter. EQ should not pass it."}},
    {Text3, {.es = "La corriente de Colector que soporta el transistor. Qic no debe superar el 40 %.",
             .en = "The Collector current that the transistor supports. Qic should not pass 40 % of it."}},
    {Text4, {.es = "La juntura Base - Emisor: 0.6 V en Silicio, 0.2 V en Germanio.\n\n"
                   "Con este dato el programa calcula la mínima fuente negativa.",
             .en = "The Base - Emitter junction: 0.6 V in Silicon, 0.2 V in Germanium.\n\n"
                   "With it the program works out the least negative supply."}},
    {Text8, {.es = "ERes = ((T - 20) x ΔVbe x 100) / % ΔQic\n\n"
                   "El programa propone un voltio más. Coloque una fuente que tenga: 15, 24, 30 V.\n\n"
                   "Con menos, el amplificador no cumple la estabilidad que pidió.",
             .en = "ERes = ((T - 20) x ΔVbe x 100) / % ΔQic\n\n"
                   "The program proposes one volt more. Place a supply that you have: 15, 24, 30 V.\n\n"
                   "With less, the amplifier does not keep the stability you asked for."}},
    {Text16, {.es = "Res = Ebias / (2 x Qic)\n\n"
                    "Por Res circulan las corrientes de los dos transistores. Coloque el valor comercial más próximo: Qic se calcula de nuevo.",
              .en = "Res = Ebias / (2 x Qic)\n\n"
                    "In Res flow the currents of both transistors. Place the nearest commercial value: Qic is worked out anew."}},
    {Text17, {.es = "RL y la carga RLw, en paralelo, forman RLac.\n\n"
                    "Con el valor comercial el programa calcula ERl = Qic x RL, que debe llegar a la mitad de Eopp.",
              .en = "RL and the load RLw, in parallel, make RLac.\n\n"
                    "With the commercial value the program works out ERl = Qic x RL, which must reach half of Eopp."}},
    {Text18, {.es = "Es = EQ + ERl\n\n"
                    "Coloque una fuente que supere la mínima. Con Enter termina el diseño, y el multímetro espera.",
              .en = "Es = EQ + ERl\n\n"
                    "Place a supply that passes the least one. With Enter the design is finished, and the multimeter waits."}},
};
// clang-format on

} // namespace pages

std::span<const StatusRow> lessonRows()
{
    return pages::lessons;
}

// clang-format off
const BiText benchPage{
    .es = "El generador entrega dos senoides iguales, A y B, en oposición de fase.\n\n"
          "1. Arrastre una de ellas hasta la entrada 1 ó la entrada 2 (teclado: Ctrl+1 a Ctrl+4).\n"
          "2. Mida con un clic en Out 1, Out 2 ó Out 3 (teclado: Ctrl+5, Ctrl+6, Ctrl+7).\n"
          "3. Pruebe la misma senoide en las dos entradas: es el Modo Común. Pulse entonces SMC ó CMRR y mida en el "
          "emisor.\n\n"
          "Un clic en la hoja vuelve a los cuadros del diseño.",
    .en = "The generator gives two equal sinusoids, A and B, in opposite phase.\n\n"
          "1. Drag one of them to input 1 or input 2 (keyboard: Ctrl+1 to Ctrl+4).\n"
          "2. Measure with a click on Out 1, Out 2 or Out 3 (keyboard: Ctrl+5, Ctrl+6, Ctrl+7).\n"
          "3. Try the same sinusoid at both inputs: that is the Common Mode. Then press SMC or CMRR and measure at the "
          "emitter.\n\n"
          "A click on the sheet goes back to the fields of the design."};
const BiText meterPage{
    .es = "Multímetro encendido.\n\n"
          "1. Elija CA (AC) ó CC (DC) y una función: V tensión, A corriente, W potencia, Z impedancia. La función "
          "elegida queda apagada.\n"
          "2. Haga clic en un punto del circuito y lea.\n\n"
          "Con A aparece el punto entre colectores (Out 3). En las cargas y en la entrada se mide a la frecuencia de "
          "corte fo: difieren un 10 % de las frecuencias medias.",
    .en = "Multimeter on.\n\n"
          "1. Choose AC or DC and a function: V voltage, A current, W power, Z impedance. The function chosen is the "
          "one that is greyed.\n"
          "2. Click on a point of the circuit and read.\n\n"
          "With A the point between the collectors (Out 3) appears. At the loads and at the input you measure at the "
          "cut-off frequency fo: 10 % off mid-band."};
const BiText teachingPage{
    .es = "Al ingresar una señal asumimos en forma predeterminada que la otra base se encuentra a masa para la señal: el "
          "capacitor de entrada la lleva allí.\n\n"
          "El amplificador entrega la diferencia entre las dos bases. Un cambio de temperatura, en cambio, llega por igual a "
          "los dos transistores: las dos corrientes suben juntas, Res las frena, y entre los colectores no aparece nada.\n\n"
          "Por eso el par diferencial sirve para señales muy débiles y aun para corriente continua.",
    .en = "When entering a sign we assume in predetermined form that the other base is to ground for the sign: its input "
          "capacitor takes it there.\n\n"
          "The amplifier delivers the difference between both bases. A change of temperature, though, reaches both "
          "transistors alike: both currents rise together, Res holds them back, and nothing appears between the "
          "collectors.\n\n"
          "That is why the long tail pair serves for very weak signals, and even for direct current."};
const BiText testInOut    {.es = " Mida en una de las salidas  ", .en = " Test in Out  "};
const BiText testInEmitter{.es = " Mida en el Emisor",             .en = " Test in  Emitter "};
const BiText smcPage{
    .es = "Los dos transistores nunca son iguales del todo. Ejemplo:\n\n"
          "Ganancia del transistor 1 = 100\n"
          "Ganancia del transistor 2 = 98\n\n"
          "Con la misma señal en las dos bases cada colector entrega lo suyo, y entre ellos queda la diferencia:\n\n"
          "SMC = 100 - 98 = 2\n\n"
          "SMC es la Señal de Modo Común: lo que el par no llega a cancelar.",
    .en = "The two transistors are never quite alike. Example:\n\n"
          "Gain of transistor 1 = 100\n"
          "Gain of transistor 2 = 98\n\n"
          "With the same signal at both bases each collector delivers its own, and between them the difference is left:\n\n"
          "SMC = 100 - 98 = 2\n\n"
          "SMC is the Signal of Common Mode: what the pair does not manage to cancel."};
const BiText cmrrPage{
    .es = "Rechazo de Modo Común: cuántas veces más amplifica el par la diferencia entre las entradas que lo que ambas tienen "
          "en común.\n\n"
          "CMRR = Vg / SMC\n\n"
          "Cuanto mayor, mejor. Mida ahora en el emisor.",
    .en = "Common Mode Rejection: how many times more the pair amplifies the difference between its inputs than what both have "
          "in common.\n\n"
          "CMRR = Vg / SMC\n\n"
          "The higher, the better. Now measure at the emitter."};
const BiText cmrrMeasured{
    .es = "Ejemplo:\n\n"
          "Vg = 100\n"
          "SMC = 1\n\n"
          "CMRR = Vg / SMC = 100 / 1 = 100\n\n"
          "En decibeles: 20 x log 100 = 40 db. Con una fuente de corriente en lugar de Res, mucho más.",
    .en = "Example:\n\n"
          "Vg = 100\n"
          "SMC = 1\n\n"
          "CMRR = Vg / SMC = 100 / 1 = 100\n\n"
          "In decibels: 20 x log 100 = 40 db. With a current source in place of Res, much more."};
const BiText toGround{
    .es = "La medición  la está realizando entre  colector y masa, asi la señal obtenida es la mitad de la disponible entre "
          "los dos colectores ",
    .en = "You has testing between Collector and Ground,  the obtained sign is this way half of the available one among the "
          "two Collectors"};
const BiText betweenCollectors{
    .es = "  La medición  la está realizando entre los dos colectores, así la señal obtenida es el doble de la disponible en la "
          "conexion de salida simple. ",
    .en = " You are testing among the two Collectors, the obtained sign is double the available one in the connection of "
          "simple exit."};
const BiText zeroExplained{
    .es = "Las dos bases reciben lo mismo: no hay diferencia que amplificar.",
    .en = "Both bases receive the same: there is no difference to amplify."};

const std::string_view englishHelp =
    " That it is necessary to see..? \n\n"
    "THE DESIGN\n"
    "Begin with the stability: % ΔQic, temperature and ΔVbe. From them comes the least negative supply, -Ebias:\n"
    "    ERes = (Tamb. - 20) x ΔVbe x 100 / % ΔQic\n"
    "Enter takes you to the next field. An empty field takes its default when you leave it.\n\n"
    "TEMPERATURE AND -Ebias\n"
    "Raise the temperature, or ask for a smaller % ΔQic, and see how -Ebias grows: stability is paid for in volts. ERes "
    "stands between -Ebias and the emitters; the higher it is, the less Qic follows the temperature.\n\n"
    "RLw AND Qic\n"
    "A heavy load (a small RLw) wants more current. Vg fixes RLac, RLac and RLw fix RL. When RLw is not larger than RLac, Qic "
    "is insufficient: raise Qic, so that r'e falls, and begin again from there. For small loads try 2 or 5 mA.\n\n"
    "Res AND RL\n"
    "The program gives the exact value; place a commercial one. The table shows while the pointer is over the field (F2). Res "
    "fixes the new Qic, and with it everything that follows.\n\n"
    "THE GENERATOR\n"
    "Click on the generator. Drag sinusoid A or B to input 1 or input 2, and click on Out 1, Out 2 or Out 3: watch the phase and "
    "the voltage. With a sinusoid at one input alone, the other base is to ground for the signal.\n"
    "Drag the same sinusoid to both inputs: the outputs are zero. Then SMC and CMRR wait for you at the emitter.\n\n"
    "THE MULTIMETER\n"
    "With the design finished the multimeter reads V, A, W and Z, AC and DC, at the points of the circuit.\n\n"
    "KEYBOARD\n"
    "Ctrl+B switches the bench on and off.\n"
    "Ctrl+1, Ctrl+2: A to input 1, 2.\n"
    "Ctrl+3, Ctrl+4: B to input 1, 2.\n"
    "Ctrl+5, 6, 7, 8: Out 1, 2, 3 and the point of the meter.\n"
    "F1 shows and hides this page.";
const std::string_view spanishHelp =
    "  Que hay para hacer...?\n\n"
    "EL DISEÑO\n"
    "Comience por la estabilidad: % ΔQic, temperatura y ΔVbe. De ellas sale la mínima fuente negativa, -Ebias:\n"
    "    ERes = (Tamb. - 20) x ΔVbe x 100 / % ΔQic\n"
    "Enter lleva al cuadro siguiente. Un cuadro vacío toma su valor predeterminado al salir de él.\n\n"
    "LA TEMPERATURA Y -Ebias\n"
    "Eleve la temperatura, ó pida menor % ΔQic, y vea cómo crece -Ebias: la estabilidad se paga con tensión. ERes queda "
    "entre -Ebias y los emisores; cuanto más alta, menos sigue Qic a la temperatura.\n\n"
    "RLw Y Qic\n"
    "Una carga pesada (RLw pequeña) pide más corriente. Vg fija RLac; RLac y RLw fijan RL. Si RLw no es mayor que RLac, Qic "
    "es insuficiente: eleve Qic, para que baje r'e, y siga desde allí. Para cargas pequeñas pruebe con 2 ó 5 mA.\n\n"
    "Res Y RL\n"
    "El programa da el valor exacto; coloque uno comercial. La tabla aparece con el puntero sobre el cuadro (F2). Res fija la "
    "nueva Qic, y con ella todo lo que sigue.\n\n"
    "EL GENERADOR\n"
    "Haga clic en el generador. Arrastre la senoide A ó B hasta la entrada 1 ó 2, y haga clic en Out 1, Out 2 ó Out 3: observe "
    "la fase y la tensión. Con una senoide en una sola entrada, la otra base está a masa para la señal.\n"
    "Arrastre la misma senoide a las dos entradas: las salidas son cero. Entonces SMC y CMRR lo esperan en el emisor.\n\n"
    "EL MULTÍMETRO\n"
    "Con el diseño terminado el multímetro mide V, A, W y Z, en alterna (AC) y continua (DC), en los puntos del circuito.\n\n"
    "TECLADO\n"
    "Ctrl+B enciende y apaga el banco.\n"
    "Ctrl+1, Ctrl+2: A a la entrada 1, 2.\n"
    "Ctrl+3, Ctrl+4: B a la entrada 1, 2.\n"
    "Ctrl+5, 6, 7, 8: Out 1, 2, 3 y el punto del multímetro.\n"
    "F1 muestra y oculta esta página.";
const std::string_view commercialValues =
    "20%\t10%\t5%\n"
    "1\t1\t1\n"
    "\t\t1.1\n"
    "\t1.2\t1.2\n"
    "\t\t1.3\n"
    "1.5\t1.5\t1.5\n"
    "\t\t1.6\n"
    "\t1.8\t1.8\n"
    "\t\t2\n"
    "2.2\t2.2\t2.2\n"
    "\t\t2.4\n"
    "\t2.7\t2.7\n"
    "\t\t3\n"
    "3.3\t3.3\t3.3\n"
    "\t\t3.6\n"
    "\t3.9\t3.9\n"
    "\t\t4.3\n"
    "4.7\t4.7\t4.7\n"
    "\t\t5.1\n"
    "\t5.6\t5.6\n"
    "\t\t6.2\n"
    "6.8\t6.8\t6.8\n"
    "\t\t7.5\n"
    "\t8.2\t8.2\n"
    "\t\t9.1\n"
    "\n"
    "x 10\tx 100\tx 1 K\n"
    "x 10 K\tx 100 K\tx 1 M\n"
    "x 10 M";
// clang-format on

} // namespace velmor::form3::texts
