// SPDX-License-Identifier: GPL-3.0-or-later
#include "failure_of.h"
#include "platform/values/currency.h"
#include "platform/values/date.h"
#include "platform/values/integer.h"
#include "platform/values/text.h"
#include "support/print.h"

#include <gtest/gtest.h>

#include <QLocale>

#include <clocale>
#include <string>

using namespace values;

TEST(Locale, ChangesNothing)
{
    for (const char* name : {"de_DE", "tr_TR", "ar_EG", "en_IN"}) {
        std::setlocale(LC_ALL, (std::string(name) + ".UTF-8").c_str()); // has an effect where it is installed
        QLocale::setDefault(QLocale(name));
        EXPECT_EQ(Currency::parse("$1,234.50").toText(), "$1,234.50") << name;
        EXPECT_EQ(failureOf([] { Currency::parse("1.234,50"); }), "Type mismatch") << name;
        EXPECT_EQ(wholeNumber("3.5"), 4) << name;
        EXPECT_EQ(Date::parse("07/04/2006").toText(), "7/4/2006") << name;
        EXPECT_EQ(upper("title ı ß"), "TITLE I SS") << name;
        EXPECT_TRUE(equalUpper("ıi", "II") && !equalUpper("i", "İ")) << name;
    }
    std::setlocale(LC_ALL, "C.UTF-8");
    QLocale::setDefault(QLocale::system());
}
