// SPDX-License-Identifier: MIT
// The help page of `Form12`, in both languages.
#include "designs/differential/form12_texts.h"

namespace velmor::form12::texts {

const BiText helpText{
    .es =
        "FUENTE DE CORRIENTE CONSTANTE\n\n"
        "PARA QUE SIRVE\n"
        "Ocupa el lugar del resistor común de emisores de un diferencial. La corriente no cambia aunque cambie la "
        "tensión "
        "de los emisores: el modo común no se amplifica.\n\n"
        "EL CIRCUITO\n"
        "El divisor Rb1, D1, Rb2 fija la base. Sobre Res queda una tensión fija, y con ella la corriente. D1 compensa "
        "a la "
        "juntura del transistor: si uno se calienta, el otro también.\n\n"
        "EL DISEÑO\n"
        "QIc es lo que pide el diferencial. Eb y Eq, 2 Volts ó más. De ellos sale -Ebias, y de -Ebias el valor de Res. "
        "Coloque valores comerciales: el programa calcula de nuevo la corriente.\n"
        "K dice que parte de QIc circula por el divisor; S = 1 / K.\n\n"
        "EL ANÁLISIS\n"
        "Después de Rb2 el programa muestra lo que la fuente da en realidad. Sume las caídas: deben dar Ebias.\n"
        "Un click en el último cuadro comienza de nuevo.\n\n"
        "PARA PENSAR\n"
        "¿Por qué Eb no debe ser menor a 2 Volts? ¿Que ocurre con K = 1? ¿Y con K = 0.3?\n\n"
        "TECLADO\n"
        "F3: click en el cuadro.  F1: valores comerciales.\n"
        "Shift+F1 muestra y oculta esta página.",
    .en = "CONSTANT CURRENT SOURCE\n\n"
          "WHAT IT IS FOR\n"
          "It takes the place of the common emitter resistor of a differential stage. The current does not change "
          "though the "
          "voltage of the emitters does: the common mode is not amplified.\n\n"
          "THE CIRCUIT\n"
          "The divider Rb1, D1, Rb2 fixes the base. Over Res stands a fixed voltage, and with it the current. D1 makes "
          "up for "
          "the junction of the transistor: if one grows warm, so does the other.\n\n"
          "THE DESIGN\n"
          "QIc is what the differential stage asks for. Eb and Eq, 2 Volts or more. From them comes -Ebias, and from "
          "-Ebias "
          "the value of Res. Place commercial values: the program works the current out anew.\n"
          "K says what part of QIc flows in the divider; S = 1 / K.\n\n"
          "THE ANALYSIS\n"
          "After Rb2 the program shows what the source really gives. Add the drops: they must make up Ebias.\n"
          "A click on the last field begins anew.\n\n"
          "TO THINK\n"
          "Why should Eb not be below 2 Volts? What happens with K = 1? And with K = 0.3?\n\n"
          "KEYBOARD\n"
          "F3: click on the field.  F1: commercial values.\n"
          "Shift+F1 shows and hides this page."};

} // namespace velmor::form12::texts
