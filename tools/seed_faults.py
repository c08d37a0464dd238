#!/usr/bin/env python3
"""Measures what the tests catch: seeds single-line faults into a copy of the tree and notes which test catches each.

    tools/seed_faults.py WORK [--count 300] [--seed 1] [--qt | --page] [--every SECONDS]

WORK is a folder for the copy, its build and faults.jsonl, a fault a line: where, what kind, what stood there and stands there now,
the tests that caught it and after how many seconds. A run that was stopped goes on where it was. The faults are spread over the folders of
the game by their lines and over the kinds evenly. The same seed draws the same faults from lines that have not changed, so two
versions of the tree can be compared. Faults that do not compile are replaced by others; whether one that nobody catches changes
anything a player could see has to be judged by hand. Quick tests run first, and the first that fails is enough, unless --every asks
for all that take at most so long.

--qt seeds into ui/qt and runs the Qt tests alone. It uses one processor and takes three to ten seconds a fault. Headers are left alone,
because a change in one builds everything anew; app/main.cpp, because its tests need a screen; app/web.cpp, because only the page has it.

--page seeds into the scripts and the style of ui/web/page. The node tests run first, then those in browsers, which take up to a minute
together; a test that only runs the same script in a second browser is left out.
"""
import argparse
import collections
import hashlib
import json
import os
import pathlib
import re
import resource
import shutil
import subprocess
import sys
import time

TREE = pathlib.Path(__file__).resolve().parents[1]
FOLDERS = ["interactions", "commands", "terminal", "core", "saves", "ui", "text", "app", "tools"]
LEFT_OUT = {"app/main.cpp", "app/web.cpp", "tools/pack_texts_main.cpp"}
PAGE = "ui/web/page"
SLOW = 0.2  # seconds; a test that takes longer is run by itself
LIMIT = 30  # seconds of a processor; a test that takes more counts as hanging
# Most of a compilation would be the headers of the libraries, so they are compiled once for each folder.
PRECOMPILE = """
function(precompile)
    foreach(folder text ui core terminal interactions saves commands app ui_qt)
        if(TARGET orvel_${folder})
            target_precompile_headers(orvel_${folder} PRIVATE <algorithm> <array> <filesystem> <functional> <iostream> <string> <vector>)
        endif()
    endforeach()
    if(TARGET orvel_ui_qt)
        target_precompile_headers(orvel_ui_qt PRIVATE <QApplication> <QPainter> <QWidget>)
    endif()
endfunction()
cmake_language(DEFER DIRECTORY ${CMAKE_SOURCE_DIR} CALL precompile)
"""

LEADING = r"(\s*(?:(?:\} )?else )?(?:if \(.*?\) |for \(.*?\) |case [^ ]+: +|default: +)?)"
CALL = re.compile(LEADING + r"((?:await )?[A-Za-z_][\w:.#?]*(?:->[\w.]+)*(?:\[[^]]*\])?(?:\.\w+)?\(.*\)|(?:\+\+|--)[\w.>\[\]-]+);( return;)?$")
ASSIGNMENT = re.compile(LEADING + r"([\w.:*()>#\[\]-]+ (?:[+|-]?=) .*);( return;)?$")
SWAPS = {
    "equality": (r" ([!=]==?) ", {"==": "!=", "!=": "==", "===": "!==", "!==": "==="}),
    "boundary": (r" (<=|>=|<|>) ", {"<": "<=", "<=": "<", ">": ">=", ">=": ">"}),
    "and, or": (r" (&&|\|\|) ", {"&&": "||", "||": "&&"}),
    "truth": (r"\b(True|False|true|false)\b", {"True": "False", "False": "True", "true": "false", "false": "true"}),
}


