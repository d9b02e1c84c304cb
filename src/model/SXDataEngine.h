#pragma once

#include "model/SXFormatSetting.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>

// The process-wide catalogue of output formats, read once from the preset property list. Hands out
// copies of its records so that no container can change the catalogue. Everything except
// shareInstance() is meant for the main thread.
class SXDataEngine {
public:
    // The single instance, made and loaded on the first call (under a lock) and kept until exit.
    static SXDataEngine* shareInstance();

    // A catalogue of its own, loaded from the given preset file. The program uses shareInstance();
    // this is for tools and tests that need a catalogue of a particular file.
    explicit SXDataEngine(const QString& presetPath);
    SXDataEngine(const SXDataEngine&) = delete;
    SXDataEngine& operator=(const SXDataEngine&) = delete;

    // Names of all formats in catalogue order.
    QStringList getAllOutputFormats() const;
    // A fresh copy of the format with exactly this name (case-sensitive), or nullptr.
    SXFormatSettingPtr getFormatWithName(const QString& name) const;
    // The encoder for a preset codec name; a null string when the codec map does not have it.
    QString getDecodecWithCodecName(const QString& codecName) const;
    // File-kind code of the tag library for an extension: mp3 and flac 0, m4a and mp4 1, else 4.
    static int getTagFileFormatByFileType(const QString& ext);
    // The containers every workspace opens with and that cannot be closed: MP3, AAC, Ringtone.
    static QStringList getCanNotRemoveFormatContainer();
    // Picture types accepted as cover art.
    static QStringList getCanUseImageType();
    // Formats whose output files may be opened in the tag editor.
    QStringList getCanEditMetadataMusicType() const { return m_aryCanEditTagFmts; }

    // The preset file's "Devices" and "Formats" values, kept as read.
    QVariant aryDevices() const { return m_aryDevices; }
    QVariant aryFormats() const { return m_aryFormats; }

private:
    void load(const QString& presetPath);
    void loadFormatDecodeMap(const QVariantMap& preset);
    void loadFormatSettingInfo(const QVariantMap& preset);
    SXFormatSettingPtr makeFormat(const QVariantMap& entry) const;
    void placeMusicLibraryFormat();

    QVariant m_aryDevices;
    QVariant m_aryFormats;
    QList<SXFormatSettingPtr> m_aryAFormats;
    QHash<QString, QString> m_dicDecodeMaps;
    QStringList m_aryCanEditTagFmts;
};
