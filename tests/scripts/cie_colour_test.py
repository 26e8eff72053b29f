#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Compares `analyse --cie` with an independent computation: the formulas of CIE 15 and ISO/CIE
11664-4 as plain sums in decimal arithmetic of 40 digits. The tables are read out of the program's
source; their own test holds them against published sums and white points.
Usage: cie_colour_test.py VEXA-CLI colour_tables.cpp"""
import json
import math
import pathlib
import random
import re
import subprocess
import sys
import tempfile
from decimal import Decimal, getcontext

getcontext().prec = 40
TOLERANCE = 1e-9  # of the value, and of 1 below it


def read_tables(source):
    """81 numbers each: illuminants A, B, C, D65, then x, y, z of 2 and of 10 degrees."""
    numbers = re.findall(r"\d+\.\d+", re.sub(r"//.*", "", source.split("IlluminantA{")[1]))
    assert len(numbers) == 810, len(numbers)
    columns = [[Decimal(n) for n in numbers[i : i + 81]] for i in range(0, 810, 81)]
    return dict(zip(("A", "B", "C", "D65"), columns)), {2: columns[4:7], 10: columns[7:10]}


def tristimulus(percent_at, power, observer):
    sums = [sum(percent_at(380 + 5 * i) * power[i] * bar[i] for i in range(81)) for bar in observer]
    return [s / sum(p * y for p, y in zip(power, observer[1])) for s in sums]


def part(ratio):
    if ratio > Decimal(216) / 24389:
        return ratio ** (Decimal(1) / 3)
    return (Decimal(24389) / 27 * ratio + 16) / 116


def lab(values, white):
    x, y, z = (part(v / w) for v, w in zip(values, white))
    return 116 * y - 16, 500 * (x - y), 200 * (y - z)


def continued(spectrum, line):
    """The spectrum with its value at 440 nm below, or with the line through 440 to 460 nm."""
    nms = range(440, 461)
    mean = sum(spectrum[nm] for nm in nms) / 21
    slope = sum((nm - 450) * (spectrum[nm] - mean) for nm in nms) / sum((nm - 450) ** 2 for nm in nms)
    below = (lambda nm: max(Decimal(0), mean + slope * (nm - 450))) if line else (lambda nm: spectrum[440])
    return lambda nm: spectrum[nm] if nm >= 440 else below(nm)


def cie(spectrum, power, observer, d65, two_degrees):
    white = tristimulus(lambda nm: Decimal(100), power, observer)
    values = tristimulus(continued(spectrum, False), power, observer)
    one = lab(values, white)
    other = lab(tristimulus(continued(spectrum, True), power, observer), white)
    total = sum(values)
    chroma = (one[1] ** 2 + one[2] ** 2).sqrt()
    return dict(
        zip("XYZ", values),
        x=values[0] / total if total else None,
        y=values[1] / total if total else None,
        L=one[0],
        a=one[1],
        b=one[2],
        C=chroma,
        h=math.degrees(math.atan2(one[2], one[1])) % 360 if chroma > 1e-12 else None,
        Rv=tristimulus(continued(spectrum, False), d65, two_degrees)[1],
        spread=sum((p - q) ** 2 for p, q in zip(one, other)).sqrt(),
    )


def spectra():
    """What each branch is for: white, black, residual colour, no blue or red, a clipped line, noise."""
    noise = random.Random(1)
    shapes = [
        lambda nm: 100,
        lambda nm: nm == 840,  # black where the tables have weight, and valid for the program
        lambda nm: 4,
        lambda nm: 0.2 + 3 * ((nm - 560) / 200) ** 2,
        lambda nm: 60 if nm > 600 else 0,
        lambda nm: 60 if nm < 500 else 0.5,
        lambda nm: min(80, 3 * (nm - 439)),  # its line is below 0 from 438 nm down
        lambda nm: 5 + noise.random(),
        lambda nm: 6 + 1.5 * math.cos(4 * math.pi * 2400 / nm),
        lambda nm: (840 - nm) / 8,
    ]
    return [{nm: f"{float(shape(nm)):.9f}" for nm in range(440, 841)} for shape in shapes]


def main():
    program, source = sys.argv[1:]
    illuminants, observers = read_tables(pathlib.Path(source).read_text(encoding="utf-8"))
    slots = spectra()
    rows = "".join(f" {nm},{','.join(slot[nm] for slot in slots)}\r\n" for nm in range(440, 841))
    compared = 0
    with tempfile.TemporaryDirectory() as directory:
        path = pathlib.Path(directory, "data.csv")
        path.write_bytes(f"VEXA-KT 440-840 Ver 3.21 Data File\r\nwave,,,,,,,,,,\r\n{rows}".encode())
        for name, power in illuminants.items():
            for degrees, observer in observers.items():
                options = ["--cie", "--json", "--illuminant", name, "--observer", str(degrees)]
                run = [program, "analyse", path, "--dir", directory, *options]
                reply = json.loads(subprocess.run(run, check=True, capture_output=True).stdout)
                assert [slot["slot"] for slot in reply["slots"]] == list(range(1, 11))
                for slot, texts in zip(reply["slots"], slots):
                    got = slot["cie"]
                    assert (got.pop("observer"), got.pop("illuminant")) == (degrees, name)
                    spectrum = {nm: Decimal(text) for nm, text in texts.items()}
                    expected = cie(spectrum, power, observer, illuminants["D65"], observers[2])
                    assert got.keys() == expected.keys()
                    for key, value in expected.items():
                        where = f"{name} {degrees} slot {slot['slot']} {key}: {got[key]}, not {value}"
                        assert (got[key] is None) == (value is None), where
                        if value is not None:
                            value = float(value)
                            assert abs(got[key] - value) <= TOLERANCE * max(1, abs(value)), where
                        compared += 1
    print(f"{compared} values compared")


if __name__ == "__main__":
    main()
