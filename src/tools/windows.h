// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The commands in a window, each from its first screen to the end of the process.
namespace windows {

int restore(int& argc, char* argv[]);
int exportAll(int& argc, char* argv[]);
int importAll(int& argc, char* argv[]);

} // namespace windows
