# SPDX-License-Identifier: MIT
"""Worked figures of the guides, reckoned from the formulas of the course.

FIGURES gives, for each guide, the texts that must stand in each of its language parts.
Currents in mA, resistors in ohm unless a name ends in k (Kohm), capacitors in microfarads.
"""
from math import log10, sqrt

TWO_PI = 6.28        # the course's value
TENTH = 0.1          # reactance of a coupling capacitor against its resistance
SHOCKLEY = 25.0      # mV


def stability_voltage(temperature, delta_vbe, delta_qic):
    return (temperature - 20) * (delta_vbe / 1000) * 100 / delta_qic


def junction_resistance(qic):
    return SHOCKLEY / qic


def parallel(*resistors):
    return 1 / sum(1 / resistor for resistor in resistors)


def collector_resistor(load, a_c_load):
    return load * a_c_load / (load - a_c_load)


def coupling(frequency, impedance):
    return 1e6 / (TWO_PI * frequency * TENTH * impedance)


def bypass(frequency, impedance):
    return 1e6 / (TWO_PI * frequency * impedance)


def preset_for(supply, e_res, rb2, qic, beta, vj=0.6):
    """Rb1 in Kohm that yields qic: the divider's current is that of Rb2 plus the base's."""
    return (supply - e_res - vj) / ((e_res + vj) / rb2 + qic / 1000 / beta) / 1000


def output_swing(power, load):
    return sqrt(power * 8 * load)


E_RES = stability_voltage(75, 2.5, 10)
QIC = E_RES / 1300 * 1000                 # with the standard 1300 ohm
R_E = junction_resistance(QIC)


def common_emitter():
    a_c_load = 5 * 1300
    return [
        "= %.3f V" % E_RES,
        "%.0f ohm" % (E_RES / 0.001),
        "= %.4f mA" % QIC,
        "= %.0f ohm" % a_c_load,
        "= %.2f K" % (collector_resistor(10000, a_c_load) / 1000),
        "= %.2f V" % (E_RES + QIC * 18 + 1 + 1),
        "%.1f K" % preset_for(24, E_RES, 13000, QIC, 100),
    ]


def measurements():
    input_impedance = parallel(135500, 13000, 100 * (1300 + R_E))
    corner = 1 / (TWO_PI * 0.1e-6 * input_impedance)
    return [
        "RLac = RL // RLw = %.2f K" % parallel(18, 10),
        "= %.2f veces" % (parallel(18, 10) / 1.3),
        "= %.2f db" % (20 * log10(round(parallel(18, 10) / 1.3, 2))),
        "%.2f K" % (input_impedance / 1000),
        "= %.0f Hz" % corner,
        "= %.0f Hz" % (10 * corner),
        "QIc x RLac = %.2f V" % (QIC * parallel(18, 10)),
        "Eq = %.2f V" % (24 - E_RES - QIC * 18),
    ]


def polarised_by_emitter():
    input_impedance = parallel(20000, 100 * 25)
    return [
        "Res = -Es / QIc = %.0f ohm" % (20 / 0.001),
        "= %.0f ohm" % (55 * 25),
        "= %.2f K" % (collector_resistor(10000, 55 * 25) / 1000),
        "= %.1f V" % (10 - 1.5),
        "Zin = Rb2 // Beta x r'e = %.0f ohm" % input_impedance,
        "= %.1f µF" % coupling(20, input_impedance),
        "= %.0f µF" % bypass(20, 25),
        "%.1f veces" % (parallel(1500, 10000) / 25),
        "%.2f mA" % ((20 - 0.6) / 20),
    ]


def fully_bypassed():
    a_c_load = 55 * R_E
    return [
        "QIc = %.4f mA" % QIC,
        "r'e = 25 mV / QIc = %.1f ohm" % R_E,
        "RLac = Vg x r'e = %.0f ohm" % a_c_load,
        "= %.0f ohm" % collector_resistor(10000, a_c_load),
        "%.2f V" % (E_RES + QIC * 1.5 + 1 + 1),
        "Eq = Es - ERes - QIc x RL = %.2f V" % (9 - E_RES - QIC * 1.5),
        "Rb1 = %.1f K" % preset_for(9, E_RES, 13000, QIC, 100),
        "= %.0f µF" % bypass(20, R_E),
    ]


def partly_bypassed():
    e_res = stability_voltage(80, 2.5, 5)
    return [
        "ERes = %.0f V" % e_res,
        "%.0f ohm" % (e_res / 0.001),
        "(%.0f ohm)" % (10 * junction_resistance(1)),
        "RLac = Vg x Res = %.0f ohm" % (10 * 300),
        "= %.1f K" % (collector_resistor(8000, 3000) / 1000),
        "= %.2f veces" % (parallel(8, 4.7) / 0.3),
        "= %.1f µF" % coupling(20, e_res / 0.001 - 300),
        "= %.1f V" % (e_res + 4.7 + 3 + 1),
        "= %.1f V, más que" % (12 - e_res - 4.7),
        "%.1f K, y sale" % preset_for(12, e_res, 30000, 1.0, 200),
        "con %.1f K" % preset_for(12, e_res, 30000, 0.9, 200),
    ]


