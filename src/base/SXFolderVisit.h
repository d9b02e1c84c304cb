#pragma once

#include <QSet>
#include <QString>

#include <utility>

// Remembers which folders a recursive walk has entered, by device and inode, so that a walk that
// follows symbolic links enters every folder at most once. A link back to an ancestor, or two
// links to the same folder, therefore cannot make a scan run forever.
class SXFolderVisit {
public:
    // True when `path` is a folder (links followed) that this walk has not entered before; the
    // folder is then recorded as entered.
    bool enter(const QString& path);

private:
    QSet<std::pair<quint64, quint64>> m_entered;
};
