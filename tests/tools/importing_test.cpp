// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools_test.h"

#include "data/earlier_backups.h"
#include "support/disk.h"
#include "tools/checking.h"
#include "tools/exporting.h"
#include "tools/import_amounts.h"
#include "tools/import_dates.h"
#include "tools/importing.h"

#include <random>

using namespace importing;

namespace {

// Texts that another program might take for something else, or leave something of.
const QStringList hostile{"=1+1", "'=1+1", "'it's'", "\"quoted\"", "a,b;c\td", " before", "behind ",
    "one\ntwo\r\nthree\rfour", "-5", "+x", "@x", "%1 %n", "<b>&amp;</b>", "Ünïcødé 😀", "עברית العربية", "\u202Eover",
    "x\u0301", "None", "Unknown", "0x0", "\x01\x1B[2J\x7F", "C:\\new\\text", "{\"ID\": [1]}", "]}", "Area,Location",
    "\uFEFFmark", "NULL", QString(3000, u'\u00fc')};

class ImportingTest : public ToolsTest {
protected:
    static Plan plannedFor(const QString& path, const Choices& choices = {})
    {
        return planned(Source(path), choices, Household(today()));
    }

    static Result imported(const QString& path, const Choices& choices = {})
    {
        int left = -1;
        const Result result =
            carry_Out(plannedFor(path, choices), [&left](int done, int all) { return left = all - done, true; });
        EXPECT_EQ(left, 0);
        return result;
    }

    static QString table(const QString& name, const QString& lines)
    {
        putFile(below(name), lines.toUtf8());
        return below(name);
    }

    static QString any(int columns = 0)
    {
        static std::mt19937 random(7);
        return hostile[static_cast<qsizetype>((random() + static_cast<unsigned>(columns)) % hostile.size())];
    }

    /// A household of so many assets, with names, an account, a record and a policy, all of whose texts are hostile.
    static void fillHousehold(int assets)
    {
        openData();
        storage::Transaction all(Data1.Home.handle());
        for (int i = 0; i < assets; ++i) {
            QStringList row{QStringList{"Indoor", "Outdoor", "Mobile"}[i % 3], any(), any(), any() + QString::number(i),
                any(), any(), any(), any(), "7/4/2006", "$1,250.5", i % 2 ? "Yes" : "No", any(), any(),
                i % 5 ? "New" : "Used"};
            for (int column = Inventory::PartsType; column <= Inventory::WarrantyDescription; ++column)
                row += column == Inventory::PartsAmount || column == Inventory::LaborAmount ? "$0.50" : any();
            addAssetRow(row);
        }
        for (int i = 0; i < 30; ++i)
            addNames(Data1.rsOutdoor, {any(), any(), any()});
        addRow(Data1.rsBank, Bank::FinancialInstitution,
            {any(), any(), any(), any(), any(), any(), any(), "$5.00", "7/4/2006", any(), any(), any()});
        put(Data1.rsGeneral,
            {{General::Introduced, "1"}, {General::Last, any()}, {General::Address, any()}, {General::EMail, any()},
                {General::WorkPhone2, any()}, {General::PolicyCompany, any()}, {General::PolicyCoverage, "$1,000.00"},
                {General::PolicyExpiration, values::Today().toText()}, {General::PolicyNotify, "Yes"},
                {General::AssetValue, values::Currency::fromTenThousandths(qint64{12505000} * assets).toText()}});
        all.commit();
        closeData();
    }

    static void beginAnew()
    {
        QFile::remove(today());
        createShippedDatabase(today(), {{{"Attic", "Art", "Frame"}}, {}, {}});
    }

    static auto exported(const QString& name)
    {
        exporting::write(Household(today()), below(name), exporting::Former::Replaced);
        auto files = treeOf(below(name));
        std::erase_if(files, [](const auto& file) { return !file.first.ends_with(".csv"); });
        return files;
    }
};

} // namespace

TEST_F(ImportingTest, BringsAnExportBackToTheLastByte)
{
    fillHousehold(1000);
    const auto before = exported("old");
    for (const QString source : {"old", "old/kestrill.json"}) {
        SCOPED_TRACE(source.toStdString());
        beginAnew();
        EXPECT_EQ(imported(below(source)).summary, "1000 assets, $1,250,500.00");
        EXPECT_EQ(exported("new"), before);
        EXPECT_TRUE(checking::findings(Household(today())).empty());
        EXPECT_FALSE(plannedFor(below(source)).bringsAnything()) << "all of it is there";
    }
    beginAnew();
    imported(below("old/Inventory.csv"));
    EXPECT_EQ(exported("new").at("Inventory.csv"), before.at("Inventory.csv"));
    EXPECT_EQ(Household(today()).table("Bank_Info").rowCount(), 0);
}

