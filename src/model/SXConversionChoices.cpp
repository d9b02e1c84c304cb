#include "model/SXConversionChoices.h"

#include <QLocale>
#include <QRegularExpression>

#include <cmath>

namespace {
const QString kUseSource = QStringLiteral("Use Source");

std::optional<int> numberIn(const QString& title) {
    // A title may carry its unit ("192 kbps"); only the leading number counts.
    static const QRegularExpression number(QStringLiteral(R"(^\s*(\d+(?:\.\d+)?))"));
    const QRegularExpressionMatch match = number.match(title);
    if (!match.hasMatch())
        return std::nullopt;
    return int(std::lround(QLocale::c().toDouble(match.captured(1))));
}

std::optional<int> channelsIn(const QString& title) {
    if (title.compare(QLatin1String("Stereo"), Qt::CaseInsensitive) == 0)
        return 2;
    if (title.compare(QLatin1String("Mono"), Qt::CaseInsensitive) == 0)
        return 1;
    return numberIn(title);
}
} // namespace

SXConversionChoices SXConversionChoices::fromTitles(const QString& bitRate,
                                                    const QString& sampleRate,
                                                    const QString& channels) {
    SXConversionChoices choices;
    choices.bitRate = numberIn(bitRate);
    choices.lossless = !choices.bitRate && bitRate.trimmed() != kUseSource;
    choices.sampleRate = numberIn(sampleRate);
    choices.channels = channelsIn(channels);
    return choices;
}
