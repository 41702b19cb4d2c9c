#pragma once

#include <functional>
#include <thread>
#include <vector>

/// Threads that run `work`, `count` of them or as many as the system makes: none, when it makes none.
std::vector<std::thread> startThreads(std::size_t count, const std::function<void()>& work);
void join(std::vector<std::thread>& threads);
