#pragma once

#include "base/SXPathFailure.h"

#include <QString>
#include <QStringList>

#include <functional>

// Stateless helpers shared by the whole program: clock strings, the time-remaining wording,
// output names that never overwrite anything, folder creation and scanning, the accepted source
// extensions, the installation identifier and version strings. Everything is static and safe to
// call from worker threads.
class GlobalFun {
public:
    // --- Clock strings ---
    // "hh:mm:ss" (hours are never cut to two digits: 360000 s give "100:00:00").
    static QString getTimeStringBySecond(double seconds);
    // Seconds truncated toward zero (NaN counts 0, values beyond 32 bits saturate).
    static void getHourMiniteSecondWithTime(int* hour, int* minite, int* second, double seconds);
    // "h:m:s" to seconds; each piece is read as a decimal number from its start, a piece that
    // does not begin with one counts 0, pieces after the third are ignored.
    static double getSecondsByTimeString(const QString& timeString);
    // "2 minites 5 seconds remaining": the unit words are kept exactly as users know them.
    static QString getEstimateStrBySecond(double seconds);

    // --- Paths and files ---
    // A path with extension `ext` (appended when the path's own extension is not exactly `ext`)
    // where nothing exists yet and `taken` (when given) says no; taken names get a counter "(1)",
    // "(2)", ... in the file's own name, never in the folders above it.
    static QString makeSureFullPathIdentical(const QString& path, const QString& ext,
                                             const std::function<bool(const QString&)>& taken = {});
    // True when a folder exists at `path` afterwards (created with its parents when missing).
    static bool makeSureFolderExists(const QString& path);
    // Full paths of the files below `dir` whose extension matches `filter` (case-insensitive),
    // depth first. Symbolic links are followed, yet every folder is scanned at most once.
    // Folders that cannot be listed, and names that are not valid UTF-8 (files with a matching
    // extension, folders), are added to `failures` with their reason.
    static QStringList fileListAtDirenctory(const QString& dir, const QStringList& filter,
                                            SXPathFailureList* failures = nullptr);
    // The accepted source extensions, a fresh list each call.
    static QStringList getSupportedFmts();
    // Registers the getter of the remote "experimental" switch; without one the switch is on.
    static void setExperimentalSwitch(std::function<bool()> isExperimentalOn);

    // --- Identity and versions ---
    // The installation's identifier, created once and kept under the settings key "guid".
    static QString getGUID();
    // Short version brought to exactly three components: "2.1" -> "2.1.0", "1.2.3.4" -> "1.2.3".
    static QString normalizedVersion(const QString& shortVersion);
    static QString getAppVersion();
    static QString getAppBuildNumber();
    static QString getAppBuildVersion(); // getAppVersion() + "." + getAppBuildNumber()
    static QString bundleID();
    // Major, minor and bug-fix numbers of the running kernel. False when the major or minor
    // number cannot be read; the numbers after the failed one are then left untouched.
    static bool getMajorMinorBugFix(qint64* major, qint64* minor, qint64* bugFix);
    // The same reading applied to a kernel release text such as "6.1.0-18-amd64". A missing
    // bug-fix number reads as 0.
    static bool versionNumbersFromRelease(const QString& release, qint64* major, qint64* minor,
                                          qint64* bugFix);
    static QString getSystemVersionString(); // "%u.%u.%u"
    // The machine's product name as the firmware reports it, "PC" when it does not.
    static QString computerModel();
    static QString computerModelFromFile(const QString& productNameFile);
};
