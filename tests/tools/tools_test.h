// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/data_store.h"
#include "core/places.h"
#include "platform/system/files.h"
#include "support/harness.h"
#include "tools/backups.h"
#include "tools/exit_codes.h"
#include "tools/restoring.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <csignal>
#include <functional>
#include <optional>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

/// A household whose file is closed, with a backup folder beside it; the program doesn't run.
class ToolsTest : public ScreenTest {
protected:
    void SetUp() override
    {
        ScreenTest::SetUp();
        closeData();
        restoring::list_Processes = [] { return std::vector{sys::thisProcess()}; };
    }

    /// Stores an asset as the program does, and counts it in the running total.
    static void addAsset(const QString& item, const QString& amount, const QString& description = "None")
    {
        DataStore store;
        store.Home.open(places::databaseFile(), databaseKey());
        store.rsInventory.Open();
        store.rsGeneral.Open();
        store.rsInventory.AddNew();
        for (int column = Inventory::Area; column <= Inventory::WarrantyDescription; ++column)
            if (column != Inventory::Amount)
                store.rsInventory.Fields(column) = "None";
        store.rsInventory.Fields(Inventory::Area) = "Indoor";
        store.rsInventory.Fields(Inventory::Type) = item;
        store.rsInventory.Fields(Inventory::DatePurchased) = "7/4/2006";
        store.rsInventory.Fields(Inventory::Amount) = amount;
        store.rsInventory.Fields(Inventory::Receipt) = "No";
        store.rsInventory.Fields(Inventory::Purchased) = "New";
        store.rsInventory.Fields(Inventory::Description) = description;
        store.rsInventory.Update();
        store.rsGeneral.Fields(General::AssetValue) =
            store.rsGeneral.Fields(General::AssetValue).currency() + values::Currency::parse(amount);
        store.rsGeneral.Update();
    }

    static QString backupFile() { return places::backupFolder() + "/KTL.db"; }

    /// What a close leaves, without the rest of it.
    static void backUp()
    {
        QDir().mkpath(places::backupFolder());
        QFile::remove(backupFile());
        ASSERT_TRUE(QFile::copy(places::databaseFile(), backupFile()));
    }

    static QByteArray contentsOf(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
    }

    static void put(const QString& path, const QByteArray& contents)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
        file.write(contents);
    }

    /// Overwrites a piece of every page from one on, by its number from 0.
    static void damage(const QString& path, int from = 1)
    {
        QByteArray contents = contentsOf(path);
        for (qsizetype page = from * qsizetype{1024}; page < contents.size(); page += 1024)
            contents.replace(page + 100, 16, QByteArray(16, 'x'));
        put(path, contents);
    }

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

    /// Runs in a process of its own, to its end; gives its status.
    static int inProcess(const std::function<void()>& work)
    {
        const pid_t child = fork();
        if (child == 0) {
            work();
            _exit(0);
        }
        int status = 0;
        waitpid(child, &status, 0);
        return WEXITSTATUS(status);
    }

    /// No file of this process grows beyond so many bytes, as on a full disk.
    class FullDisk {
    public:
        explicit FullDisk(rlim_t bytes)
        {
            std::signal(SIGXFSZ, SIG_IGN);
            getrlimit(RLIMIT_FSIZE, &before_);
            const rlimit limit{bytes, before_.rlim_max};
            setrlimit(RLIMIT_FSIZE, &limit);
        }
        FullDisk(const FullDisk&) = delete;
        FullDisk& operator=(const FullDisk&) = delete;
        ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before_); }

    private:
        rlimit before_{};
    };
};
