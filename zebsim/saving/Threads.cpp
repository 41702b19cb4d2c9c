#include "Threads.h"

#include <system_error>

std::vector<std::thread> startThreads(std::size_t count, const std::function<void()>& work) {
    std::vector<std::thread> threads;
    threads.reserve(count);
    try {
        while (threads.size() < count) {
            threads.emplace_back(work);
        }
    } catch (const std::system_error&) {
        // Those that there are do it all.
    }
    return threads;
}

void join(std::vector<std::thread>& threads) {
    for (std::thread& thread : threads) {
        thread.join();
    }
}
