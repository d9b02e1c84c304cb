#include "support/ProbeReference.h"
#include "support/TestSupport.h"

#include "engine/ConvertCommandLine.h"
#include "engine/ConvertJob.h"
#include "model/SXDataEngine.h"

#include <QFileInfo>
#include <QTemporaryDir>

// Every format of the shipped catalogue, with every choice it offers, must convert a real file
// with the command line the conversion uses. A choice that ffmpeg refuses would fail the user.

namespace {

const QString kUseSource = QStringLiteral("Use Source");

struct Conversion {
    QString label;
    QStringList arguments;
    int expectedChannels = 0;
    double expectedRate = 0;
};

// The conversion's own command line for a container's choices and a probed source; the output
// must have the channels and the rate it asks for.
Conversion conversionCommand(const SXFormatSetting& format, const QString& source,
                             const ProbeReference& src, const QString& outFile) {
    ConvertJob job;
    job.sourcePath = source;
    job.sourceBitRate = src.bitRate;
    job.sourceSampleRate = src.sampleRate;
    job.sourceChannels = src.channels;
    job.choices = format.choices();
    job.encoder = format.decodecName();
    const QStringList arguments =
        ConvertCommandLine::arguments(QStringLiteral("ffmpeg"), job, outFile);
    auto asked = [&arguments](const char* option) {
        return arguments.value(arguments.indexOf(QLatin1String(option)) + 1).toDouble();
    };
    return {QString(), arguments, int(asked("-ac")), asked("-ar")};
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
    vary(catalogueRecord.aryBiteRate(), catalogueRecord.bitRate(), &SXFormatSetting::setBiteRate);
    vary(catalogueRecord.aryChannels(), catalogueRecord.channels(), &SXFormatSetting::setChannels);
    return settings;
}

bool usesSource(const SXFormatSetting& setting) {
    return setting.sampleRate() == kUseSource || setting.bitRate() == kUseSource ||
           setting.channels() == kUseSource;
}

} // namespace

class TestCatalogueConversion : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_dir;
    QStringList m_sources; // stereo 44.1 kHz first, then mono 22.05 kHz and 5.1 at 48 kHz
    QList<ProbeReference> m_sourceProps;

    // Runs one conversion and probes its output; a failure text, or none.
    static QString run(const Conversion& conversion) {
        const QString what =
            conversion.label + QStringLiteral(": ") + conversion.arguments.join(QLatin1Char(' '));
        QString output; // "-nostdin" is not part of the command under test: it keeps ffmpeg quiet
        if (SonoriaTest::run(conversion.arguments.first(),
                             QStringList{"-nostdin"} + conversion.arguments.mid(1), &output) != 0)
            return what + QStringLiteral("\n  failed: ") + output.right(400);
        const QString out = conversion.arguments.last();
        const ProbeReference props = ProbeReference::read(out);
        // Opus streams always decode at 48 kHz whatever rate they were encoded from.
        const double rate = out.endsWith(QLatin1String(".opus")) ? 48000 : conversion.expectedRate;
        QFile::remove(out);
        if (props.ok && props.channels == conversion.expectedChannels && props.sampleRate == rate &&
            props.duration >= 0.5)
            return {};
        return what + QStringLiteral("\n  output has %1 channels at %2 Hz, %3 s")
                          .arg(props.channels)
                          .arg(props.sampleRate)
                          .arg(props.duration);
    }

private Q_SLOTS:
    void initTestCase() {
        QVERIFY(m_dir.isValid());
        const struct {
            const char* name;
            int rate;
            QStringList extra;
        } sources[] = {
            {"stereo.wav", 44100, {"-ac", "2"}},
            {"mono.wav", 22050, {}},
            {"surround.wav", 48000, {"-af", "pan=5.1|c0=c0|c1=c0|c2=c0|c3=c0|c4=c0|c5=c0"}}};
        for (const auto& source : sources) {
            const QString path = m_dir.filePath(QLatin1String(source.name));
            QVERIFY(SonoriaTest::makeTone(
                path, 1, QStringList{"-ar", QString::number(source.rate)} + source.extra));
            const ProbeReference props = ProbeReference::read(path);
            QVERIFY(props.ok);
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
                        .arg(name, setting->sampleRate(), setting->bitRate(), setting->channels(),
                             QFileInfo(m_sources[s]).fileName());
                conversions.append(conversion);
            }
        }
        QStringList failures;
        for (const Conversion& conversion : std::as_const(conversions))
            if (const QString failure = run(conversion); !failure.isEmpty())
                failures << failure;
        QVERIFY2(failures.isEmpty(), qPrintable(failures.join(QLatin1Char('\n'))));
    }
};

SONORIA_TEST_MAIN(TestCatalogueConversion)
#include "tst_catalogue_conversion.moc"
