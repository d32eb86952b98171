#!/usr/bin/env python3
"""usage: start_bench.py BUILD [RUNS]

Measures on $DISPLAY what the applet takes to show its main window, beside a bare Motif window of
as many widgets, in turns; prints medians. Needs xtrace.
"""
import statistics
import subprocess

from measuring import Driver, Proxy, run_bench, wait_for

SHOW_DELAY_MS = 300  # zDialogFrame::showDelayMs
ROWS = [
    ("exec to mapped, ms", "{:.1f}"),
    ("processor time, ms", "{:.1f}"),
    ("resident, KiB", "{:.0f}"),
    ("X requests", "{:.0f}"),
    ("X replies waited for", "{:.0f}"),
]


def count_requests(name, command):
    """(requests, replies) from the start to the mapped window."""
    with Proxy(name) as proxy, proxy.start(*command):
        end = wait_for(f"the window of {name}", proxy.mapped)
        return proxy.counts(0, end)


def clock(build, command, delay):
    """[milliseconds to mapped, of the processor, KiB]"""
    line = subprocess.run([f"{build}/bench/start_clock", *command], check=True, capture_output=True,
                          text=True).stdout
    wall, processor, resident = map(float, line.split())
    return [wall - delay, processor, resident]


def measure(build, runs):
    with open("census", "w") as census:
        subprocess.run([f"{build}/bench/widget_census"], check=True, stdout=census)
    with open("census") as census:
        print(f"start of the main window, {len(census.readlines())} widgets, medians of {runs} runs")
    programs = {
        "applet": ([f"{build}/ondrelle-demo"], SHOW_DELAY_MS),
        "bare": ([f"{build}/bench/bare_window", "census"], 0),
    }
    runs_of = {name: [] for name in programs}
    for _ in range(runs):
        for name, (command, delay) in programs.items():
            runs_of[name].append(clock(build, command, delay))
    medians = {name: [statistics.median(column) for column in zip(*rows)] for name, rows in runs_of.items()}
    for name, (command, _) in programs.items():
        medians[name] += count_requests(name, command)
    print(f"  {'':24}{'applet':>10}{'bare':>10}{'ratio':>8}")
    for (title, form), applet, bare in zip(ROWS, medians["applet"], medians["bare"]):
        print(f"  {title:24}{form.format(applet):>10}{form.format(bare):>10}{applet / bare:8.2f}")


def measure_with_driver(build, runs):
    with Driver(build):
        measure(build, runs)


run_bench(__doc__, 15, measure_with_driver)
