// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "assets/money_field.h"
#include "data/data_store.h"
#include "platform/forms/forms.h"
#include "shared/numbered_screen.h"

#include <array>
#include <initializer_list>

class QGridLayout;

/// The warranty of one asset: a coverage of parts, one of labor, and terms. They are columns of the asset's own row,
/// which is found by AssetKey of the asset screen.
class frmWar : public NumberedScreen {
public:
    frmWar();

    forms::ControlArray<forms::Label, 3> lblHead{*this, "lblHead"};
    forms::ControlArray<forms::Label, 11> lblSubhead{*this, "lblSubhead"};
    forms::TextBox txtName{*this, "txtName"};
    forms::ComboBox cmbParts{*this, "cmbParts"};
    forms::TextBox txtPAmt{*this, "txtPAmt"};
    forms::TextBox txtPCover{*this, "txtPCover"};
    forms::ComboBox cmbPMonth{*this, "cmbPMonth"};
    forms::ComboBox cmbPDay{*this, "cmbPDay"};
    forms::ComboBox cmbPYear{*this, "cmbPYear"};
    forms::Picture picPDate{*this, "picPDate"};
    forms::ComboBox cmbLabor{*this, "cmbLabor"};
    forms::TextBox txtLAmt{*this, "txtLAmt"};
    forms::TextBox txtLCover{*this, "txtLCover"};
    forms::ComboBox cmbLMonth{*this, "cmbLMonth"};
    forms::ComboBox cmbLDay{*this, "cmbLDay"};
    forms::ComboBox cmbLYear{*this, "cmbLYear"};
    forms::Picture picLDate{*this, "picLDate"};
    forms::MemoBox txtDescription{*this, "txtDescription"};
    forms::CommandButton cmdCancel{*this, "cmdCancel"};
    forms::CommandButton cmdSave{*this, "cmdSave"};
    forms::Label lblSelIn{*this, "lblSelIn"};
    forms::Label lblCopyright{*this, "lblCopyright"};

    /// The targets of the calendar.
    static constexpr int PartsDate = 1;
    static constexpr int LaborDate = 2;

    /// Shows the warranty of the asset. Where the asset is gone, what the screen held last stays.
    void load_It();

private:
    /// The boxes in which one of the two coverages ends.
    struct Expiry {
        forms::ComboBox& month;
        forms::ComboBox& day;
        forms::ComboBox& year;
        forms::Picture& icon;
        int DateTarget;
    };

    struct Entry;

    void look();
    void describeFields();
    void giveItems();
    void answerFields();
    void answer(const Expiry& end);
    void layOut();
    void size();
    QGridLayout* table();
    void addHead(QGridLayout& grid, int row, int head, Qt::Alignment vertical = Qt::AlignVCenter);
    void addCoverage(QGridLayout& grid, int row, int head, std::initializer_list<forms::TextEntry*> boxes,
        const forms::Picture& calendar);
    void Form_Activate() override;
    void Form_Unload(bool& cancel) override;

    static void month_Change(const Expiry& end);
    static void month_Click(const Expiry& end);
    static void day_GotFocus(const Expiry& end);
    static void year_KeyDown(const Expiry& end, int& KeyCode);
    static void coverage_KeyPress(int& KeyAscii);
    void picDate_Click(const Expiry& end);
    static void write_Date(const Expiry& end, const forms::MonthCalendar& date);
    void cmdSave_Click();
    void cmdCancel_Click();

    std::array<Entry, 13> entries();
    static bool find_Its_Asset();
    void return_To_Asset();

    bool WarChanged = false;
    MoneyField partsAmount_{txtPAmt};
    MoneyField laborAmount_{txtLAmt};
    const std::array<Expiry, 2> expiries_{
        {{cmbPMonth, cmbPDay, cmbPYear, picPDate, PartsDate}, {cmbLMonth, cmbLDay, cmbLYear, picLDate, LaborDate}}};
};
