// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/folder_copy.h"

#include "platform/values/failure.h"
#include "support/files.h"

#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace {

constexpr int Megabyte = 1 << 20;

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

TEST_F(FolderCopy, ThatFailsOrIsKilledLeavesTheOldOneWhole)
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
    const auto dieAtTheSecond = [&proofs](const QString&, const QString&) {
        if (++proofs == 4)
            _exit(1);
    };
    EXPECT_EQ(inProcess([&] { sys::copyFolder(source, target, dieAtTheSecond); }), 1);
    EXPECT_THAT(treeOf(target), testing::IsSupersetOf(before));
    sys::copyFolder(source, target);
    EXPECT_EQ(treeOf(target), treeOf(source)) << "what the killed one has left is in the way";
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
