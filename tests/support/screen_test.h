// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "data/data_store.h"
#include "frame/frmStartup.h"
#include "support/forms_test.h"

#include <QTemporaryDir>

/// A test with the program's screens: the database as it is shipped, fresh and open, in a temporary folder; the date
/// 24 November 2026; message boxes under the product's title. No screen exists yet.
class ScreenTest : public FormsTest {
protected:
    static constexpr int Stop = forms::box::Stop;
    static constexpr int Exclamation = forms::box::Exclamation;
    static constexpr int Information = forms::box::Information;
    static constexpr int YesNoQuestion = forms::box::Question + forms::box::YesNo;
    static constexpr const char* CloseKestrill = "Are You Sure You Want To Close Kestrill?";

    ScreenTest();
    void TearDown() override;

    /// A way out that asks first: with No, the same screens stand there as before.
    void expectToStay(const std::function<void()>& leave, const QString& question = CloseKestrill);

    /// Does what a file below tests/ keeps of a user's way, and compares all that it shows with what is kept there.
    void replay(const char* file);

    /// Does a step of such a file; tells a failure and the help that has opened.
    QStringList played(const QString& step);

    /// What else than the user's hands a line of such a file can mean, for a test that knows it: what is seen then. And
    /// what of all that is told, where and when the test runs apart, can be kept.
    virtual std::optional<QString> happen(const QString& /*line*/) { return {}; }
    virtual QString lasting(const QString& told) const { return told; }

    /// Opens all views of Data1 as the program does; closes them, for tests of the start and of the end.
    static void openData() { frmStartup::open_Tables(); }
    static void closeData() { Data1.Home.close(); }

    /// From now on the file refuses a kind of statement on a table, or on some of its rows, as a full disk does, until
    /// there is room again.
    static void refuseWrites(const QByteArray& statement, const QByteArray& table, const QByteArray& rows = "1");
    static void makeRoom(const QByteArray& table);

    /// The window of the report that is open, or none; the key that closes it, with the screen behind it in front
    /// again.
    static QWidget* reportWindow();
    static void closeReport();

    QString databaseFile() const { return folder_.filePath(QStringLiteral("C_db/KTL.db")); }
    QString backupFolder() const { return folder_.filePath(QStringLiteral("Backup")); }

    static void reopenData()
    {
        closeData();
        openData();
    }

private:
    struct Walk;

    static bool arranges(const QString& line);
    QStringList seenOn(const QString& way, Walk& walk);

    QTemporaryDir folder_;
};
