#include "player/HVPlayer.h"

#include "framework/HVMediaInfoItem.h"
#include "player/HVAudioDecoder.h"

#include <QAudioDevice>
#include <QAudioSink>
#include <QMediaDevices>
#include <QTimer>

namespace {
// How often the main thread tops up the sink, and how far the worker decodes ahead.
constexpr int kFeedIntervalMs = 20;
constexpr double kDecodeAheadSeconds = 1.0;

const QString kNoDevice = QStringLiteral(
    "No sound output device is available. The preview needs the desktop's sound server "
    "(PulseAudio, or PipeWire through its PulseAudio interface).");
const QString kOpenFailed = QStringLiteral("The sound output could not be opened.");
} // namespace

HVPlayer::HVPlayer(QObject* parent)
    : QObject(parent) {}

HVPlayer::~HVPlayer() {
    stop();
}

void HVPlayer::flushWithItem(const HVMediaInfoItem& item, double startSeconds, double endSeconds) {
    stop();
    m_path = item.filePath();
    m_rangeStart = startSeconds;
    m_rangeEnd = endSeconds;
    m_duration.store(item.duration());
}

void HVPlayer::showAudio() {
    stop();
    const QAudioDevice device = QMediaDevices::defaultAudioOutput();
    if (device.isNull()) {
        failLater(kNoDevice);
        return;
    }
    const QAudioFormat preferred = device.preferredFormat();
    m_format.setSampleRate(preferred.sampleRate() >= 8000 ? preferred.sampleRate() : 44100);
    m_format.setChannelCount(qBound(1, device.maximumChannelCount(), 2));
    m_format.setSampleFormat(QAudioFormat::Int16);
    // Not a child: when it fails it is released after its own signal, maybe after this player.
    m_sink = new QAudioSink(device, m_format);
    m_sink->setVolume(m_volume);
    connect(m_sink, &QAudioSink::stateChanged, this, [this](QAudio::State state) {
        if (state == QAudio::StoppedState && m_sink && m_sink->error() != QAudio::NoError) {
            m_inSinkSignal = true; // the sink is still emitting: it goes later
            stop();
            m_inSinkSignal = false;
            failLater(kOpenFailed);
        }
    });
    if (!startSink()) {
        if (m_sink) { // not yet reported by the sink's own state change
            stop();
            failLater(kOpenFailed);
        }
        return;
    }
    m_shared = std::make_shared<Shared>();
    m_worker = std::thread(&HVPlayer::decodeLoop, this, m_path, m_rangeStart, m_rangeEnd);
    m_feedTimer = new QTimer(this);
    m_feedTimer->setInterval(kFeedIntervalMs);
    connect(m_feedTimer, &QTimer::timeout, this, &HVPlayer::feedSink);
    m_feedTimer->start();
}

bool HVPlayer::startSink() {
    m_output = m_sink->start();
    m_written = 0;
    if (!m_sink) // it failed and was stopped while starting
        return false;
    if (m_paused && m_output)
        m_sink->suspend();
    return m_output && m_sink->error() == QAudio::NoError;
}

void HVPlayer::failLater(const QString& message) {
    QMetaObject::invokeMethod(
        this, [this, message] { Q_EMIT outputFailed(message); }, Qt::QueuedConnection);
}

void HVPlayer::setVolume(double volume) {
    m_volume = qBound(0.0, volume / 128.0, 1.0);
    if (m_sink)
        m_sink->setVolume(m_volume);
}

void HVPlayer::togglePlayPause() {
    m_paused = !m_paused;
    if (!m_sink)
        return;
    if (m_paused)
        m_sink->suspend();
    else
        m_sink->resume();
}

void HVPlayer::stop() {
    stopRefreshTimer();
    joinWorker();
    if (m_sink) {
        QAudioSink* sink = m_sink;
        m_sink = nullptr; // its stateChanged must not find a half-stopped player
        sink->stop();
        if (m_inSinkSignal)
            sink->deleteLater();
        else
            delete sink;
    }
    m_output = nullptr;
    m_written = 0;
    m_base = 0;
    m_paused = false;
}

