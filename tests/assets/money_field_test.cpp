// SPDX-License-Identifier: GPL-3.0-or-later
#include "assets/asset_screen.h"

namespace {

// The price of an asset, behind another box.
class MoneyFieldTest : public AssetScreenTest {
protected:
    MoneyFieldTest()
    {
        openToAdd();
        asset().cmdAdd.setEnabled(false); // Enter goes to the box
    }

    static forms::TextBox& amount() { return asset().txtPPrice; }

    static void leave() { asset().txtSerial.setFocus(); }

    // Brings the focus to a text with the caret at a place.
    static void come(const QString& text, int caret = 0)
    {
        leave();
        amount().setText(text);
        select(std::min(caret, static_cast<int>(text.size())), 0);
        amount().setFocus();
    }

    static void select(int start, int length)
    {
        amount().setSelectionStart(start);
        amount().setSelectionLength(length);
    }
};

TEST_F(MoneyFieldTest, GrowsTheDollarSignAndTakesDigitsAndOnePointHoweverTheyCome)
{
    const std::pair<const char*, const char*> entries[] = {{"5", "$5"}, {"5.25", "$5.25"}, {"5.909", "$5.90"},
        {"$1a b,2-3\n", "$123"}, {"1/2", "$1/2"}, {"1..5.", "$1.5"}};
    for (const auto& [keys, text] : entries) {
        come({});
        type(keys);
        EXPECT_EQ(amount().text(), text);
        EXPECT_EQ(amount().selectionStart(), amount().text().size()) << "the caret stays behind what is typed";
    }
    commit(QString::fromUtf8("٣é😀")); // no digit of its own
    EXPECT_EQ(amount().text(), "$1.5");

    come({});
    paste("$1,234.567 USD");
    EXPECT_EQ(amount().text(), "$1234.56");

    const std::pair<const char*, const char*> completed[] = {{"", "$.00"}, {"$.", "$.00"}, {"9", "$9.00"},
        {"$12.", "$12.00"}, {"$12.5", "$12.50"}, {"$1/2", "$1/2.00"}, {"$1,234.50", "$1,234.50"}, {"$1.234", "$1.2340"},
        {"$12.x0", "$12.x00"}, {"$12.0x", "$12.0x.00"}};
    for (const auto& [text, whole] : completed) {
        amount().setFocus();
        amount().setText(text);
        leave();
        EXPECT_EQ(amount().text(), whole) << text;
    }
}

TEST_F(MoneyFieldTest, ReplacesWhatIsSelectedAndHoldsTwoDecimals)
{
    const auto home = [] { press(Qt::Key_Home); };
    const auto selectAll = [] { press(Qt::Key_A, Qt::ControlModifier); };
    const auto deleteFirst = [] { select(0, 2), press(Qt::Key_Delete); };
    constexpr int end = 99;
    const struct {
        const char* text;
        int caret; // when the focus comes, which then selects all behind the sign
        std::function<void()> first;
        const char* keys;
        const char* result;
    } cases[] = {
        {"$1,234.50", end, [] {}, "7", "$7"},
        {"$125.34", end, [] { select(4, 0); }, "6", "$1256.34"},
        {"$125.34", end, [] { select(5, 0); }, "6", "$125.34"},
        {"$125.34", end, [] { select(5, 2); }, "6", "$125.6"},
        {"$12.50", end, selectAll, "x", ""},
        {"$12.50", end, selectAll, ".8", "$8"},
        {"$12.00", 0, home, "7", "$12.00"}, // nothing before the sign
        {"$12.00", end, home, "7", "7$12.00"}, // but the first key, where the caret stood elsewhere
        {"$12.00", end, home, "x7", "$12.00"},
        {"7$12.00", 0, home, "8", "87$12.00"}, // the sign is in front no longer
        {"$", 0, home, "7", "7$"},
        {"5$", 0, [] { press(Qt::Key_Delete); }, "", "$5"}, // a lone digit gets its sign back
        {"$5.00", 0, deleteFirst, "", "$.00"},
    };
    for (const auto& [text, caret, first, keys, result] : cases) {
        come(text, caret);
        first();
        type(keys);
        EXPECT_EQ(amount().text(), result) << text << " and " << keys;
    }
    EXPECT_EQ(amount().selectionStart(), 1);
    come("$12");
    press({Qt::Key_End, Qt::Key_Backspace, Qt::Key_Backspace}); // which always passes
    EXPECT_EQ(amount().text(), "$");
}

} // namespace
