#!/usr/bin/env python3
"""Holds the walkthrough document to the winning game: the same commands in the same order.

    guide.py DOCUMENT TRANSCRIPT

The document leaves out the walking, the doors, the login and the leaving of terminals, and what the keypad is told.
"""
import difflib
import pathlib
import re
import sys

# The old door is told: it is no passage but a step of the story.
LEFT_OUT = re.compile(r"$|Jdi |Otevři (drátěné )?dveře|mj-perolax$|exit$")

document, transcript = (pathlib.Path(name).read_text(encoding="utf-8") for name in sys.argv[1:3])
told = re.findall(r"^- (?:\\\* )?`([^`]+)`", document, re.MULTILINE)
played = [command for command in re.findall(r"^(?:\[terminál\] )?> ?(.*)$", transcript, re.MULTILINE) if not LEFT_OUT.match(command)]
sys.exit("\n".join(difflib.unified_diff(played, told, "played", "told", lineterm="")) or 0)
