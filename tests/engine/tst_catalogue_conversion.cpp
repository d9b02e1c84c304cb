#include "support/ProbeReference.h"
#include "support/TestSupport.h"

#include "engine/ConvertCommandLine.h"
#include "engine/ConvertJob.h"
#include "model/SXDataEngine.h"

#include <QFileInfo>
#include <QTemporaryDir>

// Every format of the shipped catalogue, with every choice it offers, must convert a real file
// with the command line the conversion uses. A choice that ffmpeg refuses would fail the user.
using namespace Qt::StringLiterals;

namespace {

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

} // namespace

class TestCatalogueConversion : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    QStringList m_sources; // stereo 44.1 kHz first, then mono 22.05 kHz and 5.1 at 48 kHz
    QList<ProbeReference> m_sourceProps;

    // Converts source `s` with the conversion's own command line for a setting's choices; the
    // output must have the channels and the rate that asks for. A failure text, or none.
    QString convert(const SXFormatSetting& setting, qsizetype s, const QString& out) const {
        ConvertJob job;
        job.sourcePath = m_sources[s];
        job.sourceBitRate = m_sourceProps[s].bitRate;
        job.sourceSampleRate = m_sourceProps[s].sampleRate;
        job.sourceChannels = m_sourceProps[s].channels;
        job.choices = setting.choices();
        job.encoder = setting.decodecName();
        const QStringList arguments = ConvertCommandLine::arguments(u"ffmpeg"_s, job, out);
        const QString what = u"[%1 / %2 / %3] from %4: "_s.arg(
                                 setting.sampleRate(), setting.bitRate(), setting.channels(),
                                 QFileInfo(m_sources[s]).fileName()) +
                             arguments.join(u' ');
        QString output; // "-nostdin" is not part of the command under test: it keeps ffmpeg quiet
        if (SonoriaTest::run(u"ffmpeg"_s, QStringList{u"-nostdin"_s} + arguments.mid(1), &output))
            return what + u"\n  failed: "_s + output.right(400);
        const ProbeReference props = ProbeReference::read(out);
        QFile::remove(out);
        const auto asked = [&arguments](const QString& option) {
            return arguments.value(arguments.indexOf(option) + 1).toDouble();
        };
        // Opus streams always decode at 48 kHz whatever rate they were encoded from.
        const double rate = out.endsWith(u".opus"_s) ? 48000 : asked(u"-ar"_s);
        if (props.ok && props.channels == int(asked(u"-ac"_s)) && props.sampleRate == rate &&
            props.duration >= 0.5)
            return {};
        return what + u"\n  output has %1 channels at %2 Hz, %3 s"_s.arg(props.channels)
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
        const QString ext = name.toLower() == "ringtone"_L1 ? u"m4a"_s : record->outputExtName();
        QStringList failures;
        for (const SXFormatSettingPtr& setting : settingsToTry(*record)) {
            // The source's values are tried on every source.
            const bool usesSource =
                QStringList{setting->sampleRate(), setting->bitRate(), setting->channels()}
                    .contains(u"Use Source"_s);
            for (qsizetype s = 0; s < (usesSource ? m_sources.size() : 1); ++s) {
                const QString out = m_dir.filePath(u"out.%1"_s.arg(ext));
                if (const QString failure = convert(*setting, s, out); !failure.isEmpty())
                    failures << name + u' ' + failure;
            }
        }
        QVERIFY2(failures.isEmpty(), qPrintable(failures.join(u'\n')));
    }
};

SONORIA_TEST_MAIN(TestCatalogueConversion)
#include "tst_catalogue_conversion.moc"
