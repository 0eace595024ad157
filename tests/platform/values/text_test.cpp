// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/values/text.h"
#include "support/print.h"

#include <gtest/gtest.h>

TEST(EqualUpper, AgreesWithComparingTheUpperCasedTexts)
{
    const QString texts[] = {"", "s", "SS", "ß", "ẞ", "ſ", "ſs", "sß", "ßs", "SSS", "[", "{", "é", "e\u0301", "E\u0301",
        "i", "İ", "ı", "fi", "ﬁ", "𐐨", "𐐀", "Kitchen", "KITCHEN ", "Straße", "STRASSE"};
    for (const QString& a : texts) {
        for (const QString& b : texts) {
            EXPECT_EQ(values::equalUpper(a, b), a.toUpper() == b.toUpper()) << qPrintable(a + " and " + b);
        }
    }
}
