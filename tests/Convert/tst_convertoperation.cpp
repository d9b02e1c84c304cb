#include "ConvertTestSupport.h"

#include "Media/Framework/HVMediaInfo.h"
#include "Media/Framework/MTEAudioFileMgr.h"
#include "Shared/SXSettings.h"
#include "support/LogCapture.h"
#include "support/TestSupport.h"

#include <QFile>
#include <QSet>
#include <QTemporaryDir>
#include <unistd.h>

using namespace ConvertTest;

class ConvertOperationTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void finishedBesideSourceWithTagsAndArtwork();
    void failuresLeaveNothingBehind_data();
    void failuresLeaveNothingBehind();
    void missingEncoderProgramFails();
    void existingFilesAreNeverReplaced();
    void ringtoneMovesToFreeName();
    void parallelRunsNeverShareOutput();
    void awkwardNamesConvert_data();
    void awkwardNamesConvert();
    void commandLineAndChannelRule();
    void libraryDeliveryIsAnnounced();
};

void ConvertOperationTest::finishedBesideSourceWithTagsAndArtwork() {
    QTemporaryDir dir;
    const QString cover = dir.filePath(QStringLiteral("cover.png"));
    QVERIFY(SonoriaTest::makeMedia(cover, QStringLiteral("color=c=red:s=32x32"),
                                   {QStringLiteral("-frames:v"), QStringLiteral("1")}));
    const QString plain = dir.filePath(QStringLiteral("plain.mp3"));
    QVERIFY(SonoriaTest::makeTone(plain, 3.0));
    const QString source = dir.filePath(QStringLiteral("song.mp3"));
    QCOMPARE(SonoriaTest::run(
                 QStringLiteral("ffmpeg"),
                 {QStringLiteral("-nostdin"), QStringLiteral("-i"), plain, QStringLiteral("-i"),
                  cover, QStringLiteral("-map"), QStringLiteral("0"), QStringLiteral("-map"),
                  QStringLiteral("1"), QStringLiteral("-c"), QStringLiteral("copy"),
                  QStringLiteral("-metadata"), QStringLiteral("title=Night Drive"),
                  QStringLiteral("-metadata"), QStringLiteral("artist=The Tones"), source}),
             0);
    QFile::remove(plain);
    const QByteArray sourceHash = SonoriaTest::fileHash(source);

    auto item = makeItem(source, 3.0,
                         {QStringLiteral("AAC"), QStringLiteral("aac"), QStringLiteral("m4a")});
    item->setMetHandler(MTEAudioFileMgr::createAudioFileWithPath(source, true));
    QVERIFY(item->metHandler());
    const MTEArtworkList artwork = item->metHandler()->albumImg();
    QCOMPARE(artwork.size(), 1);

    LogCapture log;
    Recorder recorder;
    auto operation = convert(item, QString(), &recorder);

    const QString expected = dir.filePath(QStringLiteral("song.m4a"));
    QCOMPARE(stateOf(item), int(CvtStateFinished));
    QCOMPARE(operation->strOutFilePath(), expected);
    QCOMPARE(item->mediaInfo()->dProgress(), 100.0);
    QVERIFY2(recorder.isWellFormed(), qPrintable(recorder.events().join(u' ')));
    QVERIFY(log.contains(QStringLiteral("tOutFile:") + expected));
    QVERIFY(log.contains(QStringLiteral("exit code:0")));
    QCOMPARE(SonoriaTest::fileHash(source), sourceHash);

    const auto written = MTEAudioFileMgr::createAudioFileWithPath(expected, true);
    QVERIFY(written);
    QCOMPARE(written->title(), QStringLiteral("Night Drive"));
    QCOMPARE(written->artist(), QStringLiteral("The Tones"));
    QCOMPARE(written->albumImg().size(), 1);
    QCOMPARE(written->albumImg().first().data, artwork.first().data);
}

