#include "ConvertTestSupport.h"

#include "engine/ConvertOutputFile.h"
#include "engine/TranscodeWorkerPool.h"
#include "framework/MTEAudioFileMgr.h"
#include "support/LogCapture.h"
#include "support/TestSupport.h"

#include <QFile>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <QThread>

#include <csignal>
#include <sys/mount.h>
#include <sys/resource.h>
#include <unistd.h>

using namespace ConvertTest;

namespace {

// A small file system of its own for one test, unmounted again by the destructor. Mounting
// needs privileges; where it is refused the test says so and works with what is left.
struct SmallMount {
    SmallMount(const QString& folder, const QByteArray& options)
        : where(folder) {
        QDir().mkpath(where);
        mounted = ::mount("tmpfs", QFile::encodeName(where).constData(), "tmpfs", 0,
                          options.constData()) == 0;
    }
    ~SmallMount() {
        if (mounted)
            ::umount2(QFile::encodeName(where).constData(), MNT_DETACH);
    }
    const QString where;
    bool mounted = false;
};

// A file-size limit with SIGXFSZ ignored, as a quota or a small volume makes writes fail:
// the child inherits both, so its writes past the limit fail with EFBIG.
struct FileSizeLimit {
    explicit FileSizeLimit(rlim_t bytes) {
        ::getrlimit(RLIMIT_FSIZE, &m_saved);
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
        rlimit limit = m_saved;
        limit.rlim_cur = bytes;
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() {
        ::setrlimit(RLIMIT_FSIZE, &m_saved);
        std::signal(SIGXFSZ, m_handler);
    }
    rlimit m_saved{};
    void (*m_handler)(int) = nullptr;
};

} // namespace

class ConvertFaultsTest : public QObject {
    Q_OBJECT
    QTemporaryDir m_dir;

private Q_SLOTS:
    // A worker started for this case, with the limits the case sets (and none of an earlier one).
    void init() { TranscodeWorkerPool::instance().endIdle(); }

