// SPDX-License-Identifier: GPL-3.0-or-later
#include "accounts/frmBank.h"
#include "accounts/frmEditBankBoxes.h"
#include "core/frmCalendar.h"
#include "household/household.h"

#include <QRegularExpression>

namespace {

// The columns of accounts, "Financial Institution" to "State".
const QString First = "First Bank|1 Main St|315|555|0100|a-1|R1|$1234.50|5/6/2026|Savings|Utica|NY";
const QString Bare = "Second Bank|None|None|None|None|A-1|None|None|None|None|None|None";
const QString Third = "None|x|1|2|3|7|R|1 lakh|soon|Safe|None|me";

const QString EmptyForm = "txtName=Enter Financial Institution, txtAddress=, txtCity=, cmbState=, txtPhone1=, "
                          "txtPhone2=, txtPhone3=, cmbType=Checking, txtAccount=, txtRoute=, txtBalance=, "
                          "txtDate=11/24/2026, cmdPrevious hidden, cmdNext hidden";
const QString FirstForm = "txtName=First Bank, txtAddress=1 Main St, txtCity=Utica, cmbState=NY, txtPhone1=315, "
                          "txtPhone2=555, txtPhone3=0100, cmbType=Savings, txtAccount=a-1 locked, txtRoute=R1, "
                          "txtBalance=$1,234.50, txtDate=5/6/2026, lblState hidden, cmdPrevious off";
const QString BareForm = "txtName=Second Bank, txtAddress=, txtCity=, cmbState=, txtPhone1=, txtPhone2=, txtPhone3=, "
                         "cmbType=, txtAccount=A-1 locked, txtRoute=, txtBalance=, txtDate=, lblState hidden";
const char* const Added = "   Your New Account Has Been Added!";
const char* const Taken = "An Account With The Account Number You Have Listed Is Already Available";
const char* const NoName = "Please Enter An Account Name For This Financial Institution!";
const char* const NoNumber = "Please Enter An Account Number For This Financial Institution!";
const char* const DeleteQuestion = "Deleting This Account Will Be Permanent...Continue?";
const QString Personal = "1 frmGenInfo: cmdBank";

// Today is 24 November 2026.
class Accounts : public ScreenTest {
protected:
    enum Mode { Add, Update, Delete };

    static frmEditBankBoxes& menu() { return screen<frmEditBankBoxes>(); }
    static frmBank& account() { return screen<frmBank>(); }

    static QStringList kept()
    {
        inFile(Data1.rsBank, {});
        return rowsOf(Data1.rsBank, Bank::FinancialInstitution, Bank::State);
    }

    static void open(Mode mode, const QStringList& rows = {})
    {
        for (const QString& row : rows)
            addRow(Data1.rsBank, Bank::FinancialInstitution, row.split('|'));
        click(openFromMenu().cmdBank);
        click(menu().optEdit[mode]);
        press(Qt::Key_Return); // of the default button
        const QString what = QStringList({"Add", "Update", "Delete"})[mode];
        EXPECT_EQ(line(account().lblMainHead.caption(), account().cmdBack.helpNumber()),
            line(what + " Financial Account", 41001 + 1000 * mode));
        EXPECT_EQ(account().cmdState.toolTip().remove(" A New"), " Click Here To " + what + " Financial Account ");
    }

    // What the screen shows, and what stands before the user.
    static QString state() { return contents(account()) + " @ " + scene().remove("7 frmBank: "); }

    void asks(Answer answer = Answer::No)
    {
        clickTold(account().cmdBack, "All Changes To This Account Will Be Lost...Continue?", 52, answer);
        EXPECT_EQ(account().isVisible(), answer == Answer::No);
    }

    void asksAfterEachChange()
    {
        for (forms::Control* control : account().controls())
            if (auto* entry = dynamic_cast<forms::TextEntry*>(control)) {
                const QString before = entry->text();
                entry->setText("1/1/2020");
                asks();
                entry->setText(before);
            }
    }

