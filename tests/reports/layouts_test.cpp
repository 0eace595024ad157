// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/layouts.h"

#include "core/data_store.h"
#include "platform/report/pdf.h"
#include "reports/snapshot_rows.h"
#include "support/harness.h"
#include "support/pdf_text.h"

#include <QMap>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <cmath>

namespace {

constexpr double halfMillimetre = 1440 / 25.4 / 2;

constexpr double Left = 0, Middle = 0.5, Right = 1;

/// Lines of texts that stand at the same edges: there a text's left edge, its middle or its right edge.
struct Band {
    std::vector<std::pair<double, double>> edges;
    std::vector<std::pair<double, QString>> lines; // their tops, and their texts with "|" between them
};

constexpr double detail = 1725; // of the asset report, from the top of its page
const std::vector<Band> assetReport = {{{{5445, Middle}}, {{750, "Kestrill"}, {1200, "Asset Report"}}},
    {{{735, Left}}, {{975, "11/24/2026"}, {1260, "9:05:00 AM"}}},
    {{{9540, Right}, {9600, Left}}, {{945, "Page:|1"}, {1275, "Total Pages:|1"}}},
    {{{1665, Right}, {1770, Left}, {4725, Right}, {4845, Left}, {8715, Right}, {8835, Left}},
        {{detail + 120, "Area:|Indoor|Year:|1931|Receipt:|Yes"},
            {detail + 405, "Location:|Library|Make:|Northlight|Receipt Location:|Fire safe"},
            {detail + 690, "Category:|Antiques|Model:|V-300|Date Purchased:|7/4/2006"},
            {detail + 975, "Item:|Antique Desk|Serial:|SN 0042/7|Amount:|$123,456,789.00"},
            {detail + 1335, "Description:"}}},
    {{{1770, Left}}, {{detail + 1380, "With two keys."}}}};

const std::vector<Band> coverSheet = {
    {{{5715, Middle}},
        {{1008, "Kestrill"}, {1440, "Asset Report"}, {2544, "Personal Information"}, {6576, "Contact Information"},
            {9312, "Policy Information"}, {11472, "Total Asset Value"}}},
    {{{5683.5, Middle}}, {{12192, "$1,234.50"}}},
    {{{5334, Right}, {5475, Left}},
        {{3264, "First Name =>|Ann"}, {3696, "Middle Initial =>|Q"}, {4128, "Last Name =>|Fairbanks"},
            {4560, "Address =>|Orchard Lane"}, {4992, "City =>|Albany"}, {5424, "State =>|NY"},
            {5856, "ZIP =>|12205-AB"}, {7305, "Home Phone =>|( 518 ) 555 - 0101"},
            {7755, "Work Phone =>|( --- ) --- - ----"}, {8190, "Cell Phone =>|( --- ) --- - ----"},
            {8625, "E-Mail =>|ann@home.example"}, {9888, "Insurance Company =>|Tidewater Mutual"},
            {10320, "Policy Number =>|TM-4711"}, {10752, "Policy Expiration =>|12/31/2027"}}}};

const std::vector<Band> fillOutForm = {{{{5505, Middle}}, {{1152, "Kestrill"}, {1584, "Asset Information Form"}}},
    {{{3588, Right}, {3744, Left}, {4752, Left}, {5760, Left}, {6768, Left}},
        {{2448, "Area =>|Indoor|Outdoor|Mobile|(Select One)"}}},
    {{{3588, Right}, {3744, Left}, {4608, Left}, {5472, Left}},
        {{6480, "Purchased =>|New|Used|(Select One)"}, {8064, "Asset Receipt On File =>|Yes|No|(Select One)"}}},
    {{{3588, Right}, {6768, Left}},
        {{2880, "Location =>|(i.e. Bedroom or Porch)"}, {3312, "Category =>|(i.e. Furniture or Electronics)"},
            {3744, "Asset Name =>|(i.e. Stereo or Dishwasher)"}, {4464, "Year Asset Was Made =>"}, {4896, "Make =>"},
            {5328, "Model =>"}, {5760, "Serial =>"}, {6912, "Purchase Date =>|(Format: mm/dd/yyyy)"},
            {7344, "Purchase Price =>"}, {8496, "Asset Receipt Location =>|(i.e. File Cabinet)"},
            {9216, "Description =>"}}}};

class ReportLayouts : public ScreenTest {
protected:
    /// The one page of a report.
    pdf::Page printed(const report::Layout& layout, const storage::TableView& view, QPageSize::PageSizeId paper)
    {
        auto document = std::make_shared<report::Document>();
        document->layout = layout;
        document->rows = std::make_shared<SnapshotRows>(view.snapshot());
        document->moment = {"11/24/2026", "9:05:00 AM"};
        EXPECT_EQ(report::savePdf(report::Pages(document, {QPageSize(paper)}), path_), report::Outcome::Done);
        const std::vector<pdf::Page> read = pdf::read(path_);
        EXPECT_EQ(read.size(), 1);
        return read.at(0);
    }

