// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/values/collation.h"
#include "platform/values/csv.h"
#include "platform/values/currency.h"
#include "platform/values/date.h"
#include "platform/values/failure.h"
#include "platform/values/file_name.h"
#include "platform/values/integer.h"
#include "platform/values/text.h"
#include "support/files.h"
#include "support/print.h"

#include <QLocale>

#include <gmock/gmock.h>

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

using Rows = std::vector<std::vector<std::string>>;

// In pieces of so many bytes, as a file may come.
Rows rowsIn(std::string text, std::size_t piece, std::size_t longestRow = 1000)
{
    csv::Reader reader(
        [&](char* room, std::size_t size) {
            const std::size_t count = text.copy(room, std::min(size, piece));
            text.erase(0, count);
            return count;
        },
        longestRow);
    Rows rows;
    for (std::vector<std::string> cells; reader.next(cells);)
        rows.push_back(cells);
    return rows;
}

// A spreadsheet takes a text for a formula that begins as one; what an apostrophe stands before else keeps it.
QString kindOf(const std::string& cell)
{
    const std::string neutral = csv::neutral(cell);
    EXPECT_EQ(csv::withoutApostrophe(neutral), cell);
    return neutral == "'" + cell ? "formula" : neutral == cell ? "text" : "?";
}

QString told(const Rows& rows)
{
    QStringList all;
    for (const auto& row : rows) {
        QStringList cells;
        for (const std::string& cell : row)
            cells += '<' + QString::fromStdString(cell) + '>';
        all += cells.join(' ');
    }
    return all.join("; ");
}

// What becomes of a text, by the list; of one that can't be read, the kind of the failure.
QString answer(const QString& kind, const QString& text)
{
    const std::string lines = QString(text).replace(u'␊', '\n').replace(u'␍', '\r').replace(u'␉', '\t').toStdString();
    try {
        if (kind == "cell")
            return kindOf(lines);
        if (kind == "rows")
            return told(rowsIn(lines, 9, 10));
        if (kind == "amount")
            return QString::number(Currency::parse(text).tenThousandths());
        if (kind == "date")
            return Date::parse(text).toText();
        if (kind == "whole")
            return QString::number(wholeNumber(text));
        if (kind == "grouped")
            return groupedByThrees(text);
        const Currency amount = Currency::fromTenThousandths(text.toLongLong());
        return kind == "shown" ? amount.toText() : QString::number(amount.rounded().tenThousandths());
    } catch (const RuntimeFailure& failure) {
        EXPECT_FALSE(kind == "amount" ? Currency::tryParse(text).has_value() : Date::tryParse(text).has_value());
        return failure.text().section(": ", 0, 0);
    }
}

TEST(Values, AreReadAndShownAsTheListHasIt)
{
    expectSteps("platform/values/values.txt", [](const QString& step) {
        QStringList answers;
        for (const QString& text : step.section(' ', 1).split(" | "))
            answers += answer(step.section(' ', 0, 0), text);
        return answers.count(answers[0]) == answers.size() ? answers[0] : answers.join(" | ");
    });
    EXPECT_THAT([] { Date::fromDayMonthYear(1, 257, 2006); }, mismatches);
}

TEST(Values, OverflowIsAFailureAndLeavesTheValueAsItWas)
{
    const Currency step = Currency::fromTenThousandths(1);
    Currency mostMoney = Currency::fromTenThousandths(most);
    Currency leastMoney = Currency::fromTenThousandths(least);
    Integer top = 32767;
    Integer bottom = -32768;
    const std::function<void()> steps[] = {[&] { mostMoney += step; }, [&] { leastMoney -= step; },
        [&] { static_cast<void>(-leastMoney); }, [&] { ++top; }, [&] { --bottom; },
        [&] { static_cast<void>(top * 2 - 32767); }, [&] { top = (Q_INT64_C(1) << 32) + 5; },
        [] { Integer::fromText("32768"); }};
    for (const auto& overflow : steps)
        EXPECT_THAT(overflow, overflows);
    EXPECT_EQ(mostMoney.tenThousandths(), most);
    EXPECT_EQ(leastMoney.tenThousandths(), least);
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

TEST(CompareNames, GoesByBaseLettersAndHasSignsBeforeDigitsBeforeLetters)
{
    const QStringList names{"", "_", "<a", "😀", "€", "0", "12", "2", "٣", "a b", "ab", "apfel", "Apfel", "Äpfel",
        "Apfelmus", "etüde", "étude", "Étude", "ı", "zoo", "日"};
    for (qsizetype a = 0; a < names.size(); ++a)
        for (qsizetype b = 0; b < names.size(); ++b)
            EXPECT_EQ(compareNames(names[a], names[b]) <=> 0, a <=> b) << qPrintable(names[a] + " and " + names[b]);
}

TEST(CompareNames, HasPlainTextsInTheOrderThatTheyHaveBehindAnAccent)
{
    QStringList names{
        "", "ab", "aB", "Ab", "AB", "abc", "ABC", "a-b", "a b", "ab ", "A\tb", "a\x7f", "aé", "abe\u0301"};
    for (char c = ' '; c <= '~'; ++c)
        names += QChar(c);
    for (const QString& a : names)
        for (const QString& b : names)
            EXPECT_EQ(compareNames(a, b) <=> 0, compareNames("é" + a, "é" + b) <=> 0) << qPrintable(a + " and " + b);
}

TEST(Csv, ReadsBackBitForBitWhatIsWritten)
{
    const Rows rows{{"", "a,b", "\"q\"", ""}, {" x ", "1\r\n2\n3\r4", "\xFF\xEF\xBB\xBF", std::string(1, '\0')}};
    std::string text;
    for (const auto& row : rows) {
        for (std::size_t i = 0; i < row.size(); ++i)
            csv::addCell(text, row[i], i == 0);
        csv::endLine(text);
    }
    for (const std::size_t piece : {1, 2, 1000})
        EXPECT_EQ(rowsIn(text, piece), rows);
    EXPECT_EQ(rowsIn("\xEF\xBB\xBF\"d\"", 9), (Rows{{"d"}}));
    for (const auto& [before, number] : {std::pair("a\n", 2), {"a\r\n", 2}, {"a\r", 2}, {"a\n\n", 3}, {"\"\n\"\n", 3}})
        EXPECT_THAT([&] { rowsIn(before + std::string("\"b\n"), 9); },
            testing::ThrowsMessage<RuntimeFailure>(testing::HasSubstr("line " + std::to_string(number) + ": a quo")));
}

TEST(FileName, KeepsEachByte)
{
    for (const QByteArray bytes :
        {"plain", "caf\xC3\xA9", "caf\xE9/\xF0\x9F\x98\x80", "\xC3", "\xED\xB3\xA9\xFF", "\x80\xF0\x90\x82\x80"})
        EXPECT_EQ(bytesOfName(textOfName(bytes)), bytes);
    EXPECT_EQ(textOfName("caf\xC3\xA9 \xF0\x9F\x98\x80"), "café 😀");
}

} // namespace
