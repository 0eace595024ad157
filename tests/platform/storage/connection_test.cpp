// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage_test.h"

#include "platform/storage/file_reader.h"

#include <cstdio>
#include <functional>

using values::FailureKind;

namespace {

class ConnectionTest : public StorageTest {
protected:
    ConnectionTest()
    {
        openWith(QStringList(40, QString(500, 'w')));
        wordsView.Close();
        whole = bytesOf(path());
    }

    // Opens both tables, and expects the refusal that leaves everything as it was.
    void expectRefusal(const char* what)
    {
        const auto before = files();
        const auto open = [this] {
            thingsView.Open();
            wordsView.Open();
        };
        EXPECT_EQ(failureOf(open), FailureKind::Database) << what;
        home.close();
        EXPECT_EQ(files(), before) << what;
    }

    QByteArray whole;
};

} // namespace

TEST_F(ConnectionTest, RefusesADamagedCutOrForeignFileAndLeavesItAsItWas)
{
    EXPECT_EQ(storage::checkDatabase(path(), key),
        (std::vector<storage::TableCount>{{"Stage", 0}, {"Things", 0}, {"Words", 40}}));
    // Of the form that all versions of the engine read: 40 rows of 500 bytes stand on 1024 bytes a page.
    EXPECT_TRUE(whole.size() % 1024 == 0 && whole.size() % 4096 != 0) << whole.size();
    QByteArray damaged = whole;
    damaged[damaged.size() / 2] = static_cast<char>(damaged[damaged.size() / 2] ^ 1);
    const std::pair<const char*, QByteArray> cases[] = {{"empty", ""}, {"cut to a page", whole.first(1024)},
        {"cut by one byte", whole.chopped(1)}, {"damaged in the middle", damaged},
        {"a text", QByteArray("no database at all ").repeated(400)},
        {"an unencrypted database", "SQLite format 3" + QByteArray(8177, '\0')}};
    for (const auto& [what, bytes] : cases) {
        putFile(path(), bytes);
        expectRefusal(what);
        EXPECT_EQ(failureOf([this] { storage::checkDatabase(path(), key); }), FailureKind::Database) << what;
    }
    putFile(path(), whole);
    home.setFile(path(), QByteArray("another key"));
    expectRefusal("wrong key");
    home.setFile(folder.filePath("none.db"), key);
    expectRefusal("missing");
    home.setFile(folder.filePath("none/none.db"), key);
    expectRefusal("missing with its folder");
    EXPECT_THAT([this] { wordsView.Open(); },
        testing::ThrowsMessage<values::RuntimeFailure>(testing::HasSubstr("/none can't be opened (No such file")));
    home.setFile(folder.path(), key);
    expectRefusal("a folder");
    home.setFile(path(), key);
    runOnFile("ALTER TABLE Things RENAME TO Others");
    expectRefusal("without a table");
}

TEST_F(ConnectionTest, KeepsOthersOutOfItsOneFileAndShowsNothing)
{
    const auto open = openFiles();
    const auto openAnother = [this] { storage::Connection().open(path(), key); };
    wordsView.Open();
    EXPECT_EQ(failureOf(openAnother), FailureKind::Database) << "in use";
    addWord(wordsView, "x");
    wordsView.Close();
    {
        storage::FileReader reader(path(), key);
        EXPECT_EQ(failureOf(openAnother), FailureKind::Database) << "being read";
        EXPECT_EQ(reader.lastNumber(things::table), 0) << "none yet";
    }
    EXPECT_EQ(failureOf(openAnother), std::nullopt);
    home.open();
    home.close();
    EXPECT_FALSE(home.isOpen());
    EXPECT_EQ(openFiles(), open);
    EXPECT_EQ(failureOf([this] { storage::createDatabase(path(), key, tables); }), FailureKind::File) << "is there";
    EXPECT_FALSE(whole.contains("wwww") || whole.contains("Words") || whole.startsWith("SQLite"));
    EXPECT_EQ(files().size(), 1U) << "the journal lay beside it";
    EXPECT_EQ(QFile::permissions(path()) & (QFile::ReadGroup | QFile::ReadOther), 0);
}

TEST_F(ConnectionTest, TellsAtTheNextWriteAndAtTheCloseThatTheFileHasLeftItsPlace)
{
    const QString elsewhere = place.filePath("elsewhere");
    const QString copy = place.filePath("copy");
    const std::pair<const char*, std::function<bool()>> moves[] = {
        {"moved", [&] { return QFile::rename(path(), elsewhere); }},
        {"replaced",
            [&] { return QFile::copy(path(), copy) && std::rename(qPrintable(copy), qPrintable(path())) == 0; }},
        {"moved with its folder", [&] { return QDir().rename(folder.path(), place.filePath("folder")); }},
    };
    for (const auto& [how, move] : moves) {
        SCOPED_TRACE(how);
        putFile(path(), whole);
        wordsView.Open();
        stageView.Open();
        addWord(wordsView, "confirmed while it lies there");
        ASSERT_TRUE(move());
        EXPECT_EQ(failureOf([this] { addWord(wordsView, "lost"); }), FailureKind::Database);
        EXPECT_EQ(wordsView.RecordCount(), 41);
        stageView.AddNew();
        stageView.Update();
        EXPECT_EQ(failureOf([this] { home.commitPending(); }), FailureKind::Database);
        stageView.AddNew();
        stageView.Update();
        EXPECT_EQ(failureOf([this] { stageView.Close(); }), FailureKind::Database);
        EXPECT_EQ(failureOf([this] { home.close(); }), FailureKind::Database);
        EXPECT_FALSE(home.isOpen());
    }
}