def masked(line):
    """The line with its strings, characters and comment blanked out, at the same length."""
    blank = lambda found: found[0][0] + "_" * (len(found[0]) - 2) + found[0][-1]
    line = re.sub(r'"(?:\\.|[^"\\])*"|`(?:\\.|[^`\\])*`|(?<![0-9a-fA-F])\'(?:\\.|[^\'\\])+\'', blank, line)
    return re.sub(r"\s*//.*", lambda found: " " * len(found[0]), line).rstrip()


def condition(line):
    """Where the condition of an if begins and ends, after what it may declare."""
    found = re.search(r"\bif (?:constexpr )?\(", line)
    if not found:
        return None
    begin, depth = found.end(), 1
    for at in range(begin, len(line)):
        depth += {"(": 1, ")": -1}.get(line[at], 0)
        if line[at] == ";":
            begin = at + 2
        if depth == 0:
            return begin, at
    return None


def last_field(row):
    """Where the last field of a table's row begins and ends."""
    found = re.fullmatch(r"\s*\{.*\},?", row)
    if not found:
        return None
    end, depth = row.rindex("}"), 0
    for at in range(end - 1, 0, -1):
        depth += {")": 1, "}": 1, "]": 1, "(": -1, "{": -1, "[": -1}.get(row[at], 0)
        if depth < 0:
            return None
        if row[at] == "," and depth == 0:
            return at + 1, end
    return None


def changes(lines, number):
    """The faults of a line: the kind and the lines that replace it and, for rows, the next."""
    line = lines[number]
    plain = masked(line)
    if not plain.strip() or plain.lstrip().startswith(("#", "using ", "namespace ", "static_assert", "assert(")):
        return
    for kind, (pattern, other) in SWAPS.items():
        for found in re.finditer(pattern, plain):
            yield kind, [line[:found.start(1)] + other[found[1]] + line[found.end(1):]]
    for found in re.finditer(r"(?<![\w.'])(\d+)(?![\w.'])", plain):
        yield "constant", [line[:found.start()] + str(int(found[1]) + 1) + line[found.end():]]
    if turned := condition(plain):
        begin, end = turned
        yield "condition", [f"{line[:begin]}!({line[begin:end]}){line[end:]}"]
    for kind, pattern in (("call left out", CALL), ("change left out", ASSIGNMENT)):
        if (found := pattern.fullmatch(plain)) and "return" not in found[2]:
            yield kind, [line[:found.start(2)] + line[found.end(2):]]
    if number + 1 < len(lines) and (here := last_field(plain)) and (there := last_field(masked(lines[number + 1]))):
        below = lines[number + 1]
        first, second = line[slice(*here)], below[slice(*there)]
        if first != second:
            yield "rows", [line[:here[0]] + second + line[here[1]:], below[:there[0]] + first + below[there[1]:]]


def style_changes(lines, number):
    """The faults of a line of style.css. Colours are left alone: every one of them is a matter of taste to a test."""
    line = lines[number]
    plain = re.sub(r"/\*.*?\*/|rgb\(.*?\)", lambda found: " " * len(found[0]), line)
    for found in re.finditer(r"(?<=[{; ])((?!color|background|border-color)[\w-]+: [^;{}]+;)", plain):
        yield "declaration left out", [line[:found.start()] + line[found.end():]]
    for found in re.finditer(r"(?<![\w.#-])([1-9]\d*)(?=px|r?em|vh|vw|cqh|%|fr| \*)", plain):
        yield "length", [line[:found.start()] + str(2 * int(found[1]) + 1) + line[found.end():]]


def draw(groups, seed):
    """All faults of each group of files, in the order in which they are taken."""
    for group in groups:
        kinds, seen, size = collections.defaultdict(list), collections.Counter(), 0
        for path in sorted(TREE.glob(group)):
            name = str(path.relative_to(TREE))
            if name in LEFT_OUT:
                continue
            lines = path.read_text(encoding="utf-8").split("\n")
            for number, line in enumerate(lines):
                size += bool(masked(line).strip())
                for kind, after in (style_changes if path.suffix == ".css" else changes)(lines, number):
                    key = (kind, line.strip(), *map(str.strip, after))
                    seen[key] += 1
                    rank = hashlib.sha256(repr((seed, key, seen[key])).encode()).hexdigest()
                    kinds[kind].append((rank, {"file": name, "line": number + 1, "kind": kind, "before": line.strip(), "after": after}))
        for drawn in kinds.values():
            drawn.sort(key=lambda entry: entry[0])
        order = []
        while any(kinds.values()):
            order += [drawn.pop(0)[1] for _, drawn in sorted(kinds.items()) if drawn]
        yield size, order


