#include "Convert/ConvertProgressTracker.h"
#include "support/TestSupport.h"

#include <QRegularExpression>
#include <QTemporaryDir>

class ProgressParserTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void readsOnlyWellFormedClock_data();
    void readsOnlyWellFormedClock();
    void estimateFollowsThresholds();
    void estimateIsCapped();
    void unknownDurationChangesNothing();
    void followsRealStatusLines();
};

void ProgressParserTest::readsOnlyWellFormedClock_data() {
    QTest::addColumn<QString>("chunk");
    QTest::addColumn<bool>("found");
    QTest::addColumn<double>("seconds");
    QTest::newRow("status line, fraction ignored")
        << "size=     512kB time=00:01:30.50 bitrate= 128.0kbits/s speed=45x" << true << 90.0;
    QTest::newRow("hours") << "time=01:00:01.00" << true << 3601.0;
    QTest::newRow("first of two") << "time=00:00:02.00\rtime=00:00:07.00" << true << 2.0;
    QTest::newRow("not yet known") << "size=N/A time=N/A bitrate=N/A" << false << 0.0;
    QTest::newRow("negative start") << "time=-00:00:00.02" << false << 0.0;
    QTest::newRow("cut inside the field") << "size= 1kB time=00:0" << false << 0.0;
    QTest::newRow("no marker") << "Stream #0:0: Audio: pcm_s16le" << false << 0.0;
}

void ProgressParserTest::readsOnlyWellFormedClock() {
    QFETCH(QString, chunk);
    QFETCH(bool, found);
    QFETCH(double, seconds);
    double parsed = -1;
    QCOMPARE(ConvertProgressTracker::timeInChunk(chunk, &parsed), found);
    if (found)
        QCOMPARE(parsed, seconds);
}

void ProgressParserTest::estimateFollowsThresholds() {
    ConvertProgressTracker tracker;

    // Before a second of media time has passed the estimate keeps its start value.
    auto update = tracker.feed(QStringLiteral("time=00:00:00.40"), 180.0);
    QVERIFY(update.hasTime);
    QCOMPARE(update.progress, 0.0);
    QCOMPARE(update.leftTime, ConvertProgressTracker::kInitialLeftTime);
    QVERIFY(!update.renewed);

    // 50 % after 90 s of media time from 0: remaining = 50 / (50 / 90).
    update = tracker.feed(QStringLiteral("time=00:01:30.50 bitrate=1"), 180.0);
    QCOMPARE(update.progress, 50.0);
    QVERIFY(update.renewed);
    QCOMPARE(update.leftTime, 90.0);
    QCOMPARE(tracker.dLastTime(), 90.0);
    QCOMPARE(tracker.dLastPrg(), 50.0);

    // Half a second later the clock reads the same: no renewal, the last estimate stays.
    update = tracker.feed(QStringLiteral("time=00:01:30.99"), 180.0);
    QVERIFY(update.hasTime);
    QVERIFY(!update.renewed);
    QCOMPARE(update.leftTime, 90.0);

    // Exactly one second more renews.
    update = tracker.feed(QStringLiteral("time=00:01:31.00"), 180.0);
    QVERIFY(update.renewed);
    QCOMPARE(update.leftTime, 89.0);

    // A second of a long source is less than a tenth of a per cent: progress moves, the
    // estimate does not.
    ConvertProgressTracker longSource;
    update = longSource.feed(QStringLiteral("time=00:00:01.00"), 7200.0);
    QVERIFY(update.progress > 0);
    QVERIFY(!update.renewed);
    QCOMPARE(update.leftTime, ConvertProgressTracker::kInitialLeftTime);
}

void ProgressParserTest::estimateIsCapped() {
    ConvertProgressTracker tracker;
    // 0.2 % after almost 100 hours: the honest estimate would be years.
    const auto update = tracker.feed(QStringLiteral("time=99:59:59.00"), 359999.0 * 500.0);
    QVERIFY(update.renewed);
    QCOMPARE(update.leftTime, ConvertProgressTracker::kMaxLeftTime);
    QCOMPARE(tracker.dLastLeftTime(), ConvertProgressTracker::kMaxLeftTime);
}

void ProgressParserTest::unknownDurationChangesNothing() {
    ConvertProgressTracker tracker;
    QVERIFY(!tracker.feed(QStringLiteral("time=00:00:05.00"), 0.0).hasTime);
    QVERIFY(!tracker.feed(QStringLiteral("time=00:00:05.00"), -1.0).hasTime);
    QCOMPARE(tracker.dLastTime(), 0.0);
    QCOMPARE(tracker.dLastLeftTime(), ConvertProgressTracker::kInitialLeftTime);
}

void ProgressParserTest::followsRealStatusLines() {
    QTemporaryDir dir;
    const QString source = dir.filePath(QStringLiteral("tone.wav"));
    QVERIFY(SonoriaTest::makeTone(source, 12.0));
    QString console;
    const int code = SonoriaTest::run(
        QStringLiteral("ffmpeg"),
        {QStringLiteral("-nostdin"), QStringLiteral("-stats_period"), QStringLiteral("0.05"),
         QStringLiteral("-i"), source, QStringLiteral("-acodec"), QStringLiteral("libmp3lame"),
         QStringLiteral("-y"), dir.filePath(QStringLiteral("out.mp3"))},
        &console);
    QCOMPARE(code, 0);

    ConvertProgressTracker tracker;
    double lastProgress = -1;
    int timedLines = 0;
    const QStringList lines = console.split(QRegularExpression(QStringLiteral("[\r\n]")));
    for (const QString& line : lines) {
        const auto update = tracker.feed(line, 12.0);
        if (!update.hasTime)
            continue;
        ++timedLines;
        QVERIFY2(update.progress >= lastProgress, qPrintable(line));
        lastProgress = update.progress;
        QVERIFY(update.leftTime >= 0);
    }
    QVERIFY2(timedLines > 0, qPrintable(console));
    // The last status line reports the whole source.
    QCOMPARE(lastProgress, 100.0);
}

SONORIA_TEST_MAIN(ProgressParserTest)
#include "tst_progressparser.moc"
