#!/usr/bin/env python3
"""Which test covers which flat function: docs/flat-functions.md. Without an argument the page is
compared with what the tests say, and each function must have a test of what it does and one of a
wrong argument; with --update the page is written anew.

A test covers a function that it, or a helper or table that it uses, names. It is one of a wrong
argument when the call is in a statement with a status other than Ok. One test goes over all
functions with null handles and addresses."""
import os
import re
import sys

ROOT = os.path.abspath(os.path.join(os.path.dirname(__file__), "..", ".."))
PAGE = os.path.join(ROOT, "docs", "flat-functions.md")
FUNCTION = re.compile(r"\bGdip[A-Z]\w*|\bGdiplus(?:Startup|Shutdown)\b")
TEST = re.compile(r"^(?:TEST|TEST_F|TEST_P)\(\s*(\w+),\s*(\w+)\)", re.M)
REFUSAL = re.compile(r"\b(?:GenericError|InvalidParameter|OutOfMemory|ObjectBusy|InsufficientBuffer|NotImplemented|"
                     r"Win32Error|WrongState|Aborted|FileNotFound|ValueOverflow|AccessDenied|UnknownImageFormat|"
                     r"FontFamilyNotFound|FontStyleNotFound|NotTrueTypeFont|UnsupportedGdiplusVersion|"
                     r"GdiplusNotInitialized|PropertyNotFound|PropertyNotSupported)\b")
HELPER = re.compile(r"^(?:[\w:<>&*,\[\] ]+[ &*>])?(\w+)\([^;{}]*\)(?: const)?(?: override)?(?:\s*:[^{;]*)? \{|"
                    r"^\s*(?:const )?(?:auto|\w+) (\w+)(?:\[\])? = (?:\[|\{)|"
                    r"^(?:constexpr|const) [^=;(]* (\w+)\[\]? = \{", re.M)
GOES_OVER_ALL = "WrongArguments.AreRefused"


def read(path):
    with open(path, encoding="utf-8") as file:
        return file.read()


def rooms():
    folder = os.path.join(ROOT, "vxgui", "platform")
    for name in sorted(os.listdir(folder)):
        text = read(os.path.join(folder, name)) if name.startswith("gdiplus_") else ""
        if "#define VXGUI_GDIPLUS_" in text:
            yield name[len("gdiplus_"):-2], sorted(set(FUNCTION.findall(text[text.index("#define VXGUI_GDIPLUS_"):])))


def blocks(text):
    """Test name and body, each body up to the next test."""
    found = list(TEST.finditer(text))
    for at, match in enumerate(found):
        end = found[at + 1].start() if at + 1 < len(found) else len(text)
        yield f"{match.group(1)}.{match.group(2)}", text[match.end():end]


def helpers(text):
    """What each helper and each table of a file names, and what it uses."""
    found = {}
    code = re.sub(r"//[^\n]*", "", text)
    starts = [(match.start(), next(filter(None, match.groups()))) for match in HELPER.finditer(code)]
    for at, (start, name) in enumerate(starts):
        end = starts[at + 1][0] if at + 1 < len(starts) else len(code)
        body = TEST.split(code[start:end])[0]
        found.setdefault(name, set()).update(FUNCTION.findall(body))
        found.setdefault("used by " + name, set()).update(re.findall(r"\b(\w+)\b", body))
    return found


def reached(names, known, depth=3):
    functions = set()
    for name in names:
        functions |= known.get(name, set())
        if depth:
            functions |= reached(known.get("used by " + name, set()) & (known.keys() - {name}), known, depth - 1)
    return functions


def known_in(folder, files, own):
    """The helpers of a file and of the fixtures beside it."""
    known = {}
    for name in files:
        text = read(os.path.join(folder, name))
        if name == own or not TEST.search(text):
            for helper, functions in helpers(text).items():
                known.setdefault(helper, set()).update(functions)
    return known


def note(table, function, name):
    names = table.setdefault(function, [])
    if name not in names:
        names.append(name)


def note_test(test, body, known, does, refuses):
    through = reached(set(re.findall(r"\b(\w+)\b", body)) & known.keys(), known)
    for statement in body.split(";"):
        named = set(FUNCTION.findall(statement))
        refused = REFUSAL.search(statement)
        if refused and not named:
            named = through | set(FUNCTION.findall(body))
        for function in named:
            note(refuses if refused else does, function, test)
    for function in through:
        note(does, function, test)


def covered():
    does, refuses = {}, {}
    for folder, _, files in sorted(os.walk(os.path.join(ROOT, "tests"))):
        if "gdiplus" in os.path.basename(folder):
            for name in sorted(file for file in files if file.endswith(".cpp")):
                known = known_in(folder, sorted(files), name)
                for test, body in blocks(read(os.path.join(folder, name))):
                    note_test(test, body, known, does, refuses)
    for function in (function for _, functions in rooms() for function in functions):
        note(refuses, function, GOES_OVER_ALL)
    return does, refuses


def cell(table, function):
    names = table.get(function, [])
    return names[0] + (f" and {len(names) - 1} more" if len(names) > 1 else "") if names else ""


def page(does, refuses):
    lines = ["# The flat functions and their tests", "",
             "Written by `tests/build/flat_function_tests.py --update` from the tests themselves; the test",
             "`Build.EachFlatFunctionHasItsTests` holds it. Of several tests the first is named.", ""]
    for room, functions in rooms():
        lines += [f"## {room.capitalize()}", "", "| function | what it does | a wrong argument |", "|---|---|---|"]
        lines += [f"| {name} | {cell(does, name)} | {cell(refuses, name)} |" for name in functions]
        lines.append("")
    return "\n".join(lines)


def main():
    does, refuses = covered()
    text = page(does, refuses)
    missing = [f"{name}: no test of what it does" for _, functions in rooms() for name in functions if name not in does]
    print("\n".join(missing) or "Each flat function has its tests.")
    if sys.argv[1:] == ["--update"]:
        with open(PAGE, "w", encoding="utf-8") as file:
            file.write(text)
    elif not os.path.exists(PAGE) or read(PAGE) != text:
        print("docs/flat-functions.md is old: run tests/build/flat_function_tests.py --update")
        return 1
    return 1 if missing else 0


sys.exit(main())
