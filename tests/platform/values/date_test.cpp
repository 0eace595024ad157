// SPDX-License-Identifier: GPL-3.0-or-later
#include "failure_of.h"
#include "platform/values/date.h"
#include "support/print.h"

#include <gtest/gtest.h>

using values::Date;

TEST(Date, ReadsMonthDayYearAndTurnsAnImpossibleMonthRound)
{
    const std::pair<const char*, const char*> cases[] = {{"07/04/2006", "7/4/2006"}, {"25/12/2005", "12/25/2005"},
        {"13/1/2005", "1/13/2005"}, {"29/2/2004", "2/29/2004"}, {"1/1/0100", "1/1/0100"}, {"12/31/9999", "12/31/9999"}};
    for (const auto& [text, expected] : cases) {
        EXPECT_EQ(Date::parse(text).toText(), expected) << text;
    }
}

TEST(Date, RefusesOtherTextsAndDaysThatDoNotExist)
{
    for (const char* text : {"", "None", "mm/dd/yyyy", "7/4", "7/4/06", "7/4/20066", "7/4/2006/", "/7/4/2006",
             "007/4/2006", "7//2006", "7/4/2006 ", " 7/4/2006", "+7/4/2006", "7/-4/2006", "7-4-2006", "2006/7/4",
             "٧/4/2006", "30/2/2006", "2/29/1900", "13/13/2006", "0/4/2006", "4/0/2006", "32/1/2006", "1/1/0099"}) {
        EXPECT_EQ(failureOf([text] { Date::parse(text); }), "Type mismatch") << text;
        EXPECT_FALSE(Date::tryParse(text)) << text;
    }
    EXPECT_EQ(failureOf([] { Date::fromDayMonthYear(1, 257, 2006); }), "Type mismatch");
}
