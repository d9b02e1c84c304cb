#pragma once

#include <QString>

// Turns the encoder's console text into a percentage and a time-remaining estimate. The
// percentage follows every status line; the estimate is renewed only after at least one second
// of media time and a tenth of a per cent since the last renewal, so it does not jitter.
class ConvertProgressTracker {
public:
    struct Update {
        bool hasTime = false; // the chunk carried a usable "time=hh:mm:ss"
        double progress = 0;  // per cent of the duration, not clamped
        double leftTime = 0;  // seconds remaining (the last estimate when not renewed)
        bool renewed = false; // a new estimate was made: the listener hears of it
    };

    static constexpr double kInitialLeftTime = 1000.0;
    static constexpr double kMaxLeftTime = 100000.0;

    // Seconds of media time in the first "time=" of `chunk`: the 8 characters "hh:mm:ss" that
    // follow it (the fraction is ignored). False when there is none or it is not of that form
    // (ffmpeg prints "time=N/A" before the first packet, and a chunk may end inside the field).
    static bool timeInChunk(const QString& chunk, double* seconds);

    // Reads one chunk against a source of `duration` seconds. A chunk without a usable time, or
    // an unknown (zero or negative) duration, changes nothing.
    Update feed(const QString& chunk, double duration);

    double dLastTime() const { return m_dLastTime; }
    double dLastPrg() const { return m_dLastPrg; }
    double dLastLeftTime() const { return m_dLastLeftTime; }

private:
    double m_dLastTime = 0;
    double m_dLastPrg = 0;
    double m_dLastLeftTime = kInitialLeftTime;
};
