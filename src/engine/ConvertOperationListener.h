#pragma once

class ConvertOperation;

// Receiver of a conversion's reports. Every callback comes on the operation's worker thread;
// a receiver that updates an interface moves that work to its own thread without waiting.
// All callbacks are optional.
class ConvertOperationListener {
public:
    virtual ~ConvertOperationListener() = default;

    // The encoder is about to start.
    virtual void didConvertOperationStart(ConvertOperation* /*operation*/) {}
    // A new progress value (per cent) together with a new time-remaining estimate.
    virtual void convertOperationHandleProgress(ConvertOperation* /*operation*/,
                                                double /*percent*/) {}
    // Delivery to the music library begins (the item is CvtStateSending).
    virtual void convertStartSync(ConvertOperation* /*operation*/) {}
    // The last act of the run; the item's final state is set.
    virtual void didConvertOperationFinish(ConvertOperation* /*operation*/) {}
};
