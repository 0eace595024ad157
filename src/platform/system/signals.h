// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

namespace sys {

/// Runs `callback` when the program is asked to end from outside: by SIGTERM, SIGINT, SIGHUP, or by the end of the
/// desktop session, where the session tells its programs. It runs from the event loop, nested loops of open message
/// boxes included, never inside a signal handler, and once: what comes while it runs and afterwards has no effect, so
/// that nothing cuts an orderly end short. It must not throw.
///
/// Signals that the program was started to ignore (`nohup`, a background job of a script) stay ignored. The application
/// object must exist; the signals have their former effect again when it is destroyed. A further call replaces the
/// callback, and an empty one gives the signals back. `RuntimeFailure` of kind `System` where the system refuses.
void onTermination(std::function<void()> callback);

} // namespace sys
