#include "support/TestSupport.h"

#include "Model/SXDataEngine.h"

#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

extern "C" {
#include <libavformat/avformat.h>
}

// Every format of the shipped catalogue, with every choice it offers, must convert a real file
// with the command line the conversion uses. A choice that ffmpeg refuses would fail the user.

namespace {

const QString kUseSource = QStringLiteral("Use Source");

struct AudioProps {
    double bitRate = 0; // bit/s
    double sampleRate = 0;
    int channels = 0;
    double duration = 0;
};

// Reads the first audio stream's properties in-process; false when libavformat cannot.
bool probe(const QString& path, AudioProps* props) {
    AVFormatContext* context = nullptr;
    if (avformat_open_input(&context, QFile::encodeName(path).constData(), nullptr, nullptr) < 0)
        return false;
    bool found = false;
    if (avformat_find_stream_info(context, nullptr) >= 0) {
        const int index = av_find_best_stream(context, AVMEDIA_TYPE_AUDIO, -1, -1, nullptr, 0);
        if (index >= 0) {
            const AVCodecParameters* codec = context->streams[index]->codecpar;
            props->bitRate = double(codec->bit_rate ? codec->bit_rate : context->bit_rate);
            props->sampleRate = codec->sample_rate;
            props->channels = codec->ch_layout.nb_channels;
            props->duration = context->duration > 0 ? double(context->duration) / AV_TIME_BASE : 0;
            found = true;
        }
    }
    avformat_close_input(&context);
    return found;
}

struct Conversion {
    QString label;
    QStringList arguments;
    int expectedChannels = 0;
    double expectedRate = 0;
};

// The conversion's command line, derived from a container's choices and a probed source by the
// scheduling rules: "Use Source" keeps the source's value, "Stereo" is 2 channels and any other
// channel text 1, any other text is read as a number, and above 192 kbit/s the channel count is
// forced to 2.
Conversion conversionCommand(const SXFormatSetting& format, const QString& source,
                             const AudioProps& src, const QString& outFile) {
    const double kbps =
        format.biteRate() == kUseSource ? src.bitRate / 1000 : format.biteRate().toDouble();
    const double rate =
        format.sampleRate() == kUseSource ? src.sampleRate : format.sampleRate().toDouble();
    int channels = format.channels() == kUseSource                ? src.channels
                   : format.channels() == QLatin1String("Stereo") ? 2
                                                                  : 1;
    if (kbps > 192.0)
        channels = 2;
    Conversion conversion;
    conversion.arguments = QStringList{QStringLiteral("ffmpeg"),
                                       QStringLiteral("-i"),
                                       source,
                                       QStringLiteral("-vn"),
                                       QStringLiteral("-acodec"),
                                       format.decodecName(),
                                       QStringLiteral("-ar"),
                                       QString::asprintf("%0.2f", rate),
                                       QStringLiteral("-b:a"),
                                       QString::asprintf("%0.2fk", kbps),
                                       QStringLiteral("-ac"),
                                       QString::asprintf("%d", channels),
                                       QStringLiteral("-y"),
                                       outFile};
    conversion.expectedChannels = channels;
    conversion.expectedRate = rate;
    return conversion;
}

// One container setting per offered choice: the defaults, then each list varied on its own.
QList<SXFormatSettingPtr> settingsToTry(const SXFormatSetting& catalogueRecord) {
    QList<SXFormatSettingPtr> settings{catalogueRecord.copy()};
    auto vary = [&](const QStringList& choices, const QString& chosen,
                    void (SXFormatSetting::*set)(const QString&)) {
        for (const QString& choice : choices) {
            if (choice == chosen)
                continue;
            SXFormatSettingPtr setting = catalogueRecord.copy();
            ((*setting).*set)(choice);
            settings.append(setting);
        }
    };
    vary(catalogueRecord.arySampleRate(), catalogueRecord.sampleRate(),
         &SXFormatSetting::setSampleRate);
    vary(catalogueRecord.aryBiteRate(), catalogueRecord.biteRate(), &SXFormatSetting::setBiteRate);
    vary(catalogueRecord.aryChannels(), catalogueRecord.channels(), &SXFormatSetting::setChannels);
    return settings;
}

bool usesSource(const SXFormatSetting& setting) {
    return setting.sampleRate() == kUseSource || setting.biteRate() == kUseSource ||
           setting.channels() == kUseSource;
}

} // namespace

