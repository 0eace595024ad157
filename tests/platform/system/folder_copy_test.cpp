// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/folder_copy.h"

#include "platform/values/failure.h"
#include "support/files.h"

#include <QTemporaryDir>

#include <filesystem>
#include <gmock/gmock.h>
#include <map>
#include <random>
#include <set>

#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int Megabyte = 1 << 20;

// Every file, folder and link below a folder, hidden ones too, with the bytes of the files and the aims of the links.
std::map<std::string, std::string> treeOf(const QString& folder)
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

auto failsWith(const std::string& words)
{
    return testing::ThrowsMessage<values::RuntimeFailure>(testing::HasSubstr(words));
}

class FolderCopy : public testing::Test {
protected:
    QTemporaryDir place;
    const QString source = place.filePath("source");
    const QString target = place.filePath("target");
};

} // namespace

TEST_F(FolderCopy, LiesOverWhatIsThereAndKeepsTheRest)
{
    putFile(source + "/data", QByteArray(3 * Megabyte + 7, 'n'));
    putFile(source + "/below/further/.hidden", "");
    putFile(source + "/data-journal", "left out");
    putFile(place.filePath("outside/file"), "not ours");
    std::filesystem::create_symlink("below/..", (source + "/round").toStdString());
    QFile::link(place.filePath("outside"), source + "/link");
    QFile::link(place.filePath("nowhere"), source + "/dead");
    putFile(target + "/data", "old");
    putFile(target + "/mine", "mine");
    putFile(target + "/dead", "a file where a link comes");
    QFile::link(place.filePath("outside"), target + "/below");
    putFile(target + "/.folder-copy-Xy12Zz", "left behind by a copy that was killed");

    sys::copyFolder(source + "/", target + "/", {}, [](const QString& file) { return file.endsWith("/data-journal"); });
    const std::string here = place.path().toStdString();
    EXPECT_EQ(treeOf(target),
        (std::map<std::string, std::string>{{"below", "(folder)"}, {"below/further", "(folder)"},
            {"below/further/.hidden", ""}, {"data", std::string(3 * Megabyte + 7, 'n')},
            {"dead", "-> " + here + "/nowhere"}, {"link", "-> " + here + "/outside"}, {"mine", "mine"},
            {"round", "-> below/.."}}));
    EXPECT_EQ(treeOf(place.filePath("outside")).size(), 1U) << "written through a link";
    EXPECT_EQ(QFile::permissions(target + "/data") & (QFile::ReadGroup | QFile::ReadOther), 0);
}

TEST_F(FolderCopy, ThatFailsLeavesTheOldOneWhole)
{
    for (const char* name : {"/a", "/below/b"}) {
        putFile(source + name, QByteArray(2 * Megabyte, 'n'));
        putFile(target + name, "old");
    }
    const auto before = treeOf(target);
    int proofs = 0;
    const auto prove = [&proofs](const QString&, const QString& copy) {
        EXPECT_EQ(QFileInfo(copy).size(), 2 * Megabyte);
        if (++proofs == 2)
            throw values::RuntimeFailure(values::FailureKind::File, "not proved");
    };
    EXPECT_THAT([&] { sys::copyFolder(source, target, prove); }, failsWith("not proved"));
    EXPECT_EQ(treeOf(target), before);
    {
        const FullDisk full(Megabyte + 1);
        EXPECT_THAT([&] { sys::copyFolder(source, target); }, failsWith("File failure: "));
    }
    EXPECT_EQ(treeOf(target), before);
}

TEST_F(FolderCopy, RefusesWhatIsNoPlaceForIt)
{
    putFile(source + "/below/data", "data");
    putFile(place.filePath("file"), "");
    QFile::link(source, place.filePath("link"));
    const auto before = treeOf(source);
    for (const char* name : {"file", "missing/folder", "source", "source/below/copy", "link", "/proc"}) {
        const QString there = QDir(place.path()).filePath(name);
        EXPECT_THAT([&] { sys::copyFolder(source, there); }, failsWith("File failure: ")) << name;
    }
    EXPECT_EQ(treeOf(source), before);
}

TEST_F(FolderCopy, KilledAtAnyMomentLeavesEachFileOldOrNew)
{
    const QString other = place.filePath("other");
    const std::set<std::string> whole{std::string(Megabyte, 'x'), std::string(Megabyte, 'y')};
    for (const char* name : {"/a", "/below/b"}) {
        putFile(source + name, QByteArray(Megabyte, 'x'));
        putFile(other + name, QByteArray(Megabyte, 'y'));
    }
    sys::copyFolder(source, target);
    std::minstd_rand random(1);
    for (int run = 0; run < 25; ++run) {
        const itimerval moment{{0, 0}, {0, std::uniform_int_distribution(100, 15'000)(random)}};
        const pid_t child = fork();
        if (child == 0) {
            std::signal(SIGALRM, SIG_DFL);
            setitimer(ITIMER_REAL, &moment, nullptr);
            while (true) {
                sys::copyFolder(source, target);
                sys::copyFolder(other, target);
            }
        }
        int status = 0;
        waitpid(child, &status, 0);
        ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGALRM);
        auto tree = treeOf(target);
        ASSERT_TRUE(whole.contains(tree["a"]) && whole.contains(tree["below/b"]));
    }
    sys::copyFolder(source, target);
    EXPECT_EQ(treeOf(target), treeOf(source));
}
