#include "engine/ConvertWorkerRun.h"

#include "base/SXLog.h"
#include "engine/ConvertFailure.h"
#include "engine/TranscodeWorker.h"
#include "engine/TranscodeWorkerPool.h"

#include <QCoreApplication>
#include <QFile>
#include <QMap>
#include <chrono>
#include <csignal>
#include <memory>

namespace {
using Clock = std::chrono::steady_clock;
// How often the wait looks at cancel and pause requests.
constexpr int kPollMs = 100;
// After a cancel the worker closes its output first; one still busy after this long is killed.
constexpr auto kStopGrace = std::chrono::seconds(10);
std::atomic<qint64> g_nextJobId{1};

struct Report {
    QByteArray word;
    QMap<QByteArray, QByteArray> fields;
};

Report parse(const QByteArray& line) {
    Report report;
    const QList<QByteArray> parts = line.split('\t');
    report.word = parts.value(0);
    for (qsizetype i = 1; i < parts.size(); ++i) {
        const qsizetype equals = parts[i].indexOf('=');
        if (equals > 0)
            report.fields.insert(parts[i].left(equals),
                                 TranscodeWorker::decode(parts[i].mid(equals + 1)));
    }
    return report;
}

// The worker's failure in the user's words: ffmpeg's words for it are recognised as ffmpeg's.
QString failureReason(const QString& words) {
    QString reason = ConvertFailure::fromFfmpegOutput(words);
    if (reason.isEmpty())
        reason = ConvertFailure::decodingIn(words);
    if (reason.isEmpty())
        reason =
            QCoreApplication::translate("ConvertFailure", "The converter failed: %1").arg(words);
    return reason;
}
} // namespace

QByteArray ConvertWorkerRun::jobLine(qint64 id, const QString& source, const QString& output,
                                     const ConvertEncoderSettings& settings) {
    QByteArray line = "job\tid=" + QByteArray::number(id);
    line += "\tin=" + TranscodeWorker::encode(QFile::encodeName(source));
    line += "\tout=" + TranscodeWorker::encode(QFile::encodeName(output));
    line += "\tcodec=" + TranscodeWorker::encode(settings.encoder.toUtf8());
    line += "\tar=" + QByteArray::number(settings.sampleRate);
    line += "\tb=" + QByteArray::number(settings.bitRate);
    line += "\tac=" + QByteArray::number(settings.channels);
    return line;
}

void ConvertWorkerRun::publish(pid_t pid) {
    std::lock_guard<std::mutex> locker(m_lock);
    m_pid = pid;
    if (pid > 0 && m_paused)
        ::kill(pid, SIGSTOP);
}

ConvertWorkerRun::Result ConvertWorkerRun::run(const QString& workerProgram, const QString& source,
                                               const QString& output,
                                               const ConvertEncoderSettings& settings,
                                               double seconds, const Progress& progress) {
    if (m_cancel)
        return {Result::Kind::Cancelled, {}, {}};
    TranscodeWorkerPool& pool = TranscodeWorkerPool::instance();
    std::unique_ptr<TranscodeWorker> worker = pool.acquire(workerProgram);
    const qint64 id = g_nextJobId.fetch_add(1);
    const QByteArray job = jobLine(id, source, output, settings);
    if (worker && !worker->send(job)) {
        worker = pool.acquire(workerProgram); // the idle one died unseen: a new one
        if (worker && !worker->send(job))
            worker.reset();
    }
    if (!worker)
        return {};
    SXLog::line(QStringLiteral("worker %1 job %2").arg(worker->pid()).arg(id));
    publish(worker->pid());
    const QByteArray idText = QByteArray::number(id);
    const double sampleRate = settings.sampleRate;

    Result result;
    bool cancelSent = false;
    Clock::time_point lastReport = Clock::now();
    Clock::time_point cancelSince;
    bool keepWorker = false;
    while (true) {
        if (m_cancel && !cancelSent) {
            worker->signal(SIGCONT); // a stopped worker could not answer
            cancelSent = true;
            cancelSince = Clock::now();
            SXLog::line(QStringLiteral("worker %1: cancel job %2").arg(worker->pid()).arg(id));
            if (!worker->send("cancel\tid=" + idText)) {
                result.kind = Result::Kind::Cancelled;
                break;
            }
        }
        QByteArray line;
        const TranscodeWorker::Read read = worker->readLine(kPollMs, &line);
        const Clock::time_point now = Clock::now();
        if (read == TranscodeWorker::Read::Ended) {
            result.kind = cancelSent ? Result::Kind::Cancelled : Result::Kind::Failed;
            result.reason = worker->howItEnded();
            break;
        }
        if (read == TranscodeWorker::Read::Timeout) {
            if (m_paused && !cancelSent)
                lastReport = now; // a paused job is not hanging
            if (cancelSent && now - cancelSince > kStopGrace) {
                worker->kill();
                result.kind = Result::Kind::Cancelled;
                break;
            }
            const auto hang = TranscodeWorkerPool::hangTimeout();
            if (!cancelSent && now - lastReport > hang) {
                worker->kill();
                worker->howItEnded();
                const int seconds =
                    int(std::chrono::duration_cast<std::chrono::seconds>(hang).count());
                result.kind = Result::Kind::Failed;
                result.reason = QCoreApplication::translate(
                    "ConvertFailure", "The converter stopped responding for %n seconds", nullptr,
                    seconds);
                break;
            }
            continue;
        }
        lastReport = now;
        const Report report = parse(line);
        if (report.fields.value("id") != idText)
            continue;
        if (report.word == "progress") {
            const double total =
                seconds > 0 ? seconds * sampleRate : report.fields.value("total").toDouble();
            if (total > 0 && progress && !cancelSent)
                progress(report.fields.value("done").toDouble() * 100.0 / total);
            continue;
        }
        keepWorker = true;
        if (report.word == "done") {
            result.kind = cancelSent ? Result::Kind::Cancelled : Result::Kind::Done;
            result.decoding = QString::fromUtf8(report.fields.value("decoding"));
        } else if (report.word == "failed") {
            result.kind = cancelSent ? Result::Kind::Cancelled : Result::Kind::Failed;
            result.reason = failureReason(QString::fromUtf8(report.fields.value("reason")));
        } else {
            result.kind = Result::Kind::Cancelled;
        }
        break;
    }
    publish(0);
    static const char* const kKinds[] = {"done", "failed", "cancelled", "not started"};
    SXLog::line(QStringLiteral("worker %1: job %2 %3 %4")
                    .arg(worker->pid())
                    .arg(id)
                    .arg(QLatin1String(kKinds[int(result.kind)]), result.reason)
                    .trimmed());
    if (keepWorker) {
        worker->signal(SIGCONT);
        pool.release(std::move(worker), workerProgram);
    }
    return result;
}

void ConvertWorkerRun::cancel() {
    m_cancel = true;
}

void ConvertWorkerRun::pause() {
    std::lock_guard<std::mutex> locker(m_lock);
    m_paused = true;
    if (m_pid > 0)
        ::kill(m_pid, SIGSTOP);
}

void ConvertWorkerRun::resume() {
    std::lock_guard<std::mutex> locker(m_lock);
    m_paused = false;
    if (m_pid > 0)
        ::kill(m_pid, SIGCONT);
}
