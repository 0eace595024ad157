// SPDX-License-Identifier: GPL-3.0-or-later
#include "accounts/frmBank.h"
#include "accounts/frmEditBankBoxes.h"
#include "core/frmCalendar.h"
#include "household/household.h"
#include "platform/forms/look.h"

namespace {

// The columns of accounts, "Financial Institution" to "State".
const QString First = "First Bank|1 Main St|315|555|0100|a-1|R1|$1234.50|5/6/2026|Savings|Utica|NY";
const QString Bare = "Second Bank|None|None|None|None|A-1|None|None|None|None|None|None";
const QString Third = "None|x|1|2|3|7|R|$1.00|soon|Safe|None|me";

const QString EmptyForm = "txtName=Enter Financial Institution, txtAddress=, txtCity=, cmbState=, txtPhone1=, "
                          "txtPhone2=, txtPhone3=, cmbType=Checking, txtAccount=, txtRoute=, txtBalance=, "
                          "txtDate=11/24/2026, cmdPrevious hidden, cmdNext hidden";
const QString FirstForm = "txtName=First Bank, txtAddress=1 Main St, txtCity=Utica, cmbState=NY, txtPhone1=315, "
                          "txtPhone2=555, txtPhone3=0100, cmbType=Savings, txtAccount=a-1 locked, txtRoute=R1, "
                          "txtBalance=$1,234.50, txtDate=5/6/2026, lblState hidden, cmdPrevious off";
const QString BareForm = "txtName=Second Bank, txtAddress=, txtCity=, cmbState=, txtPhone1=, txtPhone2=, txtPhone3=, "
                         "cmbType=, txtAccount=A-1 locked, txtRoute=, txtBalance=, txtDate=, lblState hidden";

const char* const Added = "   Your New Account Has Been Added!";
const char* const DeleteQuestion = "Deleting This Account Will Be Permanent...Continue?";
const QString Personal = "1 frmGenInfo: cmdBank";

// Today is 24 November 2026.
class Accounts : public ScreenTest {
protected:
    enum Mode { Add, Update, Delete };

    static frmEditBankBoxes& menu() { return screen<frmEditBankBoxes>(); }
    static frmBank& account() { return screen<frmBank>(); }

    static void store(const QStringList& rows)
    {
        for (const QString& row : rows)
            addRow(Data1.rsBank, Bank::FinancialInstitution, row.split('|'));
    }

    static QStringList kept()
    {
        inFile(Data1.rsBank, {});
        return rowsOf(Data1.rsBank, Bank::FinancialInstitution, Bank::State);
    }

    static void open(Mode mode, const QStringList& rows = {})
    {
        store(rows);
        click(openFromMenu().cmdBank);
        click(menu().optEdit[mode]);
        press(Qt::Key_Return); // of the default button
        EXPECT_EQ(account().lblMainHead.caption().section(' ', 0, 0), QStringList({"Add", "Update", "Delete"})[mode]);
    }

    // What the screen shows, and what stands before the user.
    static QString state() { return contents(account()) + " @ " + scene().remove("7 frmBank: "); }

    static QString after(forms::CommandButton& button)
    {
        click(button);
        return state();
    }

    void expectClick(forms::CommandButton& button, const QString& text, int flags, const QString& leadsTo,
        Answer answer = Answer::OK)
    {
        clickTold(button, text, flags, answer);
        EXPECT_EQ(scene(), leadsTo);
    }

    void refuses(forms::TextBox& box, const QString& what)
    {
        clickTold(
            account().cmdState, "Please Enter An Account " + what + " For This Financial Institution!", Exclamation);
        EXPECT_TRUE(box.hasFocus());
        EXPECT_EQ(box.backColour(), forms::look::colours().error);
    }

    void asks(Answer answer = Answer::No)
    {
        clickTold(account().cmdBack, "All Changes To This Account Will Be Lost...Continue?", 52, answer);
        EXPECT_EQ(account().isVisible(), answer == Answer::No);
    }

    void asksAfterEachChange()
    {
        for (forms::Control* control : account().controls()) {
            auto* entry = dynamic_cast<forms::TextEntry*>(control);
            if (!entry)
                continue;
            const QString before = entry->text();
            entry->setText("1/1/2020");
            asks();
            entry->setText(before);
        }
    }

