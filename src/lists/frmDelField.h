// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/forms.h"
#include "shared/numbered_screen.h"

namespace editing {
struct List;
}

/// Deletes a name from the list whose heading stands in lblHead, unless the name came with the program or an asset
/// carries it.
class frmDelField : public NumberedScreen {
public:
    frmDelField();

    forms::Label lblHead{*this, "lblHead"};
    forms::Label lblHead2{*this, "lblHead2"};
    forms::Label lblHead3{*this, "lblHead3"};
    forms::Label lblChoice{*this, "lblChoice"};
    forms::ComboBox cmbCat{*this, "cmbCat", forms::ComboStyle::Editable, forms::ItemOrder::Sorted};
    forms::CommandButton cmdUpdate{*this, "cmdUpdate"};
    forms::CommandButton cmdCancel{*this, "cmdCancel"};
    forms::Label lblSelIn{*this, "lblSelIn"};
    forms::Label lblCopyright{*this, "lblCopyright"};

    /// Offers the names that the asset screen lists.
    void load_Combo();

private:
    void look();
    void Form_Activate() override;
    void Form_Unload(bool& cancel) override;
    void cmdUpdate_Click();
    void cmdCancel_Click();

    void load_Help();
    bool is_Confirmed(const editing::List* list) const;
    bool is_Refused(const editing::List& list) const;
    bool is_Standard(const editing::List& list) const;
    bool is_In_Use(const editing::List& list) const;
    void blank_Name(const editing::List& list);
    void reload_Combo_Boxes();
    void return_To_Asset();
    void leave_To_Asset();

    int HelpNumber = 0;
};
