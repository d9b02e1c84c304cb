#include "workspace/SXCueBatch.h"

#include "framework/SXCueSheet.h"

#include <QFileInfo>
#include <QHash>
#include <QSet>

namespace {
bool isSheet(const QString& path) {
    return QFileInfo(path).suffix().compare(QLatin1String("cue"), Qt::CaseInsensitive) == 0;
}
} // namespace

SXMusicInfoList SXCueBatch::items(const QStringList& candidates, const QString& container,
                                  const SXMusicInfoList& current) {
    // Every sheet is read first, so that the audio files they play are known before the files
    // themselves come up in the list.
    QHash<QString, SXCueSheetResult> sheets;
    QSet<QString> played;
    for (const QString& path : candidates) {
        if (!isSheet(path))
            continue;
        const SXCueSheetResult sheet = SXCueSheet::read(path);
        for (const SXCueTrack& track : sheet.tracks)
            played.insert(QFileInfo(track.file).absoluteFilePath());
        sheets.insert(path, sheet);
    }
    QSet<QString> present;
    for (const SXMusicInfoPtr& item : current)
        present.insert(item->strFilePath());

    SXMusicInfoList batch;
    const auto addTracks = [&](const QList<SXCueTrack>& tracks) {
        for (const SXCueTrack& track : tracks) {
            const QString identity = track.identity();
            if (present.contains(identity))
                continue;
            present.insert(identity);
            batch.append(SXMusicInfo::newForCueTrack(track, container));
        }
    };
    for (const QString& path : candidates) {
        if (isSheet(path)) {
            const SXCueSheetResult& sheet = sheets[path];
            if (sheet.error.isEmpty()) {
                addTracks(sheet.tracks);
            } else {
                const SXMusicInfoPtr failed = SXMusicInfo::newForSource(path, container);
                failed->mediaInfo()->setFailReason(sheet.error);
                batch.append(failed);
            }
            continue;
        }
        if (played.contains(QFileInfo(path).absoluteFilePath()))
            continue;
        const SXCueSheetResult embedded = SXCueSheet::embedded(path);
        if (!embedded.tracks.isEmpty())
            addTracks(embedded.tracks);
        else
            batch.append(SXMusicInfo::newForSource(path, container));
    }
    return batch;
}
