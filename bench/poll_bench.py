#!/usr/bin/env python3
"""usage: poll_bench.py BUILD [POLLS]

Counts on $DISPLAY what polls cost in which nothing has changed: requests to the driver, and X
requests, beside those of other monitors in the same seconds. Needs xtrace and x11-apps.
"""
import os
import shutil
import sys
import time

from measuring import Driver, Proxy, run_bench, wait_for

PERIOD = 6  # seconds of the main timer
# Primitive and type.
BOARD_ADDRESS = ("129", "2")
LINK_STATUS = ("129", "16")
PEERS = [("xload", "-update", "1"), ("xclock", "-update", "1")]


def answered(requests, query):
    """The requests of this primitive and type that the driver has answered."""
    return [r for r in requests if (r["prim"], r["type"]) == query and r["resp"] == "0"]


def polled(requests):
    return len(answered(requests, LINK_STATUS))


def watch(driver, proxies, polls):
    """Driver requests and each proxy's X requests in the seconds of so many polls."""
    so_far = polled(driver.requests())
    wait_for("a poll", lambda: polled(driver.requests()) > so_far, 3 * PERIOD)
    time.sleep(PERIOD / 2)
    before, begin = len(driver.requests()), time.monotonic()
    for poll in range(polls):
        time.sleep(begin + (poll + 1) * PERIOD - time.monotonic())
        print(f"  poll {poll + 1} of {polls}", file=sys.stderr, flush=True)
    end = time.monotonic()
    return len(driver.requests()) - before, [p.counts(begin, end)[0] for p in proxies]


def measure(build, polls):
    peers = [peer for peer in PEERS if shutil.which(peer[0])]
    programs = [(f"{build}/ondrelle-demo",)] + peers
    proxies = []
    children = []
    with Driver(build) as driver:
        try:
            for program in programs:
                proxies.append(Proxy(os.path.basename(program[0])))
                children.append(proxies[-1].start(*program))
                wait_for(f"the window of {program[0]}", proxies[-1].mapped)
            requests, x_requests = watch(driver, proxies, polls)
            present = len(answered(driver.requests(), BOARD_ADDRESS))
        finally:
            for process in children + proxies:
                process.__exit__()
    seconds = polls * PERIOD
    print(f"{polls} polls without a change, {seconds} s")
    print(f"  driver requests a poll   {requests / polls:8.1f}   boards present {present}")
    for program, count in zip(programs, x_requests):
        name = " ".join((os.path.basename(program[0]),) + program[1:])
        print(f"  X requests of {name:20}{count:8}   {count / seconds:.1f} a second")
    for peer in PEERS:
        if peer not in peers:
            print(f"  Missing {peer[0]}: install it with 'apt-get install x11-apps'.")


run_bench(__doc__, 10, measure)
