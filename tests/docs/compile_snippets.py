#!/usr/bin/env python3
"""Compiles every block of C++, C and Python in the documents. compile_snippets.py SOURCE [CXX]

A block with its own main or functions stands as it is; of any other one the lines that belong to a
file (includes, usings) come first and the rest becomes a function. Blocks that are marked as lines of a
host in examples/ are compiled there, and tests/examples holds them against it.
"""

import os
import pathlib
import subprocess
import sys
import tempfile

from blocks import all_blocks

PRELUDE = {
    'cpp': '#include <cstdint>\n#include <cstdio>\n#include <string>\n#include <vector>\n'
           '#include "vxgui/vxgui.h"\nusing namespace vxgui;\n',
    'c': '#include <stdint.h>\n#include <stdio.h>\n#include <stdlib.h>\n'
         '#include "vxgui/vxgui_c.h"\n',
}
OF_A_FILE = ('#', 'using namespace ', 'namespace ', 'template', 'class ', 'struct ')


def stands_alone(text):
    return any(line.rstrip().endswith('{') and not line.startswith((' ', '\t', '}'))
               and line.split('(')[0].strip() not in ('if ', 'if', 'for', 'while', 'switch', 'do', 'try')
               and not line.startswith(('if', 'for', 'while', 'switch', 'do ', 'try'))
               for line in text.splitlines())


def as_file(block):
    head = PRELUDE[block.language]
    line = f'#line {block.line} "{block.path}"\n'
    if stands_alone(block.text):
        return head + line + block.text + '\n'
    top = [text for text in block.text.splitlines() if text.startswith(OF_A_FILE)]
    body = ['' if text.startswith(OF_A_FILE) else text for text in block.text.splitlines()]
    return head + '\n'.join(top) + '\nvoid Snippet(void);\nvoid Snippet(void) {\n' + line + \
        '\n'.join(body) + '\n}\n'


def compiles(block, compiler, source, folder):
    if block.language == 'python':
        try:
            compile(block.text, str(block), 'exec')
            return True
        except SyntaxError as error:
            print(f'{block}: {error}')
            return False
    path = pathlib.Path(folder) / f'snippet.{block.language}'
    path.write_text(as_file(block), encoding='utf-8')
    command = [compiler, '-std=c++20', '-x', 'c++'] if block.language == 'cpp' else \
        [os.environ.get('CC', 'cc'), '-std=c99', '-x', 'c']
    done = subprocess.run([*command, '-fsyntax-only', '-Wall', '-Wno-unused', f'-I{source}', str(path)],
                          capture_output=True, text=True, check=False)
    if done.returncode:
        print(f'{block} does not compile:\n{done.stderr}')
    return done.returncode == 0


def main(source, compiler='c++'):
    blocks = [block for block in all_blocks(source, ('cpp', 'c', 'python'))
              if not block.mark.startswith('<!-- examples/')]
    with tempfile.TemporaryDirectory() as folder:
        failed = [block for block in blocks if not compiles(block, compiler, source, folder)]
    print(f'{len(blocks) - len(failed)} of {len(blocks)} snippets compile.')
    return 1 if failed else 0


if __name__ == '__main__':
    sys.exit(main(*sys.argv[1:]))
