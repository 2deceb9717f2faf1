#!/usr/bin/env python3
"""Runs every command that the documents and the tool's own help show. run_commands.py TOOL SOURCE

They run in a folder of their own, one after the other, with the sample skins and some pictures in it
under the names that the examples use. In a block of "console" the lines behind a command must be in
what it printed.
"""

import os
import pathlib
import re
import shutil
import struct
import subprocess
import sys
import tempfile

from blocks import all_blocks

# What other tests run, or what takes a person.
ELSEWHERE = {
    './run': 'Docs.TheCommandsOfTheFirstScreen',
    './test': 'what runs this',
    'cmake --preset': 'the builds themselves',
    'cmake --build': 'the builds themselves',
    'cmake --install': 'Build.AProjectOutsideTheTreeFindsTheLibrary',
    'sudo cmake --install': 'Build.AProjectOutsideTheTreeFindsTheLibrary',
    'pkg-config': 'Build.AProjectOutsideTheTreeFindsTheLibrary',
    'cpack': 'Build.PackagesAreAsDebianWantsThem',
    'sudo apt install': 'Build.PackagesAreAsDebianWantsThem',
    'vxgui view': 'the tests of the viewer',
    'tests/build/exports.py': 'Build.ExportsAreThoseOfTheLists',
}


def runs_elsewhere(command):
    return command.startswith(tuple(ELSEWHERE)) or '--dialog' in command


def bag(surface):
    """A property bag with a plain surface: a CBOR map of two entries."""
    def text(value):
        data = value.encode()
        return bytes([0x60 + len(data)]) if len(data) < 24 else bytes([0x78, len(data)])
    def entry(key, value):
        return text(key) + key.encode() + value
    return (b'\xa2' + entry('cAlphaDIBSection_compressed', b'\x00') +
            entry('cAlphaDIBSection', b'\x5a' + struct.pack('>I', len(surface)) + surface))


class Sandbox:
    def __init__(self, tool, source, folder):
        self.folder = pathlib.Path(folder)
        (self.folder / 'bin').mkdir()
        (self.folder / 'bin/vxgui').symlink_to(tool)
        self.environment = dict(os.environ, HOME=folder,
                                PATH=f"{self.folder / 'bin'}:{os.environ['PATH']}")
        shutil.copytree(source / 'skins', self.folder / 'skins')
        shutil.copytree(source / 'docs/guide', self.folder / 'docs/guide')
        aurora = self.folder / 'skins/aurora'
        for place in ('strips', 'icons', '.zfunc', '.local/share/bash-completion/completions'):
            (self.folder / place).mkdir(parents=True)
        for name in ('button', 'banner'):
            shutil.copy(aurora / f'{name}.tga', self.folder / 'strips')
        shutil.copy(aurora / 'button.tga', self.folder)
        for name in ('tab.png', 'panel.png'):
            shutil.copy(aurora / name, self.folder / 'icons')
        shutil.copy(aurora / 'arrow-mark.png', self.folder / 'bin.png')
        for name in ('photo', 'face'):
            shutil.copy(source / 'tests/data/images/large-progressive.jpg', self.folder / f'{name}.jpg')
        shutil.copy(pathlib.Path(os.path.realpath(tool)).parents[1] / 'share/vxgui/DefaultStyles.dll',
                    self.folder)
        for command in ('vxgui convert button.tga -o button.png',
                        'vxgui convert button.tga -o button.adib',
                        'vxgui unpack DefaultStyles.dll -o styles'):
            self.must(command)
        (self.folder / 'button.bag').write_bytes(bag((self.folder / 'button.adib').read_bytes()))

    def run(self, command):
        return subprocess.run(['bash', '-c', command], cwd=self.folder, env=self.environment,
                              text=True, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT, timeout=300, check=False)

    def must(self, command):
        done = self.run(command)
        if done.returncode:
            raise SystemExit(f'{command}: {done.stdout}')
        return done.stdout


def without_remark(line):
    return re.sub(r'\s+#.*$', '', line).strip()


def commands_of(block):
    """(command, lines that it must print) of a block."""
    console = block.language == 'console'
    commands, joined = [], ''
    for line in block.text.splitlines():
        if console and not line.startswith('$ ') and not joined:
            if commands:
                commands[-1][1].append(line)
            continue
        joined += without_remark(line[2:] if line.startswith('$ ') else line)
        if joined.endswith('\\'):
            joined = joined[:-1]
            continue
        if joined:
            commands.append((joined, []))
        joined = ''
    return commands


def shown_by_documents(source):
    for block in all_blocks(source, ('sh', 'console', 'bash')):
        for command, lines in commands_of(block):
            yield str(block), command, lines


def shown_by_help(sandbox):
    """Each subcommand has an example at least, which begins a line of its help."""
    names = re.findall(r'^  (\w+)  +', sandbox.must('vxgui --help').split('Subcommands:')[1], re.M)
    if len(names) < 10:
        raise SystemExit('vxgui --help lists hardly any subcommand')
    for name in ['', *names]:
        text = sandbox.must(f'vxgui {name} --help')
        examples = re.findall(r'^  (vxgui .*)$', text, re.M)
        if not [line for line in examples if line.startswith(f'vxgui {name}')]:
            raise SystemExit(f'vxgui {name} --help shows no example')
        for example in examples:
            yield f'vxgui {name} --help', without_remark(example), []


def main(tool, source):
    source, failed, ran, missing = pathlib.Path(source).resolve(), 0, 0, set()
    with tempfile.TemporaryDirectory() as folder:
        sandbox = Sandbox(pathlib.Path(tool).resolve(), source, folder)
        for where, command, lines in [*shown_by_documents(source), *shown_by_help(sandbox)]:
            if runs_elsewhere(command):
                continue
            if not command.startswith('vxgui '):
                print(f'{where}: nothing runs "{command}"')
                failed += 1
                continue
            done = sandbox.run(command)
            ran += 1
            missing = [line for line in lines if line not in done.stdout]
            # A console block may show an error.
            if (done.returncode and not lines) or missing:
                failed += 1
                print(f'{where}: {command}\n{done.stdout}')
                print(''.join(f'not printed: {line}\n' for line in missing), end='')
    print(f'{ran} commands were run, {failed} did not do what the documents say.')
    return 1 if failed else 0


if __name__ == '__main__':
    sys.exit(main(*sys.argv[1:]))
