// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/controls/record_list.h"
#include "platform/forms/forms.h"
#include "tools/import_plan.h"

#include <optional>

/// The file to import, and how it is read: where its columns go, and what an asset has that has nothing in a field.
class frmImport : public forms::Form {
public:
    frmImport();

    forms::Label lblHead{*this, "lblHead"};
    forms::Label lblFile{*this, "lblFile"};
    forms::CommandButton cmdChoose{*this, "cmdChoose"};
    forms::Label lblColumns{*this, "lblColumns"};
    forms::RecordList lstColumns{*this, "lstColumns"};
    forms::Label lblTarget{*this, "lblTarget"};
    forms::ComboBox cmbTarget{*this, "cmbTarget", forms::ComboStyle::PickOnly};
    forms::Label lblDates{*this, "lblDates"};
    forms::ComboBox cmbDates{*this, "cmbDates", forms::ComboStyle::PickOnly};
    forms::Label lblDecimal{*this, "lblDecimal"};
    forms::ComboBox cmbDecimal{*this, "cmbDecimal", forms::ComboStyle::PickOnly};
    forms::Label lblNone{*this, "lblNone"};
    forms::Label lblArea{*this, "lblArea"};
    forms::ComboBox cmbArea{*this, "cmbArea", forms::ComboStyle::PickOnly};
    forms::Label lblLoc{*this, "lblLoc"};
    forms::TextBox txtLoc{*this, "txtLoc"};
    forms::Label lblCat{*this, "lblCat"};
    forms::TextBox txtCat{*this, "txtCat"};
    forms::Label lblPur{*this, "lblPur"};
    forms::TextBox txtPur{*this, "txtPur"};
    forms::CommandButton cmdNext{*this, "cmdNext"};
    forms::CommandButton cmdClose{*this, "cmdClose"};
    forms::Label lblSelIn{*this, "lblSelIn"};
    forms::Label lblCopyright{*this, "lblCopyright"};
    forms::Ticker tmStart{*this, "tmStart", 1};

    /// Comes back from what would be imported.
    void go_On();

private:
    void look();
    void layOut();
    void answer();
    void Form_Load() override;
    void Form_Unload(bool& cancel) override;
    void tmStart_Timer();
    void cmdChoose_Click();
    void lstColumns_Click();
    void cmbTarget_GotFocus();
    void cmbTarget_Click();
    void cmdNext_Click();
    void read(const QString& file);
    void show_Source();
    QString described() const;
    void fill_Columns();
    void show_Columns();
    void enable_Choices();
    importing::Choices choices() const;
    void show_Plan();

    std::optional<importing::Source> source_;
    std::vector<importing::Target> targets_; // of the columns
    std::vector<importing::Target> before_; // as they were before the user moved through the fields
};
