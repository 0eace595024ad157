// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The help that F1 opens. Its pages are the files of the folder `help`, and lie in the program.
namespace manual {

/// Opens the topic of a help number; without a number, that of a window of this name, where it has one.
void open(int number, const QString& window);

} // namespace manual
