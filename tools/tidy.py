#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""clang-tidy over the files given, as many at a time as there are cores. What was found clean is not read again until the
preprocessed text, the settings or clang-tidy itself change.

    tools/tidy.py BUILD_FOLDER FILE..."""
import concurrent.futures
import hashlib
import json
import os
import pathlib
import shlex
import subprocess
import sys

root = pathlib.Path(__file__).resolve().parent.parent
build = pathlib.Path(sys.argv[1]).resolve()
clean = build / "clean"
commands = {entry["file"]: entry for entry in json.loads((build / "compile_commands.json").read_text())}
tool = subprocess.run(["clang-tidy", "--version"], stdout=subprocess.PIPE, check=True).stdout


def settings_of(name):
    folders = reversed((root / name).parents)
    return b"".join((folder / ".clang-tidy").read_bytes() for folder in folders if (folder / ".clang-tidy").exists())


def print_of(entry, settings):
    """Comments and macros count: clang-tidy reads them too."""
    command = shlex.split(entry["command"])
    at = command.index("-o")
    text = subprocess.run(command[:at] + command[at + 2:] + ["-E", "-CC", "-dD"], cwd=entry["directory"],
                          stdout=subprocess.PIPE, check=True).stdout
    return hashlib.sha256(tool + settings + text).hexdigest()


def complaints(name):
    """What clang-tidy says of the file, nothing when it is clean."""
    entry = commands.get(str(root / name))
    if entry is None:
        return f"{name}: is compiled by no target\n"
    mark = clean / print_of(entry, settings_of(name))
    if mark.exists():
        return ""
    told = subprocess.run(["clang-tidy", "--quiet", "-p", build, root / name], stdout=subprocess.PIPE,
                          stderr=subprocess.DEVNULL, text=True, check=False)
    if told.returncode == 0:
        mark.touch()
        return ""
    return told.stdout or f"{name}: clang-tidy could not read it\n"


clean.mkdir(exist_ok=True)
with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
    faults = 0
    for told in pool.map(complaints, sys.argv[2:]):
        faults += told != ""
        sys.stdout.write(told)
        sys.stdout.flush()
sys.exit(f"{faults} files with faults" if faults else 0)