    // In the calendar that `open` opens.
    void leaveCalendar(const std::function<void()>& open)
    {
        whileModal([this] {
            EXPECT_EQ(scene(), "19 frmCalendar: calDate; frmBank");
            EXPECT_FALSE(account().isEnabled() || account().cmdBack.isEnabled() || account().cmdState.isEnabled());
            EXPECT_EQ(screen<frmCalendar>().calDate.Day(), 24);
            expectBox("Are You Sure You Want To Close The Calendar?", YesNoQuestion, Answer::Yes);
            press(Qt::Key_Space);
        });
        open();
        EXPECT_TRUE(account().isEnabled() && account().cmdBack.isEnabled() && account().cmdState.isEnabled());
    }
};

TEST_F(Accounts, AreChosenByAMenuThatFallsBackToAdd)
{
    click(openFromMenu().cmdBank);
    EXPECT_EQ(scene(), "15 frmEditBankBoxes: optEdit(0)");
    for (const QString what : {"Update", "Delete"}) {
        accessKey(what == "Update" ? 'v' : 'd');
        EXPECT_EQ(account().cmdState.caption(), '&' + what + " Account");
        expectBox("There Are No Accounts Available To " + what + '!', Information);
        accessKey('o');
        EXPECT_EQ(contents(menu()) + account().cmdState.caption(), "optEdit(0) on&Add New Account");
    }
    menu().AccountMode = 3;
    expectClick(menu().cmdUpdate, "You Must Select An Option Before Continuing!", Exclamation,
        "15 frmEditBankBoxes: cmdUpdate");
    click(menu().optEdit[Delete]);
    click(menu().cmdCancel);
    EXPECT_EQ(scene(), Personal);
    click(screen<frmGenInfo>().cmdBank);
    EXPECT_EQ(contents(menu()) + QString::number(menu().AccountMode), "optEdit(0) on0");
    closeBox(menu());
    EXPECT_EQ(scene(), Personal);
}

TEST_F(Accounts, AreAddedByKeysThatHopOnUntilTheCalendarHasBeenThere)
{
    open(Add);
    EXPECT_EQ(state(), EmptyForm + " @ txtName [Enter Financial Institution]");
    type("First Bank\t1 Main St\tUtica\tn-1y");
    EXPECT_EQ(scene(), "7 frmBank: txtPhone1");
    for (const Qt::Key digit : {Qt::Key_3, Qt::Key_1, Qt::Key_5})
        hold(digit);
    EXPECT_EQ(scene(), "7 frmBank: txtPhone1") << "with the release, not before";
    letGo(Qt::Key_5);
    drop(account().txtPhone2, "(-5x556");
    press(Qt::Key_F1);
    EXPECT_EQ(line(scene(), openedHelp().value()), "7 frmBank: txtPhone3, 41001");
    type("0100");
    backTab();
    EXPECT_EQ(scene(), "7 frmBank: cmbType [Checking]") << "a full box is left by the very key that enters it";
    type("\t a-1 \t\t1/2");
    leaveCalendar(tab);
    EXPECT_EQ(scene(), "7 frmBank: txtDate") << "the calendar doesn't come again";
    click(account().txtPhone1);
    press({Qt::Key_End, Qt::Key_Backspace, Qt::Key_4});
    EXPECT_EQ(scene(), "7 frmBank: txtPhone1");
    pick(account().cmbState, "CA");
    pick(account().cmbType, "Other");
    whileModal([] { type("\n"); });
    click(account().picDate);
    expectBox(Added, Information);
    press(Qt::Key_Return);
    EXPECT_EQ(scene(), Personal);
    EXPECT_EQ(kept(), QStringList("First Bank|1 Main St|314|555|0100| a-1 |None|$1/2.00|11/24/2026|Other|Utica|CA"));
    open(Add);
    EXPECT_EQ(contents(account()), EmptyForm);
}

TEST_F(Accounts, AreRefusedWithoutNameAndNumberAndWithANumberThatIsThere)
{
    open(Add, {First, Bare});
    type(account().txtAccount, "A-1");
    expectClick(account().cmdState, "An Account With The Account Number You Have Listed Is Already Available",
        Exclamation, "7 frmBank: cmdState");
    account().txtAccount.setText("A-1 "); // in another spelling it is another number
    account().txtName.setFocus();
    refuses(account().txtName, "Name"); // of which nothing is left
    type("Bank");
    for (const char* const none : {"", " Enter Financial Institution "}) {
        account().txtAccount.setText(none);
        refuses(account().txtAccount, "Number");
    }
    EXPECT_FALSE(account().txtName.backColour().isValid());
    paste(QString("1b").repeated(200));
    expectClick(account().cmdState, Added, Information, Personal);
    EXPECT_EQ(kept(),
        QStringList({First, Bare,
            "Bank|None|None|None|None|" + QString("1b").repeated(127) + "|None|None|11/24/2026|Checking|None|None"}));
    open(Add);
    EXPECT_FALSE(account().txtAccount.backColour().isValid());
}

TEST_F(Accounts, AreSteppedThroughAndUpdated)
{
    open(Update, {First, Bare, Third});
    EXPECT_EQ(state(), FirstForm + " @ txtName");
    type("x"); // is dropped without a word
    EXPECT_EQ(after(account().cmdNext), BareForm + " @ txtName [Second Bank]");
    EXPECT_EQ(after(account().cmdNext),
        "txtName=, txtAddress=x, txtCity=, cmbState=me, txtPhone1=1, txtPhone2=2, txtPhone3=3, cmbType=Safe, "
        "txtAccount=7 locked, txtRoute=R, txtBalance=$1.00, txtDate=soon, lblState hidden, cmdNext off @ txtName");
    EXPECT_EQ(after(account().cmdPrevious), BareForm + " @ txtName [Second Bank]");
    EXPECT_EQ(after(account().cmdPrevious), FirstForm + " @ txtName [First Bank]");
    accessKey('n');
    account().txtName.setText({});
    refuses(account().txtName, "Name");
    leaveCalendar([] { click(account().txtBalance), tab(); }); // which completes an empty balance
    type(account().txtName, "New\t2 Side St");
    const std::function<void()> tries[] = {[] { type("5"); }, [] { press(Qt::Key_Backspace); }, [] { paste("12345"); }};
    for (const auto& tryIt : tries) { // though the calendar has taken the lock off
        click(account().txtAccount);
        expectBox("The Account Number Can Not Be Changed!", Exclamation);
        tryIt();
        press(Qt::Key_Delete);
        press(Qt::Key_X, Qt::ControlModifier);
    }
    expectBox("          Account Has Been Updated!", Exclamation);
    accessKey('u');
    EXPECT_EQ(scene(), Personal);
    EXPECT_EQ(kept(), QStringList({First, "New|2 Side St|None|None|None|A-1|None|$.00|None|None|None|None", Third}));
}

TEST_F(Accounts, AreDeletedUntilNoneIsLeft)
{
    const QString form = QString(FirstForm).replace(", txt", " off, txt").replace(", cmb", " off, cmb");
    open(Delete, {First, Bare});
    EXPECT_EQ(state(),
        QString(form).replace("Bank off", "Bank locked").replace(", lbl", " off, picDate off, lbl") + " @ txtName");
    type("x");
    click(account().cmdBack); // nothing is asked
    EXPECT_EQ(contents(account()), QString(FirstForm).replace(" locked", "").replace(", lbl", ", picDate off, lbl"));
    open(Delete);
    click(account().cmdNext);
    expectClick(account().cmdState, DeleteQuestion, YesNoQuestion, "7 frmBank: cmdState", Answer::No);
    expectClick(account().cmdState, DeleteQuestion, YesNoQuestion, Personal, Answer::Yes);
    EXPECT_EQ(kept(), QStringList(First));
    open(Delete);
    EXPECT_FALSE(account().cmdNext.isEnabled() || account().cmdPrevious.isEnabled());
    expectClick(account().cmdState, DeleteQuestion, YesNoQuestion, Personal, Answer::Yes);
    EXPECT_EQ(kept(), QStringList());
    open(Add);
    EXPECT_EQ(contents(account()), QString(EmptyForm).replace(" hidden", " off hidden"));
    for (const Answer answer : {Answer::No, Answer::Yes}) { // though nothing was entered
        expectBox("Financial Account Has Not Been Saved...Continue?", YesNoQuestion, answer);
        closeBox(account());
        EXPECT_EQ(account().isVisible(), answer == Answer::No);
    }
}

TEST_F(Accounts, AreLeftWithAQuestionWhereSomethingHasChanged)
{
    open(Add, {First});
    asksAfterEachChange();
    account().txtDate.setText("soon");
    account().cmbType.setText({});
    click(account().cmdBack);
    EXPECT_EQ(scene(), Personal);

    store({"B|x|1|2|3|8|R|$1.00|soon|Safe|c|ME", Bare, Third});
    open(Update);
    asks(); // the balance was stored in another form
    click(account().cmdNext);
    asksAfterEachChange();
    click(account().cmdNext);
    for (forms::TextEntry* none : std::initializer_list<forms::TextEntry*>{&account().txtAddress, &account().cmbState,
             &account().txtPhone3, &account().txtRoute, &account().txtBalance, &account().txtDate, &account().cmbType})
        none->setText("x");
    click(account().cmdBack);
    EXPECT_EQ(scene(), Personal) << "None never counts";
    open(Update);
    for (int step = 0; step < 3; ++step)
        click(account().cmdNext);
    asks(Answer::Yes); // but for the name
}

TEST_F(Accounts, StayAsTheyWereWhereTheFileRefuses)
{
    store({First, Bare});
    for (const auto& [mode, statement] : {std::pair{Add, "INSERT"}, {Update, "UPDATE"}, {Delete, "DELETE"}}) {
        open(mode);
        account().txtName.setText("Typed");
        account().txtAccount.setText("Typed");
        refuseWrites(statement, "Bank_Info");
        if (mode == Delete)
            expectBox(DeleteQuestion, YesNoQuestion, Answer::Yes);
        click(account().cmdState);
        EXPECT_EQ(failedHandler(), "frmBank.cmdState_Click");
        EXPECT_EQ(Data1.rsBank.RecordCount(), 2);
        makeRoom("Bank_Info");
        EXPECT_EQ(kept(), QStringList({First, Bare})) << statement;
        account().hide();
    }
}

} // namespace