class TestCatalogueConversion : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_dir;
    QStringList m_sources; // stereo 44.1 kHz first, then mono 22.05 kHz and 5.1 at 48 kHz
    QList<AudioProps> m_sourceProps;

    // Runs the conversions two at a time; returns one failure text per failed conversion.
    QStringList runAll(const QList<Conversion>& conversions) {
        QStringList failures;
        for (qsizetype i = 0; i < conversions.size(); i += 2) {
            const qsizetype count = std::min<qsizetype>(2, conversions.size() - i);
            QProcess processes[2];
            for (qsizetype k = 0; k < count; ++k) {
                QStringList args = conversions[i + k].arguments.mid(1);
                // Not part of the command under test: keeps ffmpeg off the test's terminal.
                args.prepend(QStringLiteral("-nostdin"));
                processes[k].setProcessChannelMode(QProcess::MergedChannels);
                processes[k].start(conversions[i + k].arguments.first(), args);
            }
            for (qsizetype k = 0; k < count; ++k) {
                const QString failure = check(conversions[i + k], processes[k]);
                if (!failure.isEmpty())
                    failures.append(failure);
            }
        }
        return failures;
    }

    static QString check(const Conversion& conversion, QProcess& process) {
        const QString what =
            conversion.label + QStringLiteral(": ") + conversion.arguments.join(QLatin1Char(' '));
        if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit ||
            process.exitCode() != 0) {
            return what + QStringLiteral("\n  exit %1: %2")
                              .arg(process.exitCode())
                              .arg(QString::fromUtf8(process.readAll().right(400)));
        }
        const QString out = conversion.arguments.last();
        AudioProps props;
        if (QFileInfo(out).size() == 0 || !probe(out, &props))
            return what + QStringLiteral("\n  output is empty or unreadable");
        // Opus streams always decode at 48 kHz whatever rate they were encoded from.
        const double rate = out.endsWith(QLatin1String(".opus")) ? 48000 : conversion.expectedRate;
        if (props.channels != conversion.expectedChannels || props.sampleRate != rate ||
            props.duration < 0.5) {
            return what + QStringLiteral("\n  output has %1 channels at %2 Hz, %3 s")
                              .arg(props.channels)
                              .arg(props.sampleRate)
                              .arg(props.duration);
        }
        QFile::remove(out);
        return {};
    }

