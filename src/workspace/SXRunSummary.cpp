#include "workspace/SXRunSummary.h"

#include "workspace/SXFailureTexts.h"

#include <QSet>

SXRunSummary SXRunSummary::of(const SXMusicInfoList& items) {
    SXRunSummary summary;
    for (const SXMusicInfoPtr& item : items) {
        const LSMediaPtr media = item->mediaInfo();
        if (media && media->eumCvtState() == CvtStateFinished) {
            if (media->alreadyConverted())
                ++summary.alreadyConverted;
            else
                ++summary.converted;
            for (const QString& line : item->tagReport().lostLines())
                summary.tagLosses.append({item->strFilePath(), line});
        } else if (const std::optional<SXPathFailure> failure =
                       SXFailureTexts::conversionFailure(*item)) {
            summary.failures.append(*failure);
        }
    }
    return summary;
}

QString SXRunSummary::informativeText() const {
    QStringList lines;
    if (alreadyConverted > 0)
        lines.append(tr("%n files were already converted and were left as they were.", nullptr,
                        alreadyConverted));
    QSet<QString> losers;
    for (const SXPathFailure& loss : tagLosses)
        losers.insert(loss.path);
    if (!losers.isEmpty())
        lines.append(tr("%n files could not keep all their tags.", nullptr, int(losers.size())));
    return lines.join(QLatin1Char('\n'));
}

QString SXRunSummary::details() const {
    QString text = SXFailureTexts::detailLines(failures);
    if (!tagLosses.isEmpty())
        text += (text.isEmpty() ? QString() : QStringLiteral("\n")) +
                SXFailureTexts::detailLines(tagLosses);
    return text;
}
