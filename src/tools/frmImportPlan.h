// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/controls/record_list.h"
#include "platform/forms/forms.h"
#include "tools/household.h"
#include "tools/import_parts.h"

#include <optional>

/// What an import would do, row by row, and the import itself.
class frmImportPlan : public forms::Form {
public:
    frmImportPlan();

    forms::Label lblHead{*this, "lblHead"};
    forms::Label lblTell{*this, "lblTell"};
    forms::Label lblAll{*this, "lblAll"};
    forms::ControlArray<forms::Label, 3> lblArea{*this, "lblArea"}; ///< what comes to each
    forms::Label lblShow{*this, "lblShow"};
    forms::ComboBox cmbShow{*this, "cmbShow", forms::ComboStyle::PickOnly};
    forms::RecordList lstRows{*this, "lstRows"};
    forms::Label lblWhole{*this, "lblWhole"}; ///< of the row that is picked
    forms::CheckBox chkSkip{*this, "chkSkip"};
    forms::CheckBox chkKnown{*this, "chkKnown"};
    forms::CheckBox chkCut{*this, "chkCut"};
    forms::Label lblWrongFile{*this, "lblWrongFile"};
    forms::CommandButton cmdImport{*this, "cmdImport"};
    forms::CommandButton cmdBack{*this, "cmdBack"};
    forms::CommandButton cmdClose{*this, "cmdClose"};
    forms::Label lblSelIn{*this, "lblSelIn"};
    forms::Label lblCopyright{*this, "lblCopyright"};

    /// Finds out what a source would bring to today's file. Failures: Refusal, UnreadableHousehold; what was found out
    /// before stays.
    void make_Plan(const importing::Source& source, const importing::Choices& choices);
    const importing::Plan& plan() const { return plan_; }

    /// Comes forward with it, at the button to import where that is what is left to do.
    void show_It();

    /// Takes back what was ticked, before another source comes.
    void forget();

private:
    void look();
    void layOut();
    void answer();
    void Form_Unload(bool& cancel) override;
    void cmbShow_Click();
    void lstRows_Click();
    void chkSkip_Click();
    void plan_Anew();
    void cmdImport_Click();
    void cmdBack_Click();
    void plan_From(const importing::Source& source);
    void show_Plan();
    void show_Buttons();
    void import();

    const importing::Source* source_ = nullptr; // the first screen keeps it
    importing::Choices choices_;
    std::optional<Household> today_;
    importing::Plan plan_;
    std::vector<importing::Part> parts_; // that the list can show
    QString wrongFile_;
};
