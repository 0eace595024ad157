// SPDX-License-Identifier: GPL-3.0-or-later
#include "failure_of.h"
#include "platform/values/date.h"
#include "platform/values/integer.h"
#include "platform/values/text.h"
#include "support/print.h"

#include <gtest/gtest.h>

#include <climits>
#include <functional>

using namespace values;

TEST(Date, ReadsMonthDayYearAndTurnsAnImpossibleMonthRound)
{
    const std::pair<const char*, const char*> cases[] = {{"07/04/2006", "7/4/2006"}, {"25/12/2005", "12/25/2005"},
        {"13/1/2005", "1/13/2005"}, {"29/2/2004", "2/29/2004"}, {"1/1/0100", "1/1/0100"}, {"12/31/9999", "12/31/9999"}};
    for (const auto& [text, expected] : cases) {
        EXPECT_EQ(Date::parse(text).toText(), expected) << text;
    }
    for (const char* text : {"", "None", "mm/dd/yyyy", "7/4", "7/4/06", "7/4/20066", "7/4/2006/", "/7/4/2006",
             "007/4/2006", "7/004/2006", "7//2006", "7/4/2006 ", " 7/4/2006", "+7/4/2006", "7/-4/2006", "7-4-2006",
             "٧/4/2006", "30/2/2006", "2/29/1900", "13/13/2006", "0/4/2006", "4/0/2006", "32/1/2006", "1/1/0099"}) {
        EXPECT_EQ(failureOf([text] { Date::parse(text); }), "Type mismatch") << text;
        EXPECT_FALSE(Date::tryParse(text)) << text;
    }
    EXPECT_EQ(failureOf([] { Date::fromDayMonthYear(1, 257, 2006); }), "Type mismatch");
}

TEST(Integer, ReadsWholeNumbersWithHalvesToTheEvenNeighbour)
{
    const std::pair<const char*, int> cases[] = {{"007", 7}, {"-12", -12}, {"3.5", 4}, {"2.50", 2}, {"2.51", 3},
        {"2.49", 2}, {".7", 1}, {"1.", 1}, {"-3.5", -4}, {"2147483646.5", 2147483646}, {"-2147483648", INT_MIN}};
    for (const auto& [text, number] : cases) {
        EXPECT_EQ(wholeNumber(text), number) << text;
    }
    for (const char* text : {"", "-", ".", "+1", " 1", "1,000", "1.2.3", "1e3", "--1", "٣", "1.x"}) {
        EXPECT_EQ(failureOf([text] { wholeNumber(text); }), "Type mismatch") << text;
    }
    for (const char* text : {"2147483648", "2147483647.5", "-2147483649", "99999999999999999999"}) {
        EXPECT_EQ(failureOf([text] { wholeNumber(text); }), "Overflow") << text;
    }
}

TEST(Integer, OverflowIsAFailureAndLeavesTheNumberAsItWas)
{
    Integer top = 32767;
    Integer bottom = -32768;
    const std::function<void()> steps[] = {[&top] { ++top; }, [&bottom] { --bottom; },
        [&top] { static_cast<void>(top * 2 - 32767); }, [&top] { top = (Q_INT64_C(1) << 32) + 5; },
        [] { Integer::fromText("32768"); }};
    for (const auto& step : steps) {
        EXPECT_EQ(failureOf(step), "Overflow");
    }
    EXPECT_EQ(top, 32767);
    EXPECT_EQ(bottom, -32768);
}

TEST(EqualUpper, AgreesWithComparingTheUpperCasedTexts)
{
    const QString texts[] = {"", "s", "SS", "ß", "ẞ", "ſ", "ſs", "sß", "ßs", "SSS", "[", "{", "@", "`", "é", "e\u0301",
        "E\u0301", "i", "I", "İ", "ı", "az", "AZ", "fi", "ﬁ", "𐐨", "𐐀", "KITCHEN ", "Kitchen ", "Straße", "STRASSE"};
    for (const QString& a : texts) {
        for (const QString& b : texts) {
            EXPECT_EQ(equalUpper(a, b), a.toUpper() == b.toUpper()) << qPrintable(a + " and " + b);
        }
    }
    EXPECT_EQ(upper("title ı ß"), "TITLE I SS");
}
