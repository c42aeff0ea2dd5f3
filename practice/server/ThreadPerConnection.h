// SPDX-License-Identifier: MIT
#pragma once

#include <condition_variable>
#include <functional>
#include <httplib.h>
#include <mutex>
#include <thread>

namespace qlm::practice {

/// Gives every connection a thread of its own. A pool of fixed size would be used up by pages that hang.
class ThreadPerConnection : public httplib::TaskQueue {
public:
    void enqueue(std::function<void()> serve) override {
        {
            const std::lock_guard lock(m_mutex);
            ++m_running;
        }
        std::thread([this, serve = std::move(serve)] {
            serve();
            // The lock is held while waking, since shutdown may destroy this queue right after.
            const std::lock_guard lock(m_mutex);
            --m_running;
            m_ended.notify_all();
        }).detach();
    }

    void shutdown() override {
        std::unique_lock lock(m_mutex);
        m_ended.wait(lock, [this] { return m_running == 0; });
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_ended;
    int m_running = 0;
};

} // namespace qlm::practice
