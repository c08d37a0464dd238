#!/usr/bin/env python3
"""Holds the walkthrough document to the road of the story, and to the winning game.

    guide.py DOCUMENT TRANSCRIPT ROAD

The commands that the document does not mark as needless must be the steps of the road, and the winning game must play all commands of the
document in the same order. Walking, doors, login, leaving a terminal and putting things down are no steps.
"""
import difflib
import pathlib
import re
import sys

# "staré dveře" is not among these doors, because the old door is no passage but a step of the story.
NO_STEP = re.compile(r"Jdi |Polož |Otevři (drátěné )?dveře|mj-perolax$|exit$")

document, transcript, road = (pathlib.Path(name).read_text(encoding="utf-8") for name in sys.argv[1:4])
told = re.findall(r"^- (\\\* )?`([^`]+)`", document, re.MULTILINE)
steps = re.findall(r"^`?([^#\s`][^:→`\n]*?)`?(?: →|:)", road, re.MULTILINE)
played = iter(re.findall(r"^(?:\[terminál\] )?> ?(.*)$", transcript, re.MULTILINE))

needed = [command for needless, command in told if not needless]
steps, needed = ([step for step in each if not NO_STEP.match(step)] for each in (steps, needed))
different = difflib.unified_diff(steps, needed, "road", "told", lineterm="")
unplayed = [f"not played, or not in this order: {command}" for _, command in told if command not in played]
sys.exit("\n".join([*different, *unplayed[:1]]) or 0)
