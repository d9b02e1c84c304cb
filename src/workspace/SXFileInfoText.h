#pragma once

#include "framework/MTEAudioFile.h"
#include "model/SXMusicInfo.h"

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <optional>

// One label of the file information panel: the label's name in the panel (tfInfoTitle, ...), a
// caption for front ends that print the labels, and the text the label shows.
struct SXFileInfoLine {
    QString labelName;
    QString caption;
    QString text;
    bool shown = true; // false for a label that has nothing to say for this item
};

// The texts of the file information panel for one item: names people know for codecs, channels
// and tag families, numbers, sizes and dates as the user's locale writes them, and the source
// texts the panel has always shown ("Unknow", "mod"), which the catalogues word properly. The
// window's panel and the command-line tool both take their texts from here, so they cannot
// disagree.
class SXFileInfoText {
    Q_DECLARE_TR_FUNCTIONS(SXFileInfoText)

public:
    // Every label in the order the panel shows them, title first. A missing tag handle or media
    // record yields the fallbacks, never a failure.
    static QList<SXFileInfoLine> linesForItem(const SXMusicInfo& item);
    // The text of one label by name (empty when the name is not a label of the panel).
    static QString textForLabel(const QList<SXFileInfoLine>& lines, const QString& labelName);
    // The picture the panel shows: the last one the tags carry.
    static std::optional<MTEArtwork> artworkForItem(const SXMusicInfo& item);

    // The label texts that need more than a field lookup, for reuse and for tests.
    static QString bitRateText(const MTEAudioFile* tags, const LSMedia* media);
    static QString sampleRateText(const MTEAudioFile* tags, const LSMedia* media);
    static QString fileSizeText(double bytes);
    static QString id3TagText(const QString& tagVersion);
    static QString kindText(const QString& filePath, int mediaType);
};
