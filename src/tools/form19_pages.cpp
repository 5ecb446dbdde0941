// SPDX-License-Identifier: MIT
// The general help, one page for each language, paragraph by paragraph alike.
#include "tools/form19_pages.h"

namespace velmor::form19 {

// clang-format off
constexpr host::BiText generalHelp{
    .es = "QUÉ ES VELMOR\n\n"
          "Un compañero de banco para diseñar etapas amplificadoras a transistores. Ud. decide un valor por vez, sobre el "
          "dibujo del circuito; el programa calcula lo que de él depende, avisa cuando algo no puede funcionar y explica "
          "por qué. Equivocarse es parte del método: ningún error rompe nada y siempre se puede volver.\n\n"

          "CÓMO SE TRABAJA\n\n"
          "1) Elija un circuito en la paleta, en la barra ó en el menú Archivo, Nuevos. Puede tener abiertas todas las "
          "hojas que quiera; cada una lleva su propio diseño.\n\n"
          "2) Coloque un valor en el cuadro en blanco y pulse Enter. Se habilita el cuadro siguiente y el circuito crece. "
          "El panel superior dice qué se espera; la línea siguiente, qué viene después.\n\n"
          "3) Los cuadros ya traen un valor razonable: si sólo quiere recorrer el circuito, pulse Enter en todos.\n\n"
          "4) Donde el programa propone un resistor, coloque el normalizado más cercano. Los valores que dependen de él se "
          "calculan otra vez, con el resistor de verdad.\n\n"
          "5) Si aparece un aviso, léalo: el cursor queda en el dato que conviene cambiar. Para volver más atrás haga click "
          "en el primer cuadro y recorra la cadena; los valores siguen escritos.\n\n"
          "6) Al final ajuste Rb1, como haría con un preset en el banco, hasta obtener la corriente de reposo deseada.\n\n"
          "7) Guarde el circuito, haga el Informe, conteste el cuestionario, y ármelo: la guía de trabajos prácticos lo "
          "acompaña paso a paso.\n\n"

          "TECLAS Y MOUSE\n\n"
          "Enter: acepta el valor y pasa al cuadro siguiente.\n"
          "Esc: en los cuadros que lo admiten, coloca el valor predeterminado y sigue.\n"
          "Tab: pasa al cuadro siguiente que esté habilitado.\n"
          "Números, punto y retroceso: son lo único que aceptan los cuadros. Los decimales van con punto; si "
          "escribe coma, el programa la cambia.\n"
          "Pasar el mouse sobre un cuadro ó un resultado: explica qué es.\n"
          "Botón derecho sobre un cuadro: página de ayuda; sobre un resistor, además, la tabla de valores normalizados; "
          "sobre la temperatura, el conversor de grados.\n"
          "Alt y la letra subrayada: menús.  Ctrl+F y Ctrl+H en los editores: buscar y reemplazar.\n\n"

          "BOTONES DE LAS HOJAS\n\n"
          "Clonar: abre otra hoja vacía del mismo circuito, para comparar dos diseños.\n"
          "Calculadora: ganancias en decibeles.\n"
          "Editor de Informes: ejercicios, resultados y cuestionario del circuito abierto.\n"
          "Editor de Textos: la guía de trabajos prácticos.\n"
          "Ayuda: esta página, ó la del circuito.\n\n"

          "MODOS DE TRABAJO\n\n"
          "Emisor Común tiene tres: polarizado por base sin desacoplar, que es como comienza; desacoplado; y polarizado por "
          "emisor, con dos fuentes. Además abre dos hojas hermanas, para el emisor total y parcialmente desacoplado. "
          "Terminado el diseño puede hacer Bootstrapping.\n\n"
          "El Diferencial, una vez terminado, se transforma en un banco de mediciones: encienda el instrumento y arrastre "
          "las señales a las entradas.\n\n"
          "Base Común, Parafase y Colector Común terminan en una Hoja de Análisis que compara potencias e impedancias.\n\n"

          "UNIDADES\n\n"
          "En casi todas las hojas, Kohm y mA. Res va en ohm en los circuitos de Emisor Común. En los amplificadores Clase "
          "A, ohm y Ampere. La unidad está junto a cada cuadro: mírela antes de escribir.\n\n"

          "IDIOMA Y VENTANAS\n\n"
          "Opciones, Idioma lo cambia en el momento; Predeterminar, para la próxima vez. El menú Ventana ordena las hojas. "
          "La paleta puede ser flotante ó una barra fija, según Opciones, Barra de Circuitos.",
    .en = "WHAT VELMOR IS\n\n"
          "A bench companion for designing transistor amplifier stages. You decide one value at a time, on the drawing of "
          "the circuit; the program works out what depends on it, warns you when something cannot work, and explains why. "
          "Being wrong is part of the method: no mistake breaks anything and you can always go back.\n\n"

          "HOW TO WORK\n\n"
          "1) Choose a circuit on the palette, on the bar or in the menu Archive, New. You may have as many sheets open as "
          "you like; each carries a design of its own.\n\n"
          "2) Put a value in the white field and press Enter. The next field opens and the circuit grows. The panel at the "
          "top says what is expected; the line below it, what comes next.\n\n"
          "3) The fields already hold a reasonable value: if you only want to walk through the circuit, press Enter in all "
          "of them.\n\n"
          "4) Where the program proposes a resistor, put the nearest standard one. Whatever depends on it is worked out "
          "again, with the real resistor.\n\n"
          "5) If a warning appears, read it: the cursor stands on the datum that should change. To go further back, click "
          "on the first field and follow the chain; the values are still there.\n\n"
          "6) At the end set Rb1, as you would a preset on the bench, until you get the quiescent current you wanted.\n\n"
          "7) Save the circuit, make the Report, answer the questionnaire, and build it: the practical-work guide goes with "
          "you step by step.\n\n"

          "KEYS AND MOUSE\n\n"
          "Enter: takes the value and goes to the next field.\n"
          "Esc: in the fields that allow it, puts the default value and goes on.\n"
          "Tab: goes to the next field that is open.\n"
          "Digits, point and backspace: nothing else is taken by the fields. Decimals take a point; if you "
          "type a comma, the program changes it.\n"
          "Moving the mouse over a field or a result: tells what it is.\n"
          "Right button on a field: its help page; on a resistor, the table of standard values as well; on the temperature, "
          "the converter of degrees.\n"
          "Alt and the underlined letter: menus.  Ctrl+F and Ctrl+H in the editors: find and replace.\n\n"

          "BUTTONS OF THE SHEETS\n\n"
          "Clone: opens another empty sheet of the same circuit, to compare two designs.\n"
          "Calculator: gains in decibels.\n"
          "Report Editor: exercises, results and questionnaire of the circuit at hand.\n"
          "Text Editor: the practical-work guide.\n"
          "Help: this page, or that of the circuit.\n\n"

          "MODES\n\n"
          "Common Emitter has three: biased at the base without bypass, which is how it begins; bypassed; and polarized by "
          "emitter, with two supplies. It also opens two sister sheets, for the fully and the partly bypassed emitter. Once "
          "the design is finished you may make Bootstrapping.\n\n"
          "The Long Tail Pair, once finished, turns into a bench: switch the instrument on and drag the signals to the "
          "inputs.\n\n"
          "Common Base, Paraphase and Common Collector end in a Leaf of Analysis that compares powers and impedances.\n\n"

          "UNITS\n\n"
          "On nearly all the sheets, Kohm and mA. Res is in ohm on the Common Emitter circuits. On the Class A amplifiers, "
          "ohm and Ampere. The unit stands beside each field: look at it before you type.\n\n"

          "LANGUAGE AND WINDOWS\n\n"
          "Options, Language changes it at once; Default, for the next time. The menu Window arranges the sheets. The "
          "palette may float or be a fixed bar, as Options, Circuit Bar says.",
};
// clang-format on

} // namespace velmor::form19