void ConvertOperationTest::failuresLeaveNothingBehind_data() {
    QTest::addColumn<QString>("kind");
    QTest::newRow("no audio stream") << "video";
    QTest::newRow("unknown encoder") << "encoder";
    QTest::newRow("unwritable output folder") << "folder";
}

void ConvertOperationTest::failuresLeaveNothingBehind() {
    QFETCH(QString, kind);
    QTemporaryDir dir;
    QString source = dir.filePath(QStringLiteral("in.wav"));
    Output out;
    QString folder = dir.filePath(QStringLiteral("out"));
    QVERIFY(QDir().mkpath(folder));
    if (kind == QLatin1String("video")) {
        source = dir.filePath(QStringLiteral("in.mp4"));
        QVERIFY(SonoriaTest::makeMedia(source, QStringLiteral("testsrc=duration=1:size=64x64")));
    } else {
        QVERIFY(SonoriaTest::makeTone(source, 1.0));
    }
    if (kind == QLatin1String("encoder"))
        out.codec = QStringLiteral("no_such_encoder");
    if (kind == QLatin1String("folder")) {
        if (::geteuid() == 0) {
            // Permissions do not stop root: a folder "inside" a regular file cannot be written.
            QFile blocker(dir.filePath(QStringLiteral("blocker")));
            QVERIFY(blocker.open(QIODevice::WriteOnly));
            folder = blocker.fileName() + QStringLiteral("/out");
        } else {
            QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner));
        }
    }
    const QStringList before = entries(dir.path());
    auto item = makeItem(source, 1.0, out);
    LogCapture log;
    Recorder recorder;
    convert(item, folder, &recorder);

    QCOMPARE(stateOf(item), int(CvtStateFailed));
    QVERIFY2(recorder.isWellFormed(), qPrintable(recorder.events().join(u' ')));
    QVERIFY(!log.contains(QStringLiteral("exit code:0")));
    QVERIFY(log.lines().filter(QStringLiteral("exit code:")).size() == 1);
    QCOMPARE(entries(dir.path()), before);
    if (QFileInfo(folder).isDir())
        QCOMPARE(entries(folder), QStringList());
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void ConvertOperationTest::missingEncoderProgramFails() {
    QTemporaryDir dir;
    const QString source = dir.filePath(QStringLiteral("in.wav"));
    QVERIFY(SonoriaTest::makeTone(source, 1.0));
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", dir.path().toLocal8Bit());
    LogCapture log;
    Recorder recorder;
    auto item = makeItem(source, 1.0);
    convert(item, QString(), &recorder);
    qputenv("PATH", path);
    QCOMPARE(stateOf(item), int(CvtStateFailed));
    QVERIFY(log.contains(QStringLiteral("ffmpeg not found")));
    QCOMPARE(recorder.events(), QStringList{QStringLiteral("finish")});
    QCOMPARE(entries(dir.path()), QStringList{QStringLiteral("in.wav")});
}

void ConvertOperationTest::existingFilesAreNeverReplaced() {
    QTemporaryDir dir;
    const QString source = dir.filePath(QStringLiteral("song.wav"));
    QVERIFY(SonoriaTest::makeTone(source, 1.0));
    const QString folder = dir.filePath(QStringLiteral("out"));
    QVERIFY(QDir().mkpath(folder));
    for (const QString& name : {QStringLiteral("song.mp3"), QStringLiteral("song(1).mp3")}) {
        QFile existing(folder + u'/' + name);
        QVERIFY(existing.open(QIODevice::WriteOnly));
        existing.write(name.toUtf8());
    }
    Recorder recorder;
    auto item = makeItem(source, 1.0);
    auto operation = convert(item, folder, &recorder);
    QCOMPARE(stateOf(item), int(CvtStateFinished));
    QCOMPARE(operation->strOutFilePath(), folder + QStringLiteral("/song(2).mp3"));
    QVERIFY(QFileInfo(operation->strOutFilePath()).size() > 0);
    for (const QString& name : {QStringLiteral("song.mp3"), QStringLiteral("song(1).mp3")}) {
        QFile existing(folder + u'/' + name);
        QVERIFY(existing.open(QIODevice::ReadOnly));
        QCOMPARE(existing.readAll(), name.toUtf8());
    }
}

