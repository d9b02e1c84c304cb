#pragma once

#include <QString>

// What the start-up report says about the computer: the kernel's version and the model.
class SXSystemInfo {
public:
    // Major, minor and bug-fix numbers of the running kernel. False when the major or minor
    // number cannot be read; the numbers after the failed one are then left untouched.
    static bool kernelVersion(qint64* major, qint64* minor, qint64* bugFix);
    // The same reading applied to a kernel release text such as "6.1.0-18-amd64". A missing
    // bug-fix number reads as 0.
    static bool versionNumbersFromRelease(const QString& release, qint64* major, qint64* minor,
                                          qint64* bugFix);
    static QString systemVersionString(); // "%u.%u.%u"
    // The machine's product name as the firmware reports it, "PC" when it does not.
    static QString computerModel();
    static QString computerModelFromFile(const QString& productNameFile);
};
