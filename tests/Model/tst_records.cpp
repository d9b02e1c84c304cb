#include "Model/LSMedia.h"
#include "Model/SXMusicInfo.h"
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
    media->setDAOBitrate(256);
    media->setDAOSamplerate(48000);
    media->setIAOChanels(1);
    media->setVOACodecName(QStringLiteral("libmp3lame"));
    media->setStrOutFileExt(QStringLiteral("mp3"));
    media->setStrOutFileName(QStringLiteral("a song"));
    media->setDProgress(42);
    media->setDLeftTime(12);
    media->setStrDescription(QStringLiteral("note"));
    return media;
}

SXMusicInfoPtr item(const QString& path, const QString& type) {
    auto result = std::make_shared<SXMusicInfo>();
    result->setStrFilePath(path);
    result->setStrMusicType(type);
    result->setMediaInfo(probedRecord());
    return result;
}
} // namespace

class TestRecords : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void identityIsPathAndContainer() {
        const auto a = item(QStringLiteral("/x/1.mp3"), QStringLiteral("MP3"));
        QCOMPARE(a->dConvertProgress(), -1.0);
        QVERIFY(!a->bIsSendingToiTunes());
        QVERIFY(a->isEqualToMusic(*a->copy()));
        QVERIFY(!a->isEqualToMusic(*item(QStringLiteral("/x/1.mp3"), QStringLiteral("AAC"))));
        QVERIFY(!a->isEqualToMusic(*item(QStringLiteral("/x/2.mp3"), QStringLiteral("MP3"))));
    }

    void copySharesNothing() {
        const auto original = item(QStringLiteral("/x/1.mp3"), QStringLiteral("MP3"));
        original->setDConvertProgress(55);
        original->setBIsSendingToiTunes(true);
        original->setStriTunesPlaylistName(QStringLiteral("Road"));
        const auto copy = original->copy();
        QVERIFY(copy->mediaInfo() != original->mediaInfo());
        QCOMPARE(copy->dConvertProgress(), 55.0);
        QVERIFY(copy->bIsSendingToiTunes());
        QCOMPARE(copy->striTunesPlaylistName(), QStringLiteral("Road"));
        copy->mediaInfo()->setEumCvtState(CvtStateConverting);
        copy->setStrMusicType(QStringLiteral("AAC"));
        QCOMPARE(original->mediaInfo()->eumCvtState(), int(CvtStateFailed));
        QCOMPARE(original->getStrMusicType(), QStringLiteral("MP3"));

        // A record copy carries every field, the unarchived ones included.
        const LSMediaPtr mediaCopy = original->mediaInfo()->copy();
        QCOMPARE(mediaCopy->dProgress(), 42.0);
        QCOMPARE(mediaCopy->strDescription(), QStringLiteral("note"));
        QCOMPARE(mediaCopy->strAudioCodecName(), QStringLiteral("flac"));
        QCOMPARE(mediaCopy->duration(), 183.5);
        QVERIFY(mediaCopy->bSampeQuality());
    }

    void descriptionsForLogs() {
        const auto a = item(QStringLiteral("/x/1.mp3"), QStringLiteral("MP3"));
        a->setStrMusicName(QStringLiteral("One"));
        const QString text = a->description();
        QVERIFY(text.startsWith(QStringLiteral("P = 0x")));
        QVERIFY(text.endsWith(QStringLiteral(", path = /music/a song.flac, name = One, sample = "
                                             "44100.000000, birat = 912000.000000, "
                                             "            channel = 2, inFormateType = MP3")));
        QVERIFY(a->mediaInfo()->description().endsWith(
            QStringLiteral(", filePath = /music/a song.flac")));
        QVERIFY(a->mediaInfo()->description().startsWith(QStringLiteral("id:0x")));
    }

    void archiveKeepsStateAndDropsProgress() {
        SXCoder coder;
        probedRecord()->encodeWithCoder(coder);
        const QStringList keys = coder.keys();
        const QStringList own{QStringLiteral("strLastModified"), QStringLiteral("dFileSize"),
                              QStringLiteral("eumCvtState"),     QStringLiteral("eumMediaType"),
                              QStringLiteral("dAOBitrate"),      QStringLiteral("dAOSamplerate"),
                              QStringLiteral("iAOChannels"),     QStringLiteral("vOACodecName"),
                              QStringLiteral("strOutFileExt"),   QStringLiteral("strOutFileName")};
        QCOMPARE(keys.mid(keys.size() - own.size()), own);

        bool ok = false;
        const LSMediaPtr back = LSMedia::decodeWithCoder(SXCoder::fromData(coder.toData(), &ok));
        QVERIFY(ok);
        QCOMPARE(back->eumCvtState(), int(CvtStateFailed));
        QCOMPARE(back->eumMediaType(), int(HVMediaTypeAudio));
        QCOMPARE(back->dAOBitrate(), 256.0);
        QCOMPARE(back->dAOSamplerate(), 48000.0);
        QCOMPARE(back->iAOChanels(), 1);
        QCOMPARE(back->dFileSize(), 3145728.0);
        QCOMPARE(back->strLastModified(), QStringLiteral("3/4/25 9:7 AM"));
        QCOMPARE(back->strOutFileName(), QStringLiteral("a song"));
        QCOMPARE(back->strOutFileExt(), QStringLiteral("mp3"));
        QCOMPARE(back->filePath(), QStringLiteral("/music/a song.flac"));
        QCOMPARE(back->duration(), 183.5);
        QCOMPARE(back->dProgress(), 0.0);
        QCOMPARE(back->dLeftTime(), 0.0);
        QVERIFY(back->strDescription().isEmpty());
        QVERIFY(!back->bSampeQuality());
    }

    void keylessCoderWritesAndReadsNothing() {
        SXCoder keyless(false);
        item(QStringLiteral("/x/1.mp3"), QStringLiteral("MP3"))->encodeWithCoder(keyless);
        probedRecord()->encodeWithCoder(keyless);
        QVERIFY(keyless.keys().isEmpty());

        SXCoder full;
        probedRecord()->encodeWithCoder(full);
        LSMedia untouched;
        untouched.initWithCoder(SXCoder(false));
        QVERIFY(untouched.filePath().isEmpty());
        QCOMPARE(untouched.eumCvtState(), int(CvtStateReady));
        const auto decoded = SXMusicInfo::decodeWithCoder(SXCoder(false));
        QVERIFY(decoded->strFilePath().isEmpty());
        QVERIFY(!decoded->mediaInfo());
    }

    void itemsTravelAsOneArchive() {
        const auto first = item(QStringLiteral("/x/é \"1\".mp3"), QStringLiteral("MP3"));
        first->setDConvertProgress(-4);
        first->setStriTunesPlaylistName(QStringLiteral("Mix"));
        first->setBIsSendingToiTunes(true);
        const auto second = item(QStringLiteral("/x/2.wav"), QStringLiteral("MP3"));
        second->setMediaInfo(nullptr);

        bool ok = false;
        const auto back =
            SXMusicInfo::unarchiveItems(SXMusicInfo::archiveItems({first, second}), &ok);
        QVERIFY(ok);
        QCOMPARE(back.size(), 2);
        QVERIFY(back[0]->isEqualToMusic(*first));
        QCOMPARE(back[0]->dConvertProgress(), -4.0);
        QCOMPARE(back[0]->striTunesPlaylistName(), QStringLiteral("Mix"));
        QVERIFY(back[0]->bIsSendingToiTunes());
        QCOMPARE(back[0]->mediaInfo()->eumCvtState(), int(CvtStateFailed));
        QVERIFY(back[1]->isEqualToMusic(*second));
        QVERIFY(!back[1]->mediaInfo());

        for (const QByteArray& junk : {QByteArray(), QByteArray("not an archive"),
                                       SXMusicInfo::archiveItems({first}).left(20)}) {
            const auto none = SXMusicInfo::unarchiveItems(junk, &ok);
            QVERIFY(!ok);
            QVERIFY(none.isEmpty());
        }
    }

    // The list reads fields on the main thread while a worker writes them; each read must see
    // one whole value, never a torn mix.
    void fieldsStayWholeAcrossThreads() {
        const auto shared = item(QStringLiteral("/x/1.mp3"), QStringLiteral("MP3"));
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
