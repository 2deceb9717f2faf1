#!/usr/bin/env bash
# Builds the fuzzers and runs each for so many seconds.
# usage: fuzz/run.sh SECONDS [NAME...]     e.g. fuzz/run.sh 60 Tga Uis
set -euo pipefail
cd "$(dirname "$0")/.."
if [ $# -lt 1 ] || [ "$1" = --help ] || [ "$1" = -h ]; then
    sed -n '2,3s/^# //p' "$0"
    echo "What is found lies in build/fuzz/findings, and is given back to a fuzzer as its argument:"
    echo "    build/fuzz/fuzz/fuzz_Tga build/fuzz/findings/Tga/crash-..."
    exit 0
fi
seconds=$1
shift
. tools/setup/packages.sh
need_packages $BUILD_PACKAGES clang libclang-rt-14-dev llvm
all_names() { grep -oE '/[A-Z][A-Za-z]+( |\)|$)' fuzz/Fuzzers.cmake | tr -d '/ )'; }
[ $# -gt 0 ] && names=("$@") || names=($(all_names))
build_preset fuzz "${names[@]/#/fuzz_}"

# A fuzzer starts from its seeds, those of pictures from the tests' pictures of all formats.
seeds_of() { [ -d "fuzz/seeds/$1" ] && echo "fuzz/seeds/$1" || echo tests/data/images; }
dictionary_of() {
    case "$1" in
    Define | ThemeSet | Uis | ColourText | StyleModule) echo fuzz/dictionaries/skins.dict ;;
    *) echo fuzz/dictionaries/pictures.dict ;;
    esac
}

export ASAN_OPTIONS=detect_leaks=1:allocator_may_return_null=1 FONTCONFIG_FILE=$PWD/tests/data/fonts.conf
failed=0
printf '| fuzzer | executions | a second | edges | inputs kept | findings |\n|---|---:|---:|---:|---:|---:|\n'
for name in "${names[@]}"; do
    corpus=build/fuzz/corpus/$name findings=build/fuzz/findings/$name log=build/fuzz/$name.log
    mkdir -p "$corpus" "$findings"
    "build/fuzz/fuzz/fuzz_$name" -max_total_time="$seconds" -print_final_stats=1 -timeout=10 \
        -rss_limit_mb=1024 -max_len=16384 -dict="$(dictionary_of "$name")" \
        -artifact_prefix="$findings/" "$corpus" "$(seeds_of "$name")" >"$log" 2>&1 || failed=1
    stat() { sed -n "s/^stat::$1: *//p" "$log"; }
    edges=$(grep -o 'cov: [0-9]*' "$log" | tail -n 1 | cut -d ' ' -f 2)
    printf '| %s | %s | %s | %s | %s | %s |\n' "$name" "$(stat number_of_executed_units)" \
        "$(stat average_exec_per_sec)" "${edges:-0}" "$(ls "$corpus" | wc -l)" "$(ls "$findings" | wc -l)"
done
exit $failed
