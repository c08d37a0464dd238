#!/usr/bin/env python3
"""Checks the spelling of everything Czech that a player reads: the story, the sentences in the sources, the documents.

Uses hunspell with its Czech dictionary and the game's own story/words.txt: sorted, one word a line, or WORD/PATTERN for a name that
is declined as PATTERN is. Prints FILE:LINE: WORD for each unknown word and ends with 1.
"""

import re
import subprocess
import sys
from pathlib import Path

SOURCE_FOLDERS = ["ui", "core", "terminal", "interactions", "saves", "commands", "app"]
CZECH_DOCUMENTS = ["story/*.txt", "docs/*.md", "packaging/man/cs/*.6"]
WHOLLY_CZECH = [Path("core/items.cpp")]  # where a literal without a Czech letter is Czech too
WORD_LIST = "story/words.txt"
NOT_CZECH = [WORD_LIST, "docs/measurements.md", "docs/systems.md"]

WORD = re.compile(r"[^\W\d_]+")
CZECH_LETTER = re.compile(r"[áčďéěíňóřšťúůýž]", re.IGNORECASE)
LITERAL = re.compile(r'"((?:[^"\\\n]|\\.)*)"')
COMMENT = re.compile(r"^[ \t]*//.*|^[ \t]*#include.*", re.MULTILINE)
ESCAPE = re.compile(r"\\.")
NO_PROSE = re.compile(r"`[^`]*`|\]\([^)]*\)|\S*[/_]\S*|\w+\.\w+|^\.\w+|orvel-tavoren")  # code, links, file names, macros


def literals(code):
    """Yields line and content of each string literal; adjacent literals are one, so that a sentence is judged as a whole."""
    code = COMMENT.sub("", code)
    parts, end = [], 0
    for match in LITERAL.finditer(code):
        if parts and code[end:match.start()].strip():
            yield parts
            parts = []
        parts.append((code.count("\n", 0, match.start()) + 1, ESCAPE.sub(" ", match[1])))
        end = match.end()
    if parts:
        yield parts


def czech_lines(root):
    """Yields file, line number and text of everything Czech."""
    for folder in SOURCE_FOLDERS:
        for path in sorted((root / folder).rglob("*")):
            if path.suffix not in (".h", ".cpp"):
                continue
            name = path.relative_to(root)
            for parts in literals(path.read_text(encoding="utf-8")):
                if name in WHOLLY_CZECH or any(CZECH_LETTER.search(text) for _, text in parts):
                    yield from ((name, number, text) for number, text in parts)
    for pattern in CZECH_DOCUMENTS:
        for path in sorted(root.glob(pattern)):
            if path.relative_to(root).as_posix() in NOT_CZECH:
                continue
            for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
                yield path.relative_to(root), number, line


def unknown_words(words, word_list=None):
    command = ["hunspell", "-d", "cs_CZ", "-i", "UTF-8", "-l", *(["-p", str(word_list)] if word_list else [])]
    answer = subprocess.run(command, input="\n".join(sorted(words)), capture_output=True, text=True, check=True, encoding="utf-8")
    return set(answer.stdout.split())


def word_list_faults(path, foreign):
    entries = path.read_text(encoding="utf-8").splitlines()
    for number, (before, entry) in enumerate(zip(["", *entries], entries), 1):
        word, declined = entry.split("/")[0], "/" in entry
        if entry <= before:
            yield f"{WORD_LIST}:{number}: not in order, or there twice: {entry}"
        elif word not in foreign and not (declined and any(other.startswith(word[:-1]) for other in foreign)):
            yield f"{WORD_LIST}:{number}: needless: {entry}"


def faults(root):
    places = [(path, number, word) for path, number, text in czech_lines(root) for word in WORD.findall(NO_PROSE.sub(" ", text))]
    foreign = unknown_words({word for _, _, word in places})
    unknown = unknown_words(foreign, (root / WORD_LIST).resolve())
    yield from (f"{path}:{number}: {word}" for path, number, word in places if word in unknown)
    yield from word_list_faults(root / WORD_LIST, foreign)


def main():
    found = list(faults(Path(sys.argv[1] if len(sys.argv) > 1 else ".")))
    print("\n".join(found), end="\n" if found else "")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
