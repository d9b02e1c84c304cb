#pragma once

#include <QString>

// One rule for every name the program makes from words it did not choose (tags, a cue sheet's
// titles, the folders a user added), so that "AC/DC" is the same file name whichever way it came.
class SXSafeName {
public:
    // What a file system takes as one name, in bytes of UTF-8.
    static constexpr int kMaxBytes = 255;

    // `text` as one safe path component: no "/" or NUL, no control characters, no leading dot or
    // dash (which would hide the file or read as an option), no trailing space or dot, at most
    // `maxBytes` of UTF-8 cut between characters, never empty.
    static QString component(const QString& text, int maxBytes = kMaxBytes);
};
