// SPDX-License-Identifier: GPL-3.0-or-later
#include "accounts/frmBank.h"
#include "accounts/frmEditBankBoxes.h"
#include "assets/frmAddUpDel.h"
#include "assets/frmAuto.h"
#include "assets/frmWar.h"
#include "core/frmCalendar.h"
#include "core/frmMain.h"
#include "core/frmStartup.h"
#include "household/frmGenInfo.h"
#include "household/frmInsInfo.h"
#include "household/frmIntroduction.h"
#include "household/frmKeyboard.h"
#include "household/frmTotals.h"
#include "lists/editing.h"
#include "lists/frmAddField.h"
#include "lists/frmDelField.h"
#include "lists/frmEditCmbBoxes.h"
#include "lists/frmUpdate.h"
#include "platform/forms/look.h"
#include "platform/help/book.h"
#include "reports/data_report.h"
#include "reports/frmPrint.h"
#include "reports/reports.h"
#include "search/frmSearch.h"
#include "search/frmSearchResults.h"
#include "support/harness.h"

#include <QApplication>
#include <QPushButton>
#include <QShortcutEvent>
#include <QTest>

#include <algorithm>
#include <set>

using forms::screen;

namespace {

/// Notes what access keys reach, and keeps them from acting.
class AccessKeys : public QObject {
public:
    AccessKeys() { qApp->installEventFilter(this); }

    QStringList reached;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Shortcut)
            reached += watched->objectName();
        return event->type() == QEvent::Shortcut;
    }
};

template <class Screen>
forms::Form& shown()
{
    screen<Screen>().show();
    return screen<Screen>();
}

forms::Form& toAdd()
{
    shown<frmMain>();
    click(screen<frmMain>().cmdIn);
    click(screen<frmAuto>().cmdAdd[0]);
    return screen<frmAddUpDel>();
}

forms::Form& results()
{
    shown<frmSearch>();
    type("Acme\n");
    return screen<frmSearchResults>();
}

forms::Form& toUpdate()
{
    results();
    click(screen<frmSearchResults>().txtMore[0]);
    return screen<frmAddUpDel>();
}

// Of an area, whose places are there to choose from.
forms::Form& search()
{
    shown<frmMain>();
    click(screen<frmMain>().cmdIn);
    click(screen<frmAuto>().cmdUpdate[1]);
    pick(screen<frmSearch>().cmbLocation, "Attic");
    click(screen<frmSearch>().txtKey);
    return screen<frmSearch>();
}

forms::Form& warranty()
{
    toUpdate();
    click(screen<frmAddUpDel>().cmdWarranty);
    return screen<frmWar>();
}

forms::Form& totals()
{
    shown<frmMain>();
    click(screen<frmMain>().cmdValue);
    return screen<frmTotals>();
}

// With a date that is still to come, without which the notice asks for one.
forms::Form& policy()
{
    shown<frmInsInfo>();
    screen<frmInsInfo>().txtPolicyExpire.setText("1/1/2030");
    return screen<frmInsInfo>();
}

// In the middle of three.
forms::Form& account()
{
    for (int count = 0; count < 3; ++count)
        addRow(Data1.rsBank, Bank::FinancialInstitution, QString("None ").repeated(12).trimmed().split(' '));
    screen<frmEditBankBoxes>().AccountMode = int(frmEditBankBoxes::Update);
    shown<frmBank>();
    click(screen<frmBank>().cmdNext);
    return screen<frmBank>();
}

/// A screen as a user comes to it, and where the Tab key goes from there until it is back.
struct Walk {
    forms::Form& (*open)();
    const char* ring;
};

