#pragma once

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <functional>
#include <future>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace cli {

/// Does pieces of work on some threads; whoever takes the results takes them in their order. With one thread
/// a piece is done when it is taken.
template <class Result> class Crew {
public:
    Crew(std::size_t count, std::size_t threads, const std::function<Result(std::size_t)>& work) {
        for (std::size_t i = 0; i < count; ++i) {
            m_pieces.emplace_back([work, i] { return work(i); });
            m_results.push_back(m_pieces.back().get_future());
        }
        try {
            for (std::size_t i = 0; threads > 1 && i < std::min(threads, count); ++i) {
                m_threads.emplace_back([this] { DoPieces(); });
            }
        } catch (const std::system_error&) { // as many as there are will do
        }
    }

    /// Begins no further piece.
    ~Crew() {
        m_next = m_pieces.size();
        for (std::thread& thread : m_threads) {
            thread.join();
        }
    }

    Crew(const Crew&) = delete;
    Crew& operator=(const Crew&) = delete;

    /// Waits for the piece. Each is taken once.
    Result Take(std::size_t i) {
        if (m_threads.empty()) {
            m_pieces[i]();
        }
        return m_results[i].get();
    }

private:
    void DoPieces() {
        for (std::size_t next = m_next++; next < m_pieces.size(); next = m_next++) {
            m_pieces[next]();
        }
    }

    std::vector<std::packaged_task<Result()>> m_pieces;
    std::vector<std::future<Result>> m_results;
    std::atomic<std::size_t> m_next = 0;
    std::vector<std::thread> m_threads;
};

} // namespace cli
