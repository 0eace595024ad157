// SPDX-License-Identifier: GPL-3.0-or-later
// The pages of a report, read from PDF files by another program, and the files themselves.
#include "platform/report/csv.h"
#include "platform/report/pdf.h"
#include "platform/report/progress.h"
#include "support/files.h"
#include "support/painted.h"
#include "support/pdf_text.h"
#include "support/print.h"
#include "trial_report.h"

#include <QtWidgets>

#include <gmock/gmock.h>

#include <clocale>

namespace {

using report::Outcome;
using report::Pages;

class ReportPages : public testing::Test {
protected:
    QString path(const char* name) const { return folder_.filePath(name); }

    std::vector<pdf::Page> printed(const std::vector<QStringList>& rows)
    {
        EXPECT_EQ(report::savePdf(Pages(trial::document(rows), trial::letter), path("a.pdf")), Outcome::Done);
        return pdf::read(path("a.pdf"));
    }

    /// What was printed last, in the order in which it is drawn.
    QString words() { return pdf::output("pdftotext", {"-raw", path("a.pdf"), "-"}).simplified() + u' '; }

    QTemporaryDir folder_;
};

// The body of a page is 15,840 - 2 x 700 - 1,000 - 1,440 = 12,000 high: six rows.
TEST_F(ReportPages, HoldAsManyWholeRowsAsFitBetweenTheirHeadAndFoot)
{
    for (const auto& [rows, pages] : {std::pair(0, 1), {6, 1}, {7, 2}, {12, 2}, {13, 3}})
        EXPECT_EQ(Pages(trial::document(trial::rows(rows)), trial::letter).count(), pages) << rows;
    auto document = trial::document(trial::rows(8));
    for (const QSize size : {QSize(3000, 1000), {30, 10}})
        document->layout.pageHeader.pictures.push_back(
            {QImage(size, QImage::Format_RGB32), {trial::Left, 200, 600, 600}});
    document->layout.pageFooter.height = 1440;
    document->layout.pageFooter.labels = {{"%P %T %%", {trial::Left, 20, 1400, 200}, {8, true}, report::Align::Centre}};
    document->layout.detail.rules.push_back({{trial::Left, 900, 500, 0}}); // above the note
    document->layout.detail.boxes = {{{trial::Left, 120, 30, 40}}};
    const report::Paper narrow{QPageSize(QPageSize::A6), 500}, low{QPageSize({8.5, 4}, QPageSize::Inch), 800};
    for (const auto& [paper, page, count] :
        {std::tuple(trial::letter, 1, 2), {trial::letter, 2, 2}, {narrow, 3, 3}, {low, 8, 8}}) {
        const Pages pages(document, paper);
        ASSERT_EQ(pages.count(), count);
        Painted sheet;
        QPainter painter(&sheet);
        pages.paint(painter, page - 1);
        sheet.expect("platform/report/pages.txt", QString("page %1").arg(page));
    }
}

// On a page that is shown smaller there is room for a seventh row.
TEST_F(ReportPages, ShowAllSmallerForWhateverReachesFurthest)
{
    const auto document = trial::document(trial::rows(7));
    report::Section& detail = document->layout.detail;
    detail.labels.resize(1), detail.pictures.resize(1), detail.boxes.resize(1);
    for (report::Place* place : {&detail.labels[0].place, &detail.fields[0].place, &detail.pictures[0].place,
             &detail.rules[0].place, &detail.boxes[0].place, &detail.growing->place})
        for (const double left : {11'000, -3'000}) {
            const report::Place before = std::exchange(*place, {left, 0, 1'000, 0});
            EXPECT_EQ(Pages(document, trial::letter).count(), 1) << left;
            *place = before;
        }
    EXPECT_EQ(Pages(document, trial::letter).count(), 2);
}

TEST_F(ReportPages, GrowByTheLinesOfANoteAndSplitOnlyARowThatIsHigherThanAPage)
{
    QStringList lines;
    for (int line = 0; line < 120; ++line)
        lines.append(QString("line%1").arg(line));
    std::vector<QStringList> rows = trial::rows(8);
    rows[1][2] = "one\ntwo\r\n\nfour\nfive\nsix\nseven\neight"; // these take the room of the sixth row
    rows[6][2] = lines.join(u'\n'); // begins on a page of its own, and what follows it stands below its end
    const std::vector<pdf::Page> pages = printed(rows);
    ASSERT_EQ(pages.size(), 5);
    const auto topOf = [&pages](std::size_t page, const char* text) { return placesOf(pages[page], text).at(0).top(); };
    const double line = report::lineHeightOf({9});
    EXPECT_NEAR(topOf(0, "row2") - topOf(0, "row1"), trial::DetailHeight + 8 * line - 300, 5);
    EXPECT_NEAR(topOf(0, "four") - topOf(0, "one"), 3 * line, 5);
    EXPECT_NEAR(topOf(2, "row6"), 700 + trial::HeaderHeight + 100, 28);
    EXPECT_NEAR(topOf(3, "line50"), 700 + trial::HeaderHeight, 28);
    EXPECT_NEAR(topOf(4, "row7") - topOf(4, "line119"), line + trial::DetailHeight - trial::NoteTop - 300 + 100, 28);
    const QString all = words();
    EXPECT_TRUE(all.contains(lines.first(45).join(u' ')));
    for (const QString& each : lines)
        EXPECT_EQ(all.count(each + u' '), 1) << each.toStdString();
    for (const pdf::Page& page : pages)
        EXPECT_LE(page.words.back().place.bottom(), 15840 - 700);
    lines = lines.first(int((13'440 - trial::NoteTop) / line)); // a page has room for all, but not for the rule below
    EXPECT_EQ(placesOf(printed(trial::rows(1, lines.join(u'\n'))).at(1), lines.last()).size(), 1);
}

TEST_F(ReportPages, WrapEveryScriptWithinTheField)
{
    const double right = 6120 - 4500 + trial::Left + trial::NoteWidth;
    for (const char* pattern : {"W", "Twenty-three pieces, one of which is chipped. ", "one\ttwo\t", "\u5BB6",
             "\u05E9\u05DC\u05D5\u05DD \U0001F98A \u0E01\u0E32\u0E23 ", "\u0627\u0644\u0628\u064E\u064A\u062A ",
             "\u05D0\u05D1", "\u2764\uFE0F", "\u05D0-1\uFE0F\u20E3 "}) {
        const QString note = QString(pattern).repeated(120);
        QString joined;
        const std::vector<QStringView> lines = report::linesOf(note, {9}, trial::NoteWidth);
        for (const QStringView line : lines)
            joined += line;
        EXPECT_EQ(joined, note);
        EXPECT_LT(double(lines.size()), 1.5 * report::widthOf(note, {9}) / trial::NoteWidth + 1) << "half empty";
        const double top = 700 + trial::HeaderHeight + trial::NoteTop - 50;
        const std::vector<pdf::Page> pages = printed(trial::rows(1, note));
        for (const pdf::Word& word : pages.at(0).words)
            EXPECT_TRUE(word.place.top() < top || word.place.right() <= right + 10) << word.text.toStdString();
    }
}

// A skin tone, a key cap, selectors of a picture and of a text, a family, a flag, and what other fonts hold too.
TEST_F(ReportPages, HaveEachEmojiAsOnePictureInColour)
{
    const char* const emoji[] = {"\U0001F44D\U0001F3FD", "1\uFE0F\u20E3", "\u2764\uFE0F", "\u2764\u200D\U0001F525",
        "\U0001F468\u200D\U0001F469\u200D\U0001F467", "\U0001F3F3\uFE0F\u200D\U0001F308", "\U0001F1E9\U0001F1EA",
        "\U0001F3F4\U000E0067\U000E0062\U000E0065\U000E006E\U000E0067\U000E007F", "\u261D\U0001F3FD", "\u26A1",
        "#\uFE0F\u20E3", "*\uFE0F\u20E3", "\u203C\uFE0F", "\u00A9\uFE0F", "\u00AE\uFE0F"};
    std::vector<QStringList> rows = trial::rows(1, "1 # \u00A9 \u2764 \u231A\uFE0E \u260E\uFE0E");
    const auto pictures = [&] {
        printed(rows);
        return pdf::output("pdfimages", {"-list", path("a.pdf")}).split(u'\n').filter("smask").size();
    };
    EXPECT_EQ(pictures(), 0);
    for (const char* each : emoji) {
        rows[0][2] = QString("an %1 emoji").arg(each);
        EXPECT_EQ(pictures(), 1) << each;
        EXPECT_TRUE(words().contains(" an emoji ")) << each << words().toStdString();
    }
    rows[0][0] = QString("\u2764\uFE0F").repeated(9); // wider than its field
    const report::Fitted cut = report::fit(rows[0][0], {9}, 1000);
    EXPECT_LE(report::widthOf(cut.text, cut.type), 1000);
    EXPECT_TRUE(cut.text.endsWith(QChar(0x2026)));
}

TEST_F(ReportPages, BreakLinesBehindBlanksAndHyphensAndElseWhereTheLineIsFull)
{
    const double width = 1.05 * report::widthOf("Twenty-three", {9});
    const std::pair<QString, QString> texts[] = {{"", ""}, {"a\r\n\nb\n", "a||b|"},
        {"Twenty-three   old ones", "Twenty-three   |old ones"}, {"An old twenty-three", "An old |twenty-three"},
        {"An old one-and-twenty", "An old one-|and-twenty"}, {"Twenty-three\u5BB6\u5BB6", "Twenty-three|\u5BB6\u5BB6"},
        {"An old red-tre\u0301e", "An old red-|tre\u0301e"},
        {"Twe\u0301nty-three\u5BB6\u5BB6", "Twe\u0301nty-three|\u5BB6\u5BB6"}};
    for (const auto& [text, broken] : texts) {
        QStringList lines;
        for (const QStringView line : report::linesOf(text, {9}, width))
            lines += line.toString();
        EXPECT_EQ(lines.join('|'), broken);
    }
}

TEST_F(ReportPages, AreOfThePaperOfTheCountry)
{
    const std::string usual = std::setlocale(LC_PAPER, nullptr);
    for (const auto& [place, paper] : {std::pair("C", QPageSize::A4), {"de_DE.UTF-8", QPageSize::A4},
             {"en_US.UTF-8", QPageSize::Letter}, {"en_CA.UTF-8", QPageSize::Letter}}) {
        if (std::setlocale(LC_PAPER, place)) { // else it isn't installed
            EXPECT_EQ(report::localPaper().page.id(), paper) << place;
        }
    }
    std::setlocale(LC_PAPER, usual.c_str());
}

TEST_F(ReportPages, SetALongValueSmallerAndThenCutIt)
{
    EXPECT_EQ(report::fit("Attic", {9}, 1000).type.points, 9);
    const report::Fitted set = report::fit("Conservatory 2", {9}, 1000);
    EXPECT_EQ(set.text, "Conservatory 2");
    EXPECT_LE(report::widthOf(set.text, set.type), 1000);
    EXPECT_GT(report::widthOf(set.text, {set.type.points + 0.25}), 1000);
    const QString longer = "The conservatory behind the house";
    const report::Fitted ends = report::fit(longer, {9, true}, 1000);
    EXPECT_EQ(ends.type, (report::Type{6, true}));
    EXPECT_TRUE(ends.text.startsWith("The cons") && ends.text.endsWith(QChar(0x2026))) << ends.text.toStdString();
    EXPECT_LE(report::widthOf(ends.text, ends.type), 1000);
    EXPECT_EQ(report::fit("two\nlines", {9}, 1000).text, "two lines");
    printed({{longer, "", ""}});
    EXPECT_TRUE(words().contains(report::fit(longer, {9}, 1000).text)) << words().toStdString();
}

TEST_F(ReportPages, LeaveAnOlderFileUntilTheirsIsWholeWithAllItsNamesAndFonts)
{
    const Pages pages(trial::document(trial::rows(20)), trial::letter);
    putFile(path("a.pdf"), "older");
    QWidget window;
    report::ProgressWindow shown("Saving...", pages.count(), &window);
    const report::Progress cancelling = [&, progress = shown.progress()](int done) {
        if (done == 2)
            window.findChild<QProgressDialog*>()->cancel();
        return progress(done);
    };
    EXPECT_EQ(report::savePdf(pages, path("a.pdf"), cancelling), Outcome::Cancelled);
    EXPECT_EQ(report::savePdf(pages, path("no such folder/a.pdf")), Outcome::Failed);
    EXPECT_FALSE(report::saveCsv(*pages.document(), path("no such folder/a.csv")));
    {
        const FullDisk full(1024);
        EXPECT_EQ(report::savePdf(pages, path("a.pdf")), Outcome::Failed);
        EXPECT_FALSE(report::saveCsv(*trial::document(trial::rows(500)), path("a.csv")));
    }
    EXPECT_EQ(bytesOf(path("a.pdf")), "older");
    ASSERT_EQ(report::savePdf(pages, path("a.pdf")), Outcome::Done);
    const QString told = pdf::output("pdfinfo", {path("a.pdf")}).simplified();
    for (const char* line : {"Title: Trial ", "Author: A. Author ", "Creator: test_report ", "Producer: test_report ",
             "CreationDate: ", "Pages: 4 ", "Page size: 612 x 792 pts (letter) "})
        EXPECT_TRUE(told.contains(line)) << line << "is not in " << told.toStdString();
    const QStringList fonts = pdf::output("pdffonts", {path("a.pdf")}).split(u'\n', Qt::SkipEmptyParts).mid(2);
    EXPECT_EQ(fonts.filter(QRegularExpression(" yes +(yes|no) +yes ")).size(), 1) << "embedded, with its letters";
    EXPECT_EQ(QDir(folder_.path()).entryList(QDir::Files | QDir::Hidden), QStringList("a.pdf"));
}

TEST_F(ReportPages, HaveAmountsInOneFormAndMakeATableForASpreadsheet)
{
    const std::vector<QStringList> rows = {{"Sofa, \"blue\"", "1234.5", "two\nlines"},
        {QString::fromUtf8("Caf\u00E9 \U0001F98A"), "-$15.00", " blank"}, {"Lamp ", "None", "a\tb"},
        {"Loan", "($1,000.00)", ""}, {"=A1", "-$2.00", "-2.5"}, {"@x", "+1-2", "\t1"}};
    printed(rows);
    for (const char* amount : {" $1,234.50 ", " -$15.00 ", "Lamp None ", "Loan -$1,000.00 "})
        EXPECT_TRUE(words().contains(amount)) << amount << "is not in " << words().toStdString();
    const auto document = trial::document(rows);
    ASSERT_TRUE(report::hasTable(*document) && report::saveCsv(*document, path("a.csv")));
    EXPECT_EQ(bytesOf(path("a.csv")),
        "\xEF\xBB\xBFName,Amount,Note\r\n\"Sofa, \"\"blue\"\"\",1234.50,\"two\nlines\"\r\nCaf\xC3\xA9 "
        "\xF0\x9F\xA6\x8A,-15.00,\" blank\"\r\n\"Lamp "
        "\",None,a\tb\r\nLoan,-1000.00,\r\n'=A1,-2.00,-2.5\r\n'@x,'+1-2,'\t1\r\n");
    document->layout.detail = {};
    EXPECT_FALSE(report::hasTable(*document));
}

} // namespace