TEST_F(ImportingTest, KilledAtAnyCallLeavesTheOldFileOrTheNewAndGoesOnAfterwards)
{
    addAsset("Lamp", "$10.00");
    const QByteArray old = bytesOf(today());
    QString rows = "Area,Location,Category,Item,Date,Price\n";
    for (int i = 0; i < 40; ++i)
        rows += QString("Outdoor,Shed,Tools,Rake %1,2006-07-04,1.25\n").arg(i);
    const QString path = table("list.csv", rows);
    int isNew = 0, killed = 0;
    for (int call = 1;; ++call) {
        SCOPED_TRACE(call);
        QFile::remove(today() + "-journal");
        QDir(places::earlierBackupsFolder()).removeRecursively();
        putFile(today(), old);
        const int status = inProcess([&] {
            const Plan plan = plannedFor(path);
            Disk::endAt(call);
            carry_Out(plan);
            Disk::endAt(0);
        });
        if (status != Disk::Ended)
            break;
        ++killed;
        const QString now = Household(today()).summary();
        EXPECT_TRUE(now == "1 asset, $10.00" || now == "41 assets, $60.00") << now.toStdString();
        isNew += now.startsWith("41") ? 1 : 0;
        if (now.startsWith("1 ") && plannedFor(path).assets.size() == 40) {
            EXPECT_EQ(imported(path).summary, "41 assets, $60.00");
        }
        EXPECT_EQ(QFileInfo(today() + "-journal").size(), 0);
        for (const earlier::KeptFile& kept : earlier::all())
            EXPECT_EQ(Household(kept.file).summary(), "1 asset, $10.00") << "what can be restored is whole";
    }
    EXPECT_GT(killed, 30);
    EXPECT_TRUE(isNew > 0 && isNew < 6) << isNew << " calls behind the commit";
}

TEST_F(ImportingTest, LeavesNothingWhereItIsCancelledOrFails)
{
    addAsset("Lamp", "$10.00");
    QString rows = "Area,Location,Category,Item,Date,Price\n";
    for (int i = 0; i < 600; ++i)
        rows += QString("Outdoor,Shed,Tools,Rake %1,2006-07-04,1.25\n").arg(i);
    const Source source(table("list.csv", rows));
    QStringList told;
    const auto lookThrough = [&](int most) {
        planned(source, {}, Household(today()), [&](int done, int all) {
            told += QString("%1/%2").arg(done).arg(all);
            return done < most;
        });
    };
    EXPECT_EQ(refusal([&] { lookThrough(512); }), exit_code::Declined);
    EXPECT_EQ(std::exchange(told, {}).join(' '), "0/600 256/600 512/600");
    const Plan plan = planned(source, {}, Household(today()));
    sys::Folder::made(places::earlierBackupsFolder());
    putFile(places::earlierBackupsFolder() + "/.restoring", {});
    const auto before = everything();
    EXPECT_EQ(refusal([&] {
        carry_Out(plan, [&](int done, int all) {
            told += QString("%1/%2").arg(done).arg(all);
            return done < all;
        });
    }),
        exit_code::Declined);
    EXPECT_EQ(told.join(' '), "256/1201 512/1201 768/1201 1024/1201 1201/1201");
    EXPECT_EQ(everything(), before);
    for (const QString call : {"sync KTL.db", "sync 2", "sync C_db-backups", "name KTL.db.part"}) {
        Disk::refuse(call, ENOSPC);
        EXPECT_EQ(refusal([&] { carry_Out(plan); }), exit_code::Failed) << call.toStdString();
        Disk::refuse("never", 0);
        EXPECT_EQ(Household(today()).summary(), "1 asset, $10.00") << call.toStdString();
    }
    addAsset("Chair", "$5.50");
    EXPECT_EQ(refusal([&] { carry_Out(plan); }), exit_code::Failed) << "another file by now";
}

// What a text means, kept as a list: dates and amounts of a column, and where headings lead.
TEST(ImportedTexts, AreReadAsTheListHasIt)
{
    values::setToday(values::Date::parse("11/26/2026"));
    expectSteps("tools/imported_texts.txt", [](const QString& step) {
        const QStringList texts = step.section(' ', 1).split(" | ");
        QStringList told;
        if (step.startsWith("dates")) {
            const DateOrder chosen = dateOrderNamed(step.section(' ', 0, 0).sliced(5)).value_or(DateOrder::Unknown);
            const DateReader reader = chosen == DateOrder::Unknown ? DateReader(texts) : DateReader(chosen);
            told += reader.isAmbiguous() ? "ambiguous" : nameOf(reader.order());
            for (const QString& text : texts) {
                const DateRead read = reader.read(text);
                told += read.date ? read.date->toText() : read.fault.left(40);
            }
        } else if (step.startsWith("amounts")) {
            const AmountReader reader(texts);
            for (const QString& text : texts) {
                const AmountRead read = reader.read(text);
                told += read.amount ? read.amount->toText() : read.fault.mid(3);
            }
        } else if (step.startsWith("currencies")) {
            told = currenciesIn(texts);
        } else {
            std::vector<ColumnSeen> columns;
            for (const QString& text : texts)
                columns.push_back({text.section('=', 0, 0), text.section('=', 1), 1});
            for (const Target& target : targetsOf(columns))
                told += nameOf(target);
        }
        return told.join(" | ");
    });
    values::setToday({});
}
