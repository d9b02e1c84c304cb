#pragma once

#include <QAudioFormat>
#include <QByteArray>
#include <QObject>
#include <QString>
#include <atomic>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>

class HVMediaInfoItem;
class QAudioSink;
class QIODevice;
class QTimer;

// One playback of one file: a worker thread decodes ahead into a bounded buffer (HVAudioDecoder)
// and the main thread hands that buffer to a QAudioSink on the desktop's sound server as fast as
// the sink takes it. Nothing on the main thread waits for the disk or the decoder. The position
// is what the sink has been given minus what it still holds, from the last seek on.
//
// Without a sound server or an output device showAudio() fails cleanly: outputFailed() is
// emitted (queued, never from inside the call) and the player stays silent and idle.
class HVPlayer final : public QObject {
    Q_OBJECT
public:
    explicit HVPlayer(QObject* parent = nullptr);
    ~HVPlayer() override;

    // The file to play next, replacing whatever was loaded; opened on the worker.
    // A track of a cue sheet plays only its part, from `startSeconds` to `endSeconds` (negative:
    // the file's end); its positions count from the part's start.
    void flushWithItem(const HVMediaInfoItem& item, double startSeconds = 0,
                       double endSeconds = -1);
    void showAudio();
    // 0..128; 128 is the sink's full volume.
    void setVolume(double volume);
    void togglePlayPause();
    bool isPaused() const { return m_paused; }
    void stop();
    // Stops the feed timer; the player may then be released safely.
    void stopRefreshTimer();
    double currentPlaybackTime() const;
    // Seconds; 0 while the worker has not opened the file (or cannot).
    double duration() const { return m_duration.load(); }
    void seekto(double seconds);

Q_SIGNALS:
    void outputFailed(const QString& message);

private:
    struct Shared {
        std::mutex lock;
        std::condition_variable wake;
        QByteArray pcm;           // decoded, not yet handed to the sink
        bool endOfStream = false; // the decoder has nothing more
        bool quit = false;
        std::optional<double> seekTo;
        quint64 generation = 0; // bumped by every seek, so late blocks are dropped
    };

    void decodeLoop(QString path, double startSeconds, double endSeconds);
    void feedSink();
    bool startSink();
    void failLater(const QString& message);
    void joinWorker();

    QString m_path;
    QAudioFormat m_format;
    QAudioSink* m_sink = nullptr;
    QIODevice* m_output = nullptr;
    QTimer* m_feedTimer = nullptr;
    std::shared_ptr<Shared> m_shared;
    std::thread m_worker;
    std::atomic<double> m_duration{0};
    double m_volume = 1.0;
    double m_rangeStart = 0;
    double m_rangeEnd = -1;
    double m_base = 0;    // seconds at the last start or seek
    qint64 m_written = 0; // bytes handed to the sink since then
    bool m_paused = false;
    bool m_inSinkSignal = false;
};
