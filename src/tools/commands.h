// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

/// The commands, each from its arguments to its exit code; what they say goes to the output and the error output.
namespace commands {

int restore(const QStringList& arguments);
int exportAll(const QStringList& arguments);
int importAll(const QStringList& arguments);
int check(const QStringList& arguments);

} // namespace commands