def common_base():
    supply = E_RES + QIC * 5.6 + 3 + 1
    return [
        "ERes = %.3f V" % E_RES,
        "%.4f mA" % QIC,
        "RLac = Vg x r'e = %.0f ohm" % (140 * 25),
        "= %.2f K" % (collector_resistor(10000, 140 * 25) / 1000),
        "= %.2f V" % (0.5 * 3 + E_RES + 3 + 1),
        "= 1.375 + %.3f + 4 = %.2f V" % (QIC * 5.6, supply),
        "%.1f K" % preset_for(supply, E_RES, 13000, QIC, 100),
        "= %.0f µF" % bypass(20, 25),
        "= %.2f µF" % coupling(20, 10000),
    ]


def paraphase():
    return [
        "Eq = Eopp + 1 = %.0f V" % (5 + 1),
        "Eopp + Eq = %.0f V" % (5 + 6),
        "ERL = (Es - Eq) / 2 = %.0f V" % ((30 - 6) / 2),
        "RL = ERL / QIc = %.0f K" % ((30 - 6) / 2 / 1),
        "= %.1f K" % (10 * parallel(12, 10)),
        "%.0f K" % preset_for(30, 12.0, 56000, 1.0, 100),
    ]


def simple_differential():
    r_e = junction_resistance(0.5)
    return [
        "= %.3f V" % stability_voltage(90, 2.75, 2),
        "Res = Ebias / (2 x QIc) = %.0f K" % (12 / (2 * 0.5)),
        "r'e = 25 mV / QIc = %.0f ohm" % r_e,
        "RLac = Vg x 2.5 x r'e = %.0f ohm" % (64 * 2.5 * r_e),
        "= %.0f K; ERL" % (collector_resistor(16000, 64 * 2.5 * r_e) / 1000),
        "ERL = QIc x RL = %.0f V" % (0.5 * 16),
        "Eq = Es - ERL = %.0f V" % (20 - 8),
        "Zin = Beta x 2 x r'e = %.0f ohm" % (100 * 2 * r_e),
        "= %.2f µF" % coupling(20, 100 * 2 * r_e),
        "= %.2f µF" % coupling(20, 16000),
        "%.0f mV" % (10 / 2 * 0.707 / 64 * 1000),
    ]


def compound_differential():
    e_res = stability_voltage(90, 2.5, 7)
    second = e_res / 2 / 2                       # mA, Res rounded to 2 Kohm
    first = (15 - (e_res + 0.6)) / 12
    gain_second = 12000 / (2.5 * junction_resistance(second))
    gain_first = parallel(12000, 200 * junction_resistance(second)) / (1.25 * junction_resistance(first))
    return [
        "= %.1f V" % e_res,
        "%.1f V:" % (0.5 * 4 * e_res + e_res + 3 + 1),
        "RL2 = %.0f K" % ((15 - (3 + 1 + e_res)) / 0.5),
        "= %.3f mA" % second,
        "ERL2 = %.1f V" % (second * 12),
        "EQ(3-4) = %.0f V" % (15 - second * 12 - e_res),
        "r'e(3-4) = %.0f ohm" % junction_resistance(second),
        "Vg(3-4) = RL2 / (2.5 x r'e) = %.0f " % gain_second,
        "5.7 x Res = %.1f K" % (5.7 * 2),
        "= %.2f mA    r'e = %.1f ohm" % (first, junction_resistance(first)),
        "(1.25 x r'e) = %.0f " % gain_first,
        " %.0f " % (gain_first * gain_second),
        "= %.2f mA." % ((15 - second * 12 - 0.6) / 2.7),
        "= %.0f ohm. C1 = %.1f µF" % (200 * junction_resistance(first),
                                      1e6 / (12.56 * 200 * junction_resistance(first))),
    ]


def current_source():
    e_bias = 4 + 4 + 1.2
    qic = (e_bias - 4.6) / 2.2
    bias = 0.5 * qic
    e_base = 3.9 * (e_bias - 4.6) / 4.7
    return [
        "Ebias = Eq + Eb + 1.2 = %.1f V" % e_bias,
        "= %.1f K" % ((e_bias - 4.6) / 2),
        "= %.3f mA." % qic,
        "Ibias = K x QIc = %.3f mA" % bias,
        "Rb1 = Eb / Ibias = %.2f K" % (4 / bias),
        "/ Ibias = %.3f K" % ((e_bias - 4.6) / (4 / 3.9)),
        "Eb = %.2f V" % e_base,
        "QIc = %.2f mA" % ((e_bias - e_base - 0.6) / 2.2),
        "ERes = %.2f V" % (e_bias - e_base - 0.6),
    ]


