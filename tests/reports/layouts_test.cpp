// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/layouts.h"

#include "core/data_store.h"
#include "platform/report/pdf.h"
#include "reports/snapshot_rows.h"
#include "support/harness.h"
#include "support/pdf_text.h"

#include <QDir>
#include <QProgressDialog>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <cmath>
#include <span>

namespace {

constexpr double halfMillimetre = 1440 / 25.4 / 2;

enum Side { Left, Middle, Right };

/// A text that has to stand in its place: there its left edge, its middle or its right edge.
struct Placed {
    const char* text;
    double x;
    double top;
    Side side = Left;
};

/// A caption that ends at its place, and the value beside it.
struct Pair {
    const char* caption;
    double end;
    const char* value;
    double left;
    double top;
};

constexpr Placed assetHead[] = {{"Kestrill", 5445, 750, Middle}, {"Asset Report", 5445, 1200, Middle},
    {"11/24/2026", 735, 975}, {"9:05:00 AM", 735, 1260}, {"Page:", 9540, 945, Right}, {"1", 9600, 945},
    {"Total Pages:", 9525, 1275, Right}, {"1", 9600, 1275}, {"Description:", 1665, 1725 + 1335, Right},
    {"With two keys.", 1770, 1725 + 1380}};

constexpr double detail = 1725; // of the asset report, from the top of its page
constexpr Pair assetEntries[] = {{"Area:", 1665, "Indoor", 1770, detail + 120},
    {"Location:", 1665, "Library", 1770, detail + 405}, {"Category:", 1665, "Antiques", 1770, detail + 690},
    {"Item:", 1665, "Antique Desk", 1770, detail + 975}, {"Year:", 4725, "1931", 4845, detail + 120},
    {"Make:", 4725, "Northlight", 4845, detail + 405}, {"Model:", 4725, "V-300", 4845, detail + 690},
    {"Serial:", 4725, "SN 0042/7", 4845, detail + 975}, {"Receipt:", 8715, "Yes", 8835, detail + 120},
    {"Receipt Location:", 8715, "Fire safe", 8835, detail + 405},
    {"Date Purchased:", 8715, "7/4/2006", 8835, detail + 690}, {"Amount:", 8715, "$1,234.50", 8835, detail + 975}};

constexpr Placed coverHeads[] = {{"Kestrill", 5715, 1008, Middle}, {"Asset Report", 5715, 1440, Middle},
    {"Personal Information", 5715, 2544, Middle}, {"Contact Information", 5715, 6576, Middle},
    {"Policy Information", 5715, 9312, Middle}, {"Total Asset Value", 5715, 11472, Middle},
    {"$1,234.50", 5683.5, 12192, Middle}, {"Home Phone =>", 5340, 7305, Right}, {"Work Phone =>", 5340, 7755, Right},
    {"Cell Phone =>", 5340, 8190, Right}};

constexpr double sheet = 2400; // the detail of the cover sheet
constexpr Pair coverEntries[] = {{"First Name =>", 5334, "Ann", 5475, sheet + 864},
    {"Middle Initial =>", 5334, "Q", 5475, sheet + 1296}, {"Last Name =>", 5334, "Fairbanks", 5475, sheet + 1728},
    {"Address =>", 5334, "Orchard Lane", 5475, sheet + 2160}, {"City =>", 5334, "Albany", 5475, sheet + 2592},
    {"State =>", 5334, "NY", 5475, sheet + 3024}, {"ZIP =>", 5334, "12205-AB", 5475, sheet + 3456},
    {"E-Mail =>", 5340, "ann@home.example", 5475, sheet + 6225},
    {"Insurance Company =>", 5334, "Tidewater Mutual", 5475, sheet + 7488},
    {"Policy Number =>", 5334, "TM-4711", 5475, sheet + 7920},
    {"Policy Expiration =>", 5334, "12/31/2027", 5475, sheet + 8352}};

constexpr Placed formTexts[] = {{"Kestrill", 5505, 1152, Middle}, {"Asset Information Form", 5505, 1584, Middle},
    {"Year Asset Was Made =>", 3588, 4464, Right}, {"Make =>", 3588, 4896, Right}, {"Model =>", 3588, 5328, Right},
    {"Serial =>", 3588, 5760, Right}, {"Purchase Price =>", 3588, 7344, Right}, {"Description =>", 3588, 9216, Right},
    {"Outdoor", 4752, 2448}, {"Mobile", 5760, 2448}, {"(Select One)", 6768, 2448}, {"Used", 4608, 6480},
    {"(Select One)", 5472, 6480}, {"No", 4608, 8064}, {"(Select One)", 5472, 8064}};

constexpr Pair formEntries[] = {{"Area =>", 3588, "Indoor", 3744, 2448},
    {"Location =>", 3588, "(i.e. Bedroom or Porch)", 6768, 2880},
    {"Category =>", 3588, "(i.e. Furniture or Electronics)", 6768, 3312},
    {"Asset Name =>", 3588, "(i.e. Stereo or Dishwasher)", 6768, 3744}, {"Purchased =>", 3588, "New", 3744, 6480},
    {"Purchase Date =>", 3588, "(Format: mm/dd/yyyy)", 6768, 6912},
    {"Asset Receipt On File =>", 3588, "Yes", 3744, 8064},
    {"Asset Receipt Location =>", 3588, "(i.e. File Cabinet)", 6768, 8496}};

std::vector<Placed> together(std::span<const Placed> texts, std::span<const Pair> pairs)
{
    std::vector<Placed> all(texts.begin(), texts.end());
    for (const Pair& pair : pairs) {
        all.push_back({pair.caption, pair.end, pair.top, Right});
        all.push_back({pair.value, pair.left, pair.top});
    }
    return all;
}

class ReportLayouts : public ScreenTest {
protected:
    static report::Pages pagesOf(
        const report::Layout& layout, const storage::TableView& view, QPageSize::PageSizeId paper)
    {
        auto document = std::make_shared<report::Document>();
        document->layout = layout;
        document->rows = std::make_shared<SnapshotRows>(view.snapshot());
        document->moment = {"11/24/2026", "9:05:00 AM"};
        return {document, {QPageSize(paper)}};
    }

