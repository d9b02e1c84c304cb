#include "CliInfo.h"

#include "CliOutput.h"
#include "engine/LSMediaLoader.h"
#include "workspace/SXFileInfoText.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace {

// Collects the loader's verdict; the loader calls it on its worker thread, and waitUntilDone()
// orders that write before our read.
class SingleLoad : public LSMediaLoaderListener {
public:
    void mediaLoaderDidCompleteLoadMedias(LSMediaLoader*, const std::optional<SXMusicInfoList>&,
                                          const std::optional<QSet<int>>& failedIndex) override {
        failed = failedIndex && failedIndex->contains(0);
    }
    bool failed = true;
};

QString artworkText(const SXMusicInfo& item) {
    const std::optional<MTEArtwork> artwork = SXFileInfoText::artworkForItem(item);
    if (!artwork)
        return QCoreApplication::translate("CliInfo", "none");
    const QString kind = artwork->mimeType.isEmpty()
                             ? QCoreApplication::translate("CliInfo", "image")
                             : artwork->mimeType;
    return QCoreApplication::translate("CliInfo", "%1, %n bytes", nullptr,
                                       int(artwork->data.size()))
        .arg(kind);
}

} // namespace

int CliInfo::printInfo(const QString& path) {
    const QString absolute = QDir::cleanPath(QDir::current().absoluteFilePath(path));
    const SXMusicInfoPtr item = SXMusicInfo::newForSource(absolute, QString());

    SingleLoad verdict;
    const LSMediaLoaderPtr loader = LSMediaLoader::create();
    loader->setListener(&verdict);
    loader->loadMediasWithMediaArray({item});
    loader->waitUntilDone();
    if (verdict.failed) {
        CliOutput::line(stderr, QCoreApplication::translate(
                                    "CliInfo", "sonoria-cli: cannot read \"%1\" as media")
                                    .arg(CliOutput::escaped(path)));
        return 1;
    }

    QString text;
    for (const SXFileInfoLine& line : SXFileInfoText::linesForItem(*item)) {
        if (line.shown)
            text += QStringLiteral("%1 %2\n")
                        .arg(line.caption + QLatin1Char(':'), -15)
                        .arg(CliOutput::escaped(line.text));
    }
    text += QStringLiteral("%1 %2\n")
                .arg(QCoreApplication::translate("CliInfo", "Artwork:"), -15)
                .arg(artworkText(*item));
    CliOutput::write(stdout, text);
    return 0;
}
