// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <vector>

namespace sys {

/// A running process as the operating system tells of it.
struct Process {
    qint64 pid = 0;
    QString name; ///< image name: the file name of what runs, without its folder
    QString executable; ///< path of the file that runs; empty where the system keeps it from us
    uint user = 0; ///< number of the user who runs it
    quint64 started = 0; ///< clock ticks from the start of the machine to the start of the process
};

/// Every running process of the machine, this one among them. One that ends meanwhile is left out, and so is one that
/// has ended and only waits for its parent to take notice. `RuntimeFailure` of kind `System` when the list can't be had
/// or lacks this process. `processFolder` is another place for the system's process files.
std::vector<Process> runningProcesses(const QString& processFolder = QStringLiteral("/proc"));

/// This very process. `RuntimeFailure` of kind `System` when it can't be looked up.
Process thisProcess();

/// Whether `other` is a later start of the same executable file by the same user as `self`. Of two starts at the same
/// moment exactly one is the younger, so that a rule "the younger gives way" leaves one of them running.
bool isYoungerTwin(const Process& other, const Process& self);

} // namespace sys
