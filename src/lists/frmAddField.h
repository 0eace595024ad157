// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/forms.h"
#include "shared/numbered_screen.h"

namespace editing {
struct List;
}

/// Adds a name to the list whose heading stands in lblHead. It is also the host of the names that go back into the
/// asset screen when an editor closes.
class frmAddField : public NumberedScreen {
public:
    frmAddField();

    forms::Label lblHead{*this, "lblHead"};
    forms::Label lblHead2{*this, "lblHead2"};
    forms::Label lblHead3{*this, "lblHead3"};
    forms::Label lblChoice{*this, "lblChoice"};
    forms::TextBox txtAdd{*this, "txtAdd"};
    forms::CommandButton cmdUpdate{*this, "cmdUpdate"};
    forms::CommandButton cmdCancel{*this, "cmdCancel"};
    forms::Label lblSelIn{*this, "lblSelIn"};
    forms::Label lblCopyright{*this, "lblCopyright"};

    QString SavedLocation; ///< the last real location shown in cmbLoc
    QString SavedCategory; ///< the last real category shown in cmbCat

    /// Empties the asset screen's box of the list in edit.
    void clear_It();

    /// Puts the old selection back into the asset screen's box.
    void reload_Combobox();

private:
    void look();
    void Form_Activate() override;
    void Form_Unload(bool& cancel) override;
    void cmdUpdate_Click();
    void cmdCancel_Click();

    void load_Help();
    void mark_Text();
    bool is_Available(const editing::List& list) const;
    void add_Name(const editing::List& list);

    int HelpNumber = 0;
};
