# SPDX-License-Identifier: GPL-3.0-or-later
"""A display of its own, and what a window costs on it.  Needs xvfb and xdotool."""
import contextlib
import os
import pathlib
import subprocess
import sys
import time


@contextlib.contextmanager
def display():
    """The environment of a fresh X server without a window manager."""
    # Without -noreset the server starts over, deaf for a moment, when its last window goes.
    server = subprocess.Popen(["Xvfb", "-displayfd", "1", "-noreset", "-screen", "0", "1920x1200x24"],
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
    try:
        number = server.stdout.readline().strip()
        yield dict(os.environ, DISPLAY=f":{number}", QT_QPA_PLATFORM="xcb")
    finally:
        server.terminate()
        server.wait()


def wait_for_window(env, title):
    """Returns once a visible window bears the title (a regular expression)."""
    search = ["xdotool", "search", "--onlyvisible", "--name", title]
    for _ in range(5000):
        if subprocess.run(search, env=env, stdout=subprocess.DEVNULL,
                          stderr=subprocess.DEVNULL).returncode == 0:
            return
        time.sleep(0.002)
    sys.exit(f"no window named {title} appeared")


def start(command, title, env, directory):
    """The process and the seconds until its window was shown."""
    began = time.monotonic()
    process = subprocess.Popen(command, cwd=directory, env=env, stdin=subprocess.DEVNULL,
                               stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    wait_for_window(env, title)
    return process, time.monotonic() - began


def stop(*processes):
    for process in processes:
        process.kill()
        process.wait()


def start_seconds(command, title, env, directory, starts):
    """Seconds to the shown window, sorted; the first, cold start is left out."""
    seconds = []
    for _ in range(starts):
        process, needed = start(command, title, env, directory)
        seconds.append(needed)
        stop(process)
    return sorted(seconds[1:])


def cpu_seconds(pid):
    fields = pathlib.Path(f"/proc/{pid}/stat").read_text().rsplit(")", 1)[1].split()
    return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


def share_of_core(process, seconds):
    """Percent of one core that the process takes over the next seconds."""
    before = cpu_seconds(process.pid)
    time.sleep(seconds)
    return 100 * (cpu_seconds(process.pid) - before) / seconds


def memory_mib(process):
    """Memory of its own: private pages, clean or dirty, in MiB."""
    lines = pathlib.Path(f"/proc/{process.pid}/smaps_rollup").read_text().splitlines()
    return sum(int(line.split()[1]) for line in lines if line.startswith("Private_")) / 1024