class Bench:
    """The copy, its build and its tests."""
    first, others = ["orvel_tests", "story"], ["replay", "save_fuzz", "text_store_fuzz"]  # what is built for the quick tests, and later
    keeps = ()  # what lies in the copy without being in the tree

    def __init__(self, work, every):
        self.work, self.tree, self.build, self.every = work, work / "tree", work / "build", every
        self.environment = os.environ | {"TMPDIR": str(work / "tmp"), "QT_QPA_PLATFORM": "offscreen"}
        self.copy()
        self.configure()
        if not self.compiles(*self.first, *self.others):
            sys.exit("the tree does not compile")
        self.quick, self.slow = self.tests()
        self.catches = collections.Counter()

    def configure(self, desktop="OFF"):
        precompile = self.work / "precompile.cmake"
        precompile.write_text(PRECOMPILE)
        linker = next((name for program, name in (("mold", "mold"), ("ld.lld", "lld")) if shutil.which(program)), None)
        options = [f"-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld={linker}"] if linker else []
        subprocess.run(["cmake", "-G", "Ninja", "-S", self.tree, "-B", self.build, f"-DORVEL_DESKTOP={desktop}",
                        "-DCMAKE_CXX_FLAGS=-O0 -w", f"-DCMAKE_PROJECT_INCLUDE={precompile}", *options],
                       check=True, stdout=subprocess.DEVNULL)

    def copy(self):
        listed = subprocess.run(["git", "-C", TREE, "ls-files", "-z"], check=True, capture_output=True, text=True).stdout
        names = set(listed.split("\0")) - {""}
        for path in [each for each in self.tree.rglob("*") if each.is_file()]:
            name = str(path.relative_to(self.tree))
            if name not in names and not name.startswith(self.keeps):
                path.unlink()
        for name in names:
            target = self.tree / name
            target.parent.mkdir(parents=True, exist_ok=True)
            if not target.exists() or target.read_bytes() != (TREE / name).read_bytes():
                shutil.copy2(TREE / name, target)
                target.touch()

    def compiles(self, *targets):
        return subprocess.run(["ninja", "-j1", "-C", self.build, *targets], capture_output=True).returncode == 0

    def limit(self):
        resource.setrlimit(resource.RLIMIT_AS, (8 << 30, 8 << 30))
        resource.setrlimit(resource.RLIMIT_CPU, (LIMIT, LIMIT))

    def run(self, command):
        """The output of a test that failed or hung, else nothing."""
        shutil.rmtree(self.environment["TMPDIR"], ignore_errors=True)
        os.mkdir(self.environment["TMPDIR"])
        try:
            done = subprocess.run(command, cwd=self.tree, env=self.environment, capture_output=True, timeout=20 * LIMIT, preexec_fn=self.limit)
        except subprocess.TimeoutExpired as hung:
            return hung.stdout or b"hung"
        return (done.stdout or b"failed") if done.returncode else b""

    def gtest(self, names):
        return [self.build / "tests/orvel_tests", "--gtest_filter=" + names] + ([] if self.every else ["--gtest_fail_fast"])

    def tests(self):
        """Name, command and seconds of each test: the quick cases together, and the others."""
        told = subprocess.run(self.gtest("*"), capture_output=True, text=True, env=self.environment)
        times = {name: int(ms) / 1000 for name, ms in re.findall(r"OK \] (\S+)(?:, where .*)? \((\d+) ms\)", told.stdout)}
        slow = [(name, self.gtest(name), seconds) for name, seconds in times.items() if seconds > SLOW]
        for script in sorted(self.tree.glob("tests/walkthroughs/*.replay")):
            command = [sys.executable, "tests/walkthroughs/run.py", self.build / "replay", self.build / "game", script]
            begin = time.monotonic()
            if self.run(command) or told.returncode:
                sys.exit("the tests fail without a fault")
            slow.append(("walkthrough." + script.stem, command, time.monotonic() - begin))
        for corpus in ("save", "text_store"):
            slow.append((corpus + "_corpus", [self.build / "fuzz" / (corpus + "_fuzz"), self.tree / "fuzz/corpus" / corpus], 0.1))
        return [("quick", self.gtest("-" + ":".join(name for name, _, _ in slow)), 0)], slow

    def reaches(self, name, folder):
        """Whether a slow test runs any of the folder's code."""
        return folder in ("saves", "core", "text") or not name.startswith(("SaveFormat.", "Durability.", "save_corpus", "text_store"))

    def catchers(self, folder):
        """The tests that fail now, and after how many seconds the first of them did. Tests that have caught most faults run first."""
        caught, begin, soon = [], time.monotonic(), None
        slow = [test for test in self.slow if self.reaches(test[0], folder)]
        slow.sort(key=lambda test: test[2] / (self.catches[test[0]] + 0.1))
        for name, command, seconds in self.quick + slow:
            if caught and seconds > self.every:
                continue
            if slow and name == slow[0][0] and not self.compiles(*self.others):
                return ["build"], soon
            if output := self.run(command):
                self.catches[name] += 1
                output = output.decode(errors="replace")
                failed = re.findall(r"\[  FAILED  \] ([\w./]+).*\(\d+ ms\)", output)
                started = re.findall(r"\[ RUN      \] (\S+)", output)
                caught += failed or started[-1:] or [name]  # the last one started has crashed or hung
                soon = soon or round(time.monotonic() - begin, 2)
                if not self.every:
                    break
        return caught, soon

    def seed(self, fault):
        path = self.tree / fault["file"]
        sound = path.read_bytes()
        lines = sound.decode().split("\n")
        lines[fault["line"] - 1:fault["line"] - 1 + len(fault["after"])] = fault["after"]
        path.write_text("\n".join(lines), encoding="utf-8")
        try:
            if not self.compiles(*self.first):
                return fault | {"outcome": "does not compile"}
            caught, soon = self.catchers(fault["file"].partition("/")[0])
            return fault | {"outcome": "caught" if caught else "missed", "by": caught, "seconds": soon}
        finally:
            path.write_bytes(sound)


