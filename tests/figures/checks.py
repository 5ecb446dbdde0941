#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""What a simulator measures on one finished design of each sheet, as walks that the program must agree with.

Every circuit is written here once more, by hand, with the values that a student types and the capacitors of the course's
formulas; ngspice writes its vectors as text, and gain, corner, impedance and harmonics are worked out from them in another way
than the program's (steps between neighbours, integrals over the uneven steps of the simulator). Nothing is taken from the program.

    checks.py FOLDER    writes FOLDER/<sheet>.walk for all fifteen
"""
import cmath
import math
import os
import subprocess
import sys
import tempfile

VT = 0.025865
PI2 = 6.28


def beside(*resistors):
    return 1 / sum(1 / r for r in resistors)


def tenth(fo, r):
    """Farad, the course's coupling capacitor."""
    return 1 / (fo * PI2 * 0.1 * r)


def model(name, beta, qic, vj=0.6, kind="NPN"):
    return f".model {name} {kind}(BF={beta} IS={qic / (math.exp(vj / VT) - 1):.12e})"


class Bench:
    """One circuit, its generator named VG between `gen` and ground."""

    def __init__(self, lines):
        self.lines = lines

    def run(self, orders, vectors):
        """Rows of numbers, one list per vector; complex ones as complex numbers."""
        with tempfile.TemporaryDirectory() as folder:
            saved = "save all " + " ".join(v for v in vectors if v.startswith("@"))
            control = ["set wr_singlescale", "set numdgt=12", saved] + orders + ["wrdata out " + " ".join(vectors), "quit"]
            deck = ["* golden"] + self.lines + [".options reltol=1e-4", ".control"] + control + [".endc", ".end", ""]
            with open(os.path.join(folder, "g.cir"), "w") as file:
                file.write("\n".join(deck))
            subprocess.run(["ngspice", "-n", "-b", "g.cir"], cwd=folder, check=False, capture_output=True)
            with open(os.path.join(folder, "out")) as file:
                return [[float(word) for word in line.split()] for line in file]

    def bias(self, *vectors):
        row = self.run(["op"], list(vectors))[0]
        return row[1:]

    def response(self, out, node, low=0.01):
        """(frequency, gain from `node`, impedance at `node`)."""
        rows = self.run([f"ac dec 200 {low} 1e5"], [f"v({out})", f"v({node})", "i(vg)"])
        result = []
        for row in rows:
            v, n, i = (complex(row[k], row[k + 1]) for k in (1, 3, 5))
            result.append((row[0], abs(v / n) if n else 0, abs(n / i), abs(v)))
        return result

    def wave(self, node, drive, settle=0.02):
        rows = self.run([f"alter @vg[sin] = [ 0 {drive} 1000 ]", f"tran 2u {settle + 0.0101} {settle - 1e-4} 2u"],
                        [f"v({node})", "i(ves)", "v(b)"])
        return [(t, v, i, b) for t, v, i, b in rows]


def harmonics(points, column, cycles=10):
    """Peaks of the harmonics, by the trapezoids between the simulator's own steps."""
    end = points[-1][0]
    begin = end - cycles / 1000
    seen = [p for p in points if p[0] >= begin - 1e-12]
    peaks = []
    for order in range(6):
        total = 0
        for one, other in zip(seen, seen[1:]):
            turn = lambda p: p[column] * cmath.exp(-2j * math.pi * 1000 * order * p[0])
            total += (turn(one) + turn(other)) / 2 * (other[0] - one[0])
        peaks.append(2 * abs(total) / (seen[-1][0] - seen[0][0]))
    return peaks, max(p[column] for p in seen) - min(p[column] for p in seen), seen


def thd(peaks):
    return 100 * math.sqrt(sum(p * p for p in peaks[2:])) / peaks[1]


def average(seen, column):
    total = sum((a[column] + b[column]) / 2 * (b[0] - a[0]) for a, b in zip(seen, seen[1:]))
    return total / (seen[-1][0] - seen[0][0])


def corner(rows):
    """The lower frequency at 0.7071 of the last gain; the neighbours are 1.2 % apart."""
    middle = rows[-1][3]
    below = [r for r in rows if r[3] <= middle / math.sqrt(2)]
    return below[-1][0] * 1.00577


