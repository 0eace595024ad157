// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

class QApplication;

/// The status of a program with windows that finds no display.
inline constexpr int NoDisplay = 8;

/// Makes the application object and names the program. Without a display the process ends, with that status and a line.
std::unique_ptr<QApplication> openProgram(int& argc, char* argv[]);

/// Tells the desktop by what name and icon it knows the program's windows. The application object must exist.
void nameProgram();
