// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools_test.h"

#include "support/pdf_text.h"
#include "tools/exporting.h"
#include "tools/household.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

using exporting::Former;
using testing::HasSubstr;

namespace {

const QStringList hostileTexts = {QStringLiteral("\"quoted\", and more"), QStringLiteral("two\r\nlines\nand\rmore"),
    QStringLiteral(" blanks at both ends "), QStringLiteral("=HYPERLINK(\"http://x\")"),
    QStringLiteral("back\\slash \\u0041"), QStringLiteral("caf\u00e9 \u4f60\u597d \U0001F600 \u202Ereversed"),
    QString(QChar(u'\0')) + "\x01\x1b[31m\x7f", QStringLiteral("'; DROP TABLE Inventory; --"),
    QStringLiteral("</script>&amp;"), QString(70'000, u'\u00fc')};

// As RFC 4180 has it: between quotes where it has to be.
QString inCsv(const QString& text)
{
    static const QRegularExpression odd("[\",\r\n]|^ | $");
    return text.contains(odd) ? '"' + QString(text).replace('"', "\"\"") + '"' : text;
}

class ExportingTest : public ToolsTest {
protected:
    ExportingTest()
    {
        for (const QString& text : hostileTexts)
            addAsset(text, "$1,234.50", text);
        openData();
        put(Data1.rsGeneral, {{General::AssetValue, "-$.05"}}); // after many mistakes
        closeData();
        household_.emplace(today());
    }

    void write(Former former = Former::Kept, const exporting::Progress& progress = {}) const
    {
        exporting::write(*household_, folder_, former, progress);
    }

    std::optional<int> refused(Former former = Former::Kept, const exporting::Progress& progress = {}) const
    {
        return refusal([&] { write(former, progress); });
    }

    QByteArray file(const QString& name) const { return bytesOf(folder_ + '/' + name); }

    std::string textOf(const QString& name) const
    {
        QString text;
        for (const pdf::Page& page : pdf::read(folder_ + '/' + name))
            text += page.text() + ' ';
        return text.toStdString();
    }

    static QStringList leftovers() { return QDir(below({})).entryList({".kestrill*"}, QDir::Dirs | QDir::Hidden); }

    QString folder_ = below("out");
    std::optional<Household> household_;
};

} // namespace

TEST_F(ExportingTest, WritesEachTextBitForBitAsCsvAndAsJsonAndTheReportsForTheHouseholdAlone)
{
    const QByteArray before = bytesOf(today());
    write();
    EXPECT_EQ(bytesOf(today()), before);
    const QJsonObject data = QJsonDocument::fromJson(file("kestrill.json")).object()["tables"].toObject();
    const QJsonObject schema = QJsonDocument::fromJson(file("kestrill.schema.json")).object();
    const QJsonObject tables = schema["properties"]["tables"]["properties"].toObject();
    EXPECT_EQ(tables.keys(), data.keys());
    for (const storage::Snapshot& table : household_->tables()) {
        const auto& columns = table.definition().columns;
        const QString name = table.definition().name;
        SCOPED_TRACE(name.toStdString());
        const QJsonArray rows = data[name].toArray();
        ASSERT_EQ(rows.size(), table.rowCount());
        EXPECT_EQ(tables[name]["items"]["required"].toArray().size(), static_cast<qsizetype>(columns.size()));
        const QJsonObject properties = tables[name]["items"]["properties"].toObject();
        QByteArrayList headings;
        for (std::size_t column = 0; column < columns.size(); ++column) {
            headings += columns[column].name;
            const bool isAmount = columns[column].type == storage::ColumnType::Currency;
            for (int row = 0; row < table.rowCount() && !isAmount; ++row) {
                const QJsonValue cell = rows[row].toObject()[columns[column].name];
                EXPECT_EQ(cell.toVariant().toString(), table.text(row, static_cast<int>(column)));
                EXPECT_EQ(properties[columns[column].name]["type"], cell.isDouble() ? "integer" : "string");
            }
        }
        EXPECT_TRUE(file(name + ".csv").startsWith(headings.join(',') + "\r\n"));
    }
    QString rows;
    for (const QString& text : hostileTexts)
        rows += QString::number(hostileTexts.indexOf(text) + 1) + ",Indoor,None,None," + inCsv(text)
            + ",None,None,None,None,7/4/2006,\"$1,234.50\",No,None," + inCsv(text) + ",New"
            + QString(",None").repeated(13) + "\r\n";
    EXPECT_TRUE(file("Inventory.csv").endsWith("\r\n" + rows.toUtf8()));
    EXPECT_TRUE(file("kestrill.json").contains(R"("two\u000d\u000alines\u000aand\u000dmore")"));
    EXPECT_TRUE(file("Personal_Info.csv").endsWith(",-0.0500\r\n"));
    EXPECT_EQ(data["Personal_Info"].toArray().at(0)["AssetValue"].toString(), "-0.0500");
    EXPECT_THAT(textOf("Asset Report.pdf"), HasSubstr("Item: =HYPERLINK(\"http://x\") Description"));
    EXPECT_THAT(textOf("Cover Sheet.pdf"), HasSubstr("-$0.05"));

    EXPECT_EQ(QFile::permissions(folder_), QFile::Permissions(0x7700));
    const QStringList found = QDir(folder_).entryList(QDir::Files | QDir::Hidden);
    EXPECT_THAT(exporting::fileNames(), testing::UnorderedElementsAreArray(found));
    for (const QString& name : found)
        EXPECT_EQ(QFile::permissions(folder_ + '/' + name), QFile::Permissions(0x6600)) << name.toStdString();
}

TEST_F(ExportingTest, HoldsWhatShouldBeANumberAndIsNoneAsItIs)
{
    const storage::Handle file = storage::openFile(today(), databaseKey(), storage::Access::ReadWrite);
    for (const char* change : {"Personal_Info SET AssetValue = 'many'", "Mobile_Items SET Standard = 'some'"})
        storage::execute(file.get(), QByteArray("UPDATE ") + change);
    household_.emplace(today());
    write();
    EXPECT_THAT(textOf("Cover Sheet.pdf"), HasSubstr("many"));
    EXPECT_TRUE(this->file("kestrill.json").contains("\"Standard\": \"some\""));
    const QByteArray schema = this->file("kestrill.schema.json");
    EXPECT_EQ(schema.count(R"("Standard": {"type": "integer"})"), 2);
    EXPECT_EQ(schema.count(R"("Standard": {"type": ["integer", "string"]})"), 1);
    EXPECT_TRUE(schema.contains(R"("AssetValue": {"type": "string"})"));
}

TEST_F(ExportingTest, IsWholeOrNotThere)
{
    const auto before = everything();
    for (int step = 0; step <= 9; ++step)
        EXPECT_EQ(
            refused(Former::Kept, [step](int done, int all) { return done < step * all / 10; }), exit_code::Declined);
    for (const qint64 bytes : {1000, 40'000, 100'000}) {
        const FullDisk full(bytes);
        EXPECT_EQ(refused(), exit_code::Failed);
    }
    EXPECT_EQ(everything(), before);
}

TEST_F(ExportingTest, TakesThePlaceOfNothingButAnExportThatIsGivenUp)
{
    QDir().mkdir(folder_);
    write(); // an empty folder is free
    putFile(folder_ + "/Inventory.csv", "former");
    EXPECT_EQ(refused(), exit_code::Failed);
    EXPECT_EQ(file("Inventory.csv"), "former");
    write(Former::Replaced);
    EXPECT_NE(file("Inventory.csv"), "former");
    putFile(folder_ + "/letter.txt", "not ours");
    const auto before = everything();
    EXPECT_EQ(refused(Former::Replaced), exit_code::Failed);
    folder_ += "/letter.txt";
    EXPECT_EQ(refused(Former::Replaced), exit_code::Failed);
    EXPECT_EQ(everything(), before);
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(ExportingTest, ClearsWhatKilledOnesHaveLeftAndNothingElse)
{
    QDir().mkdir(below(".kestrill-export-of-mine"));
    inProcess([this] { write(Former::Kept, [](int, int) -> bool { _exit(1); }); });
    EXPECT_EQ(leftovers().size(), 2);
    bool isFirst = true;
    write(Former::Kept, [&](int, int) {
        if (std::exchange(isFirst, false))
            exporting::write(*household_, below("another"), Former::Kept); // this one's folder stays
        return true;
    });
    EXPECT_EQ(leftovers(), QStringList(".kestrill-export-of-mine"));
    EXPECT_EQ(QDir(folder_).count(), exporting::fileNames().size() + 2); // with "." and ".."
}
