// SPDX-License-Identifier: GPL-3.0-or-later
#include "failure_of.h"
#include "platform/values/currency.h"
#include "support/print.h"

#include <gtest/gtest.h>

#include <limits>

using values::Currency;

namespace {

constexpr qint64 most = std::numeric_limits<qint64>::max();
constexpr qint64 least = std::numeric_limits<qint64>::min();

TEST(Currency, ReadsEveryFormOfAnAmount)
{
    const std::pair<const char*, qint64> cases[] = {{"1", 10000}, {"$5.", 50000}, {"$.50", 5000}, {"1234.5", 12345000},
        {"$1,234.50", 12345000}, {"12,345,678.0001", 123456780001}, {"0001.00", 10000}, {"(1.00)", -10000},
        {"-$1.00", -10000}, {"$-1", -10000}, {"-0.0001", -1}, {"$922,337,203,685,477.5807", most},
        {"($922,337,203,685,477.5808)", least}};
    for (const auto& [text, count] : cases) {
        EXPECT_EQ(Currency::parse(text).tenThousandths(), count) << text;
    }
}

TEST(Currency, RefusesWhatItDoesNotUnderstandAndWhatDoesNotFit)
{
    for (const char* text : {"", "$", ".", "-", "()", "(1.00", "1.00)", "(-1)", "-$-1", "$$1", "1$", "1-", "+1", " 1",
             "1 ", "None", "$1/2.00", "1e3", "1.2.3", "1.00000", "1,23", "12,34.00", ",123", "1234,567", "1,,234",
             "0,123", "1.234,50", "1,5", "€1", "$١", "\uff11"}) {
        EXPECT_EQ(failureOf([text] { Currency::parse(text); }), "Type mismatch") << text;
        EXPECT_FALSE(Currency::tryParse(text)) << text;
    }
    for (const char* text : {"922337203685477.5808", "(922337203685477.5809)", "1844674407370955.1616"}) {
        EXPECT_EQ(failureOf([text] { Currency::parse(text); }), "Overflow") << text;
    }
}

TEST(Currency, ShowsDollarsCommasAndCentsWithHalvesAwayFromZero)
{
    const std::pair<qint64, const char*> cases[] = {{9990000, "$999.00"}, {-12345000, "($1,234.50)"},
        {10000000500, "$1,000,000.05"}, {most, "$922,337,203,685,477.58"}, {least, "($922,337,203,685,477.58)"},
        {50, "$0.01"}, {49, "$0.00"}, {-49, "$0.00"}, {-100, "($0.01)"}, {-150, "($0.02)"}, {9999950, "$1,000.00"}};
    for (const auto& [count, text] : cases) {
        EXPECT_EQ(Currency::fromTenThousandths(count).toText(), text) << count;
    }
}

TEST(Currency, OverflowIsAFailureAndLeavesTheAmountAsItWas)
{
    const Currency step = Currency::fromTenThousandths(1);
    Currency top = Currency::fromTenThousandths(most);
    Currency bottom = Currency::fromTenThousandths(least);
    EXPECT_EQ(failureOf([&] { top += step; }), "Overflow");
    EXPECT_EQ(failureOf([&] { bottom -= step; }), "Overflow");
    EXPECT_EQ(failureOf([&] { static_cast<void>(-bottom); }), "Overflow");
    EXPECT_EQ(top.tenThousandths(), most);
    EXPECT_EQ(bottom.tenThousandths(), least);
}

} // namespace
