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

TEST_F(FolderCopy, LeadsNowhereElseWhenSomebodyPutsALinkInTheWayMeanwhile)
{
    putFile(source + "/below/b", "new");
    putFile(target + "/below/b", "old");
    putFile(place.filePath("outside/b"), "not ours");
    sys::copyFolder(source, target, [this](const QString&, const QString&) {
        ASSERT_TRUE(QDir().rename(target + "/below", target + "/moved"));
        std::filesystem::create_symlink("../outside", (target + "/below").toStdString());
    });
    EXPECT_EQ(bytesOf(place.filePath("outside/b")), "not ours");
    EXPECT_EQ(bytesOf(target + "/moved/b"), "new");
}

TEST_F(FolderCopy, ThatFailsOrIsKilledLeavesTheOldOneWhole)
{
    for (const char* name : {"/a", "/below/b"}) {
        putFile(source + name, QByteArray(2 * Megabyte + 7, 'n'));
        putFile(target + name, "old");
    }
    const auto before = treeOf(target);
    int proofs = 0;
    const auto prove = [&proofs](const QString&, const QString& copy) {
        EXPECT_EQ(QFileInfo(copy).size(), 2 * Megabyte + 7);
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
    EXPECT_EQ(QFile::permissions(target + "/a") & (QFile::ReadGroup | QFile::ReadOther), 0);
}
