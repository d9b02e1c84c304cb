#pragma once

#include <QString>

// --info FILE: loads the file as an add run would (probe, size, date, tags) and prints what the
// file information panel shows for it.
class CliInfo {
public:
    // Prints the labels to standard output; returns the exit status (1 when the file cannot
    // be loaded, with the reason on standard error).
    static int printInfo(const QString& path);
};
