#include "engine/ConvertProgressTracker.h"

#include "base/SXTimeText.h"

#include <QRegularExpression>
#include <algorithm>

namespace {
const QString kTimeMarker = QStringLiteral("time=");
constexpr qsizetype kClockLength = 8; // "hh:mm:ss"
} // namespace

bool ConvertProgressTracker::timeInChunk(const QString& chunk, double* seconds) {
    const qsizetype at = chunk.indexOf(kTimeMarker);
    if (at < 0)
        return false;
    const QString clock = chunk.mid(at + kTimeMarker.size(), kClockLength);
    static const QRegularExpression clockForm(QStringLiteral("^\\d\\d:\\d\\d:\\d\\d$"));
    if (!clockForm.match(clock).hasMatch())
        return false;
    *seconds = SXTimeText::secondsOfClockString(clock);
    return true;
}

ConvertProgressTracker::Update ConvertProgressTracker::feed(const QString& chunk, double duration) {
    Update update;
    double seconds = 0;
    if (!(duration > 0) || !timeInChunk(chunk, &seconds))
        return update;
    update.hasTime = true;
    update.progress = seconds / duration * 100.0;

    const double mediaStep = seconds - m_dLastTime;
    const double progressStep = update.progress - m_dLastPrg;
    if (mediaStep < 1.0 || progressStep < 0.1) {
        update.leftTime = m_dLastLeftTime;
        return update;
    }
    update.leftTime =
        std::min((100.0 - update.progress) / (progressStep / mediaStep), kMaxLeftTime);
    update.renewed = true;
    m_dLastPrg = update.progress;
    m_dLastTime = seconds;
    m_dLastLeftTime = update.leftTime;
    return update;
}
