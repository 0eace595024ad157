// SPDX-License-Identifier: GPL-3.0-or-later
#include "assets/money_field.h"
#include "support/forms_test.h"

#include <QHBoxLayout>
#include <QWidget>

using namespace user;

namespace {

// A box for an amount behind another box.
class Till : public forms::Form {
public:
    Till()
        : forms::Form("Till")
    {
        auto* line = new QHBoxLayout(canvas());
        int place = 0;
        for (forms::TextBox* box : {&before, &amount}) {
            box->setTabIndex(place++);
            box->setMaxLength(254);
            line->addWidget(box->widget());
        }
    }

    forms::TextBox before{*this, "before"};
    forms::TextBox amount{*this, "amount"};

private:
    MoneyField amountField_{amount};
};

class MoneyFieldTest : public FormsTest {
protected:
    void SetUp() override
    {
        FormsTest::SetUp();
        till().show();
    }

    static Till& till() { return forms::screen<Till>(); }
    static forms::TextBox& amount() { return till().amount; }

    // Comes with the Tab key, types, and tells what stands there.
    static QString typed(const QString& text)
    {
        till().before.setFocus();
        amount().setText({});
        tab();
        type(text);
        return amount().text();
    }

    // What the box holds after a text has stood there and the focus has gone.
    static QString left(const QString& text)
    {
        amount().setFocus();
        amount().setText(text);
        till().before.setFocus();
        return amount().text();
    }

    static void select(int start, int length)
    {
        amount().setSelectionStart(start);
        amount().setSelectionLength(length);
    }
};

TEST_F(MoneyFieldTest, GrowsTheDollarSignAndKeepsTheCaretBehindWhatIsTyped)
{
    EXPECT_EQ(typed("5"), "$5");
    EXPECT_EQ(amount().selectionStart(), 2);
    type(".25");
    EXPECT_EQ(amount().text(), "$5.25");
    type("9");
    EXPECT_EQ(amount().text(), "$5.25");

    EXPECT_EQ(typed("$1a b,2-3\n"), "$123");
    EXPECT_EQ(typed("1/2"), "$1/2");
    EXPECT_EQ(typed("1..5."), "$1.5");
    commit(QString::fromUtf8("٣é😀")); // no digit of its own
    EXPECT_EQ(amount().text(), "$1.5");
}

TEST_F(MoneyFieldTest, IsCompletedWhenItIsLeft)
{
    const std::pair<const char*, const char*> cases[] = {{"", "$.00"}, {"$.", "$.00"}, {"12", "$12.00"},
        {"$12.", "$12.00"}, {"$12.5", "$12.50"}, {".5", "$.50"}, {"$1/2", "$1/2.00"}, {"$1,234.50", "$1,234.50"},
        {"$1.234", "$1.2340"}, {"($1.00)", "$($1.00).00"}};
    for (const auto& [text, completed] : cases)
        EXPECT_EQ(left(text), completed) << text;
}

TEST_F(MoneyFieldTest, SelectsAllBehindTheDollarSignSoThatTypingReplacesTheAmount)
{
    amount().setText("$1,234.50");
    till().before.setFocus();
    tab();
    EXPECT_EQ(amount().selectionStart(), 1);
    EXPECT_EQ(amount().selectionLength(), 8);
    type("7");
    EXPECT_EQ(amount().text(), "$7");
}

TEST_F(MoneyFieldTest, HoldsTwoDecimalsAndStillTakesDigitsBeforeThePoint)
{
    typed("12.34");
    select(3, 0);
    type("5");
    EXPECT_EQ(amount().text(), "$125.34");
    select(5, 0);
    type("6");
    EXPECT_EQ(amount().text(), "$125.34");
    select(5, 2);
    type("6");
    EXPECT_EQ(amount().text(), "$125.6");
}

TEST_F(MoneyFieldTest, IsEmptiedByAnyKeyButThePointWhenTheWholeTextIsSelected)
{
    typed("12.50");
    press(Qt::Key_A, Qt::ControlModifier);
    type("x");
    EXPECT_EQ(amount().text(), "");

    typed("12.50");
    press(Qt::Key_A, Qt::ControlModifier);
    type(".");
    EXPECT_EQ(amount().text(), "$12.50"); // there is a point already
    type("8");
    EXPECT_EQ(amount().text(), "$8");
}

TEST_F(MoneyFieldTest, BackspaceAndDeleteAlwaysPass)
{
    typed("12.50");
    for (int strokes = 0; strokes < 5; ++strokes)
        press(Qt::Key_Backspace);
    EXPECT_EQ(amount().text(), "$");
    till().before.setFocus();
    EXPECT_EQ(amount().text(), "$.00");

    typed("5");
    press(Qt::Key_Home);
    press(Qt::Key_Delete);
    EXPECT_EQ(amount().text(), "$5"); // a lone digit gets its sign back

    typed("5.00");
    select(0, 2);
    press(Qt::Key_Delete);
    EXPECT_EQ(amount().text(), "$.00");
    EXPECT_EQ(amount().selectionStart(), 1);
}

TEST_F(MoneyFieldTest, TakesAPasteAsIfItWereTyped)
{
    typed("");
    paste("$1,234.567 USD");
    EXPECT_EQ(amount().text(), "$1234.56");
    press(Qt::Key_A, Qt::ControlModifier);
    pasteByMenu(amount(), "abc");
    EXPECT_EQ(amount().text(), "");
    paste(QString(1'000'000, u'7')); // at once, in spite of the filter
    EXPECT_EQ(amount().text(), "$" + QString(253, u'7'));
}

} // namespace