    // What the mode's button does on a full disk.
    void failsToStore(const QByteArray& statement)
    {
        refuseWrites(statement, "Bank_Info");
        click(account().cmdState);
        EXPECT_EQ(failedHandler(), "frmBank.cmdState_Click");
        makeRoom("Bank_Info");
    }
};

TEST_F(Accounts, AreChosenByAMenuThatFallsBackToAdd)
{
    auto& city = openFromMenu().txtInfo[General::City];
    type(city, "Bangor");
    click(screen<frmGenInfo>().cmdBank);
    EXPECT_EQ(scene(), "15 frmEditBankBoxes: optEdit(0)");
    for (const QString what : {"Update", "Delete"}) {
        accessKey(what == "Update" ? 'v' : 'd');
        EXPECT_EQ(account().cmdState.caption(), '&' + what + " Account");
        expectBox("There Are No Accounts Available To " + what + '!', Information);
        accessKey('o');
        EXPECT_EQ(contents(menu()) + account().cmdState.caption(), "optEdit(0) on&Add New Account");
    }
    menu().AccountMode = 3;
    clickTold(menu().cmdUpdate, "You Must Select An Option Before Continuing!", Exclamation);
    click(menu().optEdit[Delete]);
    click(menu().cmdCancel);
    click(screen<frmGenInfo>().cmdBank);
    EXPECT_EQ(contents(menu()) + QString::number(menu().AccountMode), "optEdit(0) on0");
    closeBox(menu());
    EXPECT_EQ(line(scene(), city.text(), Data1.rsGeneral.Fields(General::City).text()), Personal + ", Bangor, None");
}

TEST_F(Accounts, AreAddedByKeysThatHopOnUntilTheCalendarHasBeenThere)
{
    open(Add);
    EXPECT_EQ(state(), EmptyForm + " @ txtName [Enter Financial Institution]");
    type("First Bank\t1 Main St\tUtica\tn-1y");
    for (const Qt::Key digit : {Qt::Key_3, Qt::Key_1, Qt::Key_5})
        hold(digit);
    EXPECT_EQ(scene(), "7 frmBank: txtPhone1") << "with the release, not before";
    letGo(Qt::Key_5);
    drop(account().txtPhone2, "(-5x556");
    press(Qt::Key_End); // of any key
    type("0100");
    backTab();
    EXPECT_EQ(scene(), "7 frmBank: cmbType [Checking]") << "a full box is left by the very key that enters it";
    type("\t a-1 \t\t1/2");
    whileModal([this] {
        EXPECT_EQ(scene(), "19 frmCalendar: calDate; frmBank");
        EXPECT_FALSE(account().isEnabled() || account().cmdBack.isEnabled() || account().cmdState.isEnabled());
        expectBox("Are You Sure You Want To Close The Calendar?", YesNoQuestion, Answer::Yes);
        press(Qt::Key_Space);
    });
    tab();
    EXPECT_EQ(line(scene(), account().cmdBack.isEnabled()), "7 frmBank: txtDate, true") << "and no calendar again";
    click(account().txtPhone1);
    press({Qt::Key_End, Qt::Key_Backspace, Qt::Key_4});
    EXPECT_EQ(scene(), "7 frmBank: txtPhone1");
    pick(account().cmbState, "CA");
    pick(account().cmbType, "Other");
    account().txtDate.setText("1/31/2026");
    whileModal([] { press({Qt::Key_Right, Qt::Key_Return}); });
    click(account().picDate);
    failsToStore("INSERT");
    expectBox(Added, Information);
    press(Qt::Key_Return);
    EXPECT_EQ(kept(), QStringList("First Bank|1 Main St|314|555|0100| a-1 |None|$1/2.00|2/1/2026|Other|Utica|CA"));
}

TEST_F(Accounts, AreRefusedWithoutNameAndNumberAndWithANumberThatIsThere)
{
    auto& name = account().txtName;
    auto& number = account().txtAccount;
    const auto reds = [&] { return line(name.backColour().isValid(), number.backColour().isValid()); };
    const std::tuple<QString, const char*, const char*, const char*> refusals[] = {
        {"Bank", "A-1", Taken, "cmdState, Bank, false, false"},
        {frmBank::NoName, "A-1 ", NoName, "txtName, , true, false"}, // in another spelling it is another number
        {"Bank", "", NoNumber, "txtAccount, Bank, false, true"},
        {"Bank", " Enter Financial Institution ", NoNumber, "txtAccount, Bank, false, true"},
        {"", "", NoName, "txtName, , true, true"},
    };
    open(Add, {First, Bare});
    for (const auto& [typedName, typedNumber, told, after] : refusals) {
        name.setText(typedName);
        number.setText(typedNumber);
        clickTold(account().cmdState, told, Exclamation);
        EXPECT_EQ(line(account().activeControl()->name(), name.text(), reds()), after);
    }
    asks(Answer::Yes);
    open(Add);
    EXPECT_EQ(reds(), "false, false");
    const QString much = QString("1b").repeated(200);
    for (forms::TextEntry* box : std::initializer_list<forms::TextEntry*>{&number, &account().cmbType, &name}) {
        click(*box);
        paste(much);
    }
    clickTold(account().cmdState, Added, Information);
    EXPECT_EQ(kept(),
        QStringList({First, Bare,
            QString("%1|None|None|None|None|%2|None|None|11/24/2026|%3|None|None")
                .arg(much.left(40), much.left(254), much.left(255))}));
}

TEST_F(Accounts, AreSteppedThroughAndUpdated)
{
    const char* const unchangeable = "The Account Number Can Not Be Changed!";
    open(Update, {First, Bare, Third});
    EXPECT_EQ(state(), FirstForm + " @ txtName");
    expectBox(unchangeable, Exclamation);
    type(account().txtAccount, "5");
    type(account().txtAddress, "x"); // is dropped without a word
    const std::pair<char, QString> steps[] = {{'n', BareForm + " @ txtName [Second Bank]"},
        {'n',
            "txtName=, txtAddress=x, txtCity=, cmbState=me, txtPhone1=1, txtPhone2=2, txtPhone3=3, cmbType=Safe, "
            "txtAccount=7 locked, txtRoute=R, txtBalance=1 lakh, txtDate=soon, lblState hidden, cmdNext off @ txtName"},
        {'p', BareForm + " @ txtName [Second Bank]"}, {'p', FirstForm + " @ txtName [First Bank]"}};
    for (const auto& [key, after] : steps) {
        accessKey(key);
        EXPECT_EQ(state(), after);
    }
    accessKey('n');
    account().txtName.setText({});
    clickTold(account().cmdState, NoName, Exclamation);
    type("New\t2 Side St");
    whileModal([] { press(Qt::Key_Return); }); // on today
    click(account().txtDate);
    for (const char* next : {"cmdPrevious", "cmdNext", "cmdBack", "cmdState", "txtName [New]"}) {
        tab();
        EXPECT_EQ(scene(), QString("7 frmBank: ") + next);
    }
    for (int box = 0; box < 3; ++box) // though the calendar has taken the lock off
        expectBox(unchangeable, Exclamation);
    type(account().txtAccount, "5");
    press(Qt::Key_Backspace);
    paste("12345");
    press(Qt::Key_Delete);
    press(Qt::Key_X, Qt::ControlModifier);
    failsToStore("UPDATE");
    expectBox("          Account Has Been Updated!", Exclamation);
    accessKey('u');
    EXPECT_EQ(
        kept(), QStringList({First, "New|2 Side St|None|None|None|A-1|None|None|11/24/2026|None|None|None", Third}));
}

TEST_F(Accounts, AreDeletedUntilNoneIsLeft)
{
    const QString form = QString(FirstForm)
                             .replace(QRegularExpression("(?=, (txt|cmb|lbl))"), " off")
                             .replace("Bank off", "Bank locked")
                             .replace(", lbl", ", picDate off, lbl");
    open(Delete, {First, Bare});
    EXPECT_EQ(state(), form + " @ txtName");
    type("x");
    click(account().cmdBack); // nothing is asked
    EXPECT_EQ(contents(account()), QString(FirstForm).replace(" locked", "").replace(", lbl", ", picDate off, lbl"));
    open(Delete);
    click(account().cmdNext);
    expectBox(DeleteQuestion, YesNoQuestion, Answer::Yes);
    failsToStore("DELETE");
    expectToStay([] { click(account().cmdState); }, DeleteQuestion);
    clickTold(account().cmdState, DeleteQuestion, YesNoQuestion, Answer::Yes);
    open(Delete);
    EXPECT_EQ(contents(account()), form + ", cmdNext off");
    clickTold(account().cmdState, DeleteQuestion, YesNoQuestion, Answer::Yes);
    EXPECT_EQ(scene(), Personal);
    open(Add);
    EXPECT_EQ(contents(account()), QString(EmptyForm).replace(" hidden", " off hidden"));
    const QString question = "Financial Account Has Not Been Saved...Continue?"; // though nothing was entered
    expectToStay([] { closeBox(account()); }, question);
    clickTold(account().cmdBack, question, YesNoQuestion, Answer::Yes);
    EXPECT_EQ(kept(), QStringList());
}

TEST_F(Accounts, AreLeftWithAQuestionWhereSomethingHasChanged)
{
    open(Add, {Third});
    asksAfterEachChange();
    account().txtDate.setText("soon");
    account().cmbType.setText({});
    click(account().cmdBack);
    open(Update, {First, "B|x|1|2|3|8|R|$1.00|soon|Safe|c|ME", Bare});
    asks(); // the name was stored empty
    click(account().cmdNext);
    asks(); // the balance was stored in another form
    click(account().cmdNext);
    asksAfterEachChange();
    click(account().cmdNext);
    account().cmbState.setText("x");
    account().txtBalance.setText("x");
    click(account().cmdBack);
    EXPECT_EQ(scene(), Personal) << "None never counts";
}

} // namespace
