#pragma once

#include <chrono>
#include <cstdlib>
#include <thread>
#include <vector>

namespace vxgui::test {

/// How long a stress test runs: a second, or what VXGUI_STRESS_SECONDS says.
inline std::chrono::seconds StressTime() {
    const char* const seconds = std::getenv("VXGUI_STRESS_SECONDS");
    return std::chrono::seconds(seconds ? std::atoi(seconds) : 1);
}

/// Calls `work(thread)` once on each of so many threads at the same time.
template <class Work>
void OnThreads(int count, const Work& work) {
    std::vector<std::thread> threads;
    for (int i = 0; i < count; ++i) threads.emplace_back([&work, i] { work(i); });
    for (std::thread& thread : threads) thread.join();
}

/// Calls `round(thread, number)` on each thread again and again until the time is over. The rounds
/// that the threads have done altogether.
template <class Round>
int StressThreads(int count, const Round& round) {
    const auto end = std::chrono::steady_clock::now() + StressTime();
    std::vector<int> rounds(static_cast<size_t>(count));
    OnThreads(count, [&](int thread) {
        int& done = rounds[static_cast<size_t>(thread)];
        do {
            round(thread, done++);
        } while (std::chrono::steady_clock::now() < end);
    });
    int sum = 0;
    for (const int done : rounds) sum += done;
    return sum;
}

}  // namespace vxgui::test
