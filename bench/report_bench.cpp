// SPDX-License-Identifier: GPL-3.0-or-later
// The asset report: how long the first page takes with 10 and 32,000 assets and what the open report adds to memory,
// 10,000 descriptions from right to left, the way to another page, and a PDF of 1,000 assets beside a bare painter that
// draws as many texts.
#include "sample_database.h"

#include "data/data_store.h"
#include "platform/forms/forms.h"
#include "platform/report/pdf.h"
#include "platform/report/preview.h"
#include "reports/data_report.h"
#include "reports/layouts.h"
#include "reports/reports.h"
#include "reports/snapshot_rows.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>

#include <random>

#include <malloc.h>

namespace {

constexpr int few = 10;
constexpr int document = 1'000;
constexpr int many = 32'000;

/// All assets of a sample database, staged.
class Staged {
public:
    explicit Staged(int assets)
    {
        useDatabase(sampleDatabase(assets));
        for (storage::TableView* view : {&Data1.rsGeneral, &Data1.rsInventory, &Data1.rsPrint})
            view->Open();
        if (Data1.rsGeneral.RecordCount() == 0)
            addHousehold();
        for (; !Data1.rsPrint.atEOF(); Data1.rsPrint.MoveNext())
            Data1.rsPrint.Delete(); // what an earlier run of the same benchmark has staged
        for (; !Data1.rsInventory.atEOF(); Data1.rsInventory.MoveNext())
            stage();
        Data1.rsPrint.Update();
    }
    ~Staged() { Data1.Home.close(); }
    Staged(const Staged&) = delete;
    Staged& operator=(const Staged&) = delete;

    static std::shared_ptr<const report::Document> asDocument();

private:
    static void addHousehold()
    {
        Data1.rsGeneral.AddNew();
        Data1.rsGeneral.Fields(General::Last) = "Fairbanks";
        Data1.rsGeneral.Update();
    }

    static void stage()
    {
        Data1.rsPrint.AddNew();
        for (int column = Print::ID; column <= Print::Description; ++column)
            Data1.rsPrint.Fields(column) = Data1.rsInventory.Fields(column);
    }
};

std::shared_ptr<const report::Document> Staged::asDocument()
{
    auto made = std::make_shared<report::Document>();
    made->layout = layouts::AssetReport();
    made->rows = std::make_shared<SnapshotRows>(Data1.rsPrint.snapshot());
    return made;
}

report::Paper letter()
{
    return {QPageSize(QPageSize::Letter)};
}

double megabytes()
{
    return static_cast<double>(mallinfo2().uordblks + mallinfo2().hblkhd) / 1e6;
}

QWidget* preview()
{
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->objectName() == "AssetReport")
            return window;
    return nullptr;
}

// From the call of the menu's button to the picture of the first page.
void BM_OpenPreview(benchmark::State& state)
{
    const Staged staged(static_cast<int>(state.range(0)));
    double added = 0;
    for ([[maybe_unused]] auto round : state) {
        const double before = megabytes();
        reports::AssetReport().show();
        const QPixmap picture = preview()->grab();
        benchmark::DoNotOptimize(picture.toImage());
        state.PauseTiming();
        added = megabytes() - before - picture.width() * picture.height() * 4 / 1e6;
        delete preview();
        QCoreApplication::processEvents();
        state.ResumeTiming();
    }
    state.counters["MB"] = added;
}
BENCHMARK(BM_OpenPreview)->Arg(few)->Arg(many)->Unit(benchmark::kMillisecond)->UseRealTime();

/// Descriptions from right to left, of words that come again as in any language, and are new with each seed.
struct RightToLeft : report::Rows {
    explicit RightToLeft(unsigned seed)
    {
        std::mt19937 random(seed);
        std::vector<QString> words(20'000);
        for (QString& word : words)
            for (auto letters = 2 + random() % 7; letters > 0; --letters)
                word += QChar(int(0x05D0 + random() % 27));
        for (QString& text : texts)
            for (int word = 0; word < 40; ++word)
                text += words[std::min(random(), random()) % words.size()] + u' ';
    }
    int count() const override { return static_cast<int>(texts.size()); }
    QString text(int row, int) const override { return texts[static_cast<std::size_t>(row)]; }

    std::vector<QString> texts = std::vector<QString>(10'000);
};

void BM_BreakRightToLeft(benchmark::State& state)
{
    report::Document described;
    described.layout = layouts::AssetReport();
    unsigned seed = 0;
    for ([[maybe_unused]] auto round : state) {
        state.PauseTiming();
        described.rows = std::make_shared<RightToLeft>(++seed);
        const auto made = std::make_shared<report::Document>(described);
        state.ResumeTiming();
        benchmark::DoNotOptimize(report::Pages(made, letter()).count());
    }
}
BENCHMARK(BM_BreakRightToLeft)->Unit(benchmark::kMillisecond);

// A page looked at: the second, and the last of 32,000 assets.
void BM_GoToPage(benchmark::State& state)
{
    const Staged staged(many);
    const report::Pages pages(Staged::asDocument(), letter());
    const int page = state.range(0) == 2 ? 1 : pages.count() - 1;
    for ([[maybe_unused]] auto round : state) {
        QImage image(850, 1100, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.scale(850 / pages.paper().size().width(), 850 / pages.paper().size().width());
        pages.paint(painter, page);
    }
    state.counters["pages"] = pages.count();
}
BENCHMARK(BM_GoToPage)->Arg(2)->Arg(0)->Unit(benchmark::kMillisecond);

void BM_Pdf(benchmark::State& state)
{
    const Staged staged(document);
    const report::Pages pages(Staged::asDocument(), letter());
    const QTemporaryDir folder;
    for ([[maybe_unused]] auto round : state)
        report::savePdf(pages, folder.filePath("report.pdf"));
    state.counters["pages"] = pages.count();
}
BENCHMARK(BM_Pdf)->Unit(benchmark::kMillisecond);

// The texts of the same pages, drawn one after the other, with the picture and the rules.
void BM_BarePainter(benchmark::State& state)
{
    const Staged staged(document);
    const std::shared_ptr<const report::Document> made = Staged::asDocument();
    const report::Pages pages(made, letter());
    const QTemporaryDir folder;
    const int perPage = (document + pages.count() - 1) / pages.count();
    for ([[maybe_unused]] auto round : state) {
        QPdfWriter writer(folder.filePath("bare.pdf"));
        writer.setResolution(1440);
        QPainter painter(&writer);
        painter.setFont(report::fontOf({9}));
        for (int page = 0, row = 0; page < pages.count(); ++page) {
            if (page > 0)
                writer.newPage();
            for (const report::Label& label : made->layout.pageHeader.labels)
                painter.drawText(QPointF(label.place.left, label.place.top + 200), label.text);
            painter.drawImage(QRectF(5000, 60, 600, 600), made->layout.pageHeader.pictures.at(0).image);
            for (int end = std::min(document, row + perPage); row < end; ++row) {
                const double top = 2000.0 * (row % perPage);
                for (const report::Label& label : made->layout.detail.labels)
                    painter.drawText(QPointF(label.place.left, label.place.top + top), label.text);
                for (const report::Field* field : fieldsOf(made->layout.detail))
                    painter.drawText(
                        QPointF(field->place.left, field->place.top + top), made->rows->text(row, field->column));
                painter.drawLine(QLineF(465, top, 10215, top));
            }
        }
    }
}
BENCHMARK(BM_BarePainter)->Unit(benchmark::kMillisecond);

} // namespace
