#!/usr/bin/env python3
"""Holds what the shared libraries export against the committed lists.

exports.py LIST=LIBRARY ...            compares, and shows what came and what went
exports.py --update LIST=LIBRARY ...   writes the lists anew

A name that goes, or that changes its arguments, breaks programs that were linked before: then the
version in SONAME has to change. Weak names are left out, since inline functions and templates come
and go with the optimiser; tables of virtual functions stay in.
"""

import difflib
import re
import subprocess
import sys

VIRTUAL_TABLES = re.compile(r'^(vtable|typeinfo|typeinfo name|VTT) for vxgui::')


def exports(library):
    lines = subprocess.run(['nm', '-D', '--defined-only', '--demangle', library], check=True,
                           capture_output=True, text=True).stdout.splitlines()
    names = set()
    for line in lines:
        _, kind, name = line.split(' ', 2)
        if kind in 'TDBRu' or VIRTUAL_TABLES.match(name):
            names.add(name)
    return sorted(names)


def soname(library):
    text = subprocess.run(['objdump', '-p', library], check=True, capture_output=True,
                          text=True).stdout
    return re.search(r'SONAME\s+(\S+)', text).group(1)


def contents(library):
    return [soname(library)] + exports(library)


def compare(path, library):
    with open(path, encoding='utf-8') as file:
        expected = file.read().splitlines()
    found = contents(library)
    changes = [line for line in difflib.unified_diff(expected, found, n=0, lineterm='')
               if line[0] in '+-' and line[:3] not in ('+++', '---')]
    if changes:
        print(f'{library} exports other names than {path} lists:')
        print('\n'.join(changes[:60]))
    return not changes


def main(arguments):
    update = arguments[:1] == ['--update']
    same = True
    for argument in arguments[update:]:
        path, library = argument.split('=', 1)
        if update:
            with open(path, 'w', encoding='utf-8') as file:
                file.write('\n'.join(contents(library)) + '\n')
        else:
            same = compare(path, library) and same
    if not same:
        print('Where this is meant: cmake --build BUILD --target update_exports')
    return 0 if same else 1


if __name__ == '__main__':
    sys.exit(main(sys.argv[1:]))
