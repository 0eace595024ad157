// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/forms.h"
#include "shared/ways.h"

/// The menu of the printed reports, and the staging of what they print.
class frmPrint : public PrintMenu {
public:
    frmPrint();

    forms::ControlArray<forms::Label, 2> lblHead1{*this, "lblHead1"};
    forms::ControlArray<forms::CommandButton, 1> cmdCover{*this, "cmdCover"};
    forms::ControlArray<forms::CommandButton, 1> cmdInPrint{*this, "cmdInPrint"};
    forms::ControlArray<forms::CommandButton, 3> cmdOutPrint{*this, "cmdOutPrint", {0, 1}};
    forms::ControlArray<forms::CommandButton, 2> cmdAutoPrint{*this, "cmdAutoPrint", {0}};
    forms::ControlArray<forms::CommandButton, 4> cmdAllPrint{*this, "cmdAllPrint", {0, 1, 2}};
    forms::ControlArray<forms::CommandButton, 5> cmdCustom{*this, "cmdCustom", {0, 1, 2, 3}};
    forms::ControlArray<forms::CommandButton, 1> cmdFillOutForm{*this, "cmdFillOutForm"};
    forms::ControlArray<forms::CommandButton, 1> cmdBack{*this, "cmdBack"};
    forms::Label lblSelIn{*this, "lblSelIn"};
    forms::Label lblCopyright{*this, "lblCopyright"};

    void clear_Print_Database() override;

    /// Takes the progress display away.
    void hide_Print_Progress();

    /// Stages the assets of the area in PrintArea and opens the asset report on them.
    void print_Assets();

private:
    void look();
    void layOut();
    void Form_Activate() override;
    void Form_Unload(bool& cancel) override;
    void cmdCover_Click();
    void cmdInPrint_Click();
    void cmdOutPrint_Click();
    void cmdAutoPrint_Click();
    void cmdAllPrint_Click();
    void cmdCustom_Click();
    void cmdFillOutForm_Click();
    void cmdBack_Click();
    void print_Area(const QString& area, forms::CommandButton* thenFocused);
    void stage_Asset();

    QString PrintArea; ///< in upper case
};
