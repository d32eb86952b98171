#!/usr/bin/env python3
"""usage: fault_sweep.py PROBE [--every N]

Runs a full commit of an adapter again and again: each of its system calls on files is killed, and
failed with each of some errors, by strace; every N-th of these faults is tried. Then commits on
disks that are full or can't be written. After each fault every section must be the old or the new
one, and the next commit must make up for it. Ends with 77 where nothing can be traced.
"""
import argparse
import collections
import concurrent.futures
import contextlib
import functools
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import typing

from committed_files import SECTIONS, Judge, lay_out, snapshot

SCRATCH = '/dev/shm' if os.access('/dev/shm', os.W_OK) else None
SKIPPED = 77
# The quick way of tracing is deaf to the injection of signals.
QUICK = ['--seccomp-bpf']
FAULTS = {'KILL': ('signal=KILL', []), 'ENOSPC': ('error=ENOSPC', QUICK),
          'EIO': ('error=EIO', QUICK), 'EINTR': ('error=EINTR', QUICK)}
VITAL = ['write', 'fchown', 'fchmod', 'fsync', 'close']  # on the temporary file
PAGE, DISK_PAGES = 4096, 256


class Probe:
    """The committing program in a folder, started by the words given."""

    def __init__(self, program, folder, *starter):
        self.process = subprocess.Popen([*starter, program], cwd=folder, text=True,
                                        stdin=subprocess.PIPE, stdout=subprocess.PIPE)

    def commit(self):
        """Returns what the program says meanwhile, or None if it dies."""
        self.process.stdin.write('\n')
        self.process.stdin.flush()
        said = ''
        for line in self.process.stdout:
            if line == 'committed\n':
                return said
            said += line
        return None

    def end(self):
        self.process.communicate()


def strace(log, *words):
    return ['strace', '-f', '-o', log, *words]


class Call(typing.NamedTuple):
    name: str
    ordinal: int  # among those of its name, from the start of the process
    first: str    # its first argument
    vital: bool   # the new file can't be trusted if it fails


def calls_in(log):
    """Name, first argument and rest of each call in a log of strace."""
    lines = re.findall(r'^\d+ +(\w+)\(([^,)]*)(.*)$', log.read_text(), re.M)
    return [(name, re.sub('atmOD.*', 'atmOD', first), rest) for name, first, rest in lines]


def calls_of_a_commit(log):
    """The calls between the marks."""
    counts, calls, inside, temporary = collections.Counter(), [], False, None
    for name, first, rest in calls_in(log):
        counts[name] += 1
        if 'commit-' in first:
            inside = 'starts' in first
        elif inside:
            calls.append(Call(name, counts[name], first, first == temporary and name in VITAL))
        if name == 'openat' and 'atmOD' in rest:
            temporary = rest.split()[-1]
        if name == 'rename':
            temporary = None
            if [call.name for call in calls[-3:]] != ['fsync', 'close', 'rename']:
                sys.exit('VIOLATION: a file is renamed that is not known to be on disk')
    return calls


def was_hit(log, call):
    calls = calls_in(log)
    if len(calls) < call.ordinal:
        return False
    name, first, rest = calls[call.ordinal - 1]
    return (name, first) == (call.name, call.first) and rest.endswith(('(INJECTED)', '= ?'))


@contextlib.contextmanager
def scratch_folder():
    with tempfile.TemporaryDirectory(dir=SCRATCH) as name:
        folder = pathlib.Path(name)
        lay_out(folder)
        yield folder, folder / 'log'


def reference(program):
    """The judge, and the calls of an undisturbed commit."""
    with scratch_folder() as (folder, log):
        before = snapshot(folder)
        probe = Probe(program, folder, *strace(log, '-e', 'trace=%file,%desc'))
        probe.commit()
        probe.end()
        return Judge(before, snapshot(folder)), calls_of_a_commit(log)


def order_troubles(judge, files, call, fault, said):
    """A kill leaves all from one section on; an error leaves one, or a list, and is told."""
    stale, lists = judge.stale(files), judge.stale_lists(files)
    if fault == 'KILL':
        if stale != SECTIONS[len(SECTIONS) - len(stale):]:
            yield f'out of order: {stale} are old'
        return
    if len(stale) > 1 or len(lists) > 1:
        yield f'{stale} and {lists} are not new'
    if stale and not said and call.name != 'lseek':
        yield f'{stale} is silently not new'
    if call.vital and not stale:
        yield 'all is new, though this call failed'


