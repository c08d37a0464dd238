#!/usr/bin/env python3
"""Holds the sources to the arrows between the folders.

A file includes its own folder and the folders below it, only the Qt desktop and what measures or tests it include Qt,
only the page's desktop includes Emscripten, and the files (a header and its .cpp count as one) have no cycle. Prints
FILE:LINE: REASON for each breach and ends with 1.
"""

import re
import sys
from collections import defaultdict
from pathlib import Path

BELOW = {
    "text": [],
    "ui": ["text"],
    "ui/qt": ["ui", "text"],
    "ui/web": ["ui", "text"],
    "core": ["ui", "text"],
    "terminal": ["core", "ui", "text"],
    "interactions": ["terminal", "core", "ui", "text"],
    "saves": ["terminal", "core", "ui", "text"],
    "commands": ["interactions", "saves", "terminal", "core", "ui", "text"],
    "app": ["commands", "interactions", "saves", "terminal", "core", "ui", "ui/qt", "ui/web", "text"],
    "tools": ["text"],
}
EVERYTHING = [*BELOW, "tests", "tests/qt", "bench", "bench/qt"]
BELOW |= {folder: EVERYTHING for folder in ("tests", "bench")}
QT_FOLDERS = ("ui/qt", "tests/qt", "bench/qt")

INCLUDE = re.compile(r'^\s*#\s*include\s*(["<])([^">]+)[">]')
QT_HEADER = re.compile(r"Q[A-Z]|Qt|q[a-z]+\.h$")


def folder_of(path):
    """The longest known folder that holds the file; nothing for files of no known folder."""
    parents = [parent.as_posix() for parent in Path(path).parents]
    return next((parent for parent in parents if parent in EVERYTHING), None)


def files_below(root):
    for folder in sorted({name.split("/")[0] for name in EVERYTHING}):
        for path in sorted((root / folder).rglob("*")):
            if path.suffix in (".h", ".cpp"):
                yield path


def allowed(source, target):
    own = folder_of(source)
    return folder_of(target) in [own, *BELOW.get(own, EVERYTHING)]


def breaches(root):
    """Yields the breaches in order of files and lines, then the cycles."""
    graph = defaultdict(dict)
    for path in files_below(root):
        source = path.relative_to(root).as_posix()
        for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
            include = INCLUDE.match(line)
            if not include:
                continue
            place, quote, target = f"{source}:{number}", include[1], include[2]
            if quote == "<":
                if QT_HEADER.match(target) and folder_of(source) not in QT_FOLDERS:
                    yield f"{place}: only {', '.join(QT_FOLDERS)} include Qt: {target}"
                elif target.startswith("emscripten") and folder_of(source) != "ui/web":
                    yield f"{place}: only ui/web includes Emscripten: {target}"
                elif (root / target).exists():
                    yield f"{place}: our own headers stand in quotes: {target}"
            elif not (root / target).exists():
                yield f"{place}: no such file, counted from the top folder: {target}"
            elif not allowed(source, target):
                yield f"{place}: {folder_of(source)}/ stands below or beside {folder_of(target)}/: {target}"
            else:
                unit, included = source.rsplit(".", 1)[0], target.rsplit(".", 1)[0]
                if unit != included:
                    graph[unit].setdefault(included, place)
    yield from cycles(graph)


def cycles(graph):
    finished, road = set(), []

    def visit(unit):
        if unit in road:
            circle = road[road.index(unit):] + [unit]
            yield f"{graph[road[-1]][unit]}: the files include each other in a circle: {' -> '.join(circle)}"
            return
        if unit in finished:
            return
        road.append(unit)
        for included in graph.get(unit, {}):
            yield from visit(included)
        road.pop()
        finished.add(unit)

    for unit in sorted(graph):
        yield from visit(unit)


def main():
    found = list(breaches(Path(sys.argv[1] if len(sys.argv) > 1 else ".")))
    print("\n".join(found), end="\n" if found else "")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