constexpr Walk walks[] = {
    {shown<frmIntroduction>, "cmdOK"},
    {shown<frmKeyboard>, "cmdUpdate"},
    {shown<frmMain>, "cmdIn cmdOut cmdAuto cmdPrint cmdSearch cmdValue cmdPersonal cmdLeave"},
    {shown<frmAuto>, "cmdAdd(0) cmdUpdate(1) cmdDelete(0) cmdBack(0) cmdLeave(0)"},
    {toAdd,
        "cmbLoc cmbCat cmbType cmbYear txtMake txtMod txtSerial optPurNewUsed(0) txtPur txtPPrice optRecOnFile(1) "
        "txtLoc txtDescription chkWar chkClear cmdAdd cmdCancel cmdMain cmdClear"},
    {toUpdate,
        "cmbArea cmbLoc cmbCat cmbType cmbYear txtMake txtMod txtSerial optPurNewUsed(1) txtPur txtPPrice "
        "optRecOnFile(1) txtLoc txtDescription cmdWarranty cmdUpdate cmdDelete cmdCancel cmdMain cmdPrint"},
    {warranty,
        "cmbParts txtPAmt txtPCover cmbPMonth cmbPDay cmbPYear cmbLabor txtLAmt txtLCover cmbLMonth cmbLDay "
        "cmbLYear txtDescription cmdCancel cmdSave txtName"},
    {shown<frmEditCmbBoxes>, "optEdit(0) cmdUpdate cmdCancel"},
    {shown<frmAddField>, "txtAdd cmdUpdate cmdCancel"},
    {shown<frmUpdate>, "cmbCat txtNew cmdUpdate cmdCancel"},
    {shown<frmDelField>, "cmbCat cmdUpdate cmdCancel"},
    {search, "txtKey cmbLocation cmbCat cmbType cmdBack cmdClearForm cmdContinue"},
    {results, "cmdNext cmdBack cmdPrint cmdMain"},
    {shown<frmPrint>,
        "cmdInPrint(0) cmdOutPrint(2) cmdAutoPrint(1) cmdAllPrint(3) cmdCustom(4) cmdCover(0) "
        "cmdFillOutForm(0) cmdBack(0)"},
    {totals, "cmdOK"},
    {shown<frmGenInfo>,
        "txtInfo(1) txtInfo(2) txtInfo(0) txtInfo(3) txtInfo(4) cmbState txtInfo(6) txtInfo(7) "
        "txtInfo(8) txtInfo(9) txtInfo(10) txtInfo(11) txtInfo(12) txtInfo(13) txtInfo(14) "
        "txtInfo(15) txtInfo(16) cmdInsInfo cmdBank cmdContinue(0) cmdBack(0) cmdExit"},
    {policy, "txtCompany txtPolicyNum txtPolicyExpire txtCoverageAmt chkNotify cmdUpdate cmdCancel cmdClear"},
    {shown<frmEditBankBoxes>, "optEdit(0) cmdUpdate cmdCancel"},
    {account,
        "txtName txtAddress txtCity cmbState txtPhone1 txtPhone2 txtPhone3 cmbType txtAccount txtRoute txtBalance "
        "txtDate cmdPrevious cmdNext cmdBack cmdState"},
};

class AllScreens : public ScreenTest {
protected:
    AllScreens()
    {
        for (int count = 0; count < 11; ++count) {
            addAssetRow({"Indoor", "None", "None", "None", "None", "Acme"});
            // Without a month its day asks for one.
            put(Data1.rsInventory, {{Inventory::PartsMonth, "Jan"}, {Inventory::LaborMonth, "Jan"}});
        }
    }

    static bool isBlank(QWidget& widget)
    {
        const QImage shown = widget.grab().toImage();
        QImage blank = shown;
        blank.fill(shown.pixelColor(0, 0));
        return shown == blank;
    }

    static void expectAccessKeys(const forms::Form& form)
    {
        AccessKeys keys;
        QStringList marked;
        for (forms::Control* control : form.controls()) {
            const auto* button = dynamic_cast<forms::Button*>(control);
            const QString caption = button && button->canTakeFocus() ? button->caption().remove("&&") : QString();
            if (!caption.contains('&'))
                continue;
            marked += button->name();
            accessKey(caption.section('&', 1).at(0).toLatin1());
        }
        EXPECT_EQ(keys.reached, marked);
    }
};

TEST_F(AllScreens, AreGoneThroughByKeysFitOnASmallDesktopAndShowAllThatTheyHave)
{
    for (const Walk& walk : walks) {
        const forms::Form& form = walk.open();
        SCOPED_TRACE(form.name().toStdString());
        ASSERT_EQ(forms::activeForm(), &form);
        expectAccessKeys(form);
        if (form.name() == "frmBank")
            whileModal([] { press(Qt::Key_Return); }); // its date opens the calendar
        EXPECT_EQ(ring(form), walk.ring);
        EXPECT_LE(form.canvas()->sizeHint().width(), std::min(1024, forms::look::leastWindow().width()));
        for (const auto* button : form.canvas()->findChildren<QPushButton*>())
            EXPECT_GE(button->icon().actualSize({999, 999}).width(), 2 * button->iconSize().width())
                << button->objectName().toStdString() << " is blurred on a sharp screen";
        for (const forms::Control* control : form.controls())
            EXPECT_FALSE(control->isVisible() && isBlank(*control->widget())) << control->name().toStdString();
        forms::destroyScreens();
    }
}

/// Presses F1 on all that takes the focus, and notes the topics that open. What opens none is noted by its own name.
class HelpOnF1 : public AllScreens {
protected:
    HelpOnF1()
    {
        forms::setMessageDoor([](const forms::Message&) { return forms::Answer::No; }); // of what a focus says
        forms::setHelpDoor(
            [this](int number, const QString& window) { opened_ = number > 0 ? QString::number(number) : window; });
    }

