#include "workspace/SXFailureTexts.h"

QString SXFailureTexts::conversionReason(const LSMedia* media) {
    const QString reason = media ? media->failReason() : QString();
    // An ffmpeg that ends with an error status is the one failure that comes without words.
    return reason.isEmpty() ? tr("ffmpeg failed without giving a reason") : reason;
}

std::optional<SXPathFailure> SXFailureTexts::conversionFailure(const SXMusicInfo& item) {
    const LSMediaPtr media = item.mediaInfo();
    if (!media || media->eumCvtState() != CvtStateFailed)
        return std::nullopt;
    return SXPathFailure{item.strFilePath(), conversionReason(media.get())};
}

QString SXFailureTexts::loadReason(const LSMedia* media) {
    const QString reason = media ? media->failReason() : QString();
    return reason.isEmpty() ? tr("The file cannot be read as audio") : reason;
}

QString SXFailureTexts::detailLines(const SXPathFailureList& failures) {
    QStringList lines;
    lines.reserve(failures.size());
    for (const SXPathFailure& failure : failures)
        lines.append(tr("%1: %2").arg(failure.path, failure.reason));
    return lines.join(QLatin1Char('\n'));
}

QString SXFailureTexts::runCounts(int succeeded, int failed, int notLoaded) {
    // Worded so that each count reads correctly in English whatever its number.
    QString text = tr("Converted: %n.", nullptr, succeeded) + QLatin1Char(' ') +
                   tr("Failed: %n.", nullptr, failed);
    if (notLoaded > 0)
        text += QLatin1Char(' ') + tr("Not loaded: %n.", nullptr, notLoaded);
    return text;
}

QString SXFailureTexts::rowToolTip(const SXMusicInfo& item) {
    const std::optional<SXPathFailure> failure = conversionFailure(item);
    const LSMediaPtr media = item.mediaInfo();
    if (!failure && media && media->eumCvtState() == CvtStateFinished && media->alreadyConverted())
        return item.strFilePath() + QLatin1Char('\n') +
               tr("Already converted: the output was there, whole and newer than this file");
    if (!failure) {
        const QStringList notKept = item.tagReport().lines();
        if (notKept.isEmpty())
            return item.strFilePath();
        return item.strFilePath() + QLatin1Char('\n') + tr("Tags not kept:") +
               QStringLiteral("\n  ") + notKept.join(QStringLiteral("\n  "));
    }
    return item.strFilePath() + QLatin1Char('\n') + tr("Failed: %1").arg(failure->reason);
}
