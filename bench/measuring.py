"""What the measuring scripts share: the simulated driver, programs watched by xtrace, rows."""
import os
import re
import shutil
import subprocess
import sys
import tempfile
import time

SOURCE = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))


def need(tool, package):
    """Ends the script with one clear line when a tool is missing."""
    if not shutil.which(tool):
        sys.exit(f"Missing {tool}: install it with 'apt-get install {package}'.")


def run_bench(usage, count, measure, tools=None):
    """A script of a build folder and a count, which is this one if it is left out: measures on
    $DISPLAY, in a folder of its own. `tools` are what it needs, with their packages."""
    if len(sys.argv) not in (2, 3) or "DISPLAY" not in os.environ:
        sys.exit(usage)
    for tool, package in (tools or {"xtrace": "xtrace"}).items():
        need(tool, package)
    build = os.path.abspath(sys.argv[1])
    with tempfile.TemporaryDirectory() as scratch:
        os.chdir(scratch)
        measure(build, int(sys.argv[2]) if len(sys.argv) > 2 else count)
        os.chdir("/")


def wait_for(what, condition, seconds=20):
    """Returns the condition's first true value."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        value = condition()
        if value:
            return value
        time.sleep(0.02)
    sys.exit(f"{what} did not come about within {seconds} s")


class Process:
    """A program that ends with its `with` block."""

    def __init__(self, *command, **options):
        self.child = subprocess.Popen(command, **options)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.child.kill()
        self.child.wait()


class Driver(Process):
    """lisim on the sample host, in the working directory, with its trace in `lisim.trace`."""

    TRACE = "lisim.trace"

    def __init__(self, build):
        os.makedirs("etc/atm", exist_ok=True)
        shutil.copy(f"{SOURCE}/data/odconf.sample", "etc/atm/odconf")
        with open("lisim.log", "w") as log:
            super().__init__(f"{build}/lisim", "--device", "./li", "--trace", self.TRACE, "--scenario",
                             f"{SOURCE}/data/demo.scenario", stdout=log, stderr=log)
        wait_for("the simulated driver's start", lambda: "lisim: ready" in open("lisim.log").read())

    def requests(self):
        """The requests so far, each a dictionary of the trace line's words, in order."""
        lines = [line for line in open(self.TRACE) if "event=request" in line]
        # The words behind the arrow, which are the answer's, follow those of the same name.
        return [dict(re.findall(r"(\w+)=(\S+)", line)) for line in lines]


class Proxy(Process):
    """An X display that xtrace passes on to $DISPLAY, and the log of what goes through it."""

    def __init__(self, name):
        number = next(n for n in range(100, 1000) if not os.path.exists(f"/tmp/.X11-unix/X{n}"))
        self.display = f":{number}"
        self.log = f"{name}.xtrace"
        super().__init__("xtrace", "-n", "-k", "--monotonic-timestamps", "-D", self.display, "-d",
                         os.environ["DISPLAY"], "-o", self.log, stdout=subprocess.DEVNULL,
                         stderr=subprocess.DEVNULL)
        wait_for("xtrace's display", lambda: os.path.exists(f"/tmp/.X11-unix/X{number}"))

    def start(self, *command):
        return Process(*command, env=dict(os.environ, DISPLAY=self.display))

    def messages(self):
        """(time, text) of each line of the log; the time is that of time.monotonic()."""
        with open(self.log, errors="replace") as log:
            for line in log:
                found = re.match(r"(\d+\.\d+) (\d+:.*)", line)
                if found:
                    yield float(found[1]), found[2]

    def mapped(self):
        """When the server told the program that its main window is mapped, None before that."""
        named = set()  # the program's top-level windows, not all of which are ever mapped
        for when, text in self.messages():
            top = re.search(r'ChangeProperty.* window=(\S+) property=\S+\("WM_CLASS"\)', text)
            shown = re.search(r"MapNotify.* window=(\S+)", text)
            if top:
                named.add(top[1])
            elif shown and shown[1] in named:
                return when
        return None

    def counts(self, begin, end):
        """(requests, replies) from one time to another."""
        requests = replies = 0
        for when, text in self.messages():
            if begin <= when <= end:
                requests += re.match(r"\d+:<:[0-9a-f]+:", text) is not None
                replies += re.match(r"\d+:>:.*Reply", text) is not None
        return requests, replies
