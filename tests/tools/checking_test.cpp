// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools_test.h"

#include "tools/checking.h"
#include "tools/commands.h"

using testing::HasSubstr;

namespace {

class CheckingTest : public ToolsTest {
protected:
    using Command = int (*)(const QStringList&);

    static QStringList odd() { return checking::odd_Entries(Household(today())); }

    /// Runs a command, whose status has to be this one; gives what it prints.
    static std::string said(int status, Command command, const QStringList& arguments)
    {
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        EXPECT_EQ(command(QStringList("command") + arguments), status) << arguments.join(' ').toStdString();
        std::fflush(nullptr);
        testing::internal::GetCapturedStderr();
        return testing::internal::GetCapturedStdout();
    }
};

} // namespace

TEST_F(CheckingTest, FindsNothingInAFreshHouseholdAndEachOddCell)
{
    EXPECT_EQ(odd(), QStringList());
    addAsset("Lamp", "$10.00");
    EXPECT_EQ(odd(), QStringList());
    openData();
    put(Data1.rsInventory,
        {{Inventory::Area, "Cellar"}, {Inventory::DatePurchased, "2/30/2006"}, {Inventory::Amount, "$12.00"},
            {Inventory::Receipt, "yes"}, {Inventory::Purchased, "\x1b[2J"}, {Inventory::LaborAmount, "ten"},
            {Inventory::Make, ""}});
    put(Data1.rsGeneral, {{General::PolicyExpiration, "soon"}, {General::PolicyCoverage, "much"}, {General::City, ""}});
    removeRows(Data1.rsMobile);
    storage::execute(Data1.Home.handle(), "UPDATE Indoor_Items SET Standard = 'x' WHERE rowid = 1");
    addRow(Data1.rsBank, Bank::FinancialInstitution, QString("None ").repeated(12).split(' ').mid(0, 12));
    put(Data1.rsBank, {{Bank::AsOf, "1/1"}});
    closeData();
    EXPECT_EQ(odd(),
        QStringList({"The running total is $10.00, the sum of the amounts $12.00",
            "Personal_Info 1, Policy Expiration: \"soon\" is no date",
            "Personal_Info 1, Policy Coverage: \"much\" is no amount", "Inventory 1, Area: \"Cellar\" is no area",
            "Inventory 1, Date Purchased: \"2/30/2006\" is no date",
            "Inventory 1, Receipt: \"yes\" is neither Yes nor No",
            "Inventory 1, Purchased: \"?[2J\" is neither New nor Used",
            "Inventory 1, Labor Amount: \"ten\" is no amount", "Bank_Info 1, As Of: \"1/1\" is no date",
            "Indoor_Items 1, Standard: \"x\" is no number", "Personal_Info 1, City: empty, without the mark for that",
            "Inventory 1, Make: empty, without the mark for that", "Mobile_Items: no row leads to the list editors"}));
}

TEST_F(CheckingTest, TheCommandsTellByTheirStatusWhatTheyFound)
{
    using namespace exit_code;
    addAsset("Lamp", "$10.00");
    const QByteArray good = bytesOf(today());
    EXPECT_THAT(said(Done, commands::check, {}),
        testing::AllOf(HasSubstr("Inventory: 1\n"), HasSubstr("Running total: $10.00\n")));
    EXPECT_EQ(bytesOf(today()), good);
    EXPECT_THAT(said(Done, commands::check, {"--help"}), HasSubstr("Changes nothing."));
    EXPECT_EQ(said(Done, commands::restore, {"--list"}), "");
    backUp();
    damage(today());
    EXPECT_THAT(said(Done, commands::restore, {"--list"}), testing::EndsWith("\tLast close\t1\t$10.00\tIn order\n"));

    const QString out = below("out");
    const std::tuple<int, Command, QStringList> runs[] = {{Usage, commands::check, {"a", "b"}},
        {Usage, commands::check, {"--no-such"}}, {Unreadable, commands::check, {"/no/where"}},
        {Unreadable, commands::check, {}}, {Done, commands::check, {"last"}}, {Done, commands::check, {backupFile()}},
        {Usage, commands::exportAll, {}}, {Unreadable, commands::exportAll, {out}},
        {Failed, commands::exportAll, {"/no/where", "--from", "last"}},
        {Done, commands::exportAll, {out, "--from", "last"}},
        {Declined, commands::exportAll, {out, "--from", "last"}}, // there is one
        {Done, commands::exportAll, {out, "--from", "last", "--force"}}, {Usage, commands::restore, {}},
        {Usage, commands::restore, {"--restore", "1999"}},
        {Declined, commands::restore, {"--restore", "last"}}}; // nobody is asked
    for (const auto& [status, command, arguments] : runs)
        said(status, command, arguments);
    EXPECT_NE(bytesOf(today()), good);
    EXPECT_THAT(said(Done, commands::restore, {"--restore", "last", "--yes"}),
        testing::StartsWith("Restored: 1 asset, $10.00\nTo go back: kestrill-restore --restore 2"));
    EXPECT_EQ(bytesOf(today()), good);
}
