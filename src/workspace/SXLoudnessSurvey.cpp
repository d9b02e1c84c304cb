#include "workspace/SXLoudnessSurvey.h"

#include "base/SXLog.h"
#include "framework/MTEAudioFile.h"

#include <QFileInfo>
#include <QHash>
#include <QPointer>

#include <algorithm>

SXLoudnessSurvey::SXLoudnessSurvey(QList<Entry> entries, int threads, QObject* parent)
    : QObject(parent)
    , m_entries(std::move(entries))
    , m_measurements(std::size_t(m_entries.size()))
    , m_errors(std::size_t(m_entries.size())) {
    m_pool.setMaxThreadCount(std::max(threads, 1));
}

SXLoudnessSurvey::~SXLoudnessSurvey() {
    cancel();
    wait();
}

void SXLoudnessSurvey::start() {
    m_left = m_entries.size();
    if (m_entries.isEmpty()) {
        QMetaObject::invokeMethod(this, &SXLoudnessSurvey::complete, Qt::QueuedConnection);
        return;
    }
    for (qsizetype i = 0; i < m_entries.size(); ++i)
        m_pool.start([this, i] { measureOne(i); });
}

void SXLoudnessSurvey::cancel() {
    m_cancel = true;
}

void SXLoudnessSurvey::wait() {
    m_pool.waitForDone();
}

QString SXLoudnessSurvey::albumKey(const SXMusicInfo& item, const QString& container) {
    const std::shared_ptr<MTEAudioFile> tags = item.metHandler();
    const QString album = tags ? tags->album().trimmed() : QString();
    // The separators cannot occur in a tag or a path, so no two albums share a key by accident.
    if (!album.isEmpty())
        return container + u'\x1f' + album + u'\x1e' +
               (tags ? tags->albumArtist().trimmed() : QString());
    return container + u'\x1d' + QFileInfo(item.strFilePath()).absolutePath();
}

void SXLoudnessSurvey::measureOne(qsizetype index) {
    const ConvertJob& job = m_entries.at(index).job;
    if (!m_cancel) {
        QString error;
        m_measurements[std::size_t(index)] =
            HVLoudness::measure(job.sourcePath, job.loudness.wantsAlbum(), &m_cancel, &error);
        m_errors[std::size_t(index)] = error;
    }
    // The last one hands the results to the owner's thread, which reads them all.
    if (--m_left == 0)
        QMetaObject::invokeMethod(this, &SXLoudnessSurvey::complete, Qt::QueuedConnection);
}

void SXLoudnessSurvey::complete() {
    // Each album's loudness over all of its tracks' blocks, and its loudest peak.
    QHash<QString, QList<HVLoudnessMeasurement>> albums;
    for (qsizetype i = 0; i < m_entries.size(); ++i) {
        const std::optional<HVLoudnessMeasurement>& measured = m_measurements[std::size_t(i)];
        if (measured && m_entries.at(i).job.loudness.wantsAlbum())
            albums[m_entries.at(i).album].append(*measured);
    }
    QHash<QString, std::pair<std::optional<double>, double>> albumValues;
    for (auto album = albums.cbegin(); album != albums.cend(); ++album) {
        double peak = 0;
        for (const HVLoudnessMeasurement& track : album.value())
            peak = std::max(peak, track.truePeak);
        const std::optional<double> loudness = HVLoudness::albumLoudness(album.value());
        albumValues.insert(
            album.key(),
            {loudness ? std::optional(ConvertLoudness::gainFor(*loudness)) : std::nullopt, peak});
    }

    m_jobs.clear();
    for (qsizetype i = 0; i < m_entries.size(); ++i) {
        ConvertJob job = m_entries.at(i).job;
        const std::optional<HVLoudnessMeasurement>& measured = m_measurements[std::size_t(i)];
        if (!measured) {
            job.loudness.failure = m_errors[std::size_t(i)];
            SXLog::line(QStringLiteral("loudness not measured: %1: %2")
                            .arg(job.sourcePath, job.loudness.failure));
        } else {
            if (measured->integrated)
                job.loudness.trackGain = ConvertLoudness::gainFor(*measured->integrated);
            job.loudness.trackPeak = measured->truePeak;
            if (job.loudness.wantsAlbum()) {
                const auto values = albumValues.value(m_entries.at(i).album);
                job.loudness.albumGain = values.first;
                job.loudness.albumPeak = values.second;
            }
        }
        m_jobs.append(std::move(job));
    }
    // The meters held every album's blocks; they are not needed any more.
    m_measurements.assign(m_measurements.size(), std::nullopt);
    Q_EMIT finished();
}