void ConvertOperationTest::ringtoneMovesToFreeName() {
    QTemporaryDir dir;
    const QString source = dir.filePath(QStringLiteral("song.wav"));
    QVERIFY(SonoriaTest::makeTone(source, 1.0));
    const QString folder = dir.filePath(QStringLiteral("out"));
    QVERIFY(QDir().mkpath(folder));
    QFile taken(folder + QStringLiteral("/song.m4r"));
    QVERIFY(taken.open(QIODevice::WriteOnly));
    taken.write("an earlier ringtone");
    taken.close();

    Recorder recorder;
    auto item = makeItem(
        source, 1.0, {QStringLiteral("Ringtone"), QStringLiteral("aac"), QStringLiteral("m4r")});
    LogCapture log;
    auto operation = convert(item, folder, &recorder);
    QCOMPARE(stateOf(item), int(CvtStateFinished));
    // Encoded as m4a first, then given its own extension under a free name.
    QVERIFY(log.contains(QStringLiteral("tOutFile:") + folder + QStringLiteral("/song.m4a")));
    QCOMPARE(operation->strOutFilePath(), folder + QStringLiteral("/song(1).m4r"));
    QCOMPARE(entries(folder),
             (QStringList{QStringLiteral("song(1).m4r"), QStringLiteral("song.m4r")}));
    QVERIFY(taken.open(QIODevice::ReadOnly));
    QCOMPARE(taken.readAll(), QByteArray("an earlier ringtone"));
    HVMediaInfoItem probed;
    probed.setFilePath(operation->strOutFilePath());
    QVERIFY(HVMediaInfo::dumpMediaInfo(probed));
    QCOMPARE(probed.strAudioCodecName(), QStringLiteral("aac"));
}

void ConvertOperationTest::parallelRunsNeverShareOutput() {
    QTemporaryDir dir;
    const QString source = dir.filePath(QStringLiteral("same.wav"));
    QVERIFY(SonoriaTest::makeTone(source, 1.0));
    const QString folder = dir.filePath(QStringLiteral("out"));
    QVERIFY(QDir().mkpath(folder));
    constexpr int kRuns = 4;
    SXOperationQueue queue;
    queue.setMaxConcurrentOperationCount(kRuns);
    QList<ConvertOperationPtr> operations;
    Recorder recorders[kRuns];
    for (int i = 0; i < kRuns; ++i) {
        operations.append(makeOperation(makeItem(source, 1.0), folder, &recorders[i]));
        queue.addOperation(operations.last());
    }
    queue.waitUntilAllOperationsAreFinished();
    QSet<QString> outputs;
    for (int i = 0; i < kRuns; ++i) {
        QCOMPARE(stateOf(operations[i]->musicToConvert()), int(CvtStateFinished));
        QVERIFY(recorders[i].isWellFormed());
        outputs.insert(operations[i]->strOutFilePath());
        QVERIFY(QFileInfo(operations[i]->strOutFilePath()).size() > 0);
    }
    QCOMPARE(outputs.size(), kRuns);
    QCOMPARE(entries(folder).size(), kRuns);
}

void ConvertOperationTest::awkwardNamesConvert_data() {
    QTest::addColumn<QString>("name");
    QTest::newRow("shell characters") << QStringLiteral("it's a \"test\" $HOME; rm -rf x & y.wav");
    QTest::newRow("leading dash") << QStringLiteral("-y.wav");
    QTest::newRow("non-ASCII") << QStringLiteral("Ünïcödé 音楽 ñ.wav");
    QTest::newRow("backslash and star") << QStringLiteral("a\\b*?[c].wav");
}

