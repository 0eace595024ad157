// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/layouts.h"

#include "data/data_store.h"
#include "platform/report/pdf.h"
#include "reports/snapshot_rows.h"
#include "support/harness.h"
#include "support/painted.h"
#include "support/pdf_text.h"

#include <QtWidgets>

#include <tuple>

namespace {

class ReportLayouts : public ScreenTest {
protected:
    /// The pages of a report, opened at a moment that is known.
    static report::Pages opened(const report::Layout& layout, const storage::TableView& view, const QPageSize& paper)
    {
        auto document = std::make_shared<report::Document>();
        document->layout = layout;
        document->rows = std::make_shared<SnapshotRows>(view.snapshot());
        document->moment = {"11/24/2026", "9:05:00 AM"};
        return {document, {paper}};
    }
};

// Both papers of the preview, one that is narrow and one that is low: there all is set smaller as a whole.
TEST_F(ReportLayouts, StandAsPrescribedOnEveryPaper)
{
    addRow(Data1.rsPrint, Print::ID,
        {"1", "Indoor", "Library", "Antiques", "Antique Desk", "1931", "Northlight", "V-300", "SN 0042/7", "7/4/2006",
            "1234.5", "Yes", "Fire safe", "With two keys."});
    addRow(Data1.rsPrint, {{Print::Type, "Lamp"}});
    put(Data1.rsGeneral,
        {{General::First, "Ann"}, {General::Middle, "Q"}, {General::Last, "Fairbanks"},
            {General::Address, "Orchard Lane"}, {General::City, "Albany"}, {General::State, "NY"},
            {General::ZIP, "12205-AB"}, {General::EMail, "ann@home.example"},
            {General::PolicyCompany, "Tidewater Mutual"}, {General::PolicyNumber, "TM-4711"},
            {General::PolicyExpiration, "12/31/2027"}, {General::AssetValue, "-1234.5"}, {General::HomePhone1, "518"},
            {General::HomePhone2, "555"}, {General::HomePhone3, "0101"}});
    // Each with its axis, the broader side of it, its height and its margin.
    const std::tuple<const char*, report::Layout, storage::TableView&, double, double, double, double> reports[] = {
        {"asset report", layouts::AssetReport(), Data1.rsPrint, 5445, 4980, 1725 + 2100, 720},
        {"cover sheet", layouts::CoverSheet(), Data1.rsGeneral, 5715, 5100, 2400 + 10620 + 195, 720},
        {"form", layouts::FillOutForm(), Data1.rsGeneral, 5505, 4617, 15825, 360}};
    for (const auto& [name, layout, view, axis, halfWidth, height, margin] : reports)
        for (const QPageSize& paper : {QPageSize(QPageSize::Letter), QPageSize(QPageSize::A4), QPageSize(QPageSize::A5),
                 QPageSize({10, 8}, QPageSize::Inch)}) {
            const report::Pages pages = opened(layout, view, paper);
            EXPECT_EQ(pages.count(), 1) << name;
            const QSizeF size = pages.paper().size();
            const double scale =
                std::min({1.0, (size.width() / 2 - 360) / halfWidth, (size.height() - 2 * margin) / height});
            Painted page; // in the measure of the layout, from its own corner
            QPainter painter(&page);
            painter.scale(1 / scale, 1 / scale);
            painter.translate(axis * scale - size.width() / 2, -margin);
            pages.paint(painter, 0);
            for (const report::Field* field : report::fieldsOf(layout.detail))
                page.note("column", field->place.width, field->heading);
            page.expect("reports/layouts.txt", name);
        }
}

// The file holds the letters of some scripts one by one, in the forms that they have beside each other. A line runs as
// its paragraph does, whatever it begins with.
TEST_F(ReportLayouts, AScriptFromRightToLeftStandsWholeInItsFields)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("report.pdf");
    const QString arabic = QString::fromUtf8("خزانة");
    QString hebrew;
    for (int number = 10; number < 30; ++number)
        hebrew += QString::fromUtf8("ארון ספרים A%1 ").arg(number);
    addRow(Data1.rsPrint, {{Print::Type, "Lamp (old)."}, {Print::Model, arabic}, {Print::Description, hebrew}});
    ASSERT_EQ(report::savePdf(opened(layouts::AssetReport(), Data1.rsPrint, QPageSize(QPageSize::Letter)), path),
        report::Outcome::Done);
    const pdf::Page page = pdf::read(path).at(0);
    EXPECT_EQ(placesOf(page, "(old).").size(), 1) << "and others keep their own direction";
    for (const auto& [field, text] :
        {std::pair(QRectF(4845, 690, 2100, 285), arabic), {QRectF(1770, 1380, 8445, 1500), hebrew}}) {
        const QRectF place = field.translated(6120 - 5445, 720 + 1725);
        QMap<std::pair<int, double>, QString> fromTheRight; // line by line
        for (const pdf::Word& word : page.words)
            if (const QPointF at = word.place.center(); place.contains(at))
                fromTheRight[{int((at.y() - place.top()) / report::lineHeightOf({9})), -at.x()}] =
                    word.text.normalized(QString::NormalizationForm_KC);
        EXPECT_EQ(fromTheRight.values().join(""), QString(text).remove(u' '));
    }
}

} // namespace
