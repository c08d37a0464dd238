#!/usr/bin/env python3
"""Makes the page's font out of a font file: the characters of Windows-1250 alone, under another name, as WOFF2."""

import sys

from fontTools import subset
from fontTools.ttLib import TTFont

FAMILY = "Orvel Sans"


def characters():
    for byte in range(32, 256):
        try:
            yield ord(bytes([byte]).decode("cp1250"))
        except UnicodeDecodeError:
            pass  # the code page leaves some codes free


def rename(font):
    style = font["name"].getDebugName(2)
    names = {1: FAMILY, 2: style, 3: f"{FAMILY} {style}", 4: f"{FAMILY} {style}", 6: f"{FAMILY}-{style}".replace(" ", "")}
    for record in font["name"].names:
        record.string = names.get(record.nameID, record.toUnicode())


def main(original, result):
    options = subset.Options(flavor="woff2", hinting=False, layout_features=["kern"], name_IDs=[0, 1, 2, 3, 4, 6, 13, 14])
    font = TTFont(original, recalcTimestamp=False)
    subsetter = subset.Subsetter(options)
    subsetter.populate(unicodes=characters())
    subsetter.subset(font)
    rename(font)
    font.flavor = "woff2"
    font.save(result)


if __name__ == "__main__":
    main(*sys.argv[1:])
