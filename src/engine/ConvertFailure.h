#pragma once

#include <QCoreApplication>
#include <QString>

// Why a conversion failed, in the words a user reads: from an error number of the system, from
// what ffmpeg printed, or from what the check of the finished output found. Every text is a
// translatable source string of the "ConvertFailure" context.
class ConvertFailure {
    Q_DECLARE_TR_FUNCTIONS(ConvertFailure)

public:
    // The system's error `error` (errno) met while writing into the output folder.
    static QString fromErrno(int error);
    // Whether a folder can take our outputs: made when missing, then written to and cleaned up
    // again. Empty when it can, else why not.
    static QString checkOutputFolder(const QString& folder);

    // What ffmpeg's console text says went wrong while writing, or that nothing was encoded;
    // empty when it reports no such failure. ffmpeg exits 0 after these (a full disk while the
    // trailer is written, an output with nothing encoded), so this is asked after a clean exit.
    static QString fromFfmpegOutput(const QString& output);
    // The decoding trouble ffmpeg reported, as a reason; empty when it reported none. Only an
    // explanation: ffmpeg skips a damaged frame and the output can still be whole.
    static QString decodingIn(const QString& output);
    // The reason for a child that exited with `status` without saying anything we recognise.
    static QString fromExitStatus(int status, const QString& output);

    // The outcome of the output's check (ConvertVerification).
    static QString outputMissing();
    static QString outputEmpty();
    static QString outputUnreadable();
    static QString outputWrongFormat(const QString& found, const QString& expected);
    static QString outputShorter(double outputSeconds, double sourceSeconds);
    static QString outputLonger(double outputSeconds, double sourceSeconds);
    static QString tagsNotSaved(const QString& detail);
    static QString notMoved(const QString& detail);
    static QString ffmpegMissing();
};
