// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

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

/// A whole file as it is now.
inline void expectKept(const QString& file, const QString& now)
{
    if (keepsLists())
        putFile(kept(file), now.toUtf8());
    else
        EXPECT_EQ(now.toStdString(), bytesOf(kept(file)).toStdString()) << "KESTRILL_KEEP=1 keeps it as it is now";
}

/// Compares each line of a list with what follows from its beginning: "step => what follows", or the step alone where
/// nothing does. What begins at a heading, "# ", begins anew.
inline void expectSteps(
    const QString& file, const std::function<QString(const QString& step)>& follow,
    const std::function<void()>& begin = [] {})
{
    QString now;
    for (const QString& line : QString::fromUtf8(bytesOf(kept(file))).split('\n')) {
        const bool isStep = !line.isEmpty() && !line.startsWith('#');
        if (line.startsWith("# "))
            begin();
        const QString step = line.section(" => ", 0, 0);
        const QString told = isStep ? follow(step) : QString();
        const QString followed = isStep ? step + (told.isEmpty() ? told : " => " + told) : line;
        EXPECT_TRUE(keepsLists() || followed == line) << followed.toStdString() << "\n  kept: " << line.toStdString();
        now += followed + '\n';
    }
    if (keepsLists())
        putFile(kept(file), now.chopped(1).toUtf8());
}
