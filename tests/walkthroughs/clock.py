#!/usr/bin/env python3
"""Holds the time that passes in the story to story/clock.txt, which explains its own format.

    clock.py TRANSCRIPT TEXTS CLOCK

Each text of the clock says the words that tell its time, the times never run backwards, and the winning game tells the texts in that order.
What fails is told in the language of the story's author.
"""
import pathlib
import re
import sys

import road

HAND = re.compile(r"(\d\d:\d\d) (\d+): „([^“]+)“$")


def read_clock(path):
    lines = path.read_text(encoding="utf-8").splitlines()
    for number, line in enumerate(lines, 1):
        if line and not line.startswith("#"):
            if not (hand := HAND.match(line)):
                sys.exit(f"{path.name}:{number}: Tomuhle řádku nerozumím: {line}")
            yield f"{path.name}:{number}: Text {hand[2]}", *hand.groups()


def faults(clock, texts, transcript):
    told = [line for _, _, lines in road.read_transcript(transcript) for line in lines]
    before, place = "00:00", 0
    for name, time, text, words in clock:
        if words not in texts.get(text, ""):
            yield f"{name} neříká „{words}“."
        elif texts[text] not in told[place:]:
            yield f"{name} se ve vítězné hře po předchozím neukáže."
        else:
            place = told.index(texts[text], place) + 1
        if time < before:
            yield f"{name} má {time}, ale předchozí {before}."
        before = time


def main():
    transcript, texts, clock = map(pathlib.Path, sys.argv[1:4])
    sys.exit("\n".join(faults(read_clock(clock), road.read_texts(texts), transcript)) or 0)


if __name__ == "__main__":
    main()
