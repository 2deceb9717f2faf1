#!/usr/bin/env bash
# Builds the benchmarks, runs ours and the peers' interleaved, and prints tables of ratios.
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/setup/packages.sh

repetitions=15 min_time=0.03 filter=. areas=() check=()
while [ $# -gt 0 ]; do
    case "$1" in
    -h | --help)
        echo "usage: bench/run.sh [--short] [--check] [--filter REGEX] [AREA...]"
        echo "AREA is a folder of bench/; all of them by default. --short takes a tenth of the time;"
        echo "--check fails when a ratio is under half of the one in docs/performance.md."
        exit 0
        ;;
    --short) repetitions=5 min_time=0.01 ;;
    --check) check=(--check docs/performance.md) ;;
    --filter)
        filter=$2
        shift
        ;;
    *) areas+=("$1") ;;
    esac
    shift
done
if [ ${#areas[@]} -eq 0 ]; then
    for folder in bench/*/*.cpp; do areas+=("$(basename "$(dirname "$folder")")"); done
    mapfile -t areas < <(printf '%s\n' "${areas[@]}" | sort -u)
fi

need_packages $BENCH_PACKAGES ||
    echo "Going on with what is installed: a peer that isn't there is left out." >&2
build_preset bench "${areas[@]/#/bench_}" >&2
results=build/bench/results
mkdir -p "$results"

measure() {
    local area
    for area in "${areas[@]}"; do
        # Qt draws without a display; OpenCV and others that would take more threads get one.
        QT_QPA_PLATFORM=offscreen OMP_NUM_THREADS=1 "build/bench/bench/bench_$area" \
            --benchmark_filter="$filter" --benchmark_min_time=$min_time \
            --benchmark_repetitions=$repetitions --benchmark_enable_random_interleaving=true \
            --benchmark_out="$results/$area.json" --benchmark_out_format=json \
            >"$results/$area.log" 2>&1 || { cat "$results/$area.log" >&2 && return 1; }
    done
}
tables() { python3 -B bench/ratios.py "$@" "${areas[@]/#/$results/}"; }

measure
if [ ${#check[@]} -eq 0 ]; then
    tables
elif ! tables "${check[@]}"; then
    echo "Once more and longer: what falls twice has fallen." >&2
    repetitions=15 min_time=0.03
    measure
    tables "${check[@]}"
fi
