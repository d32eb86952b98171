#!/usr/bin/env python3
"""usage: stats_load_bench.py BUILD [MINUTES]

Measures on $DISPLAY what Statistics notebooks that refresh four times a second cost: processor
time beside a terminal in which top does the same, how often they wake up, their memory over so many
minutes, and the instructions of a tick by the rows of its table.
Needs strace, valgrind, xterm and procps.
"""
import contextlib
import glob
import os
import re
import signal
import socket
import statistics
import struct
import subprocess
import time

from measuring import Process, run_bench, wait_for

PERIOD = 250  # milliseconds
ROWS = 900
SIGNALLING, LEC = "575", "577"  # templates
TURNS = 6
TURN_SECONDS = 5
WATCHED_SECONDS = 10
TICKS = 20
MIB = 1024 * 1024


def notebooks(build, count, page, rows, counters, *ticks):
    return [f"{build}/bench/stats_notebooks", str(count), page, str(rows), counters, str(PERIOD), *ticks]


@contextlib.contextmanager
def started(*command):
    """Notebooks that are up."""
    with Process(*command, stdout=subprocess.PIPE) as program:
        if program.child.stdout.readline() != b"ready\n":
            raise SystemExit("the notebooks did not come up")
        yield program.child.pid


def processor_seconds(pid):
    """Of all of its threads."""
    spent = 0
    for thread in glob.glob(f"/proc/{pid}/task/*/schedstat"):
        with open(thread) as times:
            spent += int(times.read().split()[0])
    return spent / 1e9


def children(pid):
    with open(f"/proc/{pid}/task/{pid}/children") as pids:
        return [int(child) for child in pids.read().split()]


def server():
    """The process of the X server."""
    number = re.search(r":(\d+)", os.environ["DISPLAY"])[1]
    with socket.socket(socket.AF_UNIX) as connection:
        connection.connect(f"/tmp/.X11-unix/X{number}")
        return struct.unpack("3i", connection.getsockopt(socket.SOL_SOCKET, socket.SO_PEERCRED, 12))[0]


# Load. A program's turn is while the other ones are stopped.

def turn(pids, x_server):
    """(processor, X server) in milliseconds a second."""
    for pid in pids:
        os.kill(pid, signal.SIGCONT)
    time.sleep(1)
    before, begin = [sum(map(processor_seconds, group)) for group in (pids, [x_server])], time.monotonic()
    time.sleep(TURN_SECONDS)
    after, seconds = [sum(map(processor_seconds, group)) for group in (pids, [x_server])], time.monotonic() - begin
    for pid in pids:
        os.kill(pid, signal.SIGSTOP)
    return [1000 * (last - first) / seconds for first, last in zip(before, after)]


def measure_load(build):
    """top is the one to compare with: it shows a table of counters as text, too, and is the
    widespread one that refreshes at any rate that it is told. The terminal draws for it."""
    monitor = ["xterm", "-e", "top", "-d", str(PERIOD / 1000)]
    with started(*notebooks(build, 1, LEC, ROWS, "moving")) as notebook, Process(*monitor) as xterm:
        top = wait_for("top", lambda: children(xterm.child.pid))
        groups = {"notebook": [notebook], "xterm + top": [xterm.child.pid, *top]}
        for pids in groups.values():
            for pid in pids:
                os.kill(pid, signal.SIGSTOP)
        turns = {name: [] for name in groups}
        for _ in range(TURNS):
            for name, pids in groups.items():
                turns[name].append(turn(pids, server()))
    print(f"a client's {ROWS} connections, all counters moving, every {PERIOD} ms, beside top:"
          f" medians of {TURNS} turns")
    medians = [[statistics.median(column) for column in zip(*rows)] for rows in turns.values()]
    print(f"  {'':32}{'notebook':>12}{'xterm + top':>14}{'ratio':>8}")
    for title, ours, theirs in zip(["processor, ms a second", "X server, ms a second"], *medians):
        print(f"  {title:32}{ours:12.2f}{theirs:14.2f}{ours / theirs:8.2f}")


# Wakeups.

def waits_a_second(log):
    """Of the main loop. It looks whether there are events without waiting, too, and waits for the
    driver have a limit of seconds."""
    polls = re.findall(r"(\d+\.\d+) poll\(\[.*\], \d+, (-?\d+)\) +=", log)
    times = [float(when) for when, limit in polls if limit == "-1" or 0 < int(limit) <= PERIOD]
    return (len(times) - 1) / (times[-1] - times[0])


def measure_wakeups(build):
    print("wakeups of the main loop a second, nothing changed, as strace tells; timers due at once share one")
    for count, page, name in [(1, SIGNALLING, "signalling"), (1, LEC, "LEC"), (3, LEC, "LEC")]:
        with started(*notebooks(build, count, page, ROWS, "still")) as pid:
            time.sleep(2)
            watcher = subprocess.Popen(["strace", "-qq", "-ttt", "-e", "trace=poll", "-o", "polls", "-p", str(pid)])
            time.sleep(WATCHED_SECONDS)
            watcher.terminate()
            watcher.wait()
        with open("polls") as log:
            woken = waits_a_second(log.read())
        print(f"  {f'{count} on the {name} page':32}{woken:12.1f}   timers due {count * 1000 / PERIOD:.1f}")


# Memory.

def resident(pid):
    with open(f"/proc/{pid}/statm") as pages:
        return int(pages.read().split()[1]) * os.sysconf("SC_PAGE_SIZE") / MIB


def measure_memory(build, minutes):
    print(f"resident memory of 3 notebooks on the LEC page, {ROWS} connections, all counters moving, MiB")
    marks = [10, 60] + ([60 * minutes] if minutes > 1 else [])
    with started(*notebooks(build, 3, LEC, ROWS, "moving")) as pid:
        begin = time.monotonic()
        for mark in marks:
            time.sleep(begin + mark - time.monotonic())
            print(f"  {f'after {mark} s':32}{resident(pid):12.2f}", flush=True)


# Instructions.

def instructions_of_a_tick(build, rows, counters):
    tool = ["valgrind", "--tool=callgrind", "--toggle-collect=statsTick", "--callgrind-out-file=/dev/null"]
    said = subprocess.run(tool + notebooks(build, 1, LEC, rows, counters, str(TICKS)), check=True,
                          capture_output=True, text=True).stderr
    return int(re.findall(r"Collected : (\d+)", said)[-1]) / TICKS


def measure_instructions(build):
    sizes = [10, 100, ROWS]
    print("instructions of a tick on the LEC page, and what a row more takes")
    for counters in ("still", "moving"):
        ticks = [instructions_of_a_tick(build, rows, counters) for rows in sizes]
        rises = [0] + [(more - less) / (to - start) for less, more, start, to in zip(ticks, ticks[1:], sizes, sizes[1:])]
        for rows, tick, rise in zip(sizes, ticks, rises):
            added = f"   {rise:8.0f} a row" if rise else ""
            print(f"  {f'{rows} rows, {counters}':32}{tick:12.0f}{added}")
        print(f"  {'linear would be 1':32}{rises[2] / rises[1]:12.2f}")


def measure(build, minutes):
    os.environ["TMPDIR"] = os.getcwd()  # what a killed program leaves goes with it
    measure_load(build)
    measure_wakeups(build)
    measure_instructions(build)
    measure_memory(build, minutes)


run_bench(__doc__, 1, measure, {"strace": "strace", "valgrind": "valgrind", "xterm": "xterm", "top": "procps"})
