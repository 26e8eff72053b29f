#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Reads a JCAMP-DX export with a reader that was not written here, the npm package jcampconverter,
and compares it with the JSON export.  Usage: check_jcamp.py VEXA-CLI

Exit status 77 (skipped), with the reason, without node, npm or the package; the package is kept in
the user's cache directory.
"""
import json
import math
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

PACKAGE, VERSION = "jcampconverter", "9.6.4"
SKIPPED = 77
READER = """
const { convert } = require('jcampconverter');
const text = require('fs').readFileSync(process.argv[2], 'utf8');
const blocks = convert(text, { keepRecordsRegExp: /.*/ }).flatten.filter((b) => b.spectra.length);
console.log(JSON.stringify(blocks.map((b) => ({
  title: b.title, type: b.dataType, lot: b.meta.LOT, id: b.meta.RECORD,
  xUnits: b.spectra[0].xUnits, yUnits: b.spectra[0].yUnits,
  x: b.spectra[0].data.x, y: b.spectra[0].data.y,
}))));
"""


def skip(reason):
    print(f"check_jcamp: skipped: {reason}", file=sys.stderr)
    sys.exit(SKIPPED)


def reader_directory():
    for tool in ("node", "npm"):
        if not shutil.which(tool):
            skip(f"{tool} is not installed")
    cache = pathlib.Path(os.environ.get("XDG_CACHE_HOME") or pathlib.Path.home() / ".cache")
    directory = cache / "vexa-tests" / f"{PACKAGE}-{VERSION}"
    if not (directory / "node_modules" / PACKAGE).is_dir():
        directory.mkdir(parents=True, exist_ok=True)
        install = subprocess.run(
            ["npm", "install", "--silent", "--no-audit", "--no-fund", "--prefix", directory, f"{PACKAGE}@{VERSION}"],
            capture_output=True, text=True, timeout=100, check=False)
        if install.returncode:
            skip(f"npm cannot install {PACKAGE}: {install.stderr.strip()[:200]}")
    return directory


def data_file():
    rows = "".join(f" {nm},{nm / 300:.15f},{1 / nm:.15f}" + ",0.000000000000000" * 8 + "\r\n"
                   for nm in range(440, 841))
    return ("VEXA-KT 440-840 Ver 3.21 Data File\r\nwave,S-001,$$ab##c,,,,,,,,\r\n" + rows).encode()


def main():
    program, reader = sys.argv[1], reader_directory()
    with tempfile.TemporaryDirectory(prefix="記 録 ") as name:
        directory = pathlib.Path(name)
        (directory / "a.csv").write_bytes(data_file())

        def records(*arguments):
            run = subprocess.run([program, "records", *arguments, "--dir", directory], capture_output=True, check=True)
            return run.stdout

        records("import", directory / "a.csv", "--lot", "lot 1")
        ids = [record["id"] for record in json.loads(records("list", "--json"))["records"]]
        for chosen in (ids, ids[:1]):
            records("export", *chosen, "--out", directory / "o.jdx")
            records("export", *chosen, "--out", directory / "o.json")
            expected = json.loads((directory / "o.json").read_text(encoding="utf-8"))["records"]
            run = subprocess.run(["node", "-", directory / "o.jdx"], input=READER, text=True, cwd=reader,
                                 capture_output=True, check=True)
            read = json.loads(run.stdout)
            if len(read) != len(chosen):
                sys.exit(f"{len(read)} spectra were read, not {len(chosen)}")
            for block, record in zip(read, expected):
                same = (block["id"] == record["id"] and block["lot"] == "lot 1"
                        and block["xUnits"] == "NANOMETERS" and block["yUnits"] == "REFLECTANCE"
                        and block["x"] == list(range(440, 841))
                        and len(block["y"]) == 401
                        and all(math.isclose(y, percent / 100, rel_tol=1e-14)  # it adds up digits
                                for y, percent in zip(block["y"], record["reflectance"])))
                if not same:
                    sys.exit(f"what was read differs: {json.dumps(block)[:300]}")
        print(f"{len(ids)} spectra read by {PACKAGE} {VERSION}, all equal")


main()
