// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/processes.h"

#include "platform/system/failures.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <filesystem>
#include <optional>
#include <system_error>
#include <tuple>

#include <sys/stat.h>
#include <unistd.h>

namespace sys {

namespace {

constexpr qsizetype LongestShortName = 15; // the kernel cuts a process's short name to this many bytes

QByteArray contentsOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// What the line of a process's "stat" file tells of it.
struct Status {
    QByteArray shortName;
    char state;
    quint64 started;
};

// The short name stands in parentheses and may hold blanks and parentheses itself; the fields behind it are numbered
// from 3, the state, and the start is number 22.
std::optional<Status> statusOf(const QString& folder)
{
    const QByteArray line = contentsOf(folder + QStringLiteral("/stat"));
    const qsizetype open = line.indexOf('(');
    const qsizetype close = line.lastIndexOf(')');
    if (open < 0 || close < open)
        return std::nullopt;
    const QList<QByteArray> fields = line.mid(close + 2).split(' ');
    if (fields.size() < 20 || fields[0].isEmpty())
        return std::nullopt;
    return Status{line.mid(open + 1, close - open - 1), fields[0].front(), fields[19].toULongLong()};
}

// Empty where it is kept from us; nothing where there is none: the process is ending, and has given up its memory, or
// is a part of the kernel. A file that was replaced or removed while it runs is told with a mark behind its path.
std::optional<QString> executableOf(const QString& folder)
{
    const QString mark = QStringLiteral(" (deleted)");
    std::error_code failure;
    const auto link = QFile::encodeName(folder + QStringLiteral("/exe")).toStdString();
    QString path = QFile::decodeName(std::filesystem::read_symlink(link, failure).c_str());
    if (failure == std::errc::no_such_file_or_directory || failure == std::errc::no_such_process)
        return std::nullopt;
    if (path.endsWith(mark))
        path.chop(mark.size());
    return path;
}

// The executable of another user's process is kept from us. Its first argument may be anything, and is believed only as
// the continuation of a short name that was cut.
QString nameOf(const QString& folder, const QString& executable, const QByteArray& shortName)
{
    if (!executable.isEmpty())
        return executable.mid(executable.lastIndexOf(u'/') + 1);
    if (shortName.size() < LongestShortName)
        return QFile::decodeName(shortName);
    const QByteArray arguments = contentsOf(folder + QStringLiteral("/cmdline"));
    const QByteArray firstArgument = arguments.left(arguments.indexOf('\0'));
    const QByteArray fullName = firstArgument.mid(firstArgument.lastIndexOf('/') + 1);
    return QFile::decodeName(fullName.startsWith(shortName) ? fullName : shortName);
}

std::optional<Process> processIn(const QString& folder, qint64 pid)
{
    struct ::stat owner;
    const std::optional<Status> status = statusOf(folder);
    if (!status || status->state == 'Z' || status->state == 'X' || ::stat(QFile::encodeName(folder), &owner) != 0)
        return std::nullopt;
    const std::optional<QString> executable = executableOf(folder);
    if (!executable)
        return std::nullopt;
    return Process{pid, nameOf(folder, *executable, status->shortName), *executable, owner.st_uid, status->started};
}

bool isThisProcess(const Process& process)
{
    return process.pid == ::getpid();
}

auto ageOf(const Process& process)
{
    return std::tuple(process.started, process.pid);
}

} // namespace

std::vector<Process> runningProcesses(const QString& processFolder)
{
    std::vector<Process> processes;
    const QStringList entries = QDir(processFolder).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Unsorted);
    for (const QString& entry : entries) {
        bool isNumber = false;
        const qint64 pid = entry.toLongLong(&isNumber);
        if (!isNumber)
            continue;
        if (const auto process = processIn(processFolder + u'/' + entry, pid))
            processes.push_back(*process);
    }
    if (std::none_of(processes.begin(), processes.end(), isThisProcess))
        throw values::RuntimeFailure(
            values::FailureKind::System, QStringLiteral("no list of the running processes in ") + processFolder);
    return processes;
}

Process thisProcess()
{
    if (const auto process = processIn(QStringLiteral("/proc/self"), ::getpid()))
        return *process;
    throw values::RuntimeFailure(values::FailureKind::System, QStringLiteral("this process can't be looked up"));
}

bool isYoungerTwin(const Process& other, const Process& self)
{
    const bool isTwin = !self.executable.isEmpty() && other.executable == self.executable && other.user == self.user;
    return isTwin && ageOf(other) > ageOf(self);
}

} // namespace sys
