// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools_test.h"

#include "tools/checking.h"
#include "tools/commands.h"

namespace {

class CheckingTest : public ToolsTest {
protected:
    static QStringList odd() { return checking::odd_Entries(Household(places::databaseFile())); }

    struct Said {
        int status;
        QString output;
        QString complaint;
    };

    static Said run(int (*command)(const QStringList&), const QStringList& arguments)
    {
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        const int status = command(QStringList("command") + arguments);
        std::fflush(nullptr);
        return {status, QString::fromStdString(testing::internal::GetCapturedStdout()),
            QString::fromStdString(testing::internal::GetCapturedStderr())};
    }
};

} // namespace

TEST_F(CheckingTest, FindsNothingInAFreshHouseholdAndEachOddCell)
{
    EXPECT_EQ(odd(), QStringList());
    addAsset("Lamp", "$10.00");
    EXPECT_EQ(odd(), QStringList());
    {
        DataStore store;
        store.Home.open(places::databaseFile(), databaseKey());
        store.rsInventory.Open();
        store.rsInventory.Fields(Inventory::Area) = "Cellar";
        store.rsInventory.Fields(Inventory::DatePurchased) = "2/30/2006";
        store.rsInventory.Fields(Inventory::Amount) = "$12.00";
        store.rsInventory.Fields(Inventory::Receipt) = "yes";
        store.rsInventory.Fields(Inventory::Purchased) = "\x1b[2J";
        store.rsInventory.Fields(Inventory::LaborAmount) = "ten";
        store.rsInventory.Fields(Inventory::Make) = "";
        store.rsInventory.Update();
        store.rsGeneral.Open();
        store.rsGeneral.Fields(General::PolicyExpiration) = "soon";
        store.rsGeneral.Fields(General::PolicyCoverage) = "much";
        store.rsGeneral.Update();
        store.rsMobile.Open();
        for (; store.rsMobile.Fields(Names::Type) != "< Add/Edit Item >"; store.rsMobile.MoveNext()) { }
        store.rsMobile.Delete();
        store.rsBank.Open();
        store.rsBank.AddNew();
        for (int column = Bank::FinancialInstitution; column <= Bank::State; ++column)
            store.rsBank.Fields(column) = "None";
        store.rsBank.Fields(Bank::AsOf) = "1/1";
        store.rsBank.Update();
    }
    EXPECT_EQ(odd(),
        QStringList({"The running total is $10.00, the sum of the amounts $12.00",
            "Personal_Info 1, Policy Expiration: \"soon\" is no date",
            "Personal_Info 1, Policy Coverage: \"much\" is no amount", "Inventory 1, Area: \"Cellar\" is no area",
            "Inventory 1, Date Purchased: \"2/30/2006\" is no date",
            "Inventory 1, Receipt: \"yes\" is neither Yes nor No",
            "Inventory 1, Purchased: \"?[2J\" is neither New nor Used",
            "Inventory 1, Labor Amount: \"ten\" is no amount", "Bank_Info 1, As Of: \"1/1\" is no date",
            "Inventory 1, Make: empty, without the mark for that", "Mobile_Items: no row leads to the list editors"}));
}

TEST_F(CheckingTest, TheCommandsTellByTheirStatusWhatTheyFound)
{
    addAsset("Lamp", "$10.00");
    const QByteArray before = contentsOf(places::databaseFile());
    Said said = run(commands::check, {});
    EXPECT_EQ(said.status, exit_code::Done) << said.complaint.toStdString();
    EXPECT_TRUE(said.output.contains("Inventory: 1\n") && said.output.contains("Running total: $10.00\n"));
    EXPECT_EQ(contentsOf(places::databaseFile()), before);
    EXPECT_EQ(run(commands::check, {"a", "b"}).status, exit_code::Usage);
    EXPECT_EQ(run(commands::check, {"--no-such"}).status, exit_code::Usage);
    EXPECT_EQ(run(commands::check, {"/no/where"}).status, exit_code::Unreadable);
    EXPECT_TRUE(run(commands::check, {"--help"}).output.contains("Changes nothing."));
    EXPECT_EQ(run(commands::restore, {"--list"}).output, "");
    backUp();
    damage(places::databaseFile());
    EXPECT_EQ(run(commands::check, {}).status, exit_code::Unreadable);
    EXPECT_EQ(run(commands::check, {"last"}).status, exit_code::Done);
    EXPECT_EQ(run(commands::check, {backupFile()}).status, exit_code::Done);
    EXPECT_TRUE(run(commands::restore, {"--list"}).output.endsWith("\tLast close\t1\t$10.00\tIn order\n"));

    const QString out = places::databaseFolder() + "/../out";
    EXPECT_EQ(run(commands::exportAll, {}).status, exit_code::Usage);
    EXPECT_EQ(run(commands::exportAll, {out}).status, exit_code::Unreadable);
    EXPECT_EQ(run(commands::exportAll, {out, "--from", "last"}).status, exit_code::Done);
    EXPECT_EQ(run(commands::exportAll, {out, "--from", "last"}).status, exit_code::Declined) << "there is one";
    EXPECT_EQ(run(commands::exportAll, {out, "--from", "last", "--force"}).status, exit_code::Done);

    EXPECT_EQ(run(commands::restore, {}).status, exit_code::Usage);
    EXPECT_EQ(run(commands::restore, {"--restore", "1999"}).status, exit_code::Usage);
    EXPECT_EQ(run(commands::restore, {"--restore", "last"}).status, exit_code::Declined) << "nobody is asked";
    EXPECT_NE(contentsOf(places::databaseFile()), before);
    said = run(commands::restore, {"--restore", "last", "--yes"});
    EXPECT_EQ(said.status, exit_code::Done) << said.complaint.toStdString();
    EXPECT_TRUE(said.output.startsWith("Restored: 1 asset, $10.00\nTo go back: kestrill-restore --restore 2"));
    EXPECT_EQ(contentsOf(places::databaseFile()), before);
}
