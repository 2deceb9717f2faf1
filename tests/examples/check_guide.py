#!/usr/bin/env python3
"""Holds docs/hosts.md to the hosts: each snippet stands in the file that is named above it, and each
command works. check_guide.py SOURCE BUILD: the commands say build/dev for BUILD."""
import os
import re
import subprocess
import sys
import tempfile
import textwrap

SNIPPET = re.compile(r"^<!-- (\S+) -->\n```\w+\n(.*?)^```$", re.M | re.S)
NAME = re.compile(r"^<!-- examples/\S+ -->$", re.M)
COMMAND = re.compile(r"^    ((?:\w+=\S+ )*\S*examples/\w+(?:\.py)? .*)$", re.M)


def stands_in(snippet, text):
    """Whether all lines of a snippet follow each other in a text, indented by the same amount more."""
    wanted = textwrap.dedent(snippet).rstrip("\n").split("\n")
    have = text.split("\n")
    for start in range(len(have) - len(wanted) + 1):
        part = have[start:start + len(wanted)]
        if textwrap.dedent("\n".join(part)).split("\n") == wanted:
            return True
    return False


def run(command, source, build, work):
    """In a folder of its own, where what the command writes goes."""
    for name in ("skins", "examples"):
        link = os.path.join(work, name)
        if not os.path.exists(link):
            os.symlink(os.path.join(source, name), link)
    host = re.search(r"build/dev/(examples/\w+)", command)
    if host and not os.path.exists(os.path.join(build, host.group(1))):
        return None
    result = subprocess.run(command.replace("build/dev", build), shell=True, cwd=work, text=True,
                            stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=60)
    return f"{command}\n{result.stdout}" if result.returncode else None


def main(source, build):
    with open(os.path.join(source, "docs", "hosts.md"), encoding="utf-8") as file:
        guide = file.read()
    snippets, commands, problems = SNIPPET.findall(guide), COMMAND.findall(guide), []
    # Snippets without a name are nobody's lines; those are compiled as they stand.
    if len(snippets) != len(NAME.findall(guide)):
        problems.append("the name of a file stands above no snippet")
    for name, snippet in snippets:
        with open(os.path.join(source, name), encoding="utf-8") as file:
            if not stands_in(snippet, file.read()):
                problems.append(f"{name} has no longer these lines:\n{snippet}")
    with tempfile.TemporaryDirectory() as work:
        problems += filter(None, (run(command, source, build, work) for command in commands))
    print("\n".join(problems) or f"{len(snippets)} snippets and {len(commands)} commands are true.")
    return 1 if problems or not snippets or not commands else 0


if __name__ == "__main__":
    sys.exit(main(*map(os.path.abspath, sys.argv[1:3])))