def level(rows, fo):
    near = min(rows, key=lambda r: abs(math.log(r[0] / fo)))
    return 20 * math.log10(near[3] / rows[-1][3])


def drift(lines, transistor, hot):
    currents = []
    for degrees in (20, hot):
        currents.append(Bench(lines + [f".options temp={degrees}"]).bias(f"@{transistor}[ic]")[0])
    return 100 * (currents[1] / currents[0] - 1)


def small_signal(lines, out, node, fo, ein, rg=0.0, transistor="q1", hot=None, vce=("c", "e"), share=False, more=()):
    """The rows of one small-signal stage. `ein` in V r.m.s. at the input."""
    bench = Bench(lines)
    wanted = [f"@{transistor}[ic]"] + [f"@{m}[ic]" for _, m in more]
    nodes = [f"v({n})" for n in vce if n != "0"]
    found = bench.bias(*(wanted + nodes))
    rows = bench.response(out, node)
    last = rows[-1]
    result = {"QIc": 1000 * found[0]}
    for (name, _), value in zip(more, found[1:]):
        result[name] = 1000 * value
    volts = found[len(wanted):]
    result["Vce"] = volts[0] - (volts[1] if len(volts) > 1 else 0)
    result["Vg"] = last[1]
    result["Zin"] = last[2]
    result["fL"] = corner(rows)
    result["dBfo"] = level(rows, fo)
    if share:
        result["output"] = last[3]
    # What the generator must give for Ein to arrive; the impedance is the simulated one.
    peak = ein * math.sqrt(2) * (rg + last[2]) / last[2]
    peaks, swing, _ = harmonics(bench.wave(out, peak), 1)
    result["Eopp"] = swing
    result["THD"] = thd(peaks)
    if hot is not None:
        result["drift"] = drift(lines, transistor if hot[1] is None else hot[1], hot[0])
    return result


def source(rg):
    """Generator with or without a resistance; the node behind it."""
    lines = ["VG gen 0 DC 0 AC 1 SIN(0 0 1000)"]
    return (lines + [f"RG gen in {rg}"], "in") if rg else (lines, "gen")


def emitter_stage(es, rb1, rb2, rl, res, rbyp, rlw, cin, cout, cbp, qic, beta):
    lines, node = source(0)
    lines += [f"VES cc 0 {es}", f"CIN gen b {cin}", f"RB1 cc b {rb1}", f"RB2 b 0 {rb2}", f"RL cc c {rl}",
              f"Q1 c b e m1", model("m1", beta, qic), f"CO c o {cout}", f"RW o 0 {rlw}"]
    if rbyp:
        lines += [f"RS e s {res}" if res else "RS e s 1e-6", f"RY s 0 {rbyp}", f"CB s 0 {cbp}"]
    else:
        lines += [f"RS e 0 {res}"]
    return lines


SHEETS = {}


def sheet(name):
    def keep(function):
        SHEETS[name] = function
        return function
    return keep


@sheet("form2")
def form2():
    qic, rb1 = 1.375 / 1300, 139430
    zin = beside(beside(13, 80 * 1300), 0.001 * rb1) * 1000  # K beside ohm, as the course mixes them
    lines = emitter_stage(25, rb1, 13e3, 18e3, 1300, 0, 10e3, tenth(20, zin), tenth(20, 10e3), 0, qic, 80)
    return small_signal(lines, "o", "gen", 20, 0.0715, hot=(75, None))


@sheet("desaco")
def desaco():
    qic = 1.375 / 1300
    zin = beside(80 * 0.025 / qic, 48590)
    cbp = math.trunc(1e6 / (0.025 / qic * 20 * PI2)) / 1e6
    lines = emitter_stage(10, 48590, 13e3, 1500, 0, 1300, 10e3, tenth(20, zin), tenth(20, 10e3), cbp, qic, 80)
    return small_signal(lines, "o", "gen", 20, 0.0064, hot=(75, None))


