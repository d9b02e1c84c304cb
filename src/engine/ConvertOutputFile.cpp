#include "engine/ConvertOutputFile.h"

#include "base/SXLog.h"
#include "engine/ConvertFailure.h"
#include "engine/ConvertJob.h"
#include "engine/ConvertOutputPath.h"
#include "model/LSMedia.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace {
constexpr int kMaxMoveRounds = 10000;
std::atomic<int> g_temporaryCounter{0};

const QRegularExpression& temporaryPattern() {
    static const QRegularExpression pattern(
        QStringLiteral(R"(^\.sonoria-part-(\d+)-\d+(\.[^.]*)?$)"));
    return pattern;
}

QString withExtension(const QString& name, const QString& ext) {
    return ext.isEmpty() ? name : name + QLatin1Char('.') + ext;
}
} // namespace

ConvertOutputFile::~ConvertOutputFile() {
    discard();
}

QString ConvertOutputFile::folderFor(const ConvertJob& job) {
    return job.outputFolder.isEmpty() ? QFileInfo(job.sourcePath).absolutePath()
                                      : QDir(job.outputFolder).absolutePath();
}

bool ConvertOutputFile::isTemporaryName(const QString& fileName) {
    return temporaryPattern().match(fileName).hasMatch();
}

QString ConvertOutputFile::prepare(const ConvertJob& job, const QString& folder,
                                   const QString& encodeExt) {
    discard();
    const QString finalExt = job.extension;
    const QString encodeAs = encodeExt.isEmpty() ? finalExt : encodeExt;
    for (;;) {
        const QString name = QStringLiteral(".sonoria-part-%1-%2")
                                 .arg(QCoreApplication::applicationPid())
                                 .arg(g_temporaryCounter.fetch_add(1));
        const QString path = folder + QLatin1Char('/') + withExtension(name, encodeAs);
        const int fd = ::open(QFile::encodeName(path).constData(),
                              O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (fd >= 0) {
            ::close(fd);
            m_temporary = path;
            break;
        }
        if (errno != EEXIST) {
            const int error = errno;
            SXLog::line(QStringLiteral("can't create output file in %1: %2")
                            .arg(folder, QString::fromLocal8Bit(std::strerror(error))));
            return ConvertFailure::fromErrno(error);
        }
    }
    m_final = ConvertOutputPath::claim(
        folder + QLatin1Char('/') + withExtension(job.outputName, finalExt), finalExt);
    m_claimed = true;
    return {};
}

QString ConvertOutputFile::commit() {
    const QString ext = QFileInfo(m_final).suffix();
    QString wanted = m_final;
    for (int round = 0; round < kMaxMoveRounds; ++round) {
        const int error = ConvertOutputPath::renameNoReplace(m_temporary, wanted);
        if (error == 0) {
            if (wanted != m_final) {
                SXLog::line(
                    QStringLiteral("%1 was taken meanwhile; wrote %2").arg(m_final, wanted));
                ConvertOutputPath::release(m_final);
                m_final = wanted;
            }
            ConvertOutputPath::release(m_final);
            m_claimed = false;
            m_temporary.clear();
            return {};
        }
        if (error != EEXIST) {
            const QString reason = ConvertFailure::notMoved(ConvertFailure::fromErrno(error));
            discard();
            return reason;
        }
        // Another program created the name after we claimed it: take the next free one,
        // claimed like the first so this run's other items keep away from it.
        if (wanted != m_final)
            ConvertOutputPath::release(wanted);
        wanted = ConvertOutputPath::claim(m_final, ext);
    }
    discard();
    return ConvertFailure::notMoved(QStringLiteral("no free name"));
}

void ConvertOutputFile::discard() {
    if (!m_temporary.isEmpty()) {
        ::unlink(QFile::encodeName(m_temporary).constData());
        m_temporary.clear();
    }
    if (m_claimed) {
        ConvertOutputPath::release(m_final);
        m_claimed = false;
    }
}

void ConvertOutputFile::removeLeftovers(const QString& folder) {
    const QDir dir(folder);
    const QStringList hidden = dir.entryList({QStringLiteral(".sonoria-part-*")},
                                             QDir::Files | QDir::Hidden | QDir::System);
    for (const QString& name : hidden) {
        const QRegularExpressionMatch match = temporaryPattern().match(name);
        if (!match.hasMatch())
            continue;
        const pid_t owner = static_cast<pid_t>(match.captured(1).toLongLong());
        // A live owner may still be writing; a process id of ours is a file this process
        // holds. Only a file whose writer is gone is a leftover.
        if (owner <= 0 || owner == ::getpid() || ::kill(owner, 0) == 0 || errno != ESRCH)
            continue;
        if (QFile::remove(dir.filePath(name)))
            SXLog::line(QStringLiteral("removed the leftover %1").arg(dir.filePath(name)));
    }
}
