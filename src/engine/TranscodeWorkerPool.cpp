#include "engine/TranscodeWorkerPool.h"

#include <atomic>

namespace {
// An idle worker outlives its job by this much: long enough for the next file of a run, short
// enough that no process lingers once the run is over.
constexpr auto kIdleLifetime = std::chrono::seconds(3);
constexpr auto kDefaultHangTimeout = std::chrono::seconds(60);
std::atomic<long long> g_hangTimeoutMs{
    std::chrono::duration_cast<std::chrono::milliseconds>(kDefaultHangTimeout).count()};
} // namespace

TranscodeWorkerPool& TranscodeWorkerPool::instance() {
    static TranscodeWorkerPool pool;
    return pool;
}

TranscodeWorkerPool::TranscodeWorkerPool()
    : m_launcher([this] { launcherLoop(); }) {}

TranscodeWorkerPool::~TranscodeWorkerPool() {
    {
        std::lock_guard<std::mutex> locker(m_lock);
        m_stopping = true;
    }
    m_wake.notify_all();
    m_launcher.join();
}

void TranscodeWorkerPool::setHangTimeout(std::chrono::milliseconds timeout) {
    g_hangTimeoutMs = timeout.count();
}

std::chrono::milliseconds TranscodeWorkerPool::hangTimeout() {
    return std::chrono::milliseconds(g_hangTimeoutMs.load());
}

std::unique_ptr<TranscodeWorker> TranscodeWorkerPool::acquire(const QString& program) {
    std::unique_lock<std::mutex> lock(m_lock);
    while (!m_idle.empty()) {
        Idle idle = std::move(m_idle.back());
        m_idle.pop_back();
        if (idle.program == program && idle.worker->alive())
            return std::move(idle.worker);
        lock.unlock();
        idle.worker.reset(); // killed meanwhile, or another program: ended, not reused
        lock.lock();
    }
    if (m_stopping)
        return nullptr;
    Launch launch{program, {}};
    std::future<std::unique_ptr<TranscodeWorker>> result = launch.result.get_future();
    m_launches.push_back(&launch);
    lock.unlock();
    m_wake.notify_all();
    return result.get();
}

void TranscodeWorkerPool::release(std::unique_ptr<TranscodeWorker> worker, const QString& program) {
    if (!worker)
        return;
    std::unique_lock<std::mutex> lock(m_lock);
    if (m_stopping) {
        lock.unlock();
        return; // ended here, by the destructor of the worker
    }
    m_idle.push_back({std::move(worker), program, std::chrono::steady_clock::now()});
    lock.unlock();
    m_wake.notify_all();
}

void TranscodeWorkerPool::endIdle() {
    std::vector<Idle> ending;
    {
        std::lock_guard<std::mutex> locker(m_lock);
        ending.swap(m_idle);
    }
}

int TranscodeWorkerPool::idleCount() const {
    std::lock_guard<std::mutex> locker(m_lock);
    return int(m_idle.size());
}

void TranscodeWorkerPool::launcherLoop() {
    std::unique_lock<std::mutex> lock(m_lock);
    while (true) {
        while (!m_launches.empty()) {
            Launch* launch = m_launches.front();
            m_launches.pop_front();
            lock.unlock();
            launch->result.set_value(TranscodeWorker::launch(launch->program));
            lock.lock();
        }
        if (m_stopping)
            break;
        endExpired(lock);
        m_wake.wait_for(lock, std::chrono::seconds(1));
    }
    std::vector<Idle> ending;
    ending.swap(m_idle);
    lock.unlock();
    ending.clear(); // asked to quit, and killed after a grace, before this thread ends
}

void TranscodeWorkerPool::endExpired(std::unique_lock<std::mutex>& lock) {
    const auto now = std::chrono::steady_clock::now();
    std::vector<Idle> ending;
    for (auto idle = m_idle.begin(); idle != m_idle.end();) {
        if (now - idle->since >= kIdleLifetime) {
            ending.push_back(std::move(*idle));
            idle = m_idle.erase(idle);
        } else {
            ++idle;
        }
    }
    lock.unlock();
    ending.clear();
    lock.lock();
}
