#pragma once

#include "model/SXFormatSetting.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

// A message the workspace needs the user to see and answer. The window shows it as a
// window-modal alert; a terminal prints it; a test answers it.
struct SXAlert {
    QString messageText;     // the bold first line ("Following file(s) load failed!")
    QString informativeText; // the body, may be empty
    QStringList buttons;     // in order; the first is the default button
    QString details{};       // a long list behind the alert (every failure), may be empty
};

// What the output-folder chooser starts from.
struct SXOutputFolderRequest {
    QString startFolder;
    QString message; // "Please choose output folder:"
    QString prompt;  // "OK"
    bool organizeByFormat = true;
    bool openWhenDone = false;
};

// What the user chose in the output-folder chooser.
struct SXOutputFolderChoice {
    QString folder;
    bool organizeByFormat = true;
    bool openWhenDone = false;
};

// Everything the workspace asks of its front end. Questions are answered through a completion
// callback, so a window can open its dialogs with open() and never spin a nested event loop; the
// command-line tool and the tests may call the answer before returning. An answer that is never
// called (the window went away) simply ends the question. All calls come on the main thread and
// every answer must be called there.
class SXWorkspacePresenter {
public:
    template <class T> using Answer = std::function<void(T)>;

    virtual ~SXWorkspacePresenter() = default;

    // A modal alert; answers the index of the chosen button in alert.buttons.
    virtual void runModalAlert(const SXAlert& alert, Answer<int> chosenButton) = 0;
    // A window-modal notice that only informs (nothing waits for it), such as the refusal to close
    // a tab.
    virtual void showNotice(const SXAlert& alert) = 0;
    // The output folder of a run; nothing when the user cancelled.
    virtual void chooseOutputFolder(const SXOutputFolderRequest& request,
                                    Answer<std::optional<SXOutputFolderChoice>> chosen) = 0;
    // The format of a new container among `formats` (catalogue order); nullptr when cancelled.
    virtual void chooseNewFormat(const QList<SXFormatSettingPtr>& formats,
                                 Answer<SXFormatSettingPtr> chosen) = 0;
    // The system's "refused" sound.
    virtual void beep() = 0;
    // Shows a folder in the file browser.
    virtual void openFolder(const QString& path) = 0;
};
