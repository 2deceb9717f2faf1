#!/usr/bin/env python3
"""Each link and picture of the documents that names a file names one that is there, and each
document but the first is named by another. check_links.py SOURCE"""

import pathlib
import re
import sys

from blocks import documents

LINK = re.compile(r'\]\(([^)#\s]+)(?:#[^)]*)?\)')


def main(source):
    pages, named, bad = documents(source), set(), []
    for page in pages:
        text = re.sub(r'```.*?```', '', page.read_text(encoding='utf-8'), flags=re.S)
        for target in LINK.findall(text):
            if '://' in target:
                continue
            path = (page.parent / target).resolve()
            named.add(path)
            if not path.exists():
                bad.append(f'{page}: {target} is not there')
    for page in pages[1:]:
        if page.resolve() not in named and page.name != 'api.md':
            bad.append(f'{page}: no other document leads there')
    print('\n'.join(bad) or f'All links of {len(pages)} documents lead somewhere.')
    return 1 if bad else 0


if __name__ == '__main__':
    sys.exit(main(sys.argv[1]))
