#include "base/SXTimeText.h"

#include <QStringList>

#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

namespace {

// Seconds as the 32-bit count the clock strings work with. Truncated toward zero; NaN counts 0
// and values beyond the range saturate instead of being undefined.
int truncatedToInt(double value) {
    if (std::isnan(value))
        return 0;
    if (value >= static_cast<double>(std::numeric_limits<int>::max()))
        return std::numeric_limits<int>::max();
    if (value <= static_cast<double>(std::numeric_limits<int>::min()))
        return std::numeric_limits<int>::min();
    return static_cast<int>(value);
}

// The decimal number at the start of `piece` (optional blanks and sign first), 0 when there is
// none. Written out instead of strtod because the C locale of a Qt program follows the user's
// locale, where the decimal separator may be a comma.
double leadingDecimal(const QString& piece) {
    const QByteArray bytes = piece.toUtf8();
    const char* cursor = bytes.constData();
    const char* end = cursor + bytes.size();
    while (cursor < end && (*cursor == ' ' || (*cursor >= '\t' && *cursor <= '\r')))
        ++cursor;
    bool negative = false;
    if (cursor < end && (*cursor == '+' || *cursor == '-')) {
        negative = *cursor == '-';
        ++cursor;
    }
    // Only digits or a decimal point may follow: "inf", "nan" and a second sign are not numbers
    // of a clock.
    if (cursor == end || !((*cursor >= '0' && *cursor <= '9') || *cursor == '.'))
        return 0.0;
    double value = 0.0;
    const auto [stop, error] = std::from_chars(cursor, end, value, std::chars_format::general);
    Q_UNUSED(stop);
    if (error != std::errc())
        return 0.0;
    return negative ? -value : value;
}

} // namespace

QString SXTimeText::clockString(double seconds) {
    int hour = 0;
    int minute = 0;
    int second = 0;
    hourMinuteSecond(&hour, &minute, &second, seconds);
    QString text;
    if (hour >= 0)
        text += QString::asprintf("%02d:", hour);
    text += QString::asprintf("%02d:", minute);
    text += QString::asprintf("%02d", second);
    return text;
}

void SXTimeText::hourMinuteSecond(int* hour, int* minute, int* second, double seconds) {
    const int total = truncatedToInt(seconds);
    const int hours = total / 3600;
    if (hour)
        *hour = hours;
    if (minute)
        *minute = (total - hours * 3600) / 60;
    if (second)
        *second = total % 60;
}

double SXTimeText::secondsOfClockString(const QString& timeString) {
    static constexpr double weights[] = {3600.0, 60.0, 1.0};
    const QStringList pieces = timeString.split(QLatin1Char(':'));
    double total = 0.0;
    for (qsizetype i = 0; i < pieces.size() && i < 3; ++i)
        total += weights[i] * leadingDecimal(pieces.at(i));
    return total;
}

QString SXTimeText::remainingText(double seconds) {
    // Each source text is picked by the rule users have always read ("1 seconds" under 1.5 s,
    // "minite" up to 119 s), so that without a catalogue the words stay as they were; a
    // catalogue gives every one of them proper plural forms from the count itself.
    if (seconds < 60) {
        // printf rounds the value; the choice of word deliberately looks at the unrounded one.
        const int shown = int(std::nearbyint(seconds));
        return seconds > 1.0 ? tr("%n seconds remaining", nullptr, shown)
                             : tr("%n second remaining", nullptr, shown);
    }
    if (seconds < 3600) {
        const int whole = truncatedToInt(seconds);
        const int minutes = whole / 60;
        const int rest = truncatedToInt(seconds - minutes * 60.0) % 60;
        return tr("%1 %2 remaining")
            .arg(whole > 119 ? tr("%n minites", nullptr, minutes)
                             : tr("%n minite", nullptr, minutes),
                 rest > 1 ? tr("%n seconds", nullptr, rest) : tr("%n second", nullptr, rest));
    }
    // An hour or more, and NaN, which fails both tests above.
    const int whole = truncatedToInt(seconds);
    const int hours = whole / 3600;
    const int rest = truncatedToInt(seconds - hours * 3600.0);
    return tr("%1 %2 remaining")
        .arg(whole > 7199 ? tr("%n hours", nullptr, hours) : tr("%n hour", nullptr, hours),
             rest > 119 ? tr("%n minites", nullptr, rest / 60)
                        : tr("%n minite", nullptr, rest / 60));
}
