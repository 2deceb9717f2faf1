"""The fenced blocks of the documents, for the tests that run them."""

import pathlib
import re

FENCE = re.compile(r'^```(.*)$')


class Block:
    def __init__(self, path, line, language, text, mark):
        self.path, self.line, self.language, self.text = path, line, language, text
        self.mark = mark  # the line before the fence

    def __str__(self):
        return f'{self.path}:{self.line}'


def documents(source):
    source = pathlib.Path(source)
    return [source / 'README.md', *sorted((source / 'docs').glob('*.md'))]


def blocks_of(path, source):
    blocks, language, lines, start, before, mark = [], None, [], 0, '', ''
    for number, line in enumerate(path.read_text(encoding='utf-8').splitlines(), 1):
        fence = FENCE.match(line)
        if fence and language is None:
            language, lines, start, mark = fence.group(1).strip(), [], number + 1, before
        elif fence:
            blocks.append(Block(path.relative_to(source), start, language, '\n'.join(lines), mark))
            language = None
        elif language is not None:
            lines.append(line)
        before = line
    if language is not None:
        raise SystemExit(f'{path}:{start}: the block has no end')
    return blocks


def all_blocks(source, languages):
    found = [block for path in documents(source) for block in blocks_of(path, source)
             if block.language in languages]
    if not found:
        raise SystemExit(f'no blocks of {languages}: the documents or this test have changed')
    return found
