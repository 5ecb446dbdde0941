#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""clang-tidy over the files given, as many at a time as there are cores. Several files are read as one, as the build folder
puts them together, so that a header is read once for all. What was found clean is not read again until its preprocessed text,
the settings or clang-tidy itself change.

    tools/tidy.py BUILD_FOLDER FILE..."""
import concurrent.futures
import hashlib
import json
import os
import pathlib
import re
import shlex
import subprocess
import sys

root = pathlib.Path(__file__).resolve().parent.parent
build = pathlib.Path(sys.argv[1]).resolve()
clean = build / "clean"
joined = build / "joined"
commands = json.loads((build / "compile_commands.json").read_text())
asked = {str(root / name) for name in sys.argv[2:]}
tool = subprocess.run(["clang-tidy", "--version"], stdout=subprocess.PIPE, check=True).stdout


INCLUDED = re.compile(r'^#include "(.*)"$', re.MULTILINE)
MARKER = re.compile(rb'^# \d+ ".*$', re.MULTILINE)
PLACE = re.compile(r"^(\S+\.cxx):(\d+):", re.MULTILINE)


def is_ours(entry):
    """The toolkit's compiler of signals writes the others."""
    return "mocs_compilation" not in entry["file"]


class Unit:
    """Files that are compiled as one. Their texts follow each other in one file of our own: clang's analyzer reads what stands
    in the main file only."""

    def __init__(self, entry):
        self.entry = entry
        path = pathlib.Path(entry["file"])
        self.files = INCLUDED.findall(path.read_text()) if "Unity" in path.parts else [entry["file"]]
        self.home = pathlib.Path(self.files[0]).resolve().parent
        self.joined = joined / self.home.relative_to(root) / (hashlib.sha256(entry["file"].encode()).hexdigest()[:16] + ".cxx")
        self.starts = []

    def join(self):
        lines = []
        for name in self.files:
            self.starts.append((len(lines), name))
            lines += pathlib.Path(name).read_text().splitlines()
        self.joined.parent.mkdir(parents=True, exist_ok=True)
        self.joined.write_text("\n".join(lines) + "\n")

    def command(self):
        words = shlex.split(self.entry["command"])
        words[words.index("-c") + 1] = str(self.joined)
        at = words.index("-o")
        beside = [option for name in self.files for option in ("-iquote", str(pathlib.Path(name).parent))]
        return words[:at] + words[at + 2:] + beside

    def settings(self):
        """Those of the folders that the files lie in, laid out likewise for the joined text."""
        texts = []
        for folder in [self.home, *self.home.parents]:
            named = folder / ".clang-tidy"
            if folder != root and root in folder.parents and named.exists():
                beside = joined / folder.relative_to(root) / ".clang-tidy"
                beside.parent.mkdir(parents=True, exist_ok=True)
                beside.write_bytes(named.read_bytes())
                texts.append(named.read_bytes())
        return [(root / ".clang-tidy").read_bytes(), *texts]

    def fingerprint(self):
        """Comments and macros count: clang-tidy reads them too."""
        text = subprocess.run(self.command() + ["-E", "-CC", "-dD"], cwd=self.entry["directory"], stdout=subprocess.PIPE,
                              check=True).stdout
        # Wherever the checkout lies: what is read counts, not the names of the files.
        return hashlib.sha256(b"".join([tool, *self.settings(), MARKER.sub(b"", text)])).hexdigest()

    def place(self, found):
        """The line of its own file that a line of the joined text is."""
        if found[1] != str(self.joined):
            return found[0]
        line = int(found[2])
        start, name = [start for start in self.starts if start[0] < line][-1]
        return f"{name}:{line - start}:"

    def complaints(self):
        """What clang-tidy says of the files, nothing when they are clean."""
        self.join()
        mark = clean / self.fingerprint()
        if mark.exists():
            return ""
        told = subprocess.run(["clang-tidy", "--quiet", self.joined, "--"] + self.command()[1:], cwd=self.entry["directory"],
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True, check=False)
        if told.returncode == 0:
            mark.touch()
            return ""
        return PLACE.sub(self.place, told.stdout) or f"{', '.join(self.files)}: clang-tidy could not read them\n"


clean.mkdir(exist_ok=True)
units = [unit for unit in map(Unit, filter(is_ours, commands)) if asked.intersection(unit.files)]
faults = 0
for name in sorted(asked.difference(*(unit.files for unit in units))):
    print(f"{name}: is compiled by no target")
    faults += 1
with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
    for told in pool.map(Unit.complaints, units):
        faults += told != ""
        sys.stdout.write(told)
        sys.stdout.flush()
sys.exit(f"{faults} times clang-tidy complained" if faults else 0)
