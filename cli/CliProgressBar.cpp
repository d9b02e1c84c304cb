#include "CliProgressBar.h"

#include "CliOutput.h"
#include "base/SXTimeText.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace {
constexpr int kBarWidth = 30;
const char* const kEraseToEnd = "\x1b[K";
} // namespace

void CliProgressBar::start() {
    m_clock.start();
}

double CliProgressBar::remainingSeconds(double elapsedSeconds, double percent) {
    if (!(percent > 0) || elapsedSeconds <= 0)
        return -1;
    if (percent >= 100)
        return 0;
    return elapsedSeconds * (100.0 - percent) / percent;
}

QString CliProgressBar::lineText(double percent, int done, int failed, int total,
                                 double remaining) {
    const double shown = std::isnan(percent) ? 0.0 : std::clamp(percent, 0.0, 100.0);
    const int filled = int(std::lround(shown * kBarWidth / 100.0));
    QString text = QStringLiteral("[") + QString(filled, QLatin1Char('#')) +
                   QString(kBarWidth - filled, QLatin1Char('-')) + QStringLiteral("] ");
    text += QCoreApplication::translate("CliProgressBar", "%1%  %2/%3 done")
                .arg(QString::asprintf("%3.0f", shown))
                .arg(done)
                .arg(total);
    if (failed > 0)
        text += QCoreApplication::translate("CliProgressBar", ", %1 failed").arg(failed);
    text += QStringLiteral(", ");
    text += remaining < 0
                ? QCoreApplication::translate("CliProgressBar", "estimating time remaining")
                : SXTimeText::remainingText(remaining);
    return text;
}

void CliProgressBar::update(double percent, int done, int failed, int total) {
    const double remaining = remainingSeconds(double(m_clock.elapsed()) / 1000.0, percent);
    CliOutput::write(stdout, QStringLiteral("\r") +
                                 lineText(percent, done, failed, total, remaining) +
                                 QLatin1String(kEraseToEnd));
    m_drawn = true;
}

void CliProgressBar::clear() {
    if (!m_drawn)
        return;
    CliOutput::write(stdout, QStringLiteral("\r") + QLatin1String(kEraseToEnd));
    m_drawn = false;
}