private Q_SLOTS:
    void initTestCase() {
        QVERIFY(m_dir.isValid());
        const struct {
            const char* name;
            QString graph;
            QStringList extra;
        } sources[] = {
            {"stereo.wav",
             QStringLiteral("sine=frequency=440:sample_rate=44100:duration=1"),
             {QStringLiteral("-ac"), QStringLiteral("2")}},
            {"mono.wav", QStringLiteral("sine=frequency=330:sample_rate=22050:duration=1"), {}},
            {"surround.wav",
             QStringLiteral("sine=frequency=220:sample_rate=48000:duration=1"),
             {QStringLiteral("-af"),
              QStringLiteral("pan=5.1|c0=c0|c1=c0|c2=c0|c3=c0|c4=c0|c5=c0")}},
        };
        for (const auto& source : sources) {
            const QString path = m_dir.filePath(QLatin1String(source.name));
            QVERIFY(SonoriaTest::makeMedia(path, source.graph, source.extra));
            AudioProps props;
            QVERIFY(probe(path, &props));
            m_sources.append(path);
            m_sourceProps.append(props);
        }
        QCOMPARE(m_sourceProps[1].channels, 1);
        QCOMPARE(m_sourceProps[2].channels, 6);
        QVERIFY(m_sourceProps[0].bitRate > 0);
    }

    void everyChoiceConverts_data() {
        QTest::addColumn<QString>("name");
        const QStringList names = SXDataEngine::shareInstance()->getAllOutputFormats();
        QVERIFY(!names.isEmpty());
        for (const QString& name : names)
            QTest::newRow(qPrintable(name)) << name;
    }

    void everyChoiceConverts() {
        QFETCH(QString, name);
        const SXFormatSettingPtr record = SXDataEngine::shareInstance()->getFormatWithName(name);
        QVERIFY(record);
        // A ringtone is encoded into an m4a file and only renamed afterwards.
        const QString ext = name.toLower() == QLatin1String("ringtone") ? QStringLiteral("m4a")
                                                                        : record->outputExtName();
        QList<Conversion> conversions;
        for (const SXFormatSettingPtr& setting : settingsToTry(*record)) {
            const qsizetype sourceCount = usesSource(*setting) ? m_sources.size() : 1;
            for (qsizetype s = 0; s < sourceCount; ++s) {
                const QString out =
                    m_dir.filePath(QStringLiteral("out%1.%2").arg(conversions.size()).arg(ext));
                Conversion conversion =
                    conversionCommand(*setting, m_sources[s], m_sourceProps[s], out);
                conversion.label =
                    QStringLiteral("%1 [%2 / %3 / %4] from %5")
                        .arg(name, setting->sampleRate(), setting->biteRate(), setting->channels(),
                             QFileInfo(m_sources[s]).fileName());
                conversions.append(conversion);
            }
        }
        const QStringList failures = runAll(conversions);
        QVERIFY2(failures.isEmpty(), qPrintable(failures.join(QLatin1Char('\n'))));
    }

    // The command line itself: exact order and number formats, and the 192 kbit/s rule at its edge.
    void commandLineFollowsTheSchedulingRules() {
        SXFormatSetting setting;
        setting.setDecodecName(QStringLiteral("libmp3lame"));
        setting.setSampleRate(QStringLiteral("44100"));
        setting.setBiteRate(QStringLiteral("192"));
        setting.setChannels(QStringLiteral("Mono"));
        AudioProps src;
        src.bitRate = 1411200;
        src.sampleRate = 22050;
        src.channels = 6;
        QCOMPARE(
            conversionCommand(setting, QStringLiteral("/in.wav"), src, QStringLiteral("/o.mp3"))
                .arguments,
            (QStringList{QStringLiteral("ffmpeg"), QStringLiteral("-i"), QStringLiteral("/in.wav"),
                         QStringLiteral("-vn"), QStringLiteral("-acodec"),
                         QStringLiteral("libmp3lame"), QStringLiteral("-ar"),
                         QStringLiteral("44100.00"), QStringLiteral("-b:a"),
                         QStringLiteral("192.00k"), QStringLiteral("-ac"), QStringLiteral("1"),
                         QStringLiteral("-y"), QStringLiteral("/o.mp3")}));
        setting.setBiteRate(QStringLiteral("192.5"));
        QCOMPARE(conversionCommand(setting, {}, src, {}).arguments.at(11), QStringLiteral("2"));
        setting.setBiteRate(kUseSource);
        setting.setSampleRate(kUseSource);
        setting.setChannels(kUseSource);
        const QStringList fromSource = conversionCommand(setting, {}, src, {}).arguments;
        QCOMPARE(fromSource.at(7), QStringLiteral("22050.00"));
        QCOMPARE(fromSource.at(9), QStringLiteral("1411.20k"));
        QCOMPARE(fromSource.at(11), QStringLiteral("2"));
        setting.setBiteRate(QStringLiteral("Lossless")); // not a number: 0 kbit/s
        QCOMPARE(conversionCommand(setting, {}, src, {}).arguments.at(9), QStringLiteral("0.00k"));
        QCOMPARE(conversionCommand(setting, {}, src, {}).arguments.at(11), QStringLiteral("6"));
    }
};

SONORIA_TEST_MAIN(TestCatalogueConversion)
#include "tst_catalogue_conversion.moc"
