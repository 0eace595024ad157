// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/forms.h"
#include "shared/address.h"
#include "shared/numbered_screen.h"

/// The personal information of the household, and the way to its insurance policy and its financial accounts. The
/// index of an entry is the ordinal of its column.
class frmGenInfo : public NumberedScreen {
public:
    frmGenInfo();

    forms::ControlArray<forms::Label, 12> lblHead{*this, "lblHead"}; ///< heading, two instructions, the phones' frames
    forms::ControlArray<forms::Label, 17> lblInfo{*this, "lblInfo", {8, 9, 11, 12, 14, 15}};
    forms::ControlArray<forms::TextBox, 17> txtInfo{*this, "txtInfo", {5}};
    forms::ComboBox cmbState{*this, "cmbState"}; ///< the entry of index 5
    forms::CommandButton cmdInsInfo{*this, "cmdInsInfo"};
    forms::CommandButton cmdBank{*this, "cmdBank"};
    forms::ControlArray<forms::CommandButton, 1> cmdContinue{*this, "cmdContinue"};
    forms::ControlArray<forms::CommandButton, 1> cmdBack{*this, "cmdBack"};
    forms::CommandButton cmdExit{*this, "cmdExit"};
    forms::Label lblSelIn{*this, "lblSelIn"};
    forms::Label lblCopyright{*this, "lblCopyright"};

    /// Fills the entries from the household's row.
    void load_PersonalInfo();

    /// Writes the entries to the household's row.
    void save_It();

    void return_To_Menu();

private:
    void look();
    void lookOfEntries();
    void lookOfButtons();
    void arrange();
    void answer();
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload(bool& cancel) override;
    void cmdInsInfo_Click();
    void cmdBank_Click();
    void cmdContinue_Click();
    void cmdBack_Click();
    void cmdExit_Click();
    void txtInfo_Change(int index);
    void show_In(int index, const QString& text);
    const forms::TextEntry& entry(int index) const;

    address::StateBox state_{cmbState, txtInfo[6]}; // hops on to the ZIP
    bool ChangedByCode = false; // hops answer the user's own changes
};
