#pragma once

#include <benchmark/benchmark.h>

#include <string>
#include <utility>

namespace vxgui::bench {

/// Adds the benchmark `AREA/work/size/who`, where AREA is the folder of the source. Those that
/// differ in `who` alone do the same work on the same pixels: "ours", the name of a peer, or "roof"
/// for the best plain stream over the same bytes.
///
/// `prepare()` makes the pixels and answers the operation that is timed. It runs anew for each
/// repetition, so that no one keeps a place in memory that happens to be good or bad, and nobody
/// holds memory while another is measured.
template <class Prepare>
bool Beside(const std::string& work, const std::string& size, const std::string& who,
            Prepare prepare) {
    const std::string name = VXGUI_BENCH_AREA "/" + work + "/" + size + "/" + who;
    benchmark::RegisterBenchmark(name.c_str(), [prepare](benchmark::State& state) {
        auto operation = prepare();
        operation();  // what is kept from one call to the next is there when the clock starts
        for (auto _ : state) {
            operation();
            benchmark::ClobberMemory();
        }
    });
    return true;
}

}  // namespace vxgui::bench
