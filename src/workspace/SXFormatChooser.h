#pragma once

#include "model/SXFormatSetting.h"

#include <QList>
#include <QStringList>

// What the format chooser decides, without its dialog: the formats it offers (those without a
// container, in catalogue order), the choices and check box it shows for one of them, and the
// record its OK makes. The dialog only shows these answers and hands back what is selected.
class SXFormatChooser {
public:
    // The value pop-ups and the music-library box for one format.
    struct Choices {
        QStringList sampleRates, bitRates, channels;
        QString sampleRate, bitRate, channel; // the items to select (the format's choices)
        bool libraryVisible = false;          // hidden for a format without the option (-1)
        bool libraryOn = false;
    };
    // What the dialog has selected when OK is pressed.
    struct Selection {
        QString format, sampleRate, bitRate, channel;
        bool libraryOn = false;
    };

    explicit SXFormatChooser(const QList<SXFormatSettingPtr>& leftFmts);

    const QList<SXFormatSettingPtr>& leftFmts() const { return m_leftFmts; }
    QStringList formatNames() const;
    // The first offered format of that name; empty choices for an unknown name.
    Choices changeFormatSelect(const QString& name) const;
    // A copy of the selected format with the selected values; the choice lists stay shared with
    // the catalogue's record and -1 (no library option) is kept whatever the hidden box says.
    // nullptr when the name is not offered.
    SXFormatSettingPtr getFormatSettingResult(const Selection& selection) const;

private:
    SXFormatSettingPtr find(const QString& name) const;

    QList<SXFormatSettingPtr> m_leftFmts;
};