class QtBench(Bench):
    first, others = ["orvel_qt_tests"], []

    def configure(self):
        super().configure(desktop="ON")

    def tests(self):
        binary = self.build / "tests/qt/orvel_qt_tests"
        return [("qt, " + scale, ["env", "QT_SCALE_FACTOR=" + scale, binary], 0) for scale in "12"], []


class PageBench(Bench):
    first, others = ["site", "single_file"], []
    keeps = ("build/", "tests/web/node_modules/")
    other_browser = re.compile(r"_in_firefox$")

    def configure(self):
        """As ./check does: the tests of the page compare it with the native player of the release build."""
        self.build = self.tree / "build/web"
        for preset, target in (("release", "replay"), ("web", "all")):
            subprocess.run(["cmake", "--preset", preset, "-DORVEL_DESKTOP=OFF"], cwd=self.tree, check=True, stdout=subprocess.DEVNULL)
            subprocess.run(["ninja", "-j1", "-C", self.tree / "build" / preset, target], check=True, stdout=subprocess.DEVNULL)

    def limit(self):
        """A browser wants more room, and its tests have limits of their own."""

    def tests(self):
        """Those of the page, quick ones first. What compares the compiled game with the native one knows nothing of the page."""
        told = json.loads(subprocess.run(["ctest", "--test-dir", self.build, "--show-only=json-v1"], check=True, capture_output=True).stdout)
        commands = {}
        for test in told["tests"]:
            folder = next((each["value"] for each in test["properties"] if each["name"] == "WORKING_DIRECTORY"), self.build)
            commands[test["name"]] = ["env", "-C", folder, *test.get("command", ["false"])]
        self.run(["sh", "-c", "cd tests/web && npm ci --ignore-scripts --no-audit --no-fund"])
        slow = []
        for name, command in commands.items():
            if not name.startswith("web.") or name in ("web.packages", "web.same_game", "web.size") or self.other_browser.search(name):
                continue
            begin = time.monotonic()
            if output := self.run(command):
                sys.exit(f"{name} fails without a fault\n" + output.decode(errors="replace"))
            slow.append((name, command, time.monotonic() - begin))
        return [], slow

    def compiles(self, *targets):
        scripts = [path for path in (self.tree / PAGE).glob("*.*js")]
        return all(subprocess.run(["node", "--check", path], capture_output=True).returncode == 0 for path in scripts) and super().compiles(*targets)

    def reaches(self, name, folder):
        return True