void ConvertOperationTest::awkwardNamesConvert() {
    QFETCH(QString, name);
    QTemporaryDir dir;
    const QString source = dir.filePath(name);
    QVERIFY(SonoriaTest::makeTone(dir.filePath(QStringLiteral("plain.wav")), 1.0));
    QVERIFY(QFile::rename(dir.filePath(QStringLiteral("plain.wav")), source));
    const QByteArray hash = SonoriaTest::fileHash(source);
    Recorder recorder;
    auto item = makeItem(source, 1.0);
    auto operation = convert(item, QString(), &recorder);
    QCOMPARE(stateOf(item), int(CvtStateFinished));
    QCOMPARE(operation->strOutFilePath(),
             dir.filePath(QFileInfo(name).completeBaseName() + QStringLiteral(".mp3")));
    QVERIFY(QFileInfo(operation->strOutFilePath()).size() > 0);
    QCOMPARE(SonoriaTest::fileHash(source), hash);
    QCOMPARE(entries(dir.path()).size(), 2);
}

void ConvertOperationTest::commandLineAndChannelRule() {
    LSMedia media;
    media.setFilePath(QStringLiteral("/music/-in.flac"));
    media.setVOACodecName(QStringLiteral("libmp3lame"));
    media.setDAOSamplerate(44100);
    media.setDAOBitrate(192.0);
    media.setIAOChanels(1);
    const QStringList atLimit = ConvertOperation::buildArguments(QStringLiteral("/x/ffmpeg"), media,
                                                                 QStringLiteral("/o.mp3"));
    QCOMPARE(atLimit,
             (QStringList{"/x/ffmpeg", "-i", "/music/-in.flac", "-vn", "-acodec", "libmp3lame",
                          "-ar", "44100.00", "-b:a", "192.00k", "-ac", "1", "-y", "/o.mp3"}));
    media.setDAOBitrate(192.01);
    const QStringList above = ConvertOperation::buildArguments(QStringLiteral("/x/ffmpeg"), media,
                                                               QStringLiteral("/o.mp3"));
    QCOMPARE(above.at(9), QStringLiteral("192.01k"));
    QCOMPARE(above.at(11), QStringLiteral("2"));

    // The rule reaches the file ffmpeg writes.
    QTemporaryDir dir;
    const QString source = dir.filePath(QStringLiteral("mono.wav"));
    QVERIFY(SonoriaTest::makeTone(source, 1.0, {QStringLiteral("-ac"), QStringLiteral("1")}));
    for (const double kbps : {192.0, 192.01}) {
        Output out;
        out.kbps = kbps;
        out.channels = 1;
        Recorder recorder;
        auto item = makeItem(source, 1.0, out);
        auto operation = convert(item, QString(), &recorder);
        QCOMPARE(stateOf(item), int(CvtStateFinished));
        HVMediaInfoItem probed;
        probed.setFilePath(operation->strOutFilePath());
        QVERIFY(HVMediaInfo::dumpMediaInfo(probed));
        QCOMPARE(probed.audioChannels(), kbps > 192.0 ? 2 : 1);
    }
}

void ConvertOperationTest::libraryDeliveryIsAnnounced() {
    // A library that cannot be reached: delivery fails quietly and the item still finishes.
    SXSettings::setValue(SXSettingsKey::LibraryBackend, QStringLiteral("mpd"));
    SXSettings::setValue(SXSettingsKey::MpdHost, QStringLiteral("127.0.0.1"));
    SXSettings::setValue(SXSettingsKey::MpdPort, 1);
    QTemporaryDir dir;
    const QString source = dir.filePath(QStringLiteral("send.wav"));
    QVERIFY(SonoriaTest::makeTone(source, 1.0));
    auto item = makeItem(source, 1.0);
    item->setBIsSendingToiTunes(true);
    Recorder recorder;
    convert(item, QString(), &recorder);
    QCOMPARE(stateOf(item), int(CvtStateFinished));
    QCOMPARE(recorder.count(QStringLiteral("sync")), 1);
    QVERIFY(recorder.isWellFormed());
}

SONORIA_TEST_MAIN(ConvertOperationTest)
#include "tst_convertoperation.moc"
