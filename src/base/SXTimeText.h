#pragma once

#include <QCoreApplication>
#include <QString>

// Clock strings and the time-remaining wording of the rows and the summary. Static and safe to
// call from worker threads.
class SXTimeText {
    Q_DECLARE_TR_FUNCTIONS(SXTimeText)

public:
    // "hh:mm:ss" (hours are never cut to two digits: 360000 s give "100:00:00").
    static QString clockString(double seconds);
    // Seconds truncated toward zero (NaN counts 0, values beyond 32 bits saturate).
    static void hourMinuteSecond(int* hour, int* minute, int* second, double seconds);
    // "h:m:s" to seconds; each piece is read as a decimal number from its start, a piece that
    // does not begin with one counts 0, pieces after the third are ignored.
    static double secondsOfClockString(const QString& timeString);
    // "2 minites 5 seconds remaining" as the source text; the catalogue of the user's language
    // (the English one included) gives the words their proper plural forms.
    static QString remainingText(double seconds);
};
