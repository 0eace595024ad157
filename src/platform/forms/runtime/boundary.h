// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

// The boundary between the toolkit and the handlers; for the layer itself, not for screens.
//
// Two rules keep failures out of the toolkit's frames. Where the layer calls the toolkit, a ToolkitCall stands around
// the call, and whatever the toolkit calls back meanwhile returns at once: the layer fires its events afterwards, from
// its own frame. Where the toolkit calls the layer, everything runs inside fromToolkit(), the outermost catch.

namespace forms {

/// Stands around a call of the toolkit that the layer makes.
class ToolkitCall {
public:
    ToolkitCall();
    ~ToolkitCall();
    ToolkitCall(const ToolkitCall&) = delete;
    ToolkitCall& operator=(const ToolkitCall&) = delete;
};

/// True while the layer itself is inside a call of the toolkit.
bool insideToolkitCall();

/// True once the process is about to end by a failure: no handler runs any more.
bool isEnding();

/// True while a handler runs.
bool handlerRuns();

/// True while the event loop that runs waits for a handler that it has called; false in a loop that a handler has
/// begun.
bool loopWaitsForHandler();

/// Stands around everything that the toolkit calls.
class HandlerFrame {
public:
    HandlerFrame();
    ~HandlerFrame();
    HandlerFrame(const HandlerFrame&) = delete;
    HandlerFrame& operator=(const HandlerFrame&) = delete;

    /// When this is the outermost frame: brings the next screen forward where the active one was hidden, and runs the
    /// step of onHandlerReturn().
    void finish();

private:
    int toolkitCalls_;
    int loop_;
};

/// What the layer does when a frame has ended, and in the outermost one when its handler has returned, before the step
/// of onHandlerReturn(). Without, for programs that have no screens.
void setFrameSteps(std::function<void()> ended, std::function<void()> returned);

/// Reports the exception being handled and ends the process.
void reportCurrentException() noexcept;

/// Runs what a callback of the toolkit has to do. Nothing is thrown out of it.
template <class Callback>
void fromToolkit(Callback&& callback) noexcept
{
    if (isEnding())
        return;
    HandlerFrame frame;
    try {
        callback();
        frame.finish();
    } catch (...) {
        reportCurrentException();
    }
}

} // namespace forms
