#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Counts what the walks hold: files, lines, playings (a walk for both languages is played twice) and expectations, each
counted in every language in which it is asked. Plays nothing, so it can look at any commit.

    tools/count_walks.py            counts the working tree
    tools/count_walks.py COMMIT...  counts these commits, one line each
"""
import pathlib
import re
import subprocess
import sys

WORD = re.compile(r'"(?:[^"\\]|\\.)*"|[^ \t]+')
RANGE = re.compile(r"(.*?)(\d+)\.\.\1(\d+)$")
STATES = ("shown", "hidden", "enabled", "disabled")


def controls(words):
    ranges = [RANGE.match(word) for word in words]
    return sum(int(found[3]) - int(found[2]) + 1 if found else 1 for found in ranges)


def without_pairs(words):
    """The words in one language: of two with a bar between, the first."""
    return [word for i, word in enumerate(words) if word != "|" and (i == 0 or words[i - 1] != "|")]


def expectations(words):
    verb, rest = words[0], words[1:]
    if verb in ("enter", "esc"):
        return 1 if rest else 0
    if verb == "enter-each":
        return controls(rest)
    if verb == "expect":
        return len(rest) // 2
    if verb == "expect-in":
        return controls(rest[2:]) if rest[1] in STATES else (len(rest) - 1) // 2
    if verb.removeprefix("expect-") in STATES:
        return controls(rest)
    return 1 if verb.startswith("expect-") else 0


def count(text):
    """Playings and expectations of one walk."""
    lines = [WORD.findall(line) for line in text.splitlines() if line.strip() and not line.strip().startswith("#")]
    both = bool(lines) and lines[0] == ["language", "spanish", "|", "english"]
    asked = 0
    for words in lines:
        if both and words[0] in ("es:", "en:"):
            asked += expectations(words[1:])
        elif both:
            asked += 2 * expectations(without_pairs(words))
        else:
            asked += expectations(words)
    return 2 if both else 1, asked


def git(*arguments):
    return subprocess.run(["git", *arguments], check=True, capture_output=True).stdout.decode("utf-8-sig")


def texts_of(commit):
    names = [name for name in git("ls-tree", "-r", "-z", "--name-only", commit, "tests/walks").split("\0")]
    return [git("show", f"{commit}:{name}") for name in names if name.endswith(".walk")]


def tell(title, texts):
    counts = [count(text) for text in texts]
    lines = sum(len(text.splitlines()) for text in texts)
    print(f"{title}: {len(texts)} walks, {lines} lines, {sum(played for played, _ in counts)} playings, "
          f"{sum(asked for _, asked in counts)} expectations")


root = pathlib.Path(__file__).resolve().parent.parent
if len(sys.argv) == 1:
    walks = sorted((root / "tests" / "walks").rglob("*.walk"))
    tell("working tree", [walk.read_text(encoding="utf-8-sig") for walk in walks])
for commit in sys.argv[1:]:
    tell(commit, texts_of(commit))
