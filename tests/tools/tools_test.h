// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "data/data_store.h"
#include "data/places.h"
#include "data/shipped_database.h"
#include "platform/storage/engine.h"
#include "platform/system/files.h"
#include "support/files.h"
#include "support/harness.h"
#include "tools/backups.h"
#include "tools/exit_codes.h"
#include "tools/restoring.h"

#include <optional>

/// A household whose file is closed, with a backup folder beside it; the program doesn't run.
class ToolsTest : public ScreenTest {
protected:
    ToolsTest()
    {
        // To take a key from its words is slow on purpose, and a tool opens many files many times.
        setRounds("10");
        closeData();
        QFile::remove(databaseFile());
        createShippedDatabase(databaseFile(), {{{"Attic", "Art", "Frame"}}, {}, {}});
    }
    ~ToolsTest() override { setRounds("64000"); }

    /// Stores an asset as the program does, and counts it in the running total.
    static void addAsset(const QString& item, const QString& amount, const QString& description = "None")
    {
        openData();
        addAssetRow({"Indoor", "None", "None", item, "None", "None", "None", "None", "7/4/2006", amount, "No", "None",
            description, "New"});
        const values::Currency before = Data1.rsGeneral.Fields(General::AssetValue).currency();
        put(Data1.rsGeneral, {{General::AssetValue, (before + values::Currency::parse(amount)).toText()}});
        closeData();
    }

    static void runOnFile(const QString& path, const QString& sql)
    {
        storage::execute(storage::openFile(path, databaseKey(), storage::Access::ReadWrite).get(), sql.toUtf8());
    }

    static QString today() { return places::databaseFile(); }
    static QString backupFile() { return places::backupFolder() + "/KTL.db"; }
    static QString below(const QString& name) { return QFileInfo(places::databaseFolder()).path() + '/' + name; }

    /// What a close leaves, without the rest of it.
    static void backUp() { putFile(backupFile(), bytesOf(today())); }

    /// A run that is killed in the middle of a write: its journal is left.
    static void breakOff()
    {
        inProcess([] {
            openData();
            storage::execute(Data1.Home.handle(), "PRAGMA cache_size = 10"); // so that it goes to the file at once
            storage::Transaction transaction(Data1.Home.handle());
            put(Data1.rsInventory, {{Inventory::Description, QString(50'000, 'x')}});
            _exit(0);
        });
    }

    /// Overwrites a piece of every page from one on, by its number from 0.
    static void damage(const QString& path, int from = 1)
    {
        QByteArray contents = bytesOf(path);
        for (qsizetype page = from * qsizetype{1024}; page < contents.size(); page += 1024)
            contents.replace(page + 100, 16, QByteArray(16, 'x'));
        putFile(path, contents);
    }

    /// All files and folders as one state: what a refusal leaves as it was.
    static auto everything() { return treeOf(below({})); }

    /// The exit code with which something is refused; nothing where it is not.
    static std::optional<int> refusal(const std::function<void()>& work)
    {
        try {
            work();
            return std::nullopt;
        } catch (const Refusal& refusal) {
            return refusal.code();
        }
    }

private:
    void setRounds(const QByteArray& rounds)
    {
        storage::execute(engine_.get(), "PRAGMA cipher_default_kdf_iter = " + rounds);
    }

    storage::Handle engine_ = storage::openFile(databaseFile(), databaseKey(), storage::Access::AsItLies);
};
