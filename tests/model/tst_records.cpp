#include "model/LSMedia.h"
#include "model/SXMusicInfo.h"
#include "support/TestSupport.h"

#include <QThread>
#include <atomic>

namespace {
LSMediaPtr probedRecord() {
    auto media = std::make_shared<LSMedia>();
    media->setFilePath(QStringLiteral("/music/a song.flac"));
    media->setAudioBitrate(912000);
    media->setAudioSamplerate(44100);
    media->setAudioChannels(2);
    media->setDuration(183.5);
    media->setEumMediaType(HVMediaTypeAudio);
    media->setStrAudioCodecName(QStringLiteral("flac"));
    media->setEumCvtState(CvtStateFailed);
    media->setStrLastModified(QStringLiteral("3/4/25 9:7 AM"));
    media->setDFileSize(3145728);
    media->setStrOutFileName(QStringLiteral("a song"));
    return media;
}

SXMusicInfoPtr item(const QString& path, const QString& type = QStringLiteral("MP3")) {
    const SXMusicInfoPtr result = SXMusicInfo::newForSource(path, type);
    result->setMediaInfo(probedRecord());
    return result;
}
} // namespace

class TestRecords : public QObject {
    Q_OBJECT
private Q_SLOTS:

    // Items travel as one archive for drag and drop; a copy made for a drop shares no record and
    // keeps the unarchived fields too. The record's own keys follow the probed ones; the output
    // settings' keys are still there, holding what a record that has not run held (the probe's
    // values, no encoder).
    void itemsTravelAsOneArchive() {
        SXCoder coder;
        probedRecord()->encodeWithCoder(coder);
        const QStringList own{"strLastModified", "dFileSize",     "eumCvtState", "eumMediaType",
                              "dAOBitrate",      "dAOSamplerate", "iAOChannels", "vOACodecName",
                              "strOutFileExt",   "strOutFileName"};
        QCOMPARE(coder.keys().mid(coder.keys().size() - own.size()), own);
        bool ok = false;
        const LSMediaPtr record = LSMedia::decodeWithCoder(SXCoder::fromData(coder.toData(), &ok));
        QVERIFY(ok);
        SXCoder again; // whatever was archived comes back unchanged
        record->encodeWithCoder(again);
        QCOMPARE(again.toData(), coder.toData());
        QCOMPARE(record->eumCvtState(), int(CvtStateFailed));
        QCOMPARE(coder.decodeDouble(QStringLiteral("dAOBitrate")), 912.0);
        QCOMPARE(coder.decodeInt(QStringLiteral("iAOChannels")), 2);
        QVERIFY(coder.decodeString(QStringLiteral("vOACodecName")).isEmpty());

        const auto first = item(QStringLiteral("/x/é \"1\".mp3"));
        first->setDConvertProgress(-4);
        const auto second = item(QStringLiteral("/x/2.wav"));
        second->setMediaInfo(nullptr);
        const auto back =
            SXMusicInfo::unarchiveItems(SXMusicInfo::archiveItems({first, second}), &ok);
        QVERIFY(ok);
        QCOMPARE(back.size(), 2);
        QVERIFY(back[0]->isEqualToMusic(*first) && back[0]->dConvertProgress() == -4.0);
        QCOMPARE(back[0]->mediaInfo()->eumCvtState(), int(CvtStateFailed));
        QVERIFY(back[1]->isEqualToMusic(*second) && !back[1]->mediaInfo());

        const auto copy = first->copy();
        QVERIFY(copy->isEqualToMusic(*first) && copy->mediaInfo() != first->mediaInfo());
        QVERIFY(!first->isEqualToMusic(*item(first->strFilePath(), QStringLiteral("AAC"))));
        QVERIFY(copy->mediaInfo()->failReason() == first->mediaInfo()->failReason() &&
                copy->dConvertProgress() == -4);

        for (const QByteArray& junk : {QByteArray(), QByteArray("not an archive"),
                                       SXMusicInfo::archiveItems({first}).left(20)})
            QVERIFY(SXMusicInfo::unarchiveItems(junk, &ok).isEmpty() && !ok);
    }

    // The list reads fields on the main thread while a worker writes them; each read must see
    // one whole value, never a torn mix.
    void fieldsStayWholeAcrossThreads() {
        const auto shared = item(QStringLiteral("/x/1.mp3"));
        const LSMediaPtr media = shared->mediaInfo();
        const QString a(4096, QLatin1Char('a'));
        const QString b(4096, QLatin1Char('b'));
        std::atomic<bool> stop{false};
        QThread* writer = QThread::create([&] {
            for (int i = 0; !stop; ++i) {
                media->setStrOutFileName(i % 2 ? a : b);
                shared->setDConvertProgress(i % 2 ? -3.0 : 100.0);
            }
        });
        writer->start();
        for (int i = 0; i < 20000; ++i) {
            const QString seen = media->strOutFileName();
            QVERIFY(seen == a || seen == b || seen == QStringLiteral("a song"));
            const double progress = shared->dConvertProgress();
            QVERIFY(progress == -3.0 || progress == 100.0 || progress == -1.0);
        }
        stop = true;
        writer->wait();
        delete writer;
    }
};

SONORIA_TEST_MAIN(TestRecords)
#include "tst_records.moc"
