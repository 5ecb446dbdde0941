# SPDX-License-Identifier: MIT
"""Worked figures of the guides, reckoned from the formulas of the course.

FIGURES gives, for each guide, the texts that must stand in each of its language parts.
Currents in mA, resistors in ohm unless a name ends in K (Kohm), capacitors in microfarads.
"""
TWO_PI = 6.28        # the course's value
TENTH = 0.1          # reactance of a coupling capacitor against its resistance
SHOCKLEY = 25.0      # mV


def stability_voltage(temperature, delta_vbe, delta_qic):
    return (temperature - 20) * (delta_vbe / 1000) * 100 / delta_qic


def parallel(*resistors):
    return 1 / sum(1 / resistor for resistor in resistors)


def collector_resistor(load, a_c_load):
    return load * a_c_load / (load - a_c_load)


def coupling(frequency, impedance):
    return 1e6 / (TWO_PI * frequency * TENTH * impedance)


def preset_for(supply, e_res, rb2, qic, beta, vj=0.6):
    """Rb1 in Kohm that yields qic: the divider's current is that of Rb2 plus the base's."""
    return (supply - e_res - vj) / ((e_res + vj) / rb2 + qic / 1000 / beta) / 1000


def common_emitter():
    e_res = stability_voltage(75, 2.5, 10)
    qic = e_res / 1300 * 1000
    a_c_load = 5 * 1300
    supply = e_res + qic * 18 + 1 + 1
    return [
        "= %.3f V" % e_res,
        "%.0f ohm" % (e_res / 0.001),
        "= %.4f mA" % qic,
        "= %.0f ohm" % a_c_load,
        "= %.2f K" % (collector_resistor(10000, a_c_load) / 1000),
        "= %.2f V" % supply,
        "%.1f K" % preset_for(24, e_res, 13000, qic, 100),
    ]


FIGURES = {
    "guia1.Lab": common_emitter(),
    "Feedback Current.Lab": common_emitter() + ["RLac = %.2f K" % (parallel(18, 10))],
}
