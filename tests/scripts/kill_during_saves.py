#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Kills the command line (signal 9) at random moments of a save over an existing file: the file is
then the old one or the new one, whole.  Usage: kill_during_saves.py VEXA-CLI [ROUNDS]"""
import pathlib
import random
import subprocess
import sys
import tempfile
import time


def data_file(value):
    rows = "".join(f" {nm},{value}" + ",0.000000000000000" * 9 + "\r\n" for nm in range(440, 841))
    return ("VEXA-KT 440-840 Ver 3.21 Data File\r\nwave,,,,,,,,,,\r\n" + rows).encode()


def main():
    program, rounds = sys.argv[1], int(sys.argv[2]) if len(sys.argv) > 2 else 60
    random.seed(1)
    with tempfile.TemporaryDirectory() as name:
        directory = pathlib.Path(name)
        versions = {"a.csv": data_file("1.000000000000000"), "b.csv": data_file("2.000000000000000")}
        for file, content in versions.items():
            (directory / file).write_bytes(content)
        out = directory / "out.csv"
        out.write_bytes(versions["a.csv"])
        began = time.monotonic()
        subprocess.run([program, "convert", directory / "b.csv", out], check=True)
        whole = time.monotonic() - began
        killed = 0
        for turn in range(rounds):
            source = "ab"[turn % 2] + ".csv"
            process = subprocess.Popen([program, "convert", directory / source, out])
            time.sleep(random.uniform(0, 1.2 * whole))
            process.kill()
            killed += process.wait() != 0
            if out.read_bytes() not in versions.values():
                sys.exit(f"round {turn}: the file is neither the old one nor the new one")
        print(f"{rounds} saves, {killed} of them killed")
        if killed == 0:
            sys.exit("no save was killed")


main()