    std::vector<pdf::Page> printed(const report::Pages& pages)
    {
        EXPECT_EQ(report::savePdf(pages, path_), report::Outcome::Done);
        std::vector<pdf::Page> read = pdf::read(path_);
        EXPECT_EQ(static_cast<int>(read.size()), pages.count());
        return read;
    }

    pdf::Page printed(const report::Layout& layout, const storage::TableView& view, QPageSize::PageSizeId paper)
    {
        return printed(pagesOf(layout, view, paper)).at(0);
    }

    static double edgeOf(const QRectF& place, Side side)
    {
        return side == Left ? place.left() : side == Right ? place.right() : place.center().x();
    }

    /// Every text in its place, where the layout lies on the page like this; and nothing else on it.
    static void expectPlaced(const pdf::Page& page, const std::vector<Placed>& texts, QPointF origin, double scale = 1)
    {
        qsizetype words = 0;
        for (const Placed& text : texts) {
            bool found = false;
            for (const QRectF& place : placesOf(page, text.text))
                found |= std::abs(edgeOf(place, text.side) - origin.x() - text.x * scale) < halfMillimetre
                    && std::abs(place.top() - origin.y() - text.top * scale) < halfMillimetre;
            EXPECT_TRUE(found) << '"' << text.text << "\" is not at " << text.x << ", " << text.top;
            words += QString(text.text).count(u' ') + 1;
        }
        EXPECT_EQ(page.words.size(), words) << page.text().toStdString();
    }

    /// All that stands on a caption's line, in the order of the file.
    static QString lineOf(const pdf::Page& page, const QString& caption)
    {
        const double top = placesOf(page, caption).at(0).top();
        QString line;
        for (const pdf::Word& word : page.words)
            line += std::abs(word.place.top() - top) < halfMillimetre ? word.text : QString();
        return line;
    }

    static double middleOf(QPageSize::PageSizeId paper) { return report::Paper{QPageSize(paper)}.size().width() / 2; }

