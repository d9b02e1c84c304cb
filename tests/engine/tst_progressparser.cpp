#include "engine/ConvertProgressTracker.h"
#include "support/TestSupport.h"

#include <QRegularExpression>
#include <QTemporaryDir>

using Tracker = ConvertProgressTracker;

using namespace Qt::StringLiterals;

class ProgressParserTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    // The chunks are fed in turn to one tracker; the columns are what the last one reports.
    void feedsChunks_data() {
        QTest::addColumn<QStringList>("chunks");
        QTest::addColumn<double>("duration");
        QTest::addColumn<bool>("hasTime");
        QTest::addColumn<double>("progress");
        QTest::addColumn<double>("leftTime");
        QTest::addColumn<bool>("renewed");
        const QString at90 = u"time=00:01:30.50 bitrate=1"_s;
        // Clock forms: only "hh:mm:ss" right after the first "time=" counts.
        QTest::newRow("status line, fraction ignored")
            << QStringList{"size=     512kB time=00:01:30.50 bitrate= 128.0kbits/s speed=45x"}
            << 180.0 << true << 50.0 << 90.0 << true;
        QTest::newRow("hours") << QStringList{"time=01:00:01.00"} << 7202.0 << true << 50.0
                               << 3601.0 << true;
        QTest::newRow("first of two") << QStringList{"time=00:00:02.00\rtime=00:00:07.00"} << 4.0
                                      << true << 50.0 << 2.0 << true;
        QTest::newRow("not yet known") << QStringList{"size=N/A time=N/A bitrate=N/A"} << 180.0
                                       << false << 0.0 << 0.0 << false;
        QTest::newRow("negative start")
            << QStringList{"time=-00:00:00.02"} << 180.0 << false << 0.0 << 0.0 << false;
        QTest::newRow("cut inside the field")
            << QStringList{"size= 1kB time=00:0"} << 180.0 << false << 0.0 << 0.0 << false;
        QTest::newRow("no marker") << QStringList{"Stream #0:0: Audio: pcm_s16le"} << 180.0 << false
                                   << 0.0 << 0.0 << false;
        QTest::newRow("unknown duration")
            << QStringList{"time=00:00:05.00"} << 0.0 << false << 0.0 << 0.0 << false;
        QTest::newRow("negative duration")
            << QStringList{"time=00:00:05.00"} << -1.0 << false << 0.0 << 0.0 << false;
        // The estimate is renewed only after a second of media time and a tenth of a per cent.
        QTest::newRow("under a second keeps the start estimate")
            << QStringList{"time=00:00:00.40"} << 180.0 << true << 0.0 << Tracker::kInitialLeftTime
            << false;
        QTest::newRow("same clock again keeps the last estimate")
            << QStringList{at90, "time=00:01:30.99"} << 180.0 << true << 50.0 << 90.0 << false;
        QTest::newRow("one more second renews") << QStringList{at90, "time=00:01:31.00"} << 180.0
                                                << true << 91.0 / 180 * 100 << 89.0 << true;
        QTest::newRow("a second of a long source moves progress only")
            << QStringList{"time=00:00:01.00"} << 7200.0 << true << 100.0 / 7200
            << Tracker::kInitialLeftTime << false;
        // 0.2 % after almost 100 hours: the honest estimate would be years.
        QTest::newRow("estimate capped") << QStringList{"time=99:59:59.00"} << 359999.0 * 500
                                         << true << 0.2 << Tracker::kMaxLeftTime << true;
    }
    void feedsChunks() {
        QFETCH(QStringList, chunks);
        QFETCH(double, duration);
        Tracker tracker;
        Tracker::Update update;
        for (const QString& chunk : chunks)
            update = tracker.feed(chunk, duration);
        QTEST(update.hasTime, "hasTime");
        QTEST(update.progress, "progress");
        QTEST(update.leftTime, "leftTime");
        QTEST(update.renewed, "renewed");
    }

    void followsRealStatusLines() {
        QTemporaryDir dir;
        const QString source = dir.filePath(u"tone.wav"_s);
        QVERIFY(SonoriaTest::makeTone(source, 12.0));
        QString console;
        QCOMPARE(SonoriaTest::run(u"ffmpeg"_s,
                                  {u"-nostdin"_s, u"-stats_period"_s, u"0.05"_s, u"-i"_s, source,
                                   u"-y"_s, dir.filePath(u"out.mp3"_s)},
                                  &console),
                 0);
        Tracker tracker;
        double lastProgress = -1;
        for (const QString& line : console.split(QRegularExpression(u"[\r\n]"_s))) {
            const auto update = tracker.feed(line, 12.0);
            if (!update.hasTime)
                continue;
            QVERIFY2(update.progress >= lastProgress && update.leftTime >= 0, qPrintable(line));
            lastProgress = update.progress;
        }
        // The last status line reports the whole source.
        QVERIFY2(lastProgress == 100.0, qPrintable(console));
    }
};

SONORIA_TEST_MAIN(ProgressParserTest)
#include "tst_progressparser.moc"
