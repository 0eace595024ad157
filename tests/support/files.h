// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtWidgets>

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <functional>
#include <map>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

/// All that a file holds; "(missing)" where there is none.
inline QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
}

/// Writes a file, and makes the folder that it lies in; what was there is gone.
inline void putFile(const QString& path, const QByteArray& bytes)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate)) << path.toStdString();
    ASSERT_EQ(file.write(bytes), bytes.size());
}

/// Every file, folder and link below a folder, hidden ones too, with the bytes of the files and the aims of the links.
inline std::map<std::string, std::string> treeOf(const QString& folder)
{
    std::map<std::string, std::string> tree;
    const std::filesystem::path top = folder.toStdString();
    for (const auto& entry : std::filesystem::recursive_directory_iterator(top)) {
        std::string& contents = tree[entry.path().lexically_relative(top)];
        if (entry.is_symlink())
            contents = "-> " + read_symlink(entry).string();
        else
            contents = entry.is_directory() ? "(folder)" : bytesOf(entry.path().c_str()).toStdString();
    }
    return tree;
}

/// How many files this process has open.
inline auto openFiles()
{
    return QDir("/proc/self/fd").count();
}

/// Runs in a process of its own, to its end; gives its status.
inline int inProcess(const std::function<void()>& work)
{
    const pid_t child = fork();
    if (child == 0) {
        work();
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFEXITED(status));
    return WEXITSTATUS(status);
}

/// For its life no file can grow beyond a size, which is to a writer the same as a disk that is full.
class FullDisk {
public:
    explicit FullDisk(qint64 size)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &former_);
        const rlimit full{static_cast<rlim_t>(size), former_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &full);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;
    ~FullDisk() { ::setrlimit(RLIMIT_FSIZE, &former_); }

private:
    rlimit former_{};
};

// ---- kept lists, which lie beside the tests

inline QString kept(const QString& file)
{
    return QStringLiteral(KESTRILL_TESTS "/") + file;
}

/// Whether lists are to be kept as they are now, instead of being compared.
inline bool keepsLists()
{
    return qEnvironmentVariableIsSet("KESTRILL_KEEP");
}

/// Compares what a list holds with what it is now; tells from where on they differ.
inline void expectSame(const QString& was, const QString& now)
{
    const auto differing = std::mismatch(was.begin(), was.end(), now.begin(), now.end());
    const qsizetype line = was.left(differing.first - was.begin()).count('\n');
    EXPECT_TRUE(was == now) << "KESTRILL_KEEP=1 keeps it as it is now\n  kept: "
                            << was.section('\n', line, line).toStdString()
                            << "\n  now:  " << now.section('\n', line, line + 2).toStdString();
}

/// Keeps a list, unless the test has failed: what went wrong is nothing to be expected the next time.
inline void keep(const QString& file, const QString& now)
{
    if (!testing::Test::HasFailure())
        putFile(kept(file), now.toUtf8());
}

/// Compares a whole list with what it is now.
inline void expectKept(const QString& file, const QString& now)
{
    if (keepsLists())
        keep(file, now);
    else
        expectSame(QString::fromUtf8(bytesOf(kept(file))), now);
}

inline QStringList linesOf(const QString& file)
{
    return QString::fromUtf8(bytesOf(kept(file))).split('\n');
}

/// The parts of a list, by their headings: "== Heading".
inline QStringList partsOf(const QString& file)
{
    return linesOf(file).filter(QRegularExpression("^== ")).replaceInStrings(QRegularExpression("^== "), "");
}

/// A part, without the heading and the blank line before the next.
inline QString partOf(const QString& file, const QString& heading)
{
    return linesOf(file).join('\n').section("== " + heading + '\n', 1).section("\n== ", 0, 0).trimmed();
}

/// Compares a part with what it is now.
inline void expectPart(const QString& file, const QString& heading, const QString& now)
{
    const QString was = partOf(file, heading), head = "== " + heading + '\n';
    if (keepsLists())
        keep(file, linesOf(file).join('\n').replace(head + was, head + now));
    else
        expectSame(was, now);
}

/// A step with what has followed from it: "step => what followed", or the step alone where nothing did.
inline QString stepTold(const QString& step, const QString& followed)
{
    return followed.isEmpty() ? step : step + " => " + followed;
}

/// Compares each line of a list with what follows from its step. What has a heading begins anew.
inline void expectSteps(
    const QString& file, const std::function<QString(const QString& step)>& follow,
    const std::function<void()>& begin = [] {})
{
    QStringList now;
    for (const QString& line : linesOf(file)) {
        if (line.startsWith("== "))
            begin();
        const QString step = line.section(" => ", 0, 0);
        const bool isStep = !line.isEmpty() && !line.startsWith('#') && !line.startsWith("== ");
        now += isStep ? stepTold(step, follow(step)) : line;
    }
    expectKept(file, now.join('\n'));
}
