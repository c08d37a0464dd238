#!/usr/bin/env python3
"""Lets the page's module make a .zip and reads it with Python's own: zip_test.py NODE ZIP_MODULE"""
import io
import os
import subprocess
import sys
import time
import zipfile

NAMES = ["žlutá.TVX", "prázdná.TVX", "Hra 1.TVX"]
SCRIPT = """
const { zip } = await import(process.argv[1]);
const bytes = [Uint8Array.from({ length: 3000 }, (_, index) => index * 7), new Uint8Array(0), new TextEncoder().encode("123456789")];
const names = JSON.parse(process.argv[2]);
process.stdout.write(Buffer.from(await zip(names.map((name, index) => [name, bytes[index]])).arrayBuffer()));
"""
EMPTY = "const { zip } = await import(process.argv[1]); process.stdout.write(Buffer.from(await zip([]).arrayBuffer()));"


def made_by(script, *arguments):
    node, module = sys.argv[1], "file://" + os.path.abspath(sys.argv[2])
    run = subprocess.run([node, "--input-type=module", "-e", script, module, *arguments], stdout=subprocess.PIPE, check=True)
    return zipfile.ZipFile(io.BytesIO(run.stdout))


def main():
    archive = made_by(SCRIPT, str(NAMES).replace("'", '"'))
    assert archive.testzip() is None
    assert archive.namelist() == NAMES, archive.namelist()
    contents = [archive.read(name) for name in NAMES]
    assert contents == [bytes(index * 7 % 256 for index in range(3000)), b"", b"123456789"]
    for entry in archive.infolist():
        age = time.time() - time.mktime((*entry.date_time, 0, 0, -1))
        assert -2 < age < 60, f"{entry.filename} was made {age} s ago"
    assert made_by(EMPTY).namelist() == []


if __name__ == "__main__":
    main()