    const QTemporaryDir folder_;
    const QString path_ = folder_.filePath("report.pdf");
};

TEST_F(ReportLayouts, AssetReportStandsAsPrescribed)
{
    addRow(Data1.rsPrint, Print::ID,
        {"1", "Indoor", "Library", "Antiques", "Antique Desk", "1931", "Northlight", "V-300", "SN 0042/7", "7/4/2006",
            "1234.5", "Yes", "Fire safe", "With two keys."});
    for (const auto paper : {QPageSize::Letter, QPageSize::A4})
        expectPlaced(printed(layouts::AssetReport(), Data1.rsPrint, paper), together(assetHead, assetEntries),
            {middleOf(paper) - 5445, 720});
}

TEST_F(ReportLayouts, CoverSheetStandsAsPrescribed)
{
    put(Data1.rsGeneral,
        {{General::First, "Ann"}, {General::Middle, "Q"}, {General::Last, "Fairbanks"},
            {General::Address, "Orchard Lane"}, {General::City, "Albany"}, {General::State, "NY"},
            {General::ZIP, "12205-AB"}, {General::EMail, "ann@home.example"},
            {General::PolicyCompany, "Tidewater Mutual"}, {General::PolicyNumber, "TM-4711"},
            {General::PolicyExpiration, "12/31/2027"}, {General::AssetValue, "1234.5"}, {General::HomePhone1, "518"},
            {General::HomePhone2, "555"}, {General::HomePhone3, "0101"}});
    for (const auto paper : {QPageSize::Letter, QPageSize::A4}) {
        pdf::Page page = printed(layouts::CoverSheet(), Data1.rsGeneral, paper);
        EXPECT_EQ(lineOf(page, "Home Phone =>"), "HomePhone=>(518)555-0101");
        EXPECT_EQ(lineOf(page, "Work Phone =>"), "WorkPhone=>(---)--------");
        // The pieces of the telephones have no places of their own to hold to.
        std::erase_if(page.words, [](const pdf::Word& word) {
            return QString(word.text).remove(QRegularExpression("[0-9()-]")).isEmpty() && word.text != "12/31/2027";
        });
        expectPlaced(page, together(coverHeads, coverEntries), {middleOf(paper) - 5715, 720});
    }
}

// The form is higher than what is printable, and set smaller as a whole.
TEST_F(ReportLayouts, FillOutFormStandsAsPrescribed)
{
    for (const auto paper : {QPageSize::Letter, QPageSize::A4}) {
        const double printable = report::Paper{QPageSize(paper)}.size().height() - 2 * 360;
        const double scale = std::min(1.0, printable / 15825);
        EXPECT_EQ(scale < 1, paper == QPageSize::Letter);
        expectPlaced(printed(layouts::FillOutForm(), Data1.rsGeneral, paper), together(formTexts, formEntries),
            {middleOf(paper) - 5505 * scale, 360}, scale);
    }
    EXPECT_EQ(layouts::FillOutForm().detail.boxes.size(), 11);
}

// No value reaches into its neighbour, however long, and none is lost while it can be read.
TEST_F(ReportLayouts, LongValuesStayInTheirFields)
{
    QStringList values{"1"};
    for (int column = Print::Area; column <= Print::Description; ++column)
        values.append(
            column == Print::Amount ? "$123,456,789.00" : QString("Wwide%1 ").arg(column).repeated(6).trimmed());
    addRow(Data1.rsPrint, Print::ID, values);
    const report::Layout layout = layouts::AssetReport();
    const pdf::Page page = printed(layout, Data1.rsPrint, QPageSize::Letter);
    const double origin = middleOf(QPageSize::Letter) - 5445;
    for (const report::Field& field : layout.detail.fields)
        for (const pdf::Word& word : page.words) {
            const bool sameLine = std::abs(word.place.top() - 720 - detail - field.place.top) < 100;
            const bool begins = sameLine && word.place.left() >= origin + field.place.left - 1
                && word.place.left() < origin + field.place.left + field.place.width;
            EXPECT_TRUE(!begins || word.place.right() <= origin + field.place.left + field.place.width + 1)
                << word.text.toStdString();
        }
    EXPECT_EQ(placesOf(page, "$123,456,789.00").size(), 1);
}

// The file holds the letters of such a script one by one, in the forms that they have beside each other.
TEST_F(ReportLayouts, ScriptsFromRightToLeftStandWholeInTheirFields)
{
    const std::tuple<QString, double, double> values[] = {
        {QString::fromUtf8("שלוםעולם"), 1770, detail + 405}, {QString::fromUtf8("خزانة"), 4845, detail + 690}};
    addRow(Data1.rsPrint, {{Print::Location, QString::fromUtf8("שלום עולם")}, {Print::Model, std::get<0>(values[1])}});
    const pdf::Page page = printed(layouts::AssetReport(), Data1.rsPrint, QPageSize::Letter);
    for (const auto& [text, left, top] : values) {
        const QRectF field(middleOf(QPageSize::Letter) - 5445 + left, 720 + top, 2100, 285);
        std::map<double, QString> fromTheRight;
        for (const pdf::Word& word : page.words)
            if (field.contains(word.place.center()))
                fromTheRight[-word.place.left()] = word.text;
        QString read;
        for (const auto& [place, letters] : fromTheRight)
            read += letters.normalized(QString::NormalizationForm_KC);
        EXPECT_EQ(read, text);
    }
}

TEST_F(ReportLayouts, AThousandAssetsAreCountedOnEachPageAndLeaveNoFileWhenTheUserCancels)
{
    for (int number = 1; number <= 1000; ++number)
        addRow(Data1.rsPrint, Print::ID, {QString::number(number), "Indoor", "Attic", "Art", "Vase"});
    const report::Pages pages = pagesOf(layouts::AssetReport(), Data1.rsPrint, QPageSize::Letter);
    QWidget window;
    report::ProgressWindow dialog("Saving...", pages.count(), &window);
    const auto cancelled = report::savePdf(pages, path_, [&, progress = dialog.progress()](int done) {
        if (done == 100)
            window.findChild<QProgressDialog*>()->cancel();
        return progress(done);
    });
    EXPECT_EQ(cancelled, report::Outcome::Cancelled);
    EXPECT_EQ(QDir(folder_.path()).entryList(QDir::Files | QDir::Hidden), QStringList());

    const std::vector<pdf::Page> read = printed(pages);
    ASSERT_EQ(read.size(), 167); // of six assets
    for (std::size_t page = 0; page < read.size(); ++page)
        EXPECT_TRUE(read[page].text().contains(QString("Page: %1 Total Pages: 167 ").arg(page + 1))) << page;
}

} // namespace