def common_collector():
    a_c_load = parallel(4.7, 1)
    qic = 2 / (2 * a_c_load)
    e_res = qic * 4.7
    beta_res = 100 * 4.7
    proposed = (3 - 0.6) * parallel(47, beta_res) / (e_res + 0.6)
    return [
        "QIc = Eopp / (2 x RLw) = %.0f mA" % (2 / (2 * 1)),
        "= %.3f K" % a_c_load,
        "= %.3f mA" % qic,
        "ERes = QIc x Res = %.1f V" % e_res,
        "Es = %.1f V" % (e_res + 2 + 1),
        "Rb2 = S x Res = %.0f K" % (10 * 4.7),
        " %.1f K:" % proposed,
        "%.1f K." % preset_for(e_res + 3, e_res, 47000, qic, 100),
    ]


def approaches():
    return [
        "%.3f V" % stability_voltage(45, 2.5, 10),
        "%.3f V" % stability_voltage(60, 2.5, 10),
        "%.3f V" % stability_voltage(75, 2.5, 10),
        "%.3f V" % stability_voltage(90, 2.5, 10),
        "%.2f V" % stability_voltage(75, 2.5, 1),
        "%.1f" % junction_resistance(2),
        "%.1f, %.1f" % (1.3, 5 * 1.3),
        "%.2f µF" % coupling(20, 10000),
        "%.2f µF" % coupling(300, 10000),
    ]


def class_a():
    swing = output_swing(0.78, 16)
    e_q = round(0.66 * swing, 4)
    qic = round((e_q - 0.6) / 16 * 1.1, 4)
    e_load = qic * 16
    driver = (13.2 - (e_load + 0.6)) / 160
    rb1 = e_load / (driver / 100 + 0.6 / 180)
    return [
        "SQR(Po.8.RLw) = %.2f V" % swing,
        "0.66 x Eopp = %.2f V" % e_q,
        "= %.3f A" % qic,
        "ERLw = QIc2 x RLw = %.2f V" % e_load,
        "%.1f V" % (2 * e_load),
        "Beta x RLw = %.0f ohm" % (100 * 16),
        "%d mA" % int(driver * 1000),
        "%.0f ohm." % (rb1 - (1600 - 160)),
        "EQ2 x QIc2 = %.1f W" % (e_load * qic),
        "%.1f W" % (2 * e_load * qic),
    ]


def class_b():
    swing = output_swing(10, 8)
    rb1 = 10 * 5.2
    rb2_current = (18 - 0.9) / rb1 - 3 / 100
    return [
        "= %.2f V" % swing,
        "0.66 x Eopp = %.2f V" % (0.66 * swing),
        "%.2f V: Es" % (2 * 0.66 * swing + 2),
        "= %.1f V" % (0.5 * 36 - 2.4),
        "= %.1f K, Res" % (15.6 / 3),
        "= %.0f ohm" % (0.3 / 0.003),
        "RL = %.0f K" % rb1,
        "IRb2 = %.2f K" % (0.9 / rb2_current),
        "= %.1f K" % (0.25 * 5.2),
        "= %.1f K" % (0.75 * 5.2),
        "%.2f A" % ((18 - (1 + 0.3)) / 8),
        "Eopp / 2 / RLw = %.2f A" % (swing / 2 / 8),
        "= %.2f A" % (swing / 2 / 8 / 3.14),
    ]


def project():
    gain = 1 / 0.005
    return [
        "1 / 0.005 = %.0f" % gain,
        "20 x log(200) = %.1f db" % (20 * log10(gain)),
        "(%.0f " % (20 * log10(10)),
        "%.0f db)" % (20 * log10(20)),
    ]


FIGURES = {
    "guia1.Lab": common_emitter(),
    "guia2.Lab": measurements(),
    "Feedback Current.Lab": common_emitter() + ["RLac = %.2f K" % parallel(18, 10)],
    "polemisor.Lab": polarised_by_emitter(),
    "desac.Lab": fully_bypassed(),
    "bypass.Lab": fully_bypassed(),
    "Parcdesac.Lab": partly_bypassed(),
    "bascom.Lab": common_base(),
    "basicom.Lab": common_base(),
    "Parafase.Lab": paraphase(),
    "difsim.Lab": simple_differential(),
    "difsimin.Lab": simple_differential(),
    "difcom.Lab": compound_differential(),
    "DifSimIng.Lab": compound_differential(),
    "fucoco.Lab": current_source(),
    "Coleco.Lab": common_collector(),
    "Emisor común realimentado por corriente.Lab": approaches(),
    "Clase A simple.Lab": class_a(),
    "lc7.Lab": class_b(),
    "Proy.Lab": project(),
}
