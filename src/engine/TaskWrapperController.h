#pragma once

#include <QString>

// Receiver of a TaskWrapper's reports. Every callback is optional: the default bodies do nothing.
// appendOutput, processStarted and launcherDidTerminatedWithCode arrive on the thread that called
// TaskWrapper::startProcess; processFinished arrives on whichever thread called stopProcess.
class TaskWrapperController {
public:
    virtual ~TaskWrapperController() = default;

    // One chunk of the child's merged console output, as read. A chunk that is not valid UTF-8
    // (for example one cut inside a multi-byte character) arrives as a null QString: ignore it.
    virtual void appendOutput(const QString& /*output*/) {}
    // The child is about to be launched.
    virtual void processStarted() {}
    // The wrapper has stopped the child: its output ended or a stop was requested.
    virtual void processFinished() {}
    // The child has terminated: its exit status, or 128 + the number of the signal that ended it.
    // 127 when the program could not be launched. The last callback a wrapper ever makes.
    virtual void launcherDidTerminatedWithCode(int /*code*/) {}
};