void HVPlayer::stopRefreshTimer() {
    if (m_feedTimer) {
        m_feedTimer->stop();
        m_feedTimer->deleteLater();
        m_feedTimer = nullptr;
    }
}

void HVPlayer::joinWorker() {
    if (!m_worker.joinable())
        return;
    {
        std::lock_guard<std::mutex> lock(m_shared->lock);
        m_shared->quit = true;
    }
    m_shared->wake.notify_all();
    m_worker.join();
    m_shared.reset();
}

double HVPlayer::currentPlaybackTime() const {
    if (!m_sink)
        return m_base;
    const int bytesPerSecond = m_format.bytesForDuration(1000000);
    const qint64 held = qMax(0, int(m_sink->bufferSize()) - int(m_sink->bytesFree()));
    const qint64 played = qMax<qint64>(0, m_written - held);
    return m_base + (bytesPerSecond > 0 ? double(played) / bytesPerSecond : 0.0);
}

void HVPlayer::seekto(double seconds) {
    if (!m_sink || !m_shared)
        return;
    {
        std::lock_guard<std::mutex> lock(m_shared->lock);
        m_shared->seekTo = seconds;
        m_shared->pcm.clear();
        m_shared->endOfStream = false;
        ++m_shared->generation;
    }
    m_shared->wake.notify_all();
    // What the sink still holds belongs to the old position: start it afresh.
    m_sink->stop();
    m_base = qMax(seconds, 0.0);
    if (m_sink && !startSink() && m_sink) {
        stop();
        failLater(kOpenFailed);
    }
}

void HVPlayer::feedSink() {
    if (!m_sink || !m_output || m_paused || !m_shared)
        return;
    const int frameBytes = m_format.bytesPerFrame();
    const int room = m_sink->bytesFree() / frameBytes * frameBytes;
    if (room <= 0)
        return;
    QByteArray block;
    {
        std::lock_guard<std::mutex> lock(m_shared->lock);
        const qsizetype take = qMin<qsizetype>(room, m_shared->pcm.size());
        block = m_shared->pcm.left(take);
        m_shared->pcm.remove(0, take);
    }
    m_shared->wake.notify_all();
    if (!block.isEmpty())
        m_written += qMax<qint64>(0, m_output->write(block));
}

// The worker: opens the file, then keeps about a second decoded ahead of the sink until it is
// told to quit. A file it cannot decode simply plays nothing.
void HVPlayer::decodeLoop(QString path, double startSeconds, double endSeconds) {
    const std::shared_ptr<Shared> shared = m_shared;
    HVAudioDecoder decoder(m_format.sampleRate(), m_format.channelCount());
    const bool opened = decoder.open(path);
    if (opened && (startSeconds > 0 || endSeconds >= 0))
        decoder.limitTo(startSeconds, endSeconds);
    if (opened && m_duration.load() <= 0)
        m_duration.store(decoder.duration());
    const qsizetype ahead = qsizetype(decoder.bytesPerSecond() * kDecodeAheadSeconds);
    std::unique_lock<std::mutex> lock(shared->lock);
    shared->endOfStream = !opened;
    for (;;) {
        shared->wake.wait(lock, [&] {
            return shared->quit || shared->seekTo ||
                   (!shared->endOfStream && shared->pcm.size() < ahead);
        });
        if (shared->quit)
            return;
        if (shared->seekTo) {
            const double target = *shared->seekTo;
            shared->seekTo.reset();
            lock.unlock();
            decoder.seek(target);
            lock.lock();
            continue;
        }
        const quint64 generation = shared->generation;
        lock.unlock();
        const QByteArray block = decoder.decodeSome();
        lock.lock();
        if (generation != shared->generation)
            continue; // decoded from before a seek
        if (block.isEmpty())
            shared->endOfStream = true;
        else
            shared->pcm.append(block);
    }
}
