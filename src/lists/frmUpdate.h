// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/forms.h"
#include "shared/numbered_screen.h"

namespace editing {
struct List;
}

/// Changes a name of the list whose heading stands in lblHead4, and the assets of the area that carry it.
class frmUpdate : public NumberedScreen {
public:
    frmUpdate();

    forms::Label lblHead4{*this, "lblHead4"};
    forms::Label lblHead2{*this, "lblHead2"};
    forms::Label lblHead3{*this, "lblHead3"};
    forms::Label lblHead5{*this, "lblHead5"};
    forms::Label lblChoice{*this, "lblChoice"};
    forms::Label lblHead1{*this, "lblHead1"};
    forms::ComboBox cmbCat{*this, "cmbCat", forms::ComboStyle::Editable, forms::ItemOrder::Sorted};
    forms::TextBox txtNew{*this, "txtNew"};
    forms::CommandButton cmdUpdate{*this, "cmdUpdate"};
    forms::CommandButton cmdCancel{*this, "cmdCancel"};
    forms::Label lblSelIn{*this, "lblSelIn"};
    forms::Label lblCopyright{*this, "lblCopyright"};

    /// Offers the names that the asset screen lists.
    void load_Combo();

    /// Refills the asset screen's box of the list in edit and puts the new name into it.
    void reload_Combo_Boxes();

private:
    void look();
    void Form_Activate() override;
    void Form_Unload(bool& cancel) override;
    void cmdUpdate_Click();
    void cmdCancel_Click();

    void load_Help();
    bool is_Standard(const editing::List& list) const;
    void change(const editing::List& list);
    void remove_Old_Name(const editing::List& list);
    void add_New_Name(const editing::List& list);
    void change_Assets(const editing::List& list);
    void reload_Items();
    void leave_To_Asset();

    int HelpNumber = 0;
    bool NameFound = false; // the new name stands in a user's row already
};