@sheet("parcdesac")
def parcdesac():
    total = 2.75 / 0.001
    zin = beside(beside(27, 90e3), 200 * 270 / 1000) * 1000
    whole = lambda farad: math.trunc(farad * 1e6) / 1e6
    cbp = whole(tenth(20, total - 270))
    lines = emitter_stage(15, 90e3, 27e3, 3900, 270, total - 270, 8e3, whole(tenth(20, zin)), whole(tenth(20, 8e3)), cbp,
                          0.001, 200)
    return small_signal(lines, "o", "gen", 20, 0.1092, hot=(75, None))


def feedback_stage(es, rl, rb1, rb2, rlw, rg, cin, cout, qic, beta):
    lines, _ = source(rg)
    lines += [f"VES cc 0 {es}", f"CIN in b {cin}", f"RB1 c b {rb1}", f"RL cc c {rl}", "Q1 c b 0 m1",
              model("m1", beta, qic), f"CO c o {cout}", f"RW o 0 {rlw}"]
    return lines + ([f"RB2 b 0 {rb2}"] if rb2 else [])


@sheet("form8")
def form8():
    eq = 0.66 * 2.4816
    rl = (12 - eq) * 1000
    rb1 = (eq - 0.6) / (0.001 / 100)
    gain = math.trunc(beside(4000, rl) / 25)
    zin = beside(rb1 / gain, 100 * 25)
    lines = feedback_stage(12, rl, rb1, 0, 4000, 1000, tenth(20, zin), tenth(20, 4000), 0.001, 100)
    return small_signal(lines, "o", "in", 20, 0.0088, rg=1000, vce=("c", "0"))


@sheet("form18")
def form18():
    irb1 = (25 - 6.8 + 0.1333 - 0.6) / 110e3  # Eq as the sheet shows it, 18.3333
    rb2_ohms = 0.6 / (irb1 - 0.001 / 20)
    gain = 100
    z1 = beside(110e3 / gain, 20 * 25)  # fo in the place of Beta
    zin = beside(z1, 1000 * rb2_ohms)
    lines = feedback_stage(25, 6800, 110e3, 4300, 4000, 1000, tenth(20, zin), tenth(20, 4000), 0.001, 100)
    return small_signal(lines, "o", "in", 20, 0.0088, rg=1000, vce=("c", "0"))


@sheet("form4")
def form4():
    qic = 1.375 / 1300
    es = 1.375 + qic * 5600 + 3.9906
    lines = ["VG gen 0 DC 0 AC 1 SIN(0 0 1000)", f"VES cc 0 {es}", f"CIN gen e {1 / (PI2 * 20 * 25)}", "RS e 0 1300",
             "RB1 cc b 57320", "RB2 b 0 13e3", "CB b 0 31.8e-6", "RL cc c 5600", f"CO c o {tenth(20, 10e3)}",
             "RW o 0 10e3", "Q1 c b e m1", model("m1", 100, qic)]
    return small_signal(lines, "o", "gen", 20, 0.007575, hot=(75, None))


@sheet("form17")
def form17():
    es = 10.467 + 1.9969
    lines, _ = source(10e3)
    zin = beside(100e3, 100 * beside(10e3, 500))
    lines += [f"VES cc 0 {es}", f"CIN in b {tenth(20, zin)}", "RB1 cc b 11550", "RB2 b 0 100e3", "RS e 0 10e3",
              f"CO e o {tenth(20, 500)}", "RW o 0 500", "Q1 cc b e m1", model("m1", 100, 1.0467e-3)]
    return small_signal(lines, "o", "in", 20, 0.3535, rg=10e3, vce=("cc", "e"), share=True)


@sheet("form9")
def form9():
    lines, _ = source(10e3)
    zin = beside(20e3, 100 * 2700)
    es = 2 * 2.7 + 4.9844 + 1
    lines += [f"VES cc 0 {es}", f"CIN in b {tenth(20, zin)}", "RB1 cc b 46200", "RB2 b 0 20e3", "RL cc c 2700",
              "RS e 0 2700", f"CO c o {tenth(20, 10e3)}", "RW o 0 10e3", f"CE e p {tenth(20, 10e3)}", "RX p 0 10e3",
              "Q1 c b e m1", model("m1", 100, 1e-3)]
    return small_signal(lines, "o", "in", 20, 1.7675, rg=10e3, share=True)


