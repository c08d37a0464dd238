#!/usr/bin/env python3
"""Checks that some walkthrough tells each story text, that no text stands twice, and that none is shorter or longer than players like.

    told.py TEXTS TRANSCRIPT...
"""
import pathlib
import re
import sys

UNUSED = "210"

source, *transcripts = (pathlib.Path(name).read_text(encoding="utf-8") for name in sys.argv[1:])
texts = re.findall(r"^(\d+): ?(.*)$", source, re.MULTILINE)
told = set("\n".join(transcripts).split("\n"))
numbers = {}
for number, text in texts:
    if number == UNUSED:
        continue
    if text not in told:
        sys.exit(f"no walkthrough tells text {number}: {text}")
    if not 60 <= len(text) <= 1000 or numbers.setdefault(text, number) != number:
        sys.exit(f"text {number} is a double, too short or too long: {text}")
