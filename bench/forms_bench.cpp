// SPDX-License-Identifier: GPL-3.0-or-later
// A megabyte pasted by the user: each character goes through KeyPress and the limit.
#include "assets/money_field.h"
#include "platform/forms/controls/behaviours.h"
#include "platform/forms/forms.h"
#include "platform/forms/look.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QWidget>

namespace {

constexpr int megabyte = 1 << 20;

/// One box of each kind.
class Boxes : public forms::Form {
public:
    Boxes()
        : forms::Form("Boxes")
    {
        digits.setMaxLength(254);
        forms::behaviours::digitsOnly(digits);
        money.setMaxLength(254);
        memo.setMaxLength(195);
        forms::look::Page page(*this, forms::look::PageSize::Own);
        for (forms::Control* box : std::initializer_list<forms::Control*>{&digits, &money, &memo})
            page.add(*box);
    }

    forms::TextBox digits{*this, "digits"};
    forms::TextBox money{*this, "money"};
    forms::MemoBox memo{*this, "memo"};

private:
    MoneyField moneyField_{money};
};

template <class Box>
void paste(benchmark::State& state, Box Boxes::*member, char character)
{
    Boxes boxes;
    boxes.show();
    Box& box = boxes.*member;
    box.widget()->setFocus();
    QApplication::clipboard()->setText(QString(megabyte, QLatin1Char(character)));
    for ([[maybe_unused]] auto round : state) {
        state.PauseTiming();
        box.setText({});
        QKeyEvent key(QEvent::KeyPress, Qt::Key_V, Qt::ControlModifier);
        state.ResumeTiming();
        QApplication::sendEvent(box.widget(), &key);
    }
    state.counters["length"] = static_cast<double>(box.text().size());
}

void pasteDigits(benchmark::State& state)
{
    paste(state, &Boxes::digits, '7');
}

// No character passes the filter, so that none is cut off by the limit.
void pasteLettersIntoDigits(benchmark::State& state)
{
    paste(state, &Boxes::digits, 'x');
}

void pasteMoney(benchmark::State& state)
{
    paste(state, &Boxes::money, '7');
}

void pasteMemo(benchmark::State& state)
{
    paste(state, &Boxes::memo, 'x');
}

} // namespace

BENCHMARK(pasteDigits)->Unit(benchmark::kMillisecond);
BENCHMARK(pasteLettersIntoDigits)->Unit(benchmark::kMillisecond);
BENCHMARK(pasteMoney)->Unit(benchmark::kMillisecond);
BENCHMARK(pasteMemo)->Unit(benchmark::kMillisecond);
