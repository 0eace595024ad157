// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "assets/money_field.h"
#include "data/data_store.h"
#include "platform/forms/forms.h"
#include "shared/address.h"
#include "shared/numbered_screen.h"

#include <array>

/// One financial account at a time: a new one, or those that are there, to be updated or deleted. The menu in front of
/// it chooses which and prepares cmdState, picDate and txtAccount.
class frmBank : public NumberedScreen {
public:
    frmBank();

    /// The name of an institution that isn't there yet.
    static inline const QString NoName = QStringLiteral("Enter Financial Institution");

    forms::Label lblMainHead{*this, "lblMainHead"};
    forms::TextBox txtName{*this, "txtName"};
    forms::ControlArray<forms::Label, 10> lblHead{*this, "lblHead"}; ///< names of entries; "(" 0, ")" 8 and "-" 9
    forms::ControlArray<forms::Label, 5> lblSubhead{*this, "lblSubhead", {0, 1, 2, 3}};
    forms::ControlArray<forms::Label, 7> lblChoice{*this, "lblChoice", {0, 1, 2, 3, 4, 5}};
    forms::TextBox txtAddress{*this, "txtAddress"};
    forms::TextBox txtCity{*this, "txtCity"};
    forms::ComboBox cmbState{*this, "cmbState", forms::ComboStyle::Editable, forms::ItemOrder::Sorted};
    forms::TextBox txtPhone1{*this, "txtPhone1"};
    forms::TextBox txtPhone2{*this, "txtPhone2"};
    forms::TextBox txtPhone3{*this, "txtPhone3"};
    forms::ComboBox cmbType{*this, "cmbType", forms::ComboStyle::Editable, forms::ItemOrder::Sorted};
    forms::TextBox txtAccount{*this, "txtAccount"};
    forms::TextBox txtRoute{*this, "txtRoute"};
    forms::TextBox txtBalance{*this, "txtBalance"};
    forms::TextBox txtDate{*this, "txtDate"};
    forms::Picture picDate{*this, "picDate"};
    forms::Label lblState{*this, "lblState"};
    forms::CommandButton cmdPrevious{*this, "cmdPrevious"};
    forms::CommandButton cmdNext{*this, "cmdNext"};
    forms::CommandButton cmdBack{*this, "cmdBack"};
    forms::CommandButton cmdState{*this, "cmdState"};
    forms::Label lblSelIn{*this, "lblSelIn"};
    forms::Label lblCopyright{*this, "lblCopyright"};

    /// The calendar has been opened since the menu: coming forward leaves the screen as it is.
    bool ReturnFromCalendar = false;

    /// The screen comes from the menu, and no calendar has been there since.
    bool FreshEntry = false;

private:
    struct Entry {
        forms::TextEntry& box;
        Bank::Column column;
    };

    void look();
    void lookOfEntries();
    void lookOfButtons();
    void answer();
    void layOut();
    void Form_Activate() override;
    void Form_Deactivate() override;
    void Form_Unload(bool& cancel) override;
    void txtAccount_KeyPress(int& KeyAscii);
    void phone_KeyUp(const forms::TextBox& piece, forms::Control& next);
    void show_Balance_Date_Calendar();
    void cmdNext_Click();
    void cmdPrevious_Click();
    void cmdState_Click();
    void cmdBack_Click();

    void prepare_For_Adding();
    void prepare_For_Deleting();
    void show_Existing_Accounts();
    void load_Account();
    void set_Help_Context();
    void reset_Account_Fields();
    void enable_Fields();
    void enable_All_But_Name(bool enabled);
    void show_In(forms::TextEntry& box, const QString& text);
    std::array<Entry, 12> entries();

    bool is_Known_Account();
    bool has_All_Required();
    void add_Account();
    void update_Account();
    void delete_Account();
    void store_Fields();
    void check_For_Changes();
    bool is_Filled_In() const;
    bool differs_From_Row();
    bool leaving_Is_Confirmed();
    void return_To_Personal_Information();

    int HelpContextBase = 0;
    bool AccountChanged = false;
    address::StateBox state_{cmbState, txtPhone1};
    MoneyField balance_{txtBalance};
};