def report(results):
    table = collections.defaultdict(collections.Counter)
    for fault in results:
        page = fault["file"].startswith(PAGE)
        for row in (fault["file"].rpartition("/")[2] if page else os.path.dirname(fault["file"]), fault["kind"], "all"):
            table[row][fault["outcome"]] += 1
    for row, counts in table.items():
        tried = counts["caught"] + counts["missed"]
        if tried:
            print(f"{row:16} {counts['caught']:4} of {tried:4} caught, {100 * counts['caught'] / tried:5.1f} %")
    for fault in results:
        if fault["outcome"] == "missed":
            print(f"{fault['file']}:{fault['line']}: {fault['kind']}: {fault['before']}  ->  {fault['after'][0].strip()}")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("work", type=pathlib.Path)
    parser.add_argument("--count", type=int, default=300)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--qt", action="store_true")
    parser.add_argument("--page", action="store_true")
    parser.add_argument("--every", type=float, default=0, metavar="SECONDS")
    options = parser.parse_args()
    work = options.work.resolve()
    work.mkdir(parents=True, exist_ok=True)
    (work / "tmp").mkdir(exist_ok=True)
    notes = work / "faults.jsonl"
    known = [json.loads(line) for line in notes.read_text().splitlines()] if notes.exists() else []
    tried = {(fault["file"], fault["line"], *fault["after"]): fault for fault in known}
    if options.page:
        kind, groups = PageBench, [PAGE + "/*.*js", PAGE + "/*.css"]
    elif options.qt:
        kind, groups = QtBench, ["ui/qt/*.cpp"]
    else:
        kind, groups = Bench, [folder + "/*.cpp" for folder in FOLDERS]
    drawn = list(draw(groups, options.seed))
    total = sum(size for size, _ in drawn)
    bench, results = kind(work, options.every), []
    with open(notes, "a", encoding="utf-8") as journal:
        for size, order in drawn:
            wanted, lines = max(5, round(options.count * size / total)), set()
            while wanted > 0 and order:
                # The faults of one file are tried in a row, so that mending the last fault and seeding the next is one compilation.
                batch = []
                while order and len(batch) < wanted:
                    fault = order.pop(0)
                    if (fault["file"], fault["line"]) not in lines:
                        lines.add((fault["file"], fault["line"]))
                        batch.append(fault)
                for fault in sorted(batch, key=lambda each: (each["file"], each["line"])):
                    result = tried.get((fault["file"], fault["line"], *fault["after"]))
                    if result is None:
                        result = bench.seed(fault)
                        journal.write(json.dumps(result, ensure_ascii=False) + "\n")
                        journal.flush()
                    results.append(result)
                    wanted -= result["outcome"] != "does not compile"
    report(results)


if __name__ == "__main__":
    main()
