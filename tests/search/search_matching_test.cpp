// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/search_screen.h"

#include "frame/frmProgress.h"
#include "platform/storage/statement.h"
#include "support/files.h"

#include <QApplication>
#include <QProgressBar>

namespace {

class SearchMatching : public SearchScreenTest {
protected:
    // Told apart by their models.
    static void addThree()
    {
        addAssetRow({"INDOOR", "attic", "Art", "Vase", "1931", "Acme", "M1", "SN-7", "1/2/2020", "$12.50", "Yes",
            "Safe", "Étagère of oak"});
        addAssetRow({"Indoor", "Attic", "Tools", "Saw", "1950", "Bolt", "M2", "SN-8", "1/2/2021", "$99.00", "No",
            "None", "oaken  beam"});
        addAssetRow({"Outdoor", "Barn", "Art", "Gnome", "2000", "Acme", "M3", "SN-9", "1/2/2022", "$7.00", "No", "None",
            "50% % * ?"});
        put(Data1.rsInventory, {{Inventory::WarrantyDescription, "parts only"}});
    }

    static QString models() { return staged(Print::Model).join(' '); }
};

TEST_F(SearchMatching, TheWordIsLookedForInEveryColumnButTheWarranty)
{
    addThree();
    expectSteps("search/words.txt", [](const QString& word) {
        find(QString(word).remove('"'));
        return models();
    });
    setBoxTitle(" Inventory Search Results");
    expectBox("No Assets Were Found Based On The Information You Entered!", Exclamation);
    find("parts only");
    paste(QString(300, u'x'));
    EXPECT_EQ(search().txtKey.text().size(), 254);
    EXPECT_FALSE(forms::detail::findScreen(typeid(frmProgress))) << "which would close the program";
    EXPECT_EQ(hiddenOfSearch(), "pbSearch hidden");
}

TEST_F(SearchMatching, IsGoneThrough)
{
    addThree();
    menu().show();
    replay("search/results.txt");
}

// It fills for the assets, and again for those found.
TEST_F(SearchMatching, ABarStandsOnTheScreenMeanwhileAndAnHourglassWhereAllIsShownOrSorted)
{
    addThree();
    QStringList full;
    const auto* bar = dynamic_cast<const QProgressBar*>(search().pbSearch.widget());
    QObject::connect(bar, &QProgressBar::valueChanged, bar, [&](int value) {
        if (value == bar->maximum())
            full += line(value, hiddenOfSearch(), QApplication::overrideCursor() != nullptr);
    });
    find("m1");
    EXPECT_EQ(full.join("; "), "3, lblHead(3) hidden, false; 1, pbSearch hidden, false");
    full.clear();
    click(results().lblSubHead[1]);
    click(results().cmdMain);
    findAll();
    EXPECT_EQ(full.join("; "), "3, lblHead(3) hidden, true; 3, lblHead(3) hidden, true; 3, pbSearch hidden, true");
    EXPECT_FALSE(QApplication::overrideCursor());
    click(results().cmdBack);
    EXPECT_EQ(line(search().pbSearch.value(), results().txtArea[0].text()), "0, ");
}

TEST_F(SearchMatching, AHeaderSortsThisSearchAndAllLaterOnes)
{
    addAssetRow({"Outdoor", "b", "c", "lamp", "2001", "x", "m9"});
    addAssetRow({"Mobile", "C", "a", "Desk", "1999", "z", "m8"});
    addAssetRow({"Indoor", "a", "b", "bench", "2000", "Y", "m7"});
    find("m");
    EXPECT_EQ(staged(Print::ID).join(' '), "1 2 3");
    // The order of the list, and the mark at its column.
    expectSteps("search/orders.txt", [this](const QString& step) {
        played(step);
        QString order = staged(Print::ID).join(' ');
        EXPECT_EQ(shown(results().txtIDNum).join(' '), order) << step.toStdString();
        for (int mark = 1; mark <= 6; ++mark)
            order += results().lblSorted[mark].isVisible() ? QString(" by %1").arg(mark) : QString();
        return order;
    });
    click(results().cmdMain);
    find("b"); // and the view itself stays sorted
    EXPECT_EQ(staged(Print::ID).join(' '), "2 3 1"); // by "Mobile", "bench" and "b"
    EXPECT_EQ(columnOf(Data1.rsInventory, Inventory::ID).join(' '), "2 3 1");
}

TEST_F(SearchMatching, MoreMatchesThanCanBeCountedEndTheProgramWithNothingLost)
{
    {
        storage::Transaction atOnce(Data1.Home.handle());
        addAssets(32'767);
        atOnce.commit();
    }
    find("acme");
    EXPECT_EQ(
        line(results().lblRecsFound.caption(), results().lblPage.caption()), "32767 Assets Found!, Page 1 of 3277");

    click(results().cmdMain);
    addAssets(1);
    find("acme");
    EXPECT_EQ(line(failedHandler(), Data1.rsInventory.RecordCount()), "frmSearch.cmdContinue_Click, 32768");
}

TEST_F(SearchMatching, AStagingThatCannotBeWrittenIsReportedAndLeavesTheHousehold)
{
    addThree();
    put(Data1.rsInventory, {{Inventory::Description, QString(100'000, u'x')}});
    const QStringList household = columnOf(Data1.rsInventory, Inventory::Description);
    for (const std::string cause : {"readonly", "too large"}) {
        std::optional<FullDisk> full;
        if (cause == "readonly")
            storage::execute(Data1.Home.handle(), "PRAGMA query_only = ON");
        else
            full.emplace(QFileInfo(databaseFile()).size());
        find("acme");
        EXPECT_THAT(reportedFailure().value().failure.toStdString(), testing::HasSubstr(cause));
        EXPECT_EQ(models(), "") << cause;
        full.reset();
        reopenData();
        EXPECT_EQ(models(), "") << cause;
        EXPECT_EQ(columnOf(Data1.rsInventory, Inventory::Description), household) << cause;
    }
    find("acme");
    EXPECT_EQ(models(), "M1 M3");
}

} // namespace
