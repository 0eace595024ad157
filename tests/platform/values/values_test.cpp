// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/values/currency.h"
#include "platform/values/date.h"
#include "platform/values/failure.h"
#include "platform/values/integer.h"
#include "platform/values/text.h"
#include "support/print.h"

#include <QLocale>

#include <gmock/gmock.h>

#include <climits>
#include <functional>
#include <limits>

using namespace values;

namespace {

// Another decimal point and another capital i: the tests of values hold wherever the machine stands.
const bool standsElsewhere = (QLocale::setDefault(QLocale("tr_TR")), true);

const auto fails = [](const char* kind) { return testing::ThrowsMessage<RuntimeFailure>(testing::StartsWith(kind)); };
const auto mismatches = fails("Type mismatch");
const auto overflows = fails("Overflow");

constexpr qint64 most = std::numeric_limits<qint64>::max();
constexpr qint64 least = std::numeric_limits<qint64>::min();

TEST(Currency, ReadsEveryFormOfAnAmount)
{
    const std::pair<const char*, qint64> cases[] = {{"1", 10000}, {"$5.", 50000}, {"$.50", 5000}, {"1234.5", 12345000},
        {"$1,234.50", 12345000}, {"12,345,678.0001", 123456780001}, {"0001.00", 10000}, {"(1.00)", -10000},
        {"-$1.00", -10000}, {"$-1", -10000}, {"-0.0001", -1}, {"$922,337,203,685,477.5807", most},
        {"($922,337,203,685,477.5808)", least}};
    for (const auto& [text, count] : cases)
        EXPECT_EQ(Currency::parse(text).tenThousandths(), count) << text;
}

TEST(Currency, RefusesWhatItDoesNotUnderstandAndWhatDoesNotFit)
{
    for (const char* text : {"", "$", ".", "-", "()", "(1.00", "1.00)", "(-1)", "-$-1", "$$1", "1$", "1-", "+1", " 1",
             "None", "$1/2.00", "1e3", "1.2.3", "1.00000", "1,23", ",123", "1234,567", "1,,234", "0,123", "1.234,50",
             "€1", "$١", "\uff11"}) {
        EXPECT_THAT([text] { Currency::parse(text); }, mismatches) << text;
        EXPECT_FALSE(Currency::tryParse(text)) << text;
    }
    for (const char* text : {"922337203685477.5808", "(922337203685477.5809)", "1844674407370955.1616"})
        EXPECT_THAT([text] { Currency::parse(text); }, overflows) << text;
}

TEST(Currency, ShowsDollarsCommasAndCentsWithHalvesAwayFromZero)
{
    const std::pair<qint64, const char*> cases[] = {{9990000, "$999.00"}, {-12345000, "($1,234.50)"},
        {10000000500, "$1,000,000.05"}, {most, "$922,337,203,685,477.58"}, {least, "($922,337,203,685,477.58)"},
        {50, "$0.01"}, {49, "$0.00"}, {-49, "$0.00"}, {-100, "($0.01)"}, {-150, "($0.02)"}, {9999950, "$1,000.00"}};
    for (const auto& [count, text] : cases)
        EXPECT_EQ(Currency::fromTenThousandths(count).toText(), text) << count;
}

TEST(Currency, OverflowIsAFailureAndLeavesTheAmountAsItWas)
{
    const Currency step = Currency::fromTenThousandths(1);
    Currency top = Currency::fromTenThousandths(most);
    Currency bottom = Currency::fromTenThousandths(least);
    EXPECT_THAT([&] { top += step; }, overflows);
    EXPECT_THAT([&] { bottom -= step; }, overflows);
    EXPECT_THAT([&] { static_cast<void>(-bottom); }, overflows);
    EXPECT_EQ(top.tenThousandths(), most);
    EXPECT_EQ(bottom.tenThousandths(), least);
}

TEST(Date, ReadsMonthDayYearAndTurnsAnImpossibleMonthRound)
{
    const std::pair<const char*, const char*> cases[] = {{"07/04/2006", "7/4/2006"}, {"25/12/2005", "12/25/2005"},
        {"13/1/2005", "1/13/2005"}, {"29/2/2004", "2/29/2004"}, {"1/1/0100", "1/1/0100"}, {"12/31/9999", "12/31/9999"}};
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(Date::parse(text).toText(), expected) << text;
    for (const char* text : {"", "None", "mm/dd/yyyy", "7/4", "7/4/06", "7/4/20066", "7/4/2006/", "/7/4/2006",
             "007/4/2006", "7/004/2006", "7//2006", "7/4/2006 ", " 7/4/2006", "+7/4/2006", "7/-4/2006", "7-4-2006",
             "٧/4/2006", "30/2/2006", "2/29/1900", "13/13/2006", "0/4/2006", "4/0/2006", "32/1/2006", "1/1/0099"}) {
        EXPECT_THAT([text] { Date::parse(text); }, mismatches) << text;
        EXPECT_FALSE(Date::tryParse(text)) << text;
    }
    EXPECT_THAT([] { Date::fromDayMonthYear(1, 257, 2006); }, mismatches);
}

TEST(Integer, ReadsWholeNumbersWithHalvesToTheEvenNeighbour)
{
    const std::pair<const char*, int> cases[] = {{"007", 7}, {"-12", -12}, {"3.5", 4}, {"2.50", 2}, {"2.51", 3},
        {"2.49", 2}, {".7", 1}, {"1.", 1}, {"-3.5", -4}, {"2147483646.5", 2147483646}, {"-2147483648", INT_MIN}};
    for (const auto& [text, number] : cases)
        EXPECT_EQ(wholeNumber(text), number) << text;
    for (const char* text : {"", "-", ".", "+1", " 1", "1,000", "1.2.3", "1e3", "--1", "٣", "1.x"})
        EXPECT_THAT([text] { wholeNumber(text); }, mismatches) << text;
    for (const char* text : {"2147483648", "2147483647.5", "-2147483649", "99999999999999999999"})
        EXPECT_THAT([text] { wholeNumber(text); }, overflows) << text;
}

TEST(Integer, OverflowIsAFailureAndLeavesTheNumberAsItWas)
{
    Integer top = 32767;
    Integer bottom = -32768;
    const std::function<void()> steps[] = {[&top] { ++top; }, [&bottom] { --bottom; },
        [&top] { static_cast<void>(top * 2 - 32767); }, [&top] { top = (Q_INT64_C(1) << 32) + 5; },
        [] { Integer::fromText("32768"); }};
    for (const auto& step : steps)
        EXPECT_THAT(step, overflows);
    EXPECT_EQ(top, 32767);
    EXPECT_EQ(bottom, -32768);
}

TEST(EqualUpper, AgreesWithComparingTheUpperCasedTexts)
{
    const QString texts[] = {"", "s", "SS", "ß", "ẞ", "ſ", "ſs", "sß", "ßs", "SSS", "[", "{", "@", "`", "é", "e\u0301",
        "E\u0301", "i", "I", "İ", "ı", "az", "AZ", "fi", "ﬁ", "𐐨", "𐐀", "KITCHEN ", "Kitchen ", "Straße", "STRASSE"};
    for (const QString& a : texts)
        for (const QString& b : texts)
            EXPECT_EQ(equalUpper(a, b), a.toUpper() == b.toUpper()) << qPrintable(a + " and " + b);
    EXPECT_EQ(upper("title ı ß"), "TITLE I SS");
}

} // namespace
