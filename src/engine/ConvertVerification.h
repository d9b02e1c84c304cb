#pragma once

#include <QString>

// The check of a finished output before anyone may call it converted: it exists, is not empty,
// reads back in-process as audio of the codec its encoder writes, and lasts as long as its
// source within max(0.5 s, 1 %) (not tested when the source's duration is unknown).
class ConvertVerification {
public:
    // Empty when `outputFile` passes, else why it does not, in the user's words.
    static QString check(const QString& outputFile, const QString& encoder, double sourceSeconds);

    // How far the output's duration may stray from the source's.
    static double toleranceSeconds(double sourceSeconds);
};
