#include "support/parallel.h"

#include <QThread>

#include <algorithm>
#include <atomic>
#include <exception>
#include <mutex>
#include <thread>
#include <vector>

namespace vardeno::testcharttools {

namespace {

std::atomic<int> helpersAtWork{0}; ///< of all who share their work

/// Hands the numbers out to whoever asks.
class SharedWork
{
public:
    SharedWork(int count, const std::function<void(int)>& work)
        : m_count(count)
        , m_work(work)
    {
    }

    void join(const std::function<void()>& first = {})
    {
        try {
            if (first)
                first();
            for (int i = m_next++; i < m_count; i = m_next++)
                m_work(i);
        } catch (...) {
            m_next = m_count;
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_thrown = std::current_exception();
        }
    }

    void rethrow() const
    {
        if (m_thrown)
            std::rethrow_exception(m_thrown);
    }

private:
    const int m_count;
    const std::function<void(int)>& m_work;
    std::atomic<int> m_next{0};
    std::mutex m_mutex;
    std::exception_ptr m_thrown;
};

/// Threads that join in, and end when nothing is left.
class Helpers
{
public:
    Helpers(SharedWork& work, int wanted)
    {
        const int cores = QThread::idealThreadCount();
        try {
            while (int(m_threads.size()) < wanted && helpersAtWork < cores - 1) {
                m_threads.emplace_back([&work] { work.join(); });
                ++helpersAtWork;
            }
        } catch (const std::exception&) { // no thread is to be had: there are fewer
        }
    }
    ~Helpers()
    {
        for (std::thread& thread : m_threads)
            thread.join();
        helpersAtWork -= int(m_threads.size());
    }
    Helpers(const Helpers&) = delete;
    Helpers& operator=(const Helpers&) = delete;

private:
    std::vector<std::thread> m_threads;
};

} // namespace

void inParallel(int count, const std::function<void(int)>& work, const std::function<void()>& first)
{
    SharedWork shared(count, work);
    {
        const Helpers helpers(shared, first ? count : count - 1);
        shared.join(first);
    }
    shared.rethrow();
}

} // namespace vardeno::testcharttools
