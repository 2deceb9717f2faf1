#!/usr/bin/env python3
"""Holds the architecture: includes run down only, and nothing above the platform's headers sees
an implementation folder, a library or the operating system. The meetings upwards that are
allowed stand in docs/architecture.md, as lines "- `FROM` -> `TO`: why"; FROM may have a "*"."""
import fnmatch
import os
import re
import sys

ROOT = os.path.abspath(os.path.join(os.path.dirname(__file__), "..", ".."))
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')
MEETING = re.compile(r"^- `([^`]+)` -> `([^`]+)`: ")

FOLDERS = {"base": 0, "pixels": 0, "frame": 2, "gdip": 3, "image": 4, "surface": 5, "text": 6,
           "colour": 6, "theme": 7, "c": 8}
# Rooms whose parts live on different floors.
FILES = [(r"vxgui/frame/VxGuiGlobal", 8), (r"vxgui/colour/(GpColor|modColours|ColorHls)", 2),
         (r"vxgui/text/(LFont|KeyedItems|ColorText|DefineSection|WideText)", 2), (r"vxgui/vxgui(_c)?\.h", 8)]
STANDARD = set("""algorithm any array atomic bit bitset cassert cctype cerrno cfloat charconv chrono cinttypes climits
clocale cmath compare concepts condition_variable cstddef cstdint cstdio cstdlib cstring ctime deque exception
filesystem forward_list fstream functional initializer_list iomanip ios iosfwd iostream istream iterator
limits list locale map memory memory_resource mutex new numbers numeric optional ostream queue random
ranges ratio set shared_mutex source_location span sstream stack stddef.h stdexcept stdint.h streambuf string string_view
thread tuple type_traits typeindex typeinfo unordered_map unordered_set utility variant vector""".split())

# The compiler's own header of instructions, for pixel loops alone.
INSTRUCTIONS = "immintrin.h"


def is_implementation(path):
    return re.match(r"vxgui/platform/[^/]+/", path) is not None


def floor_of(path):
    for pattern, floor in FILES:
        if re.match(pattern, path):
            return floor
    parts = path.split("/")
    if parts[1] == "platform":
        return 1
    return FOLDERS[parts[1]]


def meetings():
    with open(os.path.join(ROOT, "docs", "architecture.md"), encoding="utf-8") as file:
        return {match.groups() for match in map(MEETING.match, file) if match}


def includes(path):
    with open(os.path.join(ROOT, path), encoding="utf-8") as file:
        for number, line in enumerate(file, 1):
            match = INCLUDE.match(line)
            if match:
                yield number, match.group(1), match.group(2)


def problems_of(path, allowed, used):
    for number, bracket, name in includes(path):
        where = f"{path}:{number}: "
        if not name.startswith("vxgui/"):
            if name == INSTRUCTIONS and path.startswith("vxgui/pixels/"):
                continue
            if not is_implementation(path) and (bracket != "<" or name not in STANDARD):
                yield where + f"{name} is neither ours nor the standard library's"
        elif is_implementation(path):
            if not is_implementation(name) and floor_of(name) > 1:
                yield where + f"the platform includes {name} from above"
        elif is_implementation(name):
            yield where + f"{name} belongs to an implementation folder"
        elif floor_of(name) > floor_of(path):
            met = {pair for pair in allowed if fnmatch.fnmatch(path, pair[0]) and pair[1] == name}
            used |= met
            if not met or not path.endswith(".cpp"):
                yield where + f"{name} stands on floor {floor_of(name)}, above {floor_of(path)}"


def main():
    allowed, used, problems = meetings(), set(), []
    for folder, _, files in os.walk(os.path.join(ROOT, "vxgui")):
        for name in sorted(files):
            if name.endswith((".h", ".cpp")):
                path = os.path.relpath(os.path.join(folder, name), ROOT)
                problems += problems_of(path, allowed, used)
    problems += [f"docs/architecture.md: {a} doesn't include {b} any more" for a, b in sorted(allowed - used)]
    print("\n".join(problems) or "All includes run down.")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
