#pragma once

#include "model/SXConversionChoices.h"

#include <QString>
#include <QStringList>
#include <memory>

// One output format: what it offers the user (the three choice lists), what the user chose, and
// what the encoder needs. Containers own copies of the catalogue's records. Everything is held by
// value, so editing a container's choices never reaches the catalogue; the choice lists of a copy
// stay shared with the record it came from (QStringList's implicit sharing) because nobody edits
// them after loading.
class SXFormatSetting {
public:
    SXFormatSetting() = default;

    QStringList arySampleRate() const { return m_arySampleRate; }
    void setArySampleRate(const QStringList& values) { m_arySampleRate = values; }
    QStringList aryBiteRate() const { return m_aryBiteRate; }
    void setAryBiteRate(const QStringList& values) { m_aryBiteRate = values; }
    QStringList aryChannels() const { return m_aryChannels; }
    void setAryChannels(const QStringList& values) { m_aryChannels = values; }

    QString fmtName() const { return m_fmtName; }
    void setFmtName(const QString& name) { m_fmtName = name; }
    QString fmtDescribe() const { return m_fmtDescribe; }
    void setFmtDescribe(const QString& text) { m_fmtDescribe = text; }
    QString sampleRate() const { return m_sampleRate; }
    void setSampleRate(const QString& choice) { m_sampleRate = choice; }
    QString bitRate() const { return m_bitRate; }
    void setBiteRate(const QString& choice) { m_bitRate = choice; }
    QString channels() const { return m_channels; }
    void setChannels(const QString& choice) { m_channels = choice; }
    // The three chosen titles as the encoder gets them.
    SXConversionChoices choices() const {
        SXConversionChoices result =
            SXConversionChoices::fromTitles(m_bitRate, m_sampleRate, m_channels);
        result.replayGain = m_replayGain;
        result.normalise = m_normalise;
        return result;
    }
    // "ReplayGain tags" and "Normalise loudness" of the container; both off in the catalogue.
    SXReplayGainMode replayGain() const { return m_replayGain; }
    void setReplayGain(SXReplayGainMode mode) { m_replayGain = mode; }
    bool normalise() const { return m_normalise; }
    void setNormalise(bool on) { m_normalise = on; }
    QString decodecName() const { return m_decodecName; }
    void setDecodecName(const QString& encoder) { m_decodecName = encoder; }
    QString outputExtName() const { return m_outputExtName; }
    void setOutputExtName(const QString& ext) { m_outputExtName = ext; }
    QString strImgFileName() const { return m_strImgFileName; }
    void setStrImgFileName(const QString& name) { m_strImgFileName = name; }
    // The folder this container's run writes into, as "Output Folder…" chose it; empty: the
    // folder chosen at Start (with the format's own folder below it when organising by format).
    QString outputPath() const { return m_outputPath; }
    void setOutputPath(const QString& path) { m_outputPath = path; }
    // -1: no music-library option for this format, 0: offered and off, 1: offered and on.
    int enumAddToLibrary() const { return m_enumAddToLibrary; }
    void setEnumAddToLibrary(int value) { m_enumAddToLibrary = value; }

    // How outputs are named (ConvertNaming's pattern; empty: after the source's own name), and
    // whether a file added with a folder keeps its place below that folder in the output folder.
    QString namePattern() const { return m_namePattern; }
    void setNamePattern(const QString& pattern) { m_namePattern = pattern; }
    bool mirrorFolders() const { return m_mirrorFolders; }
    void setMirrorFolders(bool on) { m_mirrorFolders = on; }

    std::shared_ptr<SXFormatSetting> copy() const;

    // The generic text that names this object ("<SXFormatSetting: 0x...>"), not its fmtDescribe.
    QString description() const;

private:
    QStringList m_arySampleRate;
    QStringList m_aryBiteRate;
    QStringList m_aryChannels;
    QString m_fmtName;
    QString m_fmtDescribe;
    QString m_sampleRate;
    QString m_bitRate;
    QString m_channels;
    QString m_decodecName;
    QString m_outputExtName;
    QString m_strImgFileName;
    QString m_outputPath;
    int m_enumAddToLibrary = 0;
    SXReplayGainMode m_replayGain = SXReplayGainMode::Off;
    bool m_normalise = false;
    QString m_namePattern;
    bool m_mirrorFolders = false;
};

using SXFormatSettingPtr = std::shared_ptr<SXFormatSetting>;
