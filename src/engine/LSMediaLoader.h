#pragma once

#include "engine/LSMediaLoaderListener.h"

#include <QMutex>
#include <QWaitCondition>

#include <atomic>
#include <functional>
#include <memory>
#include <thread>
#include <vector>

// Probes one batch of added items on its own worker thread: audio properties, file size and
// date, and the tag handle of each item, reporting to its listener as it goes. A loader serves a
// single batch; once cancelled it stays cancelled. The worker holds a reference to the loader,
// so the caller may drop its own at any time; a caller that waits (waitUntilDone) also knows the
// worker thread has ended, so nothing of it runs on after the program's end.
class LSMediaLoader : public std::enable_shared_from_this<LSMediaLoader> {
public:
    static std::shared_ptr<LSMediaLoader> create();
    LSMediaLoader(const LSMediaLoader&) = delete;
    LSMediaLoader& operator=(const LSMediaLoader&) = delete;
    // The last reference may be a worker's own: its thread is let go then, the others joined.
    ~LSMediaLoader();

    // Not owned; may be null. Set it before loading.
    void setListener(LSMediaLoaderListener* listener);
    LSMediaLoaderListener* listener() const;

    // Starts a worker for a non-empty batch and returns at once. An empty batch is
    // completed on the calling thread before this returns.
    void loadMediasWithMediaArray(const SXMusicInfoList& medias);
    // Makes the batch with `makeBatch` on a worker of its own (scanning a large drop takes a
    // while), then loads it there. waitUntilDone() waits for the making too: a batch still being
    // made when its window goes must not read the settings of a program that is ending.
    void loadBatchMadeBy(std::function<SXMusicInfoList()> makeBatch);

    // Noticed by the worker before the next item and after the current item's probe.
    void cancel();
    bool bCanceled() const;

    // Blocks until no worker of this loader runs (its completion has been delivered and its
    // thread has ended, with the thread's own storage). False when the timeout (milliseconds;
    // negative waits for ever) ran out first.
    bool waitUntilDone(int timeoutMs = -1);

private:
    LSMediaLoader() = default;
    void joinEndedWorkers();
    void loadMediasThread(const SXMusicInfoList& medias);
    void completeLoad(const std::optional<SXMusicInfoList>& medias,
                      const std::optional<QSet<int>>& failedIndex);
    void workerFinished();

    std::atomic<LSMediaLoaderListener*> m_listener{nullptr};
    std::atomic<bool> m_bCanceled{false};
    mutable QMutex m_lock;
    QWaitCondition m_idle;
    int m_runningWorkers = 0;
    // Each worker's thread, joined once it has reported; under m_lock.
    std::vector<std::thread> m_threads;
};

using LSMediaLoaderPtr = std::shared_ptr<LSMediaLoader>;
