#include "engine/ConvertVerification.h"

#include "engine/ConvertFailure.h"
#include "framework/HVMediaInfo.h"
#include "framework/HVMediaInfoItem.h"

#include <QFile>

#include <algorithm>
#include <cmath>
#include <sys/stat.h>

namespace {
constexpr double kMinimumToleranceSeconds = 0.5;
constexpr double kRelativeTolerance = 0.01;
} // namespace

double ConvertVerification::toleranceSeconds(double sourceSeconds) {
    return std::max(kMinimumToleranceSeconds, kRelativeTolerance * sourceSeconds);
}

QString ConvertVerification::check(const QString& outputFile, const QString& encoder,
                                   double sourceSeconds) {
    struct stat status {};
    if (::stat(QFile::encodeName(outputFile).constData(), &status) != 0 || !S_ISREG(status.st_mode))
        return ConvertFailure::outputMissing();
    if (status.st_size == 0)
        return ConvertFailure::outputEmpty();

    HVMediaInfoItem probed;
    probed.setFilePath(outputFile);
    // The probe's own words name the hidden temporary file, which means nothing to a user.
    if (!HVMediaInfo::dumpMediaInfo(probed))
        return ConvertFailure::outputUnreadable();

    const QString expected = HVMediaInfo::codecOfEncoder(encoder);
    if (!expected.isEmpty() && probed.strAudioCodecName() != expected)
        return ConvertFailure::outputWrongFormat(probed.strAudioCodecName(), expected);

    if (!(sourceSeconds > 0) || !std::isfinite(sourceSeconds))
        return {};
    const double outputSeconds = probed.duration();
    // An output with no audio at all is caught here too: its duration is 0 or unknown.
    if (!(outputSeconds > 0))
        return ConvertFailure::outputShorter(0, sourceSeconds);
    const double tolerance = toleranceSeconds(sourceSeconds);
    if (outputSeconds < sourceSeconds - tolerance)
        return ConvertFailure::outputShorter(outputSeconds, sourceSeconds);
    if (outputSeconds > sourceSeconds + tolerance)
        return ConvertFailure::outputLonger(outputSeconds, sourceSeconds);
    return {};
}
