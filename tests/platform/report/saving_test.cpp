// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/report/csv.h"
#include "platform/report/pdf.h"
#include "support/files.h"
#include "support/pdf_text.h"
#include "support/print.h"
#include "trial_report.h"

#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace {

using report::Outcome;
using report::Pages;

class SavedReport : public testing::Test {
protected:
    QString path(const char* name) const { return folder_.filePath(name); }
    QStringList files() const { return QDir(folder_.path()).entryList(QDir::Files | QDir::Hidden); }

    const Pages pages_{trial::document(trial::rows(20)), trial::letter()};
    QTemporaryDir folder_;
};

TEST_F(SavedReport, IsADocumentWithItsNamesOfAllOrSomePages)
{
    ASSERT_EQ(report::savePdf(pages_, path("a.pdf")), Outcome::Done);
    const QString told = pdf::output("pdfinfo", {path("a.pdf")}).simplified();
    for (const char* line : {"Title: Trial ", "Author: A. Author ", "Pages: 4 ", "Page size: 612 x 792 pts (letter) "})
        EXPECT_TRUE(told.contains(line)) << line << "is not in " << told.toStdString();
    ASSERT_EQ(report::savePdf(pages_, {3, 1}, path("some.pdf")), Outcome::Done);
    const std::vector<pdf::Page> some = pdf::read(path("some.pdf"));
    ASSERT_EQ(some.size(), 2);
    EXPECT_TRUE(some[0].text().contains("Page 4 of 4") && some[1].text().contains("Page 2 of 4"));
}

TEST_F(SavedReport, LeavesAnOlderFileUntilItIsWhole)
{
    putFile(path("old.pdf"), "older");
    int told = -1;
    const auto cancelled = report::savePdf(pages_, path("old.pdf"), [&told](int done) { return (told = done) < 2; });
    EXPECT_EQ(cancelled, Outcome::Cancelled);
    EXPECT_EQ(told, 2);
    EXPECT_EQ(report::savePdf(pages_, path("no such folder/a.pdf")), Outcome::Failed);
    EXPECT_FALSE(report::saveCsv(*pages_.document(), path("no such folder/a.csv")));
    {
        const FullDisk full(1024);
        EXPECT_EQ(report::savePdf(pages_, path("old.pdf")), Outcome::Failed);
        EXPECT_FALSE(report::saveCsv(*trial::document(trial::rows(500)), path("a.csv")));
    }
    EXPECT_EQ(bytesOf(path("old.pdf")), "older");
    EXPECT_EQ(files(), QStringList("old.pdf"));
    EXPECT_EQ(report::savePdf(pages_, path("old.pdf")), Outcome::Done);
    EXPECT_TRUE(bytesOf(path("old.pdf")).startsWith("%PDF"));
    EXPECT_EQ(files(), QStringList("old.pdf"));
}

TEST_F(SavedReport, IsATableForASpreadsheet)
{
    const auto document = trial::document({{"Sofa, \"blue\"", "$1,234.50", "two\nlines"},
        {QString::fromUtf8("Caf\u00E9 \U0001F98A"), "-$15.00", " blank"}, {"Lamp", "None", ""}});
    ASSERT_TRUE(report::hasTable(*document));
    ASSERT_TRUE(report::saveCsv(*document, path("a.csv")));
    EXPECT_EQ(bytesOf(path("a.csv")),
        "\xEF\xBB\xBFName,Amount,Note\r\n\"Sofa, \"\"blue\"\"\",1234.50,\"two\nlines\"\r\nCaf\xC3\xA9 "
        "\xF0\x9F\xA6\x8A,-15.00,\" blank\"\r\nLamp,None,\r\n");
    document->layout.detail.fields.clear();
    document->layout.detail.growing.reset();
    EXPECT_FALSE(report::hasTable(*document));
}

} // namespace