    void pressOnAll(forms::Form& form)
    {
        form.show();
        for (forms::Control* control : form.controls()) {
            if (!control->canTakeFocus())
                continue;
            if (control->name() == "txtDate") // opens the calendar
                whileModal([] { press(Qt::Key_Return); });
            control->setFocus();
            opened_ = form.name() + '.' + control->name();
            press(Qt::Key_F1);
            topics_.insert(opened_);
        }
        form.hide();
    }

    void pressOnAreaScreens(const QString& menuTitle)
    {
        screen<frmAuto>().lblHead1[0].setCaption(menuTitle);
        screen<frmAuto>().load_It();
        screen<frmAddUpDel>().check_Form_Type();
        auto& menu = screen<frmEditCmbBoxes>();
        for (const editing::Kind* kind : {&editing::locations(), &editing::categories()}) {
            const editing::List& list = editing::listOf(areas::ofMenuTitle(menuTitle), *kind);
            menu.lblHead.setCaption(list.text(editing::MenuHeading));
            menu.MenuHelpNumber = list.menuHelp;
            menu.load_Help();
            screen<frmUpdate>().lblHead4.setCaption(list.text(editing::ChangeHeading));
            screen<frmDelField>().lblHead.setCaption(list.text(editing::DeleteHeading));
            for (forms::Form* form : std::initializer_list<forms::Form*>{&screen<frmAuto>(), &screen<frmAddUpDel>(),
                     &menu, &screen<frmAddField>(), &screen<frmUpdate>(), &screen<frmDelField>()})
                pressOnAll(*form);
        }
    }

    QString opened_;
    std::set<QString> topics_{"frmProgress", "frmExit", "frmExport", "frmRestore", "frmRestored", "CoverSheet",
        "AssetReport", "MsgBox"}; // of other programs, and without a control
};

TEST_F(HelpOnF1, OpensATopicOfTheBookOnEachControlOfEachScreenAndOnAReport)
{
    for (const Walk& walk : walks) {
        pressOnAll(walk.open());
        forms::destroyScreens();
    }
    pressOnAll(screen<frmCalendar>());
    for (const char* title : {"Indoor Asset Management", "Outdoor Asset Management", "Mobile Asset Management"})
        pressOnAreaScreens(title);
    addRow(Data1.rsBank, Bank::FinancialInstitution, QString("None ").repeated(12).trimmed().split(' '));
    for (const int mode : {frmEditBankBoxes::Add, frmEditBankBoxes::Update, frmEditBankBoxes::Delete}) {
        screen<frmEditBankBoxes>().AccountMode = mode;
        screen<frmBank>().ReturnFromCalendar = false;
        pressOnAll(screen<frmBank>());
    }
    reports::FillOutForm().show();
    settle();
    QTest::keyClick(reportWindow()->windowHandle(), Qt::Key_F1);
    EXPECT_EQ(opened_, "FillOutForm");

    const help::Book book(":/help");
    QStringList unknown;
    for (const QString& topic : topics_)
        unknown += book.knows(topic) ? QStringList() : QStringList(topic);
    EXPECT_EQ(unknown.join(' '),
        "frmAddUpDel.cmbCat frmWar.cmbLDay frmWar.cmbLMonth frmWar.cmbLYear frmWar.cmbPDay frmWar.cmbPMonth "
        "frmWar.cmbPYear")
        << "what refuses all keys";
    for (const QString& topic : book.topics())
        EXPECT_TRUE(topic.toInt() == 0 || topics_.contains(topic))
            << topic.toStdString() << " is the number of nothing";
}

using Navigation = ScreenTest;

TEST_F(Navigation, AsksBeforeTheProgramClosesByEveryWayOut)
{
    auto& menu = shown<frmMain>();
    expectToStay([&] { closeBox(menu); });
    expectToStay([] { accessKey('x'); });
    accessKey('m');
    expectToStay([] { closeBox(screen<frmAuto>()); });
    expectToStay([] { accessKey('x'); });
    accessKey('m');
    EXPECT_EQ(scene(), "2 frmMain: cmdAuto");
    menu.hide();
    shown<frmIntroduction>();
    expectToStay([] { closeBox(screen<frmIntroduction>()); });
}

TEST_F(Navigation, HidesTheScreenWhoseNumberIsKeptAndNoOther)
{
    const std::pair<int, forms::Form&> screens[] = {{1, screen<frmGenInfo>()}, {2, screen<frmMain>()},
        {7, screen<frmBank>()}, {10, screen<frmAddUpDel>()}, {15, screen<frmEditBankBoxes>()}};
    for (const auto& [kept, form] : screens)
        for (const int number : {0, 19, 20, kept == 1 ? 2 : 1, kept}) {
            form.show();
            frmStartup::CurrentScreen = number;
            screen<frmMain>().Hide_Screens();
            EXPECT_EQ(form.isVisible(), number != kept) << number << " for " << kept;
        }
}

} // namespace
