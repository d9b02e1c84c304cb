#pragma once

#include "engine/ConvertExisting.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QUrl>

// What the preferences window shows and stores, and the program's other small per-user values
// that the window layer needs. Every change is written at once; there is no OK button.
class SXPreferences {
public:
    // The maximum-tasks pop-up offers "2", "5" and "10"; any other stored number selects none.
    static QStringList maxTasksTitles();
    static int maxTasksIndex(); // -1 for a stored value that is not offered
    // Stores the number the chosen title reads as.
    static void setMaxTasks(const QString& chosenTitle);

    // The library format pop-up: index 0 stands for "AAC", 1 for "MP3".
    static QStringList libraryFormatTitles();
    static int libraryFormatIndex();
    static void setLibraryFormat(int chosenIndex);

    // What a run does with an output whose planned name is taken: the pop-up offers "Skip files
    // already converted" (the default), "Keep both" and "Replace", in the order of
    // existingOutputsChoices().
    static QList<ConvertExisting> existingOutputsChoices();
    static QStringList existingOutputsTitles();
    static ConvertExisting existingOutputs();
    static int existingOutputsIndex();
    static void setExistingOutputs(int chosenIndex);

    static QString playlistName();
    // Every keystroke of the playlist field is stored as the whole text.
    static void controlTextDidChange(const QString& text);

    // Whether the start-up report and the feature switches may go over the network; off until
    // the user ticks it (SXServiceRequest).
    static bool serviceConsent();
    static void setServiceConsent(bool agreed);
    // The address the requests go to, for the sentence that explains the check box.
    static QString serviceAddress();

    // The size and place of the workspace window between runs (Qt's geometry bytes).
    static QByteArray mainWindowGeometry();
    static void setMainWindowGeometry(const QByteArray& geometry);

    // Where the Help menu leads: the installed help page (share/sonoria/help.html, empty when
    // missing), the web site and a feedback mail with the subject "About Sonoria".
    static QUrl helpPageUrl();
    static QUrl websiteUrl();
    static QUrl feedbackMailUrl();
};
