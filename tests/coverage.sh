#!/usr/bin/env bash
# Runs all tests in a build that counts lines, and prints how many of the library's they reach.
# What none of them reaches is listed in build/coverage/lines.txt, and shown in its place below
# build/coverage/html. usage: tests/coverage.sh
set -euo pipefail
cd "$(dirname "$0")/.."
if [ "${1:-}" = --help ] || [ "${1:-}" = -h ]; then
    sed -n '2,4s/^# //p' "$0"
    exit 0
fi
. tools/setup/packages.sh
need_packages gcovr

out=build/coverage
[ ! -d $out ] || find $out -name '*.gcda' -delete
./test coverage

mkdir -p $out/html
gcovr --root . --filter vxgui/ --exclude vxgui/platform/qt6/ --gcov-ignore-parse-errors -j "$(jobs_here)" \
    --csv $out/lines.csv --txt $out/lines.txt --html-details $out/html/index.html $out

# A row for each folder of vxgui/, two levels deep.
echo "| folder | lines | reached |"
echo "|---|---:|---:|"
awk -F, '
    NR > 1 && $2 > 0 {
        depth = split($1, parts, "/")
        folder = parts[1] (depth > 2 ? "/" parts[2] : "")
        if (parts[2] == "platform" && depth > 3) folder = folder "/" parts[3]
        all[folder] += $2; hit[folder] += $3; all["all"] += $2; hit["all"] += $3
    }
    END { for (name in all) printf "| %s | %d | %.1f%% |\n", name, all[name], 100 * hit[name] / all[name] }
    ' $out/lines.csv | sort
echo "What no test reaches: $out/lines.txt, $out/html/index.html"
