// SPDX-License-Identifier: GPL-3.0-or-later
// F1: from the key to the picture of the page, the first time and later, beside the toolkit's own document that lays
// the same page out; and a search over all topics.
#include "platform/help/book.h"
#include "platform/help/word_index.h"
#include "shared/manual.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QPixmap>
#include <QTextDocument>
#include <QWidget>

namespace {

constexpr int assetTopic = 12001; // a long page with a picture
constexpr int menuTopic = 1001;

QWidget* window()
{
    for (QWidget* each : QApplication::topLevelWidgets())
        if (each->windowRole() == "help")
            return each;
    return nullptr;
}

void show(int topic)
{
    manual::open(topic, {});
    benchmark::DoNotOptimize(window()->grab().toImage());
}

void BM_FirstF1(benchmark::State& state)
{
    for ([[maybe_unused]] auto round : state) {
        show(assetTopic);
        state.PauseTiming();
        delete window();
        state.ResumeTiming();
    }
}
BENCHMARK(BM_FirstF1)->Unit(benchmark::kMillisecond);

// Another page each time, so that it is read and laid out.
void BM_F1(benchmark::State& state)
{
    int topic = menuTopic;
    show(topic);
    for ([[maybe_unused]] auto round : state) {
        topic = topic == menuTopic ? assetTopic : menuTopic;
        show(topic);
    }
    delete window();
}
BENCHMARK(BM_F1)->Unit(benchmark::kMillisecond);

void BM_BareDocument(benchmark::State& state)
{
    const help::Book book(":/help");
    for ([[maybe_unused]] auto round : state) {
        QTextDocument document;
        document.setHtml(book.html("asset.html"));
        document.setTextWidth(700);
        benchmark::DoNotOptimize(document.size());
    }
}
BENCHMARK(BM_BareDocument)->Unit(benchmark::kMillisecond);

void BM_FirstSearch(benchmark::State& state)
{
    const help::Book book(":/help");
    for ([[maybe_unused]] auto round : state)
        benchmark::DoNotOptimize(help::WordIndex(book).find("backup"));
}
BENCHMARK(BM_FirstSearch)->Unit(benchmark::kMillisecond);

void BM_Search(benchmark::State& state)
{
    const help::WordIndex index(help::Book(":/help"));
    for ([[maybe_unused]] auto round : state)
        benchmark::DoNotOptimize(index.find("where is my backup"));
}
BENCHMARK(BM_Search)->Unit(benchmark::kMillisecond);

} // namespace
