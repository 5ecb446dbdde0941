// SPDX-License-Identifier: MIT
// The pages stand once each; captions that differ by their dots only share one.
#include "tools/form21_pages.h"

namespace velmor::form21 {

// clang-format off
constexpr std::string_view deltaQIcPage =
    "   ¿Cuánta variación es mucha?\n\n"
    "El resistor de emisor trabaja como un freno: todo aumento de QIc aumenta la caída en Res y le quita tensión a la "
    "juntura. El freno nunca es perfecto; Delta QIc dice cuánto permitimos que ceda.\n\n"
    "Haga la prueba con T = 75 y Delta Vbe = 2.5:\n\n"
    "      10 %  ->  ERes =   1.375 V\n"
    "        5 %  ->  ERes =   2.75 V\n"
    "        1 %  ->  ERes = 13.75 V\n\n"
    "Diez veces más estable, diez veces más tensión perdida en Res. Por eso en circuitos electromédicos se toma de 1 a "
    "3 %, en militares de 5 a 7 %, y en audio 10 %: nadie escucha una diferencia del 10 % en la corriente de reposo.";

constexpr std::string_view temperaturaPage =
    "   ¿De dónde salen los 20 grados?\n\n"
    "El Manual da los datos del transistor a unos 20 - 25 °C. La cuenta de ERes toma 20 como punto de partida, de modo "
    "que T - 20 son los grados que el transistor se alejará de aquello que el fabricante midió.\n\n"
    "Tenga presente que la juntura está más caliente que el ambiente: se calienta sola, con Eq x QIc watts. En pequeña "
    "señal (1 mA, 5 V: 5 mW) no se nota; en potencia es lo que manda.\n\n"
    "Si el dato está en otra escala:\n\n"
    "      °C = ((°F - 32) x 5) / 9\n"
    "      °C = °K - 273";

constexpr std::string_view deltaVbePage =
    "   El efecto avalancha\n\n"
    "Por cada grado, la tensión Base - Emisor que hace falta para la misma corriente baja de 2 a 3 mV. Entre 20 y 75 °C "
    "son 55 x 2.5 mV = 137 mV. Parece poco, pero bastan 18 mV más en la juntura para que la corriente se duplique.\n\n"
    "Sin resistor de emisor: más temperatura, más corriente; más corriente, más potencia; más potencia, más "
    "temperatura. Así hasta que el transistor se destruye.\n\n"
    "Con ERes = 1.375 V esos 137 mV son apenas la décima parte: exactamente el 10 % que Ud. permitió.";

constexpr std::string_view qicPage =
    "   Cómo elegir la corriente de reposo\n\n"
    "Hay tres razones para elegirla:\n\n"
    "1) El Manual: Beta y los demás datos valen a la corriente en que fueron medidos.\n\n"
    "2) La carga: la señal se forma quitando y agregando corriente a QIc. Si QIc x RLac es menor que el pico de la "
    "salida, la onda se recorta. Con RLw pequeña hace falta más corriente.\n\n"
    "3) El límite: no debe superar el 40 % de Icmax.\n\n"
    "Al aumentarla baja r'e (25 mV / QIc), sube la ganancia del circuito desacoplado y baja la impedancia de entrada. "
    "Nada es gratis.";

constexpr std::string_view qicFollowerPage =
    "   La corriente en el seguidor\n\n"
    "En Colector Común la carga está en el emisor y la tensión de salida es la de la base, menos 0.6 Volt. Para que la "
    "carga reciba Eopp la corriente de reposo debe poder anularse justo en el pico negativo:\n\n"
    "      QIc = Eopp / (2 x RLw)\n\n"
    "Res queda en paralelo con RLw, así que al conocerlo el programa la corrige con RLac = Res // RLw.\n\n"
    "Si la onda se recorta abajo, falta corriente; si se recorta arriba, falta fuente. La corriente no debe superar el "
    "40 % de Icmax.";

constexpr std::string_view resPage =
    "   Un resistor, dos trabajos\n\n"
    "Para la corriente continua Res sostiene el punto de reposo; para la alterna reduce la ganancia. Los dos trabajos se "
    "separan con un capacitor:\n\n"
    "- sin capacitor: máxima estabilidad de la ganancia;\n\n"
    "         Vg = RLac / Res.\n\n"
    "- todo desacoplado: máxima ganancia, Vg = RLac / r'e, pero cambia con la temperatura y deforma con señales "
    "grandes;\n\n"
    "- una parte desacoplada: la parte libre, de al menos diez veces r'e, fija la ganancia que Ud. necesite.\n\n"
    "En los tres casos ERes es la misma.";

constexpr std::string_view resFollowerPage =
    "   Res en el seguidor\n\n"
    "Cuanto mayor sea Res, menos le roba a la carga y mayor es la impedancia de entrada; pero sobre ella cae QIc x Res y "
    "hay que pagarlo con tensión de fuente.\n\n"
    "El programa propone 20 veces RLw, que pierde sólo un 5 % de la señal. Si la fuente que resulta es muy alta coloque "
    "un valor menor (4 ó 5 veces RLw): QIc aumentará un poco, porque ahora Res también consume.\n\n"
    "Ideal: reemplazar Res por una fuente de corriente constante.";

constexpr std::string_view rlwPage =
    "   La carga manda\n\n"
    "Todo diseño empieza por el final: RLw es lo que hay que alimentar. En una cadena de etapas, la RLw de cada una es la "
    "Zin de la siguiente; por eso se proyecta de atrás hacia adelante.\n\n"
    "Si RLw es pequeña (menos de 1 Kohm) la corriente necesaria crece y puede pasar el 40 % de Icmax. En ese caso no "
    "insista: intercale un seguidor por emisor (Colector Común) y diseñe esta etapa con la Zin del seguidor como carga.";

constexpr std::string_view sPage =
    "   Qué mide el factor S\n\n"
    "En los circuitos realimentados por corriente:\n\n"
    "        S = Rb2 / Res \n\n"
    "y en los realimentados por tensión S = Rb1 / RL. Compara el camino por donde se va la corriente que sobra (el "
    "resistor de base) con el resistor que detecta el cambio.\n\n"
    "S = 1: el divisor es de tan baja resistencia que la tensión de base queda clavada; la estabilidad es óptima y la "
    "impedancia de entrada, muy baja. S = 10: el divisor molesta menos al generador y la base se deja llevar un poco por "
    "Beta.\n\n"
    "1 a 3 para circuitos críticos, 10 para audio.";

constexpr std::string_view vgDefinitionPage =
    "   La ganancia, vista desde afuera\n\n"
    "Sin mirar el circuito, la ganancia es un cociente entre dos mediciones:\n\n"
    "          Vg = Eopp / Ein  \n\n"
    "Las dos se toman en el mismo valor: si la salida está pico a pico y la entrada en valor eficaz, multiplique ésta por "
    "2.82 (1.41 x 2) antes de dividir.\n\n"
    "Vista desde adentro, con el resistor de emisor sin desacoplar:\n\n"
    "         Vg = RLac / Res.\n\n"
    "No aparece el transistor: cambia Beta, cambia la temperatura, y la ganancia queda. Es el premio por conformarse con "
    "poca.";

constexpr std::string_view vgTransistorPage =
    "   La ganancia del transistor\n\n"
    "Con el emisor a masa para la señal sólo queda la resistencia interna de la juntura, r'e = 25 mV / QIc:\n\n"
    "         Vg = RLac / r'e.\n\n"
    "Con 1 mA y RLac = 2.5 K son 100 veces. Por encima de ese valor el diseño se complica: RL crece, la tensión sobre RL "
    "también, y la fuente no alcanza. Si necesita más, use dos etapas: dos de 20 dan 400 y las dos trabajan "
    "cómodas.\n\n"
    "En decibeles las etapas se suman: 26 + 26 = 52 db. La calculadora del programa hace la cuenta.";

constexpr std::string_view rlPage =
    "   Cuando RL resulta negativo\n\n"
    "RLac no puede ser mayor que RLw: es RLw con otra resistencia en paralelo. Si la ganancia pedida exige\n\n"
    "      RLac = Vg x r'e  mayor que  RLw\n\n"
    "la fórmula responde con un disparate:\n\n"
    "   RLw = 10 K,  RLac = 20 K\n"
    "   RL = (10 x 20) / (10 - 20)\n"
    "   RL = (200 / -10) = -20 K\n\n"
    "No existen resistores negativos en el comercio. Hay dos salidas: aumentar QIc (con lo que baja r'e y baja RLac) ó "
    "conformarse con menos ganancia.\n\n"
    "Recuerde además que ERL = QIc x RL debe ser mayor que Eopp / 2.";

constexpr std::string_view foPage =
    "   La regla de la décima parte\n\n"
    "Un capacitor en serie y la resistencia que le sigue forman un divisor que depende de la frecuencia. Si a fo la "
    "reactancia fuera igual a la resistencia, la señal caería al 70.7 % (3 db). El curso pide que sea la décima parte:\n\n"
    "  Cout = 1 / (2 x ¶ x fo x 0.1 x Rlw )\n\n"
    "Así cada capacitor casi no quita nada, y aunque haya cuatro ó cinco en la cadena el conjunto llega entero a fo.\n\n"
    "El resultado se lleva al valor comercial de arriba: un capacitor más grande nunca empeora los graves.";

constexpr std::string_view eoppPage =
    "   De eficaz a pico a pico\n\n"
    "Los voltímetros de alterna leen el valor eficaz; el osciloscopio muestra el pico a pico. Para una senoide:\n\n"
    "      Epico = Eef x 1.41\n"
    "      Epp = Epico x 2\n"
    "      Eef = (Epp / 2) x 0.707\n\n"
    "Una salida de 10 Vpp son 3.5 V eficaces. Por eso una fuente de 12 V, que parece enorme frente a los 3.5 del "
    "voltímetro, apenas alcanza.";

constexpr std::string_view eoppSwingPage =
    "   El lugar que ocupa la señal\n\n"
    "Mientras la salida sube, el transistor conduce menos; mientras baja, conduce más y la tensión entre Colector y "
    "Emisor disminuye. Para que no llegue a cero:\n\n"
    "    Eq(min) = Eopp + 1 Volt \n\n"
    "El volt de más es la tensión de saturación y un pequeño margen. En los circuitos realimentados por tensión, donde el "
    "resistor de emisor no ocupa lugar, alcanza con 0.66 x Eopp.\n\n"
    "Para el otro semiciclo el límite lo pone RL: ERL debe ser por lo menos Eopp / 2.";

constexpr std::string_view esPage =
    "   El reparto de la fuente\n\n"
    "Imagine la fuente como una regla parada: abajo ERes, en el medio Eq, arriba ERL.\n\n"
    "      Es = ERes + Eq + ERL\n\n"
    "ERes es intocable, porque es la estabilidad. ERL sale de la ganancia y de la corriente. Lo que queda es Eq: si sobra, "
    "mejor para la señal; si falta, la onda se recorta abajo.\n\n"
    "Elija una tensión que exista: 6, 9, 12, 18, 24 Volts. Y controle Ec(max): con el transistor cortado, entre Colector y "
    "Emisor aparece casi toda la fuente.";

constexpr std::string_view negativeEsPage =
    "   Por qué una segunda fuente\n\n"
    "Si en el emisor hay 20 Volts disponibles, Vbe puede variar 137 mV y la corriente cambia menos del 1 %: toda la fuente "
    "negativa es tensión de estabilidad.\n\n"
    "La base queda a masa por Rb2 y no hay divisor que drene señal; la impedancia de entrada depende de Rb2 y de "
    "Beta x r'e.\n\n"
    "El precio: dos fuentes, y un capacitor de desacople grande porque sin él Vg = RLac / Res sería menor que uno. Cuide su "
    "polaridad: el emisor está por debajo de masa.";

constexpr std::string_view betaPage =
    "   El dato en el que menos hay que confiar\n\n"
    "Dos transistores de la misma bolsa pueden tener Beta 120 y Beta 400. Además crece con la temperatura (un 0.5 % por "
    "grado) y cae si la corriente es muy baja ó muy alta.\n\n"
    "Por eso los circuitos se diseñan para que Beta no importe: Res y el divisor fijan la corriente, y lo poco que Beta la "
    "mueve se corrige con el preset que reemplaza a Rb1.\n\n"
    "Donde sí importa es en la impedancia de entrada, Beta x r'e ó Beta x Res: calcúlela con el Beta mínimo.";

constexpr std::string_view ecMaxPage =
    "   La tensión que no se negocia\n\n"
    "VCEO es la tensión a la que el transistor se perfora con la base abierta. Superada, conduce sin control aunque la base "
    "diga lo contrario.\n\n"
    "Trabaje un 20 % por debajo del Manual: la fuente sin carga entrega más que su valor nominal, y las cargas inductivas "
    "(un parlante, un transformador, un relé) devuelven picos que suman tensión a la de la fuente.";

constexpr std::string_view icMaxPage =
    "   El 40 %\n\n"
    "La corriente de reposo no debe superar el 40 % de Icmax. Con señal la corriente sube hasta casi el doble de QIc: con "
    "el 40 % en reposo los picos llegan al 80 %, y todavía queda un margen.\n\n"
    "Cerca del máximo Beta cae, la onda se aplasta de un lado y la juntura se calienta. Un transistor que trabaja holgado "
    "dura lo que dura el equipo; uno exigido dura lo que dura la garantía.";

constexpr std::string_view junturaPage =
    "   Silicio y germanio\n\n"
    "La juntura de silicio conduce con unos 0.6 Volt y la de germanio con 0.2. En los dos casos la tensión baja con la "
    "temperatura, pero el germanio tiene además una corriente de fuga que se duplica cada 10 grados: por eso casi no se "
    "usa.\n\n"
    "Si repara un equipo antiguo encontrará transistores de germanio PNP, con la fuente invertida. El diseño es el mismo; "
    "cambie Vj a 0.2 y dé vuelta la polaridad de los electrolíticos.";

constexpr std::string_view rb2Page =
    "   Rb2, el drenaje\n\n"
    "Rb1 entrega siempre un poco más de corriente que la que la base pide; Rb2 se lleva el resto. Si el transistor "
    "calienta y pide menos, Rb2 se lleva más, y la tensión de base no cambia.\n\n"
    "        S = Rb2 / Res \n\n"
    "Es aquí donde entra en juego el criterio del diseñador: Rb2 chica, circuito firme y generador cargado; Rb2 grande, al "
    "revés. No conviene que sea menor que Res, ni que la corriente por ella sea menor que unas diez veces la de base.\n\n"
    "El otro brazo del divisor se trata aparte.";

constexpr std::string_view rb1Page =
    "   Por qué un preset y no un resistor fijo\n\n"
    "La corriente de base es la diferencia entre dos corrientes parecidas, la de Rb1 y la de Rb2. Un 5 % de error en "
    "cualquiera de las dos puede duplicar ó anular a QIc. Con resistores comerciales y un Beta que no se conoce, acertar a "
    "la primera es casualidad.\n\n"
    "Se arma un resistor fijo, algo menor que el valor calculado, en serie con un preset. Empiece con el preset al máximo "
    "(corriente mínima) y ajuste leyendo la tensión sobre Res, ó sobre RL si no hay Res.\n\n"
    "Ajuste frío, espere unos minutos, y vuelva a ajustar.";

constexpr std::string_view einPage =
    "   Valores que conviene recordar\n\n"
    "      micrófono dinámico        2 a 5 mV\n"
    "      cápsula de guitarra       50 a 200 mV\n"
    "      salida de línea               0.3 a 1 V\n\n"
    "Todos en valor eficaz. Ein(rms) = (Einpp/2 ) x 0.707.\n\n"
    "Con el emisor desacoplado la juntura admite muy poca señal antes de deformarla: unos 5 mV. Si la entrada es mayor deje "
    "unos 100 ohm del emisor sin desacoplar: la ganancia baja, y la distorsión baja con ella.";

constexpr std::string_view rgPage =
    "   El generador y la entrada\n\n"
    "Todo generador tiene una resistencia propia, Rg, que forma un divisor con la Zin del amplificador:\n\n"
    "      Ein = Eg x Zin / (Rg + Zin)\n\n"
    "Si Zin es igual a Rg se pierde la mitad de la tensión (y se transfiere la máxima potencia); si es diez veces mayor se "
    "pierde menos del 10 %. En audio se busca lo segundo: el generador trabaja liviano.\n\n"
    "Si Zin resulta pequeña: desacople menos el emisor, haga bootstrapping, ó intercale un Colector Común.";

constexpr std::array<DeepPage, 37> deepPages{{
    {.caption = " Delta QIc...",    .page = deltaQIcPage,     .nextCaption = " Volver"},
    {.caption = " Temperatura",     .page = temperaturaPage,  .nextCaption = " Volver"},
    {.caption = " Temperatura...",  .page = temperaturaPage,  .nextCaption = " Volver"},
    {.caption = " Delta Vbe...",    .page = deltaVbePage,     .nextCaption = " Volver"},
    {.caption = " QIc...",          .page = qicPage,          .nextCaption = " Volver"},
    {.caption = "   QIc...",        .page = qicFollowerPage,  .nextCaption = " Volver"},
    {.caption = " Res",             .page = resPage,          .nextCaption = " Volver"},
    {.caption = " Resistor Emisor", .page = resPage,          .nextCaption = " Volver"},
    {.caption = "   Res..",         .page = resFollowerPage,  .nextCaption = " Volver"},
    {.caption = " RLw..",           .page = rlwPage,          .nextCaption = " Volver"},
    {.caption = " S ",              .page = sPage,            .nextCaption = " Volver"},
    {.caption = " S..",             .page = sPage,            .nextCaption = " Volver"},
    {.caption = " S...",            .page = sPage,            .nextCaption = " Volver"},
    {.caption = "...Vg",            .page = vgDefinitionPage, .nextCaption = " mas sobre Vg.."},
    {.caption = " Vg..",            .page = vgDefinitionPage, .nextCaption = " mas sobre Vg.."},
    {.caption = " Ganancia Vg..",   .page = vgDefinitionPage, .nextCaption = " mas sobre Vg.."},
    {.caption = " Vg",              .page = vgTransistorPage, .nextCaption = " Salir de Vg"},
    {.caption = "RL..",             .page = rlPage,           .nextCaption = " Salir de RL"},
    {.caption = " más sobre RL",    .page = rlPage,           .nextCaption = " Salir de RL"},
    {.caption = " más sobre RL..",  .page = rlPage,           .nextCaption = " Salir de RL"},
    {.caption = " fo...",           .page = foPage,           .nextCaption = " Volver"},
    {.caption = " Eopp",            .page = eoppPage,         .nextCaption = "   mas Eopp"},
    {.caption = " Eopp..",          .page = eoppPage,         .nextCaption = "   mas Eopp"},
    {.caption = " Eopp...",         .page = eoppPage,         .nextCaption = "   mas Eopp"},
    {.caption = "  mas Eopp....",   .page = eoppSwingPage,    .nextCaption = "  Salir de Eopp"},
    {.caption = "Es...",            .page = esPage,           .nextCaption = " Volver"},
    {.caption = "-Es...",           .page = negativeEsPage,   .nextCaption = " Volver"},
    {.caption = "Beta...",          .page = betaPage,         .nextCaption = " Volver"},
    {.caption = "Ec(max)",          .page = ecMaxPage,        .nextCaption = " Volver"},
    {.caption = "Ic(max)",          .page = icMaxPage,        .nextCaption = " Volver"},
    {.caption = "Si/Ge",            .page = junturaPage,      .nextCaption = " Volver"},
    {.caption = "Rb2",              .page = rb2Page,          .nextCaption = "Rb1"},
    {.caption = "Rb1",              .page = rb1Page,          .nextCaption = " Salir de Rb1"},
    {.caption = "Rb1.",             .page = rb1Page,          .nextCaption = " Salir de Rb1"},
    {.caption = "Ein",              .page = einPage,          .nextCaption = " Volver"},
    {.caption = "  Ein(rms)",       .page = einPage,          .nextCaption = " Volver"},
    {.caption = "Rg..",             .page = rgPage,           .nextCaption = " Volver"},
}};

constexpr std::array<WayBack, 8> waysBack{{
    {.caption = " Volver",         .backTo = " Salir",         .unloads = false},
    {.caption = " mas sobre Vg..", .backTo = " Vg",            .unloads = false},
    {.caption = "   mas Eopp",     .backTo = "  mas Eopp....", .unloads = false},
    {.caption = "Rb1",             .backTo = "Rb1",            .unloads = false},
    {.caption = " Salir de Vg",    .backTo = "",               .unloads = true},
    {.caption = " Salir de RL",    .backTo = "",               .unloads = true},
    {.caption = "  Salir de Eopp", .backTo = "",               .unloads = true},
    {.caption = " Salir de Rb1",   .backTo = "",               .unloads = true},
}};
// clang-format on

} // namespace velmor::form21
