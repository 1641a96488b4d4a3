#include "batch/pool.h"

#include <algorithm>
#include <atomic>
#include <system_error>
#include <thread>
#include <vector>

namespace pixano::batch {

void ForEachPlace(std::size_t count, unsigned threads,
                  const std::function<void(std::size_t place)>& job)
{
    std::atomic<std::size_t> next = 0;
    const auto takePlaces = [&] {
        for (std::size_t place = next++; place < count; place = next++)
            job(place);
    };
    // cppcheck-suppress variableScope ; its end waits for the threads
    std::vector<std::jthread> others;
    try {
        // This thread is one of them.
        for (std::size_t i = 1; i < std::min<std::size_t>(threads, count); ++i)
            others.emplace_back(takePlaces);
    } catch (const std::system_error&) {
        // The system gives no more threads: those that there are do the work.
    }
    takePlaces();
}

}  // namespace pixano::batch