def try_fault(program, judge, job):
    """Returns how the fault left the files, null if it hit nothing, and what is wrong."""
    call, fault = job
    how, tracing = FAULTS[fault]
    with scratch_folder() as (folder, log):
        inject = f'inject={call.name}:{how}:when={call.ordinal}'
        chosen = ['-e', f'trace={call.name}', '-e', inject]
        probe = Probe(program, folder, *strace(log, *tracing, *chosen))
        said = probe.commit()
        files, attributes = snapshot(folder)
        leftover = {}
        if fault == 'KILL':
            probe.end()
            name = f'atmOD{int(log.read_text().split()[0]):x}'
            leftover = {name: files.pop(name)} if name in files else {}
            probe = Probe(program, folder)
        probe.commit()
        probe.end()
        wrong = [*judge.troubles((files, attributes)),
                 *order_troubles(judge, files, call, fault, said),
                 *judge.unlike_new(snapshot(folder), leftover)]
        return judge.state(files) if was_hit(log, call) else None, wrong


def sweep(program, every):
    judge, calls = reference(program)
    names = collections.Counter(call.name for call in calls)
    print(len(calls), 'calls:', ', '.join(f'{names[name]} {name}' for name in sorted(names)))
    jobs = [(call, fault) for call in calls for fault in FAULTS][::every]
    totals = {fault: collections.Counter() for fault in FAULTS}
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        tries = pool.map(functools.partial(try_fault, program, judge), jobs)
        for (call, fault), (state, wrong) in zip(jobs, tries):
            if state is None:
                wrong.append('the fault hit nothing')
            if wrong:
                print(f'VIOLATION: {fault} at {call}', *wrong, sep='\n  ')
            totals[fault].update({'runs': 1, 'injected': state is not None, state: 1,
                                  'violations': bool(wrong)})
    columns = ['runs', 'injected', 'old', 'partly', 'new', 'violations']
    for row in [['fault', *columns]] + [[fault, *(totals[fault][column] for column in columns)]
                                        for fault in FAULTS]:
        print(''.join(f'{cell:>11}' for cell in row))
    return all(row['violations'] == 0 for row in totals.values())


def mount(folder, options):
    subprocess.run(['mount', '-t', 'tmpfs', '-o', options, 'tmpfs', folder], check=True)


def try_disk(program, judge, spare):
    """A commit on a disk with so many pages to spare; null for one that can't be written."""
    with tempfile.TemporaryDirectory() as scratch:
        mount(scratch, f'size={DISK_PAGES * PAGE}')
        folder = pathlib.Path(scratch)
        lay_out(folder)
        used = DISK_PAGES - os.statvfs(folder).f_bfree
        mount(scratch, 'remount,ro' if spare is None else f'remount,size={(used + spare) * PAGE}')
        probe = Probe(program, folder)
        said = probe.commit()
        found = snapshot(folder)
        mount(scratch, f'remount,rw,size={DISK_PAGES * PAGE}')
        probe.commit()
        probe.end()
        wrong = [*judge.troubles(found, whole_records=False),
                 *judge.unlike_new(snapshot(folder), {})]
        subprocess.run(['umount', scratch], check=True)
    if judge.stale(found[0]) and not said:
        wrong.append('silently not new')
    where = 'read-only disk' if spare is None else f'disk with {spare} pages to spare'
    print(f'{where}: {judge.state(found[0])}', *wrong, sep='\n  VIOLATION: ')
    return not wrong


def sweep_disks(program):
    judge, _ = reference(program)
    return all([try_disk(program, judge, spare) for spare in [None, *range(9)]])


def sweep_disks_apart(program):
    """sweep_disks where this user may mount something."""
    apart = ['unshare', '--user', '--map-root-user', '--mount']
    trial = subprocess.run([*apart, 'mount', '-t', 'tmpfs', 'tmpfs', '/tmp'], capture_output=True)
    if trial.returncode != 0:
        print('Nothing can be mounted here: no full disk is tried.')
        return True
    return subprocess.run([*apart, __file__, program, '--disks']).returncode == 0


def main():
    parser = argparse.ArgumentParser(usage=__doc__[7:])
    parser.add_argument('probe', type=os.path.abspath)
    parser.add_argument('--every', type=int, default=1, metavar='N')
    parser.add_argument('--disks', action='store_true', help='only those; as one who may mount')
    options = parser.parse_args()
    if options.disks:
        sys.exit(0 if sweep_disks(options.probe) else 1)
    if shutil.which('strace') is None:
        sys.exit('Missing strace: tools/setup check installs it.')
    trial = strace('/dev/null', *QUICK, '-e', 'trace=%file', '/bin/true')
    if subprocess.run(trial, stdout=subprocess.DEVNULL).returncode != 0:
        print('SKIPPED: strace may not trace here, so no fault is tried.')
        sys.exit(SKIPPED)
    sys.stdout.reconfigure(line_buffering=True)
    good = sweep(options.probe, options.every)
    sys.exit(0 if sweep_disks_apart(options.probe) and good else 1)


if __name__ == '__main__':
    main()
