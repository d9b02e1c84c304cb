#pragma once

#include "model/SXFormatSetting.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

class SXContainerStore;

// The short texts a workspace window shows about itself, shared by every front end.
class SXWorkspaceTexts {
    Q_DECLARE_TR_FUNCTIONS(SXWorkspaceTexts)

public:
    // "3 files, 0.3 hours, 3.0 MB in 2 containers" over every container of the workspace, with
    // the locale's numbers and size units; empty without items. Reads the items' cached records
    // only, never the disk.
    static QString helpBarText(const SXContainerStore& workspace);
    // "Converter to " and the format's description (the catalogue words it "Convert to"); empty
    // without a setting.
    static QString tabToolTip(const SXFormatSettingPtr& setting);
    // The word after a tab's count badge for a screen reader: "item" for one, else "items".
    static QString countNoun(int count);
    // The count and its noun together ("1 item", "3 items"), so that a catalogue can give each
    // number its plural form.
    static QString countText(int count);
    // What a screen reader says for a tab: its label and its count ("MP3, 3 items").
    static QString tabAccessibleName(const QString& label, int count);
    // The window title: the application's name, and during a run the total in whole per cent
    // first, so that a task bar that cuts titles short still shows it ("42% — Sonoria").
    static QString windowTitle(const QString& appName, int state, double percent);
    // One name per line ("%@\n"), and "..." after the 11th: how alerts list files.
    static QString cappedNameLines(const QStringList& names);
};
