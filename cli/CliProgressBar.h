#pragma once

#include <QElapsedTimer>
#include <QString>

// The live line of a run on a terminal: a bar of the total progress, files done and failed, and
// the time left in the wording the window uses. Redrawn in place with a carriage return.
class CliProgressBar {
public:
    void start();
    // Redraws with the core's total progress in per cent (NaN when there is nothing to count).
    void update(double percent, int done, int failed, int total);
    // Removes the line so ordinary text can follow.
    void clear();

    // Seconds left at the average rate since the start; negative when there is no rate yet.
    static double remainingSeconds(double elapsedSeconds, double percent);
    static QString lineText(double percent, int done, int failed, int total, double remaining);

private:
    QElapsedTimer m_clock;
    bool m_drawn = false;
};
