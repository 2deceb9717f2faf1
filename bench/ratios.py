#!/usr/bin/env python3
"""Prints what bench/run.sh measured as a Markdown table: our median time, and each peer's time over
ours (above 1 we are faster). Where a roof was measured, how much of it we reach.

usage: ratios.py [--check TABLES.md] RESULTS...      RESULTS without the ending .json"""
import argparse
import collections
import json
import re
import statistics
import sys

SECONDS = {"ns": 1e-9, "us": 1e-6, "ms": 1e-3, "s": 1.0}


def medians_of(path):
    """{(work, size): {who: seconds}}. Processor time: what others do on the machine isn't in it."""
    times = collections.defaultdict(lambda: collections.defaultdict(list))
    with open(path + ".json", encoding="utf-8") as file:
        # They ran in random order; the table has them as the sources do.
        for run in sorted(json.load(file)["benchmarks"], key=lambda run: run["family_index"]):
            if run["run_type"] == "iteration":
                area, work, size, who = run["name"].split("/")[:4]
                times[f"{area}/{work}", size][who].append(run["cpu_time"] * SECONDS[run["time_unit"]])
    return {key: {who: statistics.median(all_) for who, all_ in whos.items()}
            for key, whos in times.items()}


def readable(seconds):
    for unit in ("s", "ms", "us", "ns"):
        if seconds >= SECONDS[unit] or unit == "ns":
            return f"{seconds / SECONDS[unit]:.3g} {unit}"


def rows_of(medians):
    """A header, then a row for each work and size that we were measured in."""
    whos = dict.fromkeys(who for times in medians.values() for who in times)
    peers = [who for who in whos if who not in ("ours", "roof")]
    yield ["work", "size", "ours"] + peers + (["of roof"] if "roof" in whos else [])
    for (work, size), times in medians.items():
        if "ours" not in times:
            continue
        row = [work, size, readable(times["ours"])]
        row += [f"{times[peer] / times['ours']:.2f}" if peer in times else "" for peer in peers]
        if "roof" in whos:
            row.append(f"{times['roof'] / times['ours']:.0%}" if "roof" in times else "")
        yield row


def printed(rows):
    rows = list(rows)
    rows.insert(1, ["---"] * len(rows[0]))
    return "\n".join("| " + " | ".join(row) + " |" for row in rows) + "\n"


def ratios_in(text):
    """{(work, size, peer): ratio} of all tables in a Markdown text."""
    found, header = {}, None
    for line in text.splitlines():
        cells = [cell.strip() for cell in line.strip().strip("|").split("|")]
        if cells[:3] == ["work", "size", "ours"]:
            header = cells
        elif not line.startswith("|"):
            header = None
        elif header:
            found.update({(*cells[:2], peer): float(cell) for peer, cell in zip(header, cells)
                          if re.fullmatch(r"\d+\.\d+", cell)})
    return found


def fallen(now, before):
    """Noise is large: only what is under half of the written ratio has fallen."""
    for key, ratio in now.items():
        if key in before and ratio < before[key] / 2:
            yield f"{' '.join(key)}: {ratio:.2f}, written is {before[key]:.2f}"


def main():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--check", metavar="TABLES.md")
    parser.add_argument("results", nargs="+", metavar="RESULTS")
    options = parser.parse_args()
    text = "\n".join(printed(rows_of(medians_of(path))) for path in options.results)
    print(text, end="")
    if options.check:
        with open(options.check, encoding="utf-8") as file:
            problems = list(fallen(ratios_in(text), ratios_in(file.read())))
        print("\n".join(problems), file=sys.stderr, end="\n" if problems else "")
        return 1 if problems else 0
    return 0


if __name__ == "__main__":
    sys.exit(main())