    // Whatever goes wrong, the item ends failed with its reason, and the destination holds
    // neither a final-named file nor a temporary one. Where nothing can come of a child (no
    // ffmpeg, no folder to write to), none is started.
    void brokenOutputsNeverCount_data() {
        QTest::addColumn<QString>("fault");
        QTest::addColumn<QString>("reason");
        QTest::addColumn<int>("children"); // ffmpeg children or worker jobs that ended
        QTest::newRow("full file system") << u"full"_s << u"No space left on device"_s << 1;
        QTest::newRow("file size limit") << u"limit"_s << u"larger than"_s << 1;
        QTest::newRow("read-only file system") << u"readonly"_s << u"read-only"_s << 0;
        QTest::newRow("no room for the tags")
            << u"tags"_s << u"tags could not be written|cannot be read back"_s << 1;
        QTest::newRow("title too long for WMA") << u"wma"_s << u"tags could not be written"_s << 1;
        QTest::newRow("FLAC without frames") << u"noframes"_s << u"no audio"_s << 1;
        QTest::newRow("one sample to MP2")
            << u"onesample"_s << u"no audio|cannot be read back|shorter"_s << 1;
        QTest::newRow("shorter than the source") << u"short"_s << u"shorter than the source"_s << 1;
        QTest::newRow("no audio stream") << u"video"_s << u"does not contain any stream"_s << 1;
        QTest::newRow("unknown encoder") << u"encoder"_s << u"Unknown encoder"_s << 1;
        QTest::newRow("unwritable output folder") << u"folder"_s << u"output folder"_s << 0;
        QTest::newRow("no ffmpeg on the path") << u"path"_s << u"ffmpeg was not found"_s << 0;
    }
    void brokenOutputsNeverCount() {
        QFETCH(QString, fault);
        QFETCH(QString, reason);
        QFETCH(int, children);
        QTemporaryDir dir;
        QString folder = dir.filePath(u"out"_s);
        QDir().mkpath(folder);
        QString source = dir.filePath(u"in.wav"_s);
        double seconds = 10.0;
        QString codec = u"libmp3lame"_s, ext = u"mp3"_s;
        std::unique_ptr<SmallMount> mount;
        std::unique_ptr<FileSizeLimit> limit;
        if (fault == "full"_L1 || fault == "readonly"_L1 || fault == "tags"_L1) {
            const QByteArray options = fault == "readonly"_L1 ? "ro,size=1m"
                                       : fault == "tags"_L1   ? "size=256k"
                                                              : "size=64k";
            mount = std::make_unique<SmallMount>(folder, options);
            if (!mount->mounted)
                QSKIP("mounting a tmpfs is not allowed here; the file size limit row covers it");
        }
        if (fault == "tags"_L1) {
            // One second of MP3 fits; a cover of about a megabyte of noise does not.
            seconds = 1.0;
            source = dir.filePath(u"in.mp3"_s);
            const QString cover = dir.filePath(u"cover.png"_s);
            QVERIFY(SonoriaTest::makeMedia(cover, u"nullsrc=s=600x600,geq=random(1)*255:128:128"_s,
                                           {u"-frames:v"_s, u"1"_s}));
            QVERIFY(QFileInfo(cover).size() > 300 * 1024);
            QVERIFY(SonoriaTest::makeTone(source, seconds,
                                          {u"-i"_s, cover, u"-map"_s, u"0"_s, u"-map"_s, u"1"_s,
                                           u"-c:v"_s, u"copy"_s, u"-disposition:v"_s,
                                           u"attached_pic"_s}));
        } else if (fault == "wma"_L1) {
            // ffmpeg copies the title into the WMA header, which overflows; the worker copies
            // no tags, so only the ffmpeg child meets this fault.
            qputenv("SONORIA_ENGINE", "ffmpeg");
            seconds = 1.0;
            QVERIFY(SonoriaTest::makeTone(source, seconds,
                                          {u"-metadata"_s, u"title="_s + QString(40000, u'x')}));
            codec = u"wmav2"_s;
            ext = u"wma"_s;
        } else if (fault == "noframes"_L1) {
            seconds = 2.0;
            source = dir.filePath(u"in.flac"_s);
            QVERIFY(SonoriaTest::makeTone(source, seconds));
            QVERIFY(SonoriaTest::cutFlacAfterMetadata(source));
        } else if (fault == "onesample"_L1) {
            seconds = 1.0 / 44100;
            QVERIFY(SonoriaTest::makeMedia(source, u"sine=r=44100"_s,
                                           {u"-frames:a"_s, u"1"_s, u"-ac"_s, u"1"_s}));
            codec = u"mp2"_s;
            ext = u"mp2"_s;
        } else if (fault == "video"_L1) {
            seconds = 1.0;
            source = dir.filePath(u"in.mp4"_s);
            QVERIFY(SonoriaTest::makeMedia(source, u"testsrc=duration=1:size=64x64"_s));
        } else {
            QVERIFY(SonoriaTest::makeTone(source, fault == "short"_L1 ? 1.0 : seconds));
        }
        if (fault == "encoder"_L1)
            codec = u"no_such_encoder"_s;
        if (fault == "folder"_L1 && ::geteuid() == 0) {
            // Permissions do not stop root: a folder "inside" a regular file cannot be written.
            QVERIFY(SonoriaTest::writeFile(dir.filePath(u"blocker"_s), ""));
            folder = dir.filePath(u"blocker/out"_s);
        } else if (fault == "folder"_L1) {
            QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner));
        }
        const QByteArray path = qgetenv("PATH");
        if (fault == "path"_L1)
            qputenv("PATH", dir.path().toLocal8Bit());
        if (fault == "limit"_L1)
            limit = std::make_unique<FileSizeLimit>(48 * 1024);
        const QByteArray sourceHash = SonoriaTest::fileHash(source);
        // The record claims what the probe of the source said; "short" claims more.
        auto item = makeItem(source, fault == "short"_L1 ? 5.0 : seconds, u"X"_s, codec, ext);
        item->setMetHandler(MTEAudioFileMgr::createAudioFileWithPath(source, true));
        LogCapture log;
        Recorder recorder;
        auto operation = convert(item, folder, &recorder);
        limit.reset();
        qunsetenv("SONORIA_ENGINE");
        qputenv("PATH", path);
        QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);

        QCOMPARE(stateOf(item), int(CvtStateFailed));
        const QString said = item->mediaInfo()->failReason();
        QVERIFY2(
            said.contains(QRegularExpression(reason, QRegularExpression::CaseInsensitiveOption)),
            qPrintable(said));
        QCOMPARE(entries(folder), QStringList());
        QCOMPARE(SonoriaTest::fileHash(source), sourceHash);
        const QRegularExpression ended(u"^(exit code:|worker \\d+: job )"_s);
        QCOMPARE(log.lines().filter(ended).size(), children);
        if (children == 0)
            QCOMPARE(recorder.events(), QStringList{u"finish"_s});
        else
            QVERIFY2(recorder.isWellFormed(), qPrintable(recorder.events().join(u' ')));
    }

    // While the child writes, the destination shows only the hidden temporary file; the final
    // name appears once, whole, and the temporary file is gone.
    void finalNameOnlyForWholeFiles() {
        QTemporaryDir dir;
        const QString folder = dir.filePath(u"out"_s);
        const QString source = dir.filePath(u"long.wav"_s);
        QVERIFY(SonoriaTest::makeTone(source, 60.0));
        auto item = makeItem(source, 60.0, u"FLAC"_s, u"flac"_s, u"flac"_s);
        Recorder recorder;
        SXOperationQueue queue;
        auto operation = makeOperation(item, folder, &recorder);
        queue.addOperation(operation);
        bool sawTemporary = false;
        QSet<qint64> finalSizes; // every size the final name was seen with
        while (queue.operationCount() > 0) {
            for (const QString& name : entries(folder)) {
                if (ConvertOutputFile::isTemporaryName(name))
                    sawTemporary = true;
                else
                    finalSizes.insert(QFileInfo(folder + u'/' + name).size());
            }
            QThread::msleep(2);
        }
        queue.waitUntilAllOperationsAreFinished();
        QVERIFY(sawTemporary);
        QCOMPARE(stateOf(item), int(CvtStateFinished));
        QCOMPARE(entries(folder), QStringList{u"long.flac"_s});
        // A rename shows the whole file at once: never a smaller one under the final name.
        QVERIFY(finalSizes.isEmpty() ||
                finalSizes == QSet<qint64>{QFileInfo(folder + u"/long.flac"_s).size()});
        QCOMPARE(operation->strOutFilePath(), folder + u"/long.flac"_s);
        QVERIFY(item->mediaInfo()->failReason().isEmpty());
    }

    // A killed run's temporary file is removed by the next run into that folder; one whose
    // writer still lives is left alone.
    void leftoversOfDeadRunsGo() {
        QTemporaryDir dir;
        QString deadPid;
        QCOMPARE(SonoriaTest::run(u"sh"_s, {u"-c"_s, u"echo $$"_s}, &deadPid), 0);
        QProcess alive;
        alive.start(u"sleep"_s, {u"30"_s});
        QVERIFY(alive.waitForStarted());
        const QString dead = u".sonoria-part-%1-7.mp3"_s.arg(deadPid.trimmed());
        const QString live = u".sonoria-part-%1-0.mp3"_s.arg(alive.processId());
        const QString own = u".sonoria-part-%1-3.mp3"_s.arg(::getpid());
        for (const QString& name : {dead, live, own, u"song.mp3"_s, u".sonoria-partly.mp3"_s})
            QVERIFY(SonoriaTest::writeFile(dir.filePath(name), "x"));
        ConvertOutputFile::removeLeftovers(dir.path());
        alive.kill();
        alive.waitForFinished();
        QStringList expected{own, live, u".sonoria-partly.mp3"_s, u"song.mp3"_s};
        expected.sort();
        QCOMPARE(entries(dir.path()), expected);
    }
};

SONORIA_TEST_MAIN(ConvertFaultsTest)
#include "tst_convertfaults.moc"
