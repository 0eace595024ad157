// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/storage/schema.h"
#include "platform/storage/table_view.h"
#include "platform/values/failure.h"
#include "support/files.h"
#include "support/print.h"

#include <QStringList>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <optional>

namespace things {

enum Column { ID, Name, Price, Count, Total };

inline constexpr storage::Column columns[] = {{"ID", storage::ColumnType::Identity}, {"Name of It"},
    {"Price", storage::ColumnType::Money}, {"Count", storage::ColumnType::Integer},
    {"Total", storage::ColumnType::Currency}};
inline constexpr storage::TableDefinition table{"Things", columns};

} // namespace things

namespace words {

enum Column { Word, Kind };

inline constexpr storage::Column columns[] = {{"Word"}, {"Kind"}};
inline constexpr storage::TableDefinition table{"Words", columns};
inline constexpr storage::TableDefinition stage{"Stage", columns, true};

} // namespace words

/// A database of three tables, not opened, in a folder of its own, whose path is longer than the engine takes.
class StorageTest : public testing::Test {
protected:
    static inline const QByteArray key =
        "x'000102030405060708090a0b0c0d0e0f101112131415161718191a1b1c1d1e1f'"; // quick: no phrase
    static constexpr const storage::TableDefinition* tables[] = {&things::table, &words::table, &words::stage};

    StorageTest()
    {
        EXPECT_TRUE(QDir().mkpath(folder.path()));
        storage::createDatabase(path(), key, tables);
        home.setFile(path(), key);
    }

    QString path() const { return folder.filePath("data?.db"); }

    /// Runs a statement on the file, past the views.
    void runOnFile(const QByteArray& sql)
    {
        storage::execute(storage::openFile(path(), key, storage::Access::ReadWrite).get(), sql);
    }

    auto files() const { return treeOf(folder.path()); }

    static void addWord(storage::TableView& view, const QString& word)
    {
        view.AddNew();
        view.Fields(words::Word) = word;
        view.Update();
    }

    /// Opens the table of words and stores some; the first row is current then.
    void openWith(const QStringList& texts)
    {
        wordsView.Open();
        for (const QString& text : texts)
            addWord(wordsView, text);
        wordsView.MoveFirst();
    }

    /// The words from the first row to the last, as a walk finds them; the view is behind its last row then.
    static QStringList walk(storage::TableView& view)
    {
        QStringList found;
        if (view.RecordCount() == 0)
            return found;
        for (view.MoveFirst(); !view.atEOF(); view.MoveNext())
            found += view.Fields(words::Word).text();
        return found;
    }

    /// What a file holds in the first column of a table, read by a connection of its own.
    static QStringList inFile(const QString& file, const storage::TableDefinition& table)
    {
        storage::Connection connection;
        connection.setFile(file, key);
        storage::TableView view(connection, table);
        view.Open();
        return walk(view);
    }

    QStringList wordsInFile() const { return inFile(path(), words::table); }

    template <typename Operation>
    static std::optional<values::FailureKind> failureOf(Operation operation)
    {
        try {
            operation();
            return {};
        } catch (const values::RuntimeFailure& failure) {
            return failure.kind();
        }
    }

    QTemporaryDir place;
    const QDir folder{place.path() + ('/' + QString(200, 'x')).repeated(3)};
    storage::Connection home;
    storage::TableView thingsView{home, things::table};
    storage::TableView wordsView{home, words::table};
    storage::TableView stageView{home, words::stage};
};
