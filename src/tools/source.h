// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The file that a command reads: today's where nothing is named, else a backup by its name or a file by its path.
/// Failures: Refusal, where there is none, and where it is today's and the program runs.
QString sourceFile(const QString& named);
