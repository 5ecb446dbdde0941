// SPDX-License-Identifier: MIT
// The help page of `Form13`, in both languages.
#include "designs/differential/form13_texts.h"

namespace velmor::form13::texts {

const BiText helpText{
    .es = "DIFERENCIAL COMPUESTO Ó CASCODE\n\n"
          "EL CIRCUITO\n"
          "Dos pares diferenciales en cascada. Q1-2 reciben la señal; sus colectores van directo a las bases de Q3-4, que "
          "dan el resto de la ganancia. Q5 toma la salida de Q4 y la entrega a la carga sin cargarlo.\n\n"
          "LO QUE FIJA EL PROGRAMA\n"
          "Delta QIc = 7 %, Delta Vbe = 2.5 mV por grado, 1 mA por Res al empezar, Beta = 100. De la temperatura sale ERes, "
          "la tensión que mantiene firme al segundo par.\n\n"
          "EL DISEÑO\n"
          "Primero Q3-4: fuente, RL2 y Res. Res se redondea a Kohms enteros y cambia la corriente: si ERL2 queda chica ó la "
          "fuente no alcanza, el programa lo dice y vuelve a Res. Pruebe con un resistor mayor, ó coloque un RL2 menor.\n"
          "Luego Q1-2: RL1 fija su corriente y su ganancia. Al final Q5 con Res1 y la carga RLw.\n\n"
          "LOS CUADROS\n"
          "Cada paso muestra sus fórmulas, sus datos y sus consideraciones; con un click se achican y vuelven.\n\n"
          "LA FUENTE\n"
          "Los emisores de Q1-2 van a una fuente de corriente constante. Con Res1 en la mano se abre su puerta, y en otra "
          "ventana la diseña con los valores de este circuito.\n\n"
          "PARA PENSAR\n"
          "¿Por qué con Vg = 1000 resultan muchas más? ¿Qué cambia con la temperatura? ¿Qué ve Q4 si RLw es chica?\n\n"
          "TECLADO\n"
          "Ctrl+1: el circuito ó su espejo.  Ctrl+2: la fuente.\n"
          "Ctrl+3, 4, 5: los cuadros.  Ctrl+6, 7, 8: las corrientes.\n"
          "Shift+F1 muestra y oculta esta página.",
    .en = "LONG TAIL PAIRS, COMPOUND\n\n"
          "THE CIRCUIT\n"
          "Two differential pairs in cascade. Q1-2 receive the signal; their collectors go straight to the bases of Q3-4, "
          "which give the rest of the gain. Q5 takes the output of Q4 and hands it to the load without loading it.\n\n"
          "WHAT THE PROGRAM FIXES\n"
          "Delta QIc = 7 %, Delta Vbe = 2.5 mV per degree, 1 mA in Res to begin with, Beta = 100. From the temperature comes "
          "ERes, the voltage that keeps the second pair firm.\n\n"
          "THE DESIGN\n"
          "First Q3-4: supply, RL2 and Res. Res is rounded to whole Kohms and changes the current: when ERL2 comes out small "
          "or the supply does not do, the program says so and goes back to Res. Try a larger resistor, or place a smaller "
          "RL2.\n"
          "Then Q1-2: RL1 fixes their current and their gain. At the end Q5 with Res1 and the load RLw.\n\n"
          "THE BOXES\n"
          "Each step shows its formulas, its data and its considerations; a click makes them small, and large again.\n\n"
          "THE SOURCE\n"
          "The emitters of Q1-2 go to a constant current source. With Res1 in hand its door opens, and in another window "
          "you design it with the values of this circuit.\n\n"
          "TO THINK\n"
          "Why do many more than Vg = 1000 come out? What changes with the temperature? What does Q4 see when RLw is small?\n\n"
          "KEYBOARD\n"
          "Ctrl+1: the circuit or its mirror.  Ctrl+2: the source.\n"
          "Ctrl+3, 4, 5: the boxes.  Ctrl+6, 7, 8: the currents.\n"
          "Shift+F1 shows and hides this page."};

} // namespace velmor::form13::texts
