// SPDX-License-Identifier: MIT
// The long texts of `Form3`: the pages of the bench, the two help pages and the table of commercial values. The example of
// the bench is always Vg = 100 with 0.1 V at input 1.
#include "designs/differential/form3_texts.h"

namespace velmor::form3::texts {

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
          "elegida queda marcada.\n"
          "2. Haga clic en un punto del circuito y lea.\n\n"
          "Con A aparece el punto entre colectores (Out 3). En las cargas y en la entrada se mide a la frecuencia de "
          "corte fo: difieren un 10 % de las frecuencias medias.",
    .en = "Multimeter on.\n\n"
          "1. Choose AC or DC and a function: V voltage, A current, W power, Z impedance. The function chosen "
          "stands marked.\n"
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
    "Shift+F1 shows and hides this page.";
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
    "Shift+F1 muestra y oculta esta página.";
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
