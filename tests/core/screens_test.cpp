// SPDX-License-Identifier: GPL-3.0-or-later
#include "accounts/frmEditBankBoxes.h"
#include "assets/frmAddUpDel.h"
#include "assets/frmAuto.h"
#include "assets/frmWar.h"
#include "core/frmMain.h"
#include "household/frmGenInfo.h"
#include "household/frmInsInfo.h"
#include "household/frmIntroduction.h"
#include "household/frmKeyboard.h"
#include "household/frmTotals.h"
#include "lists/frmAddField.h"
#include "lists/frmDelField.h"
#include "lists/frmEditCmbBoxes.h"
#include "lists/frmUpdate.h"
#include "platform/forms/look.h"
#include "reports/frmPrint.h"
#include "search/frmSearch.h"
#include "search/frmSearchResults.h"
#include "support/harness.h"

#include <QAccessible>
#include <QApplication>
#include <QScreen>
#include <QShortcutEvent>
#include <QStringList>
#include <QWidget>

#include <algorithm>

namespace {

using forms::screen;

/// Notes what an access key reaches, and keeps it from acting.
class AccessKeys : public QObject {
public:
    AccessKeys() { qApp->installEventFilter(this); }

    QString reached(char letter)
    {
        reached_.clear();
        accessKey(letter);
        return reached_;
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::Shortcut)
            return false;
        reached_ += watched->objectName();
        return true;
    }

private:
    QString reached_;
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

forms::Form& toUpdate()
{
    shown<frmSearch>();
    type("Acme\n");
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

forms::Form& results()
{
    shown<frmSearch>();
    type("Acme\n");
    return screen<frmSearchResults>();
}

forms::Form& warranty()
{
    toUpdate();
    click(screen<frmAddUpDel>().cmdWarranty);
    return screen<frmWar>();
}

// With a date that is still to come, without which the notice asks for one.
forms::Form& policy()
{
    shown<frmInsInfo>();
    screen<frmInsInfo>().txtPolicyExpire.setText("1/1/2030");
    return screen<frmInsInfo>();
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
    {shown<frmTotals>, "cmdOK"},
    {shown<frmGenInfo>,
        "txtInfo(1) txtInfo(2) txtInfo(0) txtInfo(3) txtInfo(4) cmbState txtInfo(6) txtInfo(7) "
        "txtInfo(8) txtInfo(9) txtInfo(10) txtInfo(11) txtInfo(12) txtInfo(13) txtInfo(14) "
        "txtInfo(15) txtInfo(16) cmdInsInfo cmdBank cmdContinue(0) cmdBack(0) cmdExit"},
    {policy, "txtCompany txtPolicyNum txtPolicyExpire txtCoverageAmt chkNotify cmdUpdate cmdCancel cmdClear"},
    {shown<frmEditBankBoxes>, "optEdit(0) cmdUpdate cmdCancel"},
};

class AllScreens : public ScreenTest {
protected:
    void SetUp() override
    {
        ScreenTest::SetUp();
        for (int count = 0; count < 11; ++count) {
            Data1.rsInventory.AddNew();
            for (int column = Inventory::Area; column <= Inventory::WarrantyDescription; ++column)
                Data1.rsInventory.Fields(column) = column == Inventory::Amount ? "$12.50" : "None";
            Data1.rsInventory.Fields(Inventory::Area) = "Indoor";
            Data1.rsInventory.Fields(Inventory::Make) = "Acme";
            // Without a month its day asks for one.
            for (const auto month : {Inventory::PartsMonth, Inventory::LaborMonth})
                Data1.rsInventory.Fields(month) = "Jan";
            Data1.rsInventory.Update();
        }
    }

    static QStringList ring(const forms::Form& form, const std::function<void()>& step)
    {
        constexpr int most = 40;
        QStringList names;
        do {
            names += form.activeControl()->name();
            step();
        } while (form.activeControl()->name() != names.first() && names.size() < most);
        return names;
    }

    static void expectAccessKeys(const forms::Form& form)
    {
        AccessKeys keys;
        for (forms::Control* control : form.controls()) {
            const auto* button = dynamic_cast<forms::Button*>(control);
            if (!button || !button->canTakeFocus())
                continue;
            const QString caption = button->caption().remove("&&");
            if (const auto mark = caption.indexOf(u'&'); mark >= 0) {
                EXPECT_EQ(keys.reached(caption.at(mark + 1).toLatin1()), button->name());
            }
        }
    }
};

TEST_F(AllScreens, AreGoneThroughByTabAndEachAccessKeyReachesItsButton)
{
    for (const Walk& walk : walks) {
        const forms::Form& form = walk.open();
        SCOPED_TRACE(form.name().toStdString());
        ASSERT_EQ(forms::activeForm(), &form);
        expectAccessKeys(form);
        EXPECT_EQ(ring(form, tab).join(' '), walk.ring);
        forms::destroyScreens();
    }
}

TEST_F(AllScreens, FitOnASmallDesktopInOneSizeAndHaveNamesOfTheirOwn)
{
    QStringList names;
    for (const Walk& walk : walks) {
        const forms::Form& form = walk.open();
        SCOPED_TRACE(form.name().toStdString());
        EXPECT_LE(form.canvas()->sizeHint().width(), 1024);
        EXPECT_LE(form.canvas()->sizeHint().width(), forms::look::leastWindow().width());
        const QAccessibleInterface* window = QAccessible::queryAccessibleInterface(form.window());
        EXPECT_EQ(window->role(), QAccessible::Window);
        EXPECT_FALSE(names.contains(window->text(QAccessible::Name)));
        names.append(window->text(QAccessible::Name));
        forms::destroyScreens();
    }
    EXPECT_TRUE(names.contains("Welcome To Kestrill Main Menu"));
}

} // namespace
