# SPDX-License-Identifier: GPL-3.0-or-later
"""Runs scripts/check-layers on small made-up trees."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

SCRIPT = Path(__file__).resolve().parents[2] / "scripts" / "check-layers"
LICENCE = "SPDX-License-Identifier: GPL-3.0-or-later"

CLEAN = {
    "CMakeLists.txt": f"# {LICENCE}\n",
    "src/CMakeLists.txt": f"# {LICENCE}\nadd_subdirectory(base)\n",
    "src/base/flag.h": f"// {LICENCE}\n#include <QString>\n#include <cstdint>\n",
    "src/base/flag.cpp": f'// {LICENCE}\n#include "base/flag.h"\n#include "flag.moc"\n',
    "src/base/CMakeLists.txt": f"# {LICENCE}\nvexa_library(base SOURCES flag.cpp LINKS Qt6::Core)\n",
    "src/instrument/port.h": f"// {LICENCE}\n#include <QSerialPort>\n",
    "src/instrument/CMakeLists.txt": f"# {LICENCE}\nLINKS vexa_base Qt6::SerialPort)\n",
    "src/views/common/plot.h": f'// {LICENCE}\n#include <QWidget>\n#include "qcustomplot.h"\n'
    '#include "files/data.h"\n',
    "src/views/CMakeLists.txt": f"# {LICENCE}\nSOURCES common/plot.cpp\n"
    "LINKS vexa_files Qt6::Widgets Qt6::PrintSupport QCustomPlotQt6::QCustomPlotQt6)\n",
    "src/app/main.cpp": f'// {LICENCE}\n#include <QApplication>\n#include "views/common/plot.h"\n',
    "scripts/run": f"#!/bin/sh\n# {LICENCE}\n",
    "tests/files/data/two_lines.csv": "1\n2\n",
}

# name, file, its second line, the fault expected at that line
FAULTS = [
    ("upward include", "src/base/a.h", '#include "colour/b.h"', "base/ may not include colour/"),
    ("command line on views", "src/cli/a.cpp", '#include "views/b.h"', "cli/ may not include views/"),
    ("simulator on instrument", "src/simulator/a.cpp", '#include "instrument/b.h"',
     "simulator/ may not include instrument/"),
    ("program on simulator", "src/app/a.cpp", '#include "simulator/b.h"', "app/ may not include simulator/"),
    ("include with blanks", "src/base/a.h", ' #  include  "files/b.h"', "base/ may not include files/"),
    ("include by neighbour", "src/base/a.h", '#include "b.h"', '"b.h" names no folder'),
    ("include by path", "src/base/a.h", '#include "../app/b.h"', '"../app/b.h" is in no folder of src/'),
    ("tools on a window", "src/views/common/a.cpp", '#include "views/print/b.h"',
     "views/common/ may not include views/print/"),
    ("window on a report", "src/views/optics/a.cpp", '#include "views/print/b.h"',
     "views/optics/ may not include views/print/"),
    ("view without a folder", "src/views/graph/a.cpp", '#include "views/b.h"',
     '"views/b.h" is in no folder of views/'),
    ("widget in base", "src/base/a.h", "#include <QWidget>", "base/ may not use windows: QWidget"),
    ("module header in files", "src/files/a.h", "#include <QtGui/QColor>",
     "files/ may not use windows: QtGui/QColor"),
    ("plot in measurement", "src/measurement/a.h", '#include "qcustomplot.h"',
     "measurement/ may not use windows: qcustomplot.h"),
    ("serial port in cli", "src/cli/a.cpp", "#include <QSerialPortInfo>",
     "cli/ may not use the serial port: QSerialPortInfo"),
    ("database in views", "src/views/graph/a.cpp", "#include <QSqlQuery>", "views/ may not use databases: QSqlQuery"),
    ("database linked", "src/files/CMakeLists.txt", "LINKS Qt6::Sql)", "files/ may not link Qt6::Sql"),
    ("widgets linked", "src/files/CMakeLists.txt", "LINKS Qt6::Widgets)", "files/ may not link Qt6::Widgets"),
    ("serial port linked", "src/cli/CMakeLists.txt", "LINKS Qt6::SerialPort)",
     "cli/ may not link Qt6::SerialPort"),
    ("upper library linked", "src/base/CMakeLists.txt", "LINKS vexa_files)", "base/ may not link vexa_files"),
    ("file of a neighbour", "src/cli/CMakeLists.txt", "SOURCES ../base/flag.cpp",
     "cli/ may not build a file of another folder: ../base/flag.cpp"),
]


class CheckLayers(unittest.TestCase):
    def check(self, changes):
        """Exit status and fault lines for the clean tree with these files changed."""
        with tempfile.TemporaryDirectory(prefix="層 ") as root:
            for name, text in {**CLEAN, **changes}.items():
                path = Path(root, name)
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_text(text, encoding="utf-8")
            run = subprocess.run(
                [sys.executable, str(SCRIPT), root], capture_output=True, text=True, encoding="utf-8", check=False)
        self.assertEqual(run.stdout, "")
        return run.returncode, run.stderr.splitlines()

    def test_clean_tree_is_silent(self):
        self.assertEqual(self.check({}), (0, []))

    def test_each_fault_is_one_line(self):
        for name, file, line, message in FAULTS:
            with self.subTest(name):
                comment = "#" if file.endswith(".txt") else "//"
                text = f"{comment} {LICENCE}\n{line}\n"
                self.assertEqual(self.check({file: text}), (1, [f"{file}:2: {message}"]))

    def test_licence_line_is_asked_of_sources_and_scripts(self):
        for file in ("src/base/a.h", "tests/base/a.cpp", "cmake/a.cmake", "scripts/a", ".ci/run"):
            with self.subTest(file):
                self.assertEqual(self.check({file: "\n"}), (1, [f"{file}:1: the line {LICENCE} is missing"]))

    def test_source_outside_the_table(self):
        self.assertEqual(
            self.check({"src/tools/a.h": f"// {LICENCE}\n", "src/a.cpp": f"// {LICENCE}\n",
                        "src/views/lens/a.h": f"// {LICENCE}\n"}),
            (1, ["src/a.cpp:1: a source file belongs into a folder of src/",
                 "src/tools/a.h:1: tools/ is not in the table of folders",
                 "src/views/lens/a.h:1: views/lens is not in the table of folders"]))

    def test_a_tree_without_sources_is_wrong_usage(self):
        with tempfile.TemporaryDirectory() as root:
            run = subprocess.run([sys.executable, str(SCRIPT), root], capture_output=True, check=False)
        self.assertEqual(run.returncode, 2)


if __name__ == "__main__":
    unittest.main()
