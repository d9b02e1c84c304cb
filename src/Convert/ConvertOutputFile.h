#pragma once

#include <QString>

class LSMedia;

// The file one conversion writes: a name reserved so that it replaces nothing, removed again
// only when this run created it, and a ringtone's move to its own extension once encoded.
class ConvertOutputFile {
public:
    // The folder the output goes to: `chosen` (empty: the source's folder), always absolute, so
    // ffmpeg can never take the output for an option.
    static QString folderFor(const QString& chosen, const LSMedia& media);

    // Reserves the output name for `media` in `folder` (ConvertOutputPath::reserve); a ringtone
    // is encoded under `encodeExt` first. When no file could be created there, logs why and
    // returns the free name all the same.
    QString reserve(const LSMedia& media, const QString& folder, const QString& encodeExt);

    // Removes `path` if this run created it: a name that could not be reserved may belong to
    // someone else. Afterwards this run owns no file.
    void removeIfOwn(const QString& path);

    // Moves `current` to the name with the extension `ext` under a free name and returns the
    // new path; `current` itself when there is no such file; empty after logging a failure.
    static QString moveToExtension(const QString& current, const QString& ext);

private:
    bool m_owns = false;
};
