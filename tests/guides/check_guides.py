#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks the practical-work guides: every name that the program asks for, Windows-1252,
CR LF, length, width, sections, and the worked figures, reckoned here from the course's formulas.

    check_guides.py FOLDER      exit status 0 when all is in order
"""
import os
import sys

from figures import FIGURES

ENGLISH_DIVIDER = "=" * 31 + " English " + "=" * 30
FEWEST_LINES, MOST_LINES, WIDEST_LINE = 40, 90, 78

# Every name the windows ask for, and the languages that read it ("es", "en" or both, Spanish first).
GUIDES = {
    "Feedback Current.Lab": ["en"],
    "polemisor.Lab": ["es"],
    "guia1.Lab": ["es"],
    "guia2.Lab": ["es"],
    "bypass.Lab": ["en"],
    "desac.Lab": ["es"],
    "Parcdesac.Lab": ["es"],
    "basicom.Lab": ["en"],
    "bascom.Lab": ["es"],
    "Parafase.Lab": ["es", "en"],
    "difsimin.Lab": ["en"],
    "difsim.Lab": ["es"],
    "DifSimIng.Lab": ["en"],
    "difcom.Lab": ["es"],
    "fucoco.Lab": ["es", "en"],
    "Emisor común realimentado por corriente.Lab": ["es", "en"],
    "Clase A simple.Lab": ["es", "en"],
    "lc7.Lab": ["es", "en"],
    "Coleco.Lab": ["es", "en"],
    "Proy.Lab": ["es", "en"],
}

SECTIONS = {
    "es": ["OBJETIVO", "MATERIALES", "CIRCUITO", "PROGRAMA", "BANCO", "TABLA DE MEDICIONES", "CUESTIONARIO"],
    "en": ["AIM", "PARTS", "CIRCUIT", "PROGRAM", "BENCH", "TABLE OF MEASUREMENTS", "QUESTIONS"],
}


def faults_of_bytes(data):
    """Faults of a guide as a file: encoding and line ends. Returns (faults, lines)."""
    try:
        text = data.decode("cp1252")
    except UnicodeDecodeError as error:
        return ["not Windows-1252: %s" % error], []
    faults = []
    if not data.endswith(b"\r\n"):
        faults.append("the last line has no CR LF")
    bare = text.replace("\r\n", "")
    if "\r" in bare or "\n" in bare:
        faults.append("a line does not end in CR LF")
    if "\t" in text:
        faults.append("holds a tab")
    if "\u00c3" in text or "\u00c2" in text:
        faults.append("looks like UTF-8 read as Windows-1252")
    return faults, text.replace("\r\n", "\n").rstrip("\n").split("\n")


def parts_of(lines, languages):
    """Splits a guide into its language parts; None when the divider is wrong."""
    dividers = [number for number, line in enumerate(lines) if line == ENGLISH_DIVIDER]
    if len(dividers) != len(languages) - 1:
        return None
    if not dividers:
        return {languages[0]: lines}
    return {"es": lines[: dividers[0]], "en": lines[dividers[0] + 1 :]}


def faults_of_part(language, lines):
    faults = []
    if not FEWEST_LINES <= len(lines) <= MOST_LINES:
        faults.append("%s part has %d lines" % (language, len(lines)))
    for number, line in enumerate(lines, 1):
        if len(line) > WIDEST_LINE:
            faults.append("%s line %d is %d wide" % (language, number, len(line)))
        if line != line.rstrip():
            faults.append("%s line %d ends in a blank" % (language, number))
    headings = [line for line in lines if line[:2].rstrip(".").isdigit() and line == line.upper()]
    for position, word in enumerate(SECTIONS[language], 1):
        if not any(line.startswith("%d. " % position) and word in line for line in headings):
            faults.append("%s part lacks section %d, %s" % (language, position, word))
    return faults


def faults_of_guide(data, languages, figures):
    faults, lines = faults_of_bytes(data)
    parts = parts_of(lines, languages)
    if parts is None:
        return faults + ["the divider of the languages is missing or doubled"]
    for language, part in parts.items():
        faults += faults_of_part(language, part)
        body = "\n".join(part)
        for figure in figures:
            if figure not in body:
                faults.append("%s part lacks the figure %s" % (language, figure))
    return faults


def check_folder(folder):
    faults = []
    present = {}
    for name in os.listdir(folder):
        if name.lower() in present:
            faults.append("%s and %s differ by capitals only" % (name, present[name.lower()]))
        present[name.lower()] = name
    for name, languages in GUIDES.items():
        stored = present.pop(name.lower(), None)
        if stored is None:
            faults.append("%s is missing" % name)
            continue
        with open(os.path.join(folder, stored), "rb") as guide:
            data = guide.read()
        figures = FIGURES.get(name, [])
        if not figures:
            faults.append("%s has no figures to check" % name)
        faults += ["%s: %s" % (name, fault) for fault in faults_of_guide(data, languages, figures)]
    faults += ["%s is asked for by nobody" % name for key, name in present.items() if key.endswith(".lab")]
    return faults


def sound_guide():
    lines = ["%d. %s" % (number, word) for number, word in enumerate(SECTIONS["es"], 1)]
    lines += ["QIc = 1.0577 mA"] + ["línea"] * 40
    return ("\r\n".join(lines) + "\r\n").encode("cp1252")


def prove_that_faults_are_seen():
    """Each deliberately bad guide must be refused, and the sound one accepted."""
    sound = sound_guide()
    bad = {
        "encoding": sound.replace(b"l\xednea", b"l\x81nea", 1),
        "UTF-8": sound.decode("cp1252").encode("utf-8"),
        "line feed alone": sound.replace(b"\r\n", b"\n", 1),
        "no last line end": sound[:-2],
        "too short": b"\r\n".join(sound.split(b"\r\n")[:20]) + b"\r\n",
        "too long": sound + b"x\r\n" * 60,
        "too wide": sound + b"x" * 79 + b"\r\n",
        "no section": sound.replace(b"7. CUESTIONARIO", b"x"),
        "wrong figure": sound.replace(b"1.0577", b"1.0578"),
    }
    if faults_of_guide(sound, ["es"], ["1.0577 mA"]):
        sys.exit("the sound guide is refused")
    for name, data in bad.items():
        if not faults_of_guide(data, ["es"], ["1.0577 mA"]):
            sys.exit("a guide with a bad %s passes" % name)
    if not faults_of_guide(sound, ["es", "en"], []):
        sys.exit("a guide without its English part passes")


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    prove_that_faults_are_seen()
    faults = check_folder(sys.argv[1])
    for fault in faults:
        print(fault)
    print("%d guides, %d faults" % (len(GUIDES), len(faults)))
    sys.exit(1 if faults else 0)


if __name__ == "__main__":
    main()
