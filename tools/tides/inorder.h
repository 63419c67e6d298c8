// Parts of a result made on all processors and taken in their order. Must not know what they are.
#pragma once

#include <algorithm>
#include <deque>
#include <functional>
#include <future>
#include <thread>

namespace tarvane {

/// Makes the pieces from 0 up to `count`, each on a thread of its own, and hands them over one after another. Only a
/// few for each processor are kept at a time.
template <class Piece>
void inorder(std::size_t count, const std::function<Piece(std::size_t)>& make, const std::function<void(Piece)>& take) {
    const std::size_t most = 2 * std::max(1U, std::thread::hardware_concurrency());
    std::deque<std::future<Piece>> making;
    const auto handover = [&](std::size_t left) {
        while (making.size() > left) {
            take(making.front().get());
            making.pop_front();
        }
    };
    for (std::size_t i = 0; i < count; ++i) {
        handover(most - 1);
        making.push_back(std::async(count == 1 ? std::launch::deferred : std::launch::async, make, i));
    }
    handover(0);
}

}  // namespace tarvane
