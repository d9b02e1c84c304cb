#include "engine/ConvertOutputFile.h"

#include "base/SXLog.h"
#include "engine/ConvertFailure.h"
#include "engine/ConvertJob.h"
#include "engine/ConvertOutputPath.h"
#include "engine/ConvertOutputRecord.h"
#include "engine/ConvertVerification.h"
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
#include <sys/stat.h>
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
    const QString base = job.outputFolder.isEmpty() ? QFileInfo(job.sourcePath).absolutePath()
                                                    : QDir(job.outputFolder).absolutePath();
    return job.outputSubfolder.isEmpty() ? base : base + QLatin1Char('/') + job.outputSubfolder;
}

QString ConvertOutputFile::plannedPath(const ConvertJob& job) {
    return folderFor(job) + QLatin1Char('/') + withExtension(job.outputName, job.extension);
}

QString ConvertOutputFile::makeFolders(const QString& folder) {
    QStringList missing;
    for (QString at = QDir::cleanPath(folder); !QFileInfo::exists(at) && !QDir(at).isRoot();
         at = QFileInfo(at).absolutePath())
        missing.prepend(at);
    for (const QString& at : std::as_const(missing)) {
        if (::mkdir(QFile::encodeName(at).constData(), 0777) == 0)
            m_madeFolders.append(at);
        else if (errno != EEXIST)
            return ConvertFailure::fromErrno(errno);
    }
    return {};
}

void ConvertOutputFile::removeMadeFolders() {
    // rmdir(2) removes only an empty folder: one where another conversion put its file stays.
    while (!m_madeFolders.isEmpty())
        ::rmdir(QFile::encodeName(m_madeFolders.takeLast()).constData());
}

bool ConvertOutputFile::isTemporaryName(const QString& fileName) {
    return temporaryPattern().match(fileName).hasMatch();
}

QString ConvertOutputFile::prepare(const ConvertJob& job, const QString& folder,
                                   const QString& encodeExt) {
    discard();
    const QString finalExt = job.extension;
    const QString encodeAs = encodeExt.isEmpty() ? finalExt : encodeExt;
    // A folder made here can vanish again before the file is in it, when another conversion
    // that made it fails and tidies up: then it is made once more.
    for (int attempt = 0;; ++attempt) {
        if (const QString problem = makeFolders(folder); !problem.isEmpty()) {
            SXLog::line(QStringLiteral("can't make the output folder %1: %2").arg(folder, problem));
            removeMadeFolders();
            return problem;
        }
        // The run cleared its output folder of killed runs' leftovers at Start; the folders
        // below it that names lead into are only known now.
        if (attempt == 0 && !job.outputSubfolder.isEmpty() && m_madeFolders.isEmpty())
            removeLeftovers(folder);
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
        if (errno == ENOENT && attempt < 3)
            continue;
        if (errno != EEXIST) {
            const int error = errno;
            SXLog::line(QStringLiteral("can't create output file in %1: %2")
                            .arg(folder, QString::fromLocal8Bit(std::strerror(error))));
            removeMadeFolders();
            return ConvertFailure::fromErrno(error);
        }
    }
    const QString planned = folder + QLatin1Char('/') + withExtension(job.outputName, finalExt);
    m_replacing = job.existing == ConvertExisting::Replace && !job.nameSharedInRun &&
                  ConvertOutputRecord::wroteThis(planned) && ConvertOutputPath::claimExact(planned);
    m_final = m_replacing ? planned : ConvertOutputPath::claim(planned, finalExt);
    m_claimed = true;
    return {};
}

QString ConvertOutputFile::commitReplacing() {
    const QByteArray source = QFile::encodeName(m_temporary);
    // rename(2) swaps the new file in at once: at every moment the name holds either the old
    // output or the new one, whole.
    if (::rename(source.constData(), QFile::encodeName(m_final).constData()) != 0) {
        const QString reason = ConvertFailure::notMoved(ConvertFailure::fromErrno(errno));
        discard();
        return reason;
    }
    SXLog::line(QStringLiteral("replaced the earlier output %1").arg(m_final));
    ConvertOutputRecord::remember(m_final);
    ConvertOutputPath::release(m_final);
    m_claimed = false;
    m_temporary.clear();
    m_madeFolders.clear();
    return {};
}

QString ConvertOutputFile::commit() {
    // What stood there may have been changed or swapped for a file of the user's since prepare()
    // looked: then it is kept and the new output numbered like any other.
    if (m_replacing && ConvertOutputRecord::wroteThis(m_final))
        return commitReplacing();
    m_replacing = false;
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
            ConvertOutputRecord::remember(m_final);
            m_claimed = false;
            m_temporary.clear();
            m_madeFolders.clear();
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
    m_replacing = false;
    removeMadeFolders();
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

QString ConvertOutputFile::earlierResult(const ConvertJob& job) {
    if (job.existing != ConvertExisting::Skip || job.nameSharedInRun)
        return {};
    const QString planned = plannedPath(job);
    struct stat output {
    }, source{};
    if (::stat(QFile::encodeName(planned).constData(), &output) != 0 || !S_ISREG(output.st_mode) ||
        ::stat(QFile::encodeName(job.sourcePath).constData(), &source) != 0)
        return {};
    // A name another conversion holds is being written right now; it is no earlier result.
    const auto newer = [](const timespec& a, const timespec& b) {
        return a.tv_sec != b.tv_sec ? a.tv_sec > b.tv_sec : a.tv_nsec > b.tv_nsec;
    };
    if (ConvertOutputPath::isClaimed(planned) || !newer(output.st_mtim, source.st_mtim))
        return {};
    // Whole means what a fresh output must be: the codec the encoder writes, the source's length.
    const QString problem = ConvertVerification::check(
        planned, job.encoder, job.sourceDurationExact ? job.sourceDuration : 0.0);
    return problem.isEmpty() ? planned : QString();
}
