#pragma once

#include "model/SXMusicInfo.h"

#include <QSet>
#include <optional>

class LSMediaLoader;

// Receives a loader's reports. Every call arrives on the loader's worker thread, except the
// completion of an empty batch, which comes at once on the thread that handed the batch over.
class LSMediaLoaderListener {
public:
    virtual ~LSMediaLoaderListener() = default;
    // Before `item` is probed.
    virtual void mediaLoaderStartLoadMusic(LSMediaLoader* loader, const SXMusicInfoPtr& item) {
        Q_UNUSED(loader);
        Q_UNUSED(item);
    }
    // After each item, probed or failed: (index + 1) / count, so the last report is exactly 1.
    virtual void mediaLoaderDidReceiveProgress(LSMediaLoader* loader, double progress) {
        Q_UNUSED(loader);
        Q_UNUSED(progress);
    }
    // Once at the end: the whole batch and the indexes whose probe failed. Both are absent after
    // a cancel and for an empty batch, so nothing of such a batch is kept.
    virtual void mediaLoaderDidCompleteLoadMedias(LSMediaLoader* loader,
                                                  const std::optional<SXMusicInfoList>& medias,
                                                  const std::optional<QSet<int>>& failedIndex) {
        Q_UNUSED(loader);
        Q_UNUSED(medias);
        Q_UNUSED(failedIndex);
    }
};
