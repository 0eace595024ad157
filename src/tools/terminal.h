// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class QCommandLineParser;

/// What the commands have in common.
namespace terminal {

/// A line on the output, and on the error output. Names of files in it go out as the bytes that they are.
void print(const QString& line);
void complain(const QString& line);

/// Gives the streams that are closed a place where nothing can be written. What is opened next would take their numbers
/// else, and be written into by every word that is said.
void keepStreams();

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
/// --version, and refuses empty names. Whatever it throws becomes words on the error output and the exit code, and so
/// does an output that can't be written.
int run(QCommandLineParser& parser, const QStringList& arguments, const std::function<int()>& command);

} // namespace terminal
