// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class QCommandLineParser;

/// What the commands have in common.
namespace terminal {

void print(const QString& line);
void complain(const QString& line);

/// Whether there is somebody to be asked; the question, and whether the answer begins with a y.
bool isAttended();
bool isConfirmed(const QString& question);

/// A count on the error output, where that is a terminal. False once the user has asked the command to end.
class Count {
public:
    Count();
    ~Count();
    Count(const Count&) = delete;
    Count& operator=(const Count&) = delete;

    bool tell(int done, int all);

    /// Takes the count away, for a line that comes in its place.
    void clear();

private:
    bool isShown_;
    int percent_ = -1;
};

/// Parses the arguments, of which the first is the command's name, and runs what a command does. Answers --help and
/// --version. Refusals become words on the error output and the exit code.
int run(QCommandLineParser& parser, const QStringList& arguments, const std::function<int()>& command);

} // namespace terminal