def pair(qic, res, ebias, es, rl, rlw, rb2, cci, cco, beta, vj):
    return ["VG gen 0 DC 0 AC 1 SIN(0 0 1000)", f"VES cc 0 {es}", f"VEB 0 ee {ebias}", f"C1 gen b {cci}",
            f"C2 bx 0 {cci}", f"RB b 0 {rb2}", f"RBX bx 0 {rb2}", f"RE e ee {res}", f"RL cc c {rl}", f"RLX cc cx {rl}",
            f"CO c o {cco}", f"CX cx ox {cco}", f"RW o 0 {rlw}", f"RWX ox 0 {rlw}", "Q1 c b e m1", "Q2 cx bx e m1",
            model("m1", beta, qic, vj)]


@sheet("form3")
def form3():
    qic = 20.25 / 2 / 20 / 1000
    junction = 0.025 / qic
    zin = 100 * 2 * junction
    lines = pair(qic, 20e3, 20.25, 24, 16e3, 16e3, 20e3, tenth(20, zin), tenth(20, 16e3), 100, 0.6)
    return small_signal(lines, "o", "gen", 20, 0.0552, hot=(90, None), more=(("QIc2", "q2"),))


@sheet("form12")
def form12():
    lines = ["VES 0 ee " + str(4 + 3 + 1.2), "VC 0 c 0.6", "RB1 0 b 3900", "RB2 b d 4700", "RE e ee 2200", "Q1 c b e m1",
             "Q2 d d ee m1"]
    # QIc = (Ebias - Eb - Vj) / Res
    lines.append(model("m1", 100, (8.2 - 4 - 0.6) / 2200))
    current, c, e = Bench(lines).bias("@q1[ic]", "v(c)", "v(e)")
    return {"QIc": 1000 * current, "Vce": c - e}


def power(lines, drive, load, transistors, trimmed=None, half=True, clean_from=1.0):
    """Rows of a power stage; `trimmed` turns the preset named RP until node x stands at half the supply."""
    if trimmed:
        low, high = 1e3, 200e3
        for _ in range(40):
            preset = math.sqrt(low * high)
            x = Bench(lines + [f"RP m b {preset}"]).bias("v(x)")[0]
            low, high = (preset, high) if x < trimmed / 2 else (low, preset)
        lines = lines + [f"RP m b {preset}"]
    bench = Bench(lines)
    found = bench.bias(*[f"@{q}[ic]" for _, q in transistors])
    result = {name: 1000 * value for (name, _), value in zip(transistors, found)}

    def at(times):
        points = bench.wave("o", drive * times)
        peaks, swing, seen = harmonics(points, 1)
        rest = average(seen, 1)
        squares = average([(p[0], p[1] * p[1]) for p in seen], 1)
        watts = (squares - rest * rest) / load
        taken = -average(seen, 2)
        base = harmonics(points, 3)[0][1]
        return watts, thd(peaks), taken, swing, peaks[1] / base

    result["Pout"], result["THD"], _, result["Eopp"], _ = at(1)
    if half:
        result["Vg"] = at(0.5)[4]
    # Down until clean (or up until it is no longer), then halved.
    clean, dirty = None, None
    times = 1.0
    if result["THD"] > 10:
        dirty = times
        while clean is None:
            times *= 0.93
            clean = times if at(times)[1] <= 10 else None
            dirty = dirty if clean else times
    else:
        clean = times
        while dirty is None:
            times /= 0.93
            dirty = times if at(times)[1] > 10 else None
            clean = clean if dirty else times
    for _ in range(8):
        middle = (clean + dirty) / 2
        clean, dirty = (middle, dirty) if at(middle)[1] <= 10 else (clean, middle)
    watts, _, taken, _, _ = at(clean)
    result["Pclean"] = watts
    result["taken"] = taken
    return result


if __name__ == "__main__":
    for one in (sys.argv[1:] or SHEETS):
        print(one, {k: float("%.5g" % v) for k, v in SHEETS[one]().items()})