    /// Every text in its place, where the layout lies on the page like this; and nothing else on it.
    static void expectPlaced(const pdf::Page& page, const std::vector<Band>& bands, QPointF origin, double scale = 1)
    {
        qsizetype words = 0;
        for (const auto& [edges, lines] : bands)
            for (const auto& [top, texts] : lines)
                for (qsizetype column = 0; const QString& text : texts.split(u'|')) {
                    const auto [x, side] = edges[static_cast<std::size_t>(column++)];
                    const QPointF point = origin + QPointF(x, top) * scale;
                    const auto places = placesOf(page, text);
                    EXPECT_TRUE(std::any_of(places.begin(), places.end(), [&, side = side](const QRectF& place) {
                        const QPointF off = place.topLeft() + QPointF(side * place.width(), 0) - point;
                        return std::max(std::abs(off.x()), std::abs(off.y())) < halfMillimetre;
                    })) << text.toStdString();
                    words += text.split(u' ').size();
                }
        EXPECT_EQ(page.words.size(), words) << page.text().toStdString();
    }

    const QTemporaryDir folder_;
    const QString path_ = folder_.filePath("report.pdf");
};

TEST_F(ReportLayouts, StandAsPrescribedOnBothPapers)
{
    addRow(Data1.rsPrint, Print::ID,
        {"1", "Indoor", "Library", "Antiques", "Antique Desk", "1931", "Northlight", "V-300", "SN 0042/7", "7/4/2006",
            "123456789", "Yes", "Fire safe", "With two keys."});
    put(Data1.rsGeneral,
        {{General::First, "Ann"}, {General::Middle, "Q"}, {General::Last, "Fairbanks"},
            {General::Address, "Orchard Lane"}, {General::City, "Albany"}, {General::State, "NY"},
            {General::ZIP, "12205-AB"}, {General::EMail, "ann@home.example"},
            {General::PolicyCompany, "Tidewater Mutual"}, {General::PolicyNumber, "TM-4711"},
            {General::PolicyExpiration, "12/31/2027"}, {General::AssetValue, "1234.5"}, {General::HomePhone1, "518"},
            {General::HomePhone2, "555"}, {General::HomePhone3, "0101"}});
    for (const auto paper : {QPageSize::Letter, QPageSize::A4}) {
        const double middle = report::Paper{QPageSize(paper)}.size().width() / 2;
        expectPlaced(printed(layouts::AssetReport(), Data1.rsPrint, paper), assetReport, {middle - 5445, 720});

        EXPECT_TRUE(pdf::hasInk(pdf::picture(path_), {middle, 720 + detail + 1890})) << "the rule below the asset";
        expectPlaced(printed(layouts::CoverSheet(), Data1.rsGeneral, paper), coverSheet, {middle - 5715, 720});
        // The form is higher than what is printable of Letter, and set smaller as a whole there.
        const double scale = paper == QPageSize::Letter ? (15840 - 2 * 360) / 15825.0 : 1;
        expectPlaced(
            printed(layouts::FillOutForm(), Data1.rsGeneral, paper), fillOutForm, {middle - 5505 * scale, 360}, scale);
    }
    const QImage form = pdf::picture(path_);
    std::vector<QRectF> boxes{{3790, 2880, 2880, 285}, {3744, 9216, 6195, 1440}};
    for (const double top : {3312, 3744, 4464, 4896, 5328, 5760, 6912, 7344, 8496})
        boxes.emplace_back(3744, top, 2880, 285);
    for (const QRectF& box : boxes)
        for (const QPointF edge : {box.topLeft(), {box.center().x(), box.bottom()}, {box.right(), box.center().y()}})
            EXPECT_TRUE(pdf::hasInk(form, edge + QPointF(11906 / 2.0 - 5505, 360))) << box.top();
}

// The file holds the letters of some scripts one by one, in the forms that they have beside each other, and an emoji as
// a picture, once however often it stands there. A line runs as its paragraph does, whatever it begins with.
TEST_F(ReportLayouts, AScriptFromRightToLeftAndAnEmojiStandWholeInTheirFields)
{
    const QString arabic = QString::fromUtf8("خزانة");
    const QString foxes = QString::fromUtf8("Fox \U0001F98A\U0001F98A red");
    QString hebrew;
    for (int number = 10; number < 30; ++number)
        hebrew += QString::fromUtf8("ארון ספרים A%1 ").arg(number);
    addRow(Data1.rsPrint,
        {{Print::Area, foxes}, {Print::Type, foxes}, {Print::Model, arabic}, {Print::Description, hebrew}});
    const pdf::Page page = printed(layouts::AssetReport(), Data1.rsPrint, QPageSize::Letter);
    for (const auto& [field, text] :
        {std::pair(QRectF(4845, 690, 2100, 285), arabic), {QRectF(1770, 1380, 8445, 1500), hebrew}}) {
        const QRectF place = field.translated(6120 - 5445, 720 + detail);
        QMap<std::pair<int, double>, QString> fromTheRight; // line by line
        for (const pdf::Word& word : page.words)
            if (const QPointF at = word.place.center(); place.contains(at))
                fromTheRight[{int((at.y() - place.top()) / report::lineHeightOf({9})), -at.x()}] =
                    word.text.normalized(QString::NormalizationForm_KC);
        EXPECT_EQ(fromTheRight.values().join(""), QString(text).remove(u' '));
    }
    QStringList pictures = pdf::output("pdfimages", {"-list", path_}).split(u'\n').filter("smask");
    pictures.replaceInStrings(QRegularExpression(".* no +(\\d+) .*"), "\\1"); // the object that holds it
    EXPECT_EQ(pictures.removeDuplicates(), 3) << "the emoji stands there four times";
    EXPECT_EQ(pictures.size(), 2) << "the logo and the emoji";
    for (const std::size_t at : {0, 1})
        EXPECT_GT(placesOf(page, "red").at(at).left() - placesOf(page, "Fox").at(at).right(), 2 * 9 * 20)
            << "no room for two emoji of 9 points";
}

} // namespace
