"""The files of a commit: what they hold before it, and whether they may hold what is found."""
import contextlib
import difflib
import os
import pathlib
import re

ROOT = pathlib.Path(__file__).resolve().parents[2]
CONFIG = 'atm/odconf'
PVC = '[PVC\n\tVC    =33\n\tAddr  ={}\n\tEncap =1\n\tBcast =0\n\tRate  =0\n]\n'
BRIDGED, ROUTED = PVC.format('001122334455'), PVC.format('10.1.2.3')
LISTS = {'atm/pvcconf0.0': BRIDGED * 3, 'atm/pvcconf0.1': BRIDGED, 'atm/pvcconf0.32': ROUTED,
         'atm/elan0.0': '00a03e000001/00\n', 'atm/pvcconf1.0': BRIDGED, 'another': 'kept\n'}
# The sections of a commit, in its order.
SECTIONS = ['/Ondrelle0', '/Adapter0'] + [
    f'/Adapter0/{name}' for name in
    ['RedundantLink0', 'Signalling0', 'Signalling0/Q2931Section0', 'Signalling0/IlmiSection0',
     *(f'LEC{i}' for i in range(16)), *(f'LES{i}' for i in range(16)), 'LECS0', 'IP15770']]


def full_config():
    """The sample with all services in adapter 0, but for one of each parent, which are created."""
    text = (ROOT / 'data/odconf.sample').read_text()
    start = text.index('[Adapter0')
    end = text.index('\n]\n', start) + 1
    adapter = text[start:end]

    def section(name):
        return re.search(rf'^(\t+)\[{name}\n(?s:.*?)^\1\]\n', adapter, re.M).group()

    for kind, last in (('LEC', 2), ('LES', 1)):
        model = section(f'{kind}{last}')
        copies = (model.replace(f'{kind}{last}', f'{kind}{i}') for i in range(last + 1, 16))
        adapter = adapter.replace(model, model + ''.join(copies))
    for gone in ('LEC7', 'IlmiSection0'):
        adapter = adapter.replace(section(gone), '')
    for name, suffix in (('LEC0', 0), ('LEC1', 1), ('IP15770', 32)):
        unnamed = section(name)
        named = unnamed.replace('PvcConfFile \t\t=',
                                f'PvcConfFile \t\t= ./etc/atm/pvcconf0.{suffix}')
        adapter = adapter.replace(unnamed, named)
    return text[:start] + adapter + text[end:]


def lay_out(folder):
    """Makes etc below the folder; its configuration has attributes of its own."""
    (folder / 'etc/atm').mkdir(parents=True)
    for name, text in {CONFIG: full_config(), **LISTS}.items():
        (folder / 'etc' / name).write_text(text)
    config = folder / 'etc' / CONFIG
    config.chmod(0o640)
    with contextlib.suppress(OSError):  # for an ordinary user
        os.chown(config, 12, 34)


def snapshot(folder):
    """What the files hold, but for the time of the commit, and the configuration's attributes."""
    base = folder / 'etc'
    files = {str(path.relative_to(base)): path.read_text()
             for path in base.rglob('*') if path.is_file()}
    files[CONFIG] = re.sub(r'(ODFileUpdated\s*=).*', r'\1', files[CONFIG])
    status = (base / CONFIG).stat()
    return files, (status.st_mode, status.st_uid, status.st_gid)


def sections_of(text):
    """The text as a dictionary in its order: the runs of lines of a section, by path and number."""
    runs, path, last = {}, [], None
    for line in text.splitlines(keepends=True):
        code = line.split('#')[0].strip()
        if code.startswith('['):
            path.append(code[1:].split(' ')[0])
        here = ''.join(f'/{name}' for name in path)
        if here != last:
            key = here, sum(1 for known in runs if known[0] == here)
            runs[key] = ''
        last = here
        runs[key] += line
        if code == ']':
            del path[-1:]
    return runs


def diff(expected, found):
    return ''.join(difflib.unified_diff(expected.splitlines(True), found.splitlines(True),
                                        'expected', 'found'))


class Judge:
    """Knows the files before and after an undisturbed commit, by their snapshots."""

    def __init__(self, before, after):
        (self.old, self.attributes), (self.new, _) = before, after
        self.old_runs, self.new_runs = sections_of(self.old[CONFIG]), sections_of(self.new[CONFIG])
        changed = {path for path, number in self.new_runs
                   if self.old_runs.get((path, number)) != self.new_runs[path, number]}
        if changed != set(SECTIONS) or not set(self.old_runs) <= set(self.new_runs):
            raise ValueError(f'to be changed or not: {changed ^ set(SECTIONS)}')
        self.lists = [name for name in sorted({*self.old, *self.new} - {CONFIG})
                      if self.old.get(name) != self.new.get(name)]

    def stale(self, files):
        """The sections that are not the new ones."""
        runs = sections_of(files[CONFIG])
        return [path for path in SECTIONS
                if any(runs.get(key) != text for key, text in self.new_runs.items()
                       if key[0] == path)]

    def stale_lists(self, files):
        return [name for name in self.lists if files.get(name) != self.new.get(name)]

    def state(self, files):
        stale = len(self.stale(files)) + len(self.stale_lists(files))
        return {0: 'new', len(SECTIONS) + len(self.lists): 'old'}.get(stale, 'partly')

    def troubles(self, found, whole_records=True):
        """What is wrong with the files after a fault."""
        files, attributes = found
        stale = self.stale(files)
        expected = ''.join(self.old_runs.get(key, '') if key[0] in stale else text
                           for key, text in self.new_runs.items())
        if expected != files[CONFIG]:
            yield 'neither old nor new:\n' + diff(expected, files[CONFIG])
        if attributes != self.attributes:
            yield f'mode and owner are {attributes}, not {self.attributes}'
        for name in self.stale_lists(files):
            if not self._may_hold(name, files.get(name), whole_records):
                yield f'{name} holds:\n{files.get(name)}'
        for name in {*self.old, *files} - {CONFIG, *self.lists}:
            if files.get(name) != self.old.get(name):
                yield f'{name} is hurt'

    def _may_hold(self, name, text, whole_records):
        new = self.new.get(name)
        if new is None or text == self.old.get(name):
            return text == self.old.get(name)
        records = re.findall(r'\[PVC(?s:.*?)\]\n|.+\n', new) if whole_records else new
        return text in {''.join(records[:count]) for count in range(len(records) + 1)}

    def unlike_new(self, found, leftover):
        """What is wrong with the files after the next commit."""
        files, expected = found[0], {**self.new, **leftover}
        wrong = [name for name in sorted({*files, *expected})
                 if files.get(name) != expected.get(name)]
        if wrong or found[1] != self.attributes:
            yield f'after the next commit {wrong} differ:\n' + diff(expected[CONFIG], files[CONFIG])
