// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/forms.h"

namespace editing {
struct Kind;
}

/// The menu between the asset screen and the list editors: add, change or delete a name of the list whose heading
/// stands in lblHead.
class frmEditCmbBoxes : public forms::Form {
public:
    frmEditCmbBoxes();

    forms::Label lblHead{*this, "lblHead"};
    forms::Label lblHead2{*this, "lblHead2"};
    forms::Label lblHead3{*this, "lblHead3"};
    forms::ControlArray<forms::OptionButton, 3> optEdit{*this, "optEdit"}; ///< Add, Change, Delete
    forms::CommandButton cmdUpdate{*this, "cmdUpdate"};
    forms::CommandButton cmdCancel{*this, "cmdCancel"};
    forms::Label lblSelIn{*this, "lblSelIn"};
    forms::Label lblCopyright{*this, "lblCopyright"};

    int MenuHelpNumber = 0;

    /// Gives the controls the number that the asset screen has written.
    void load_Help();

private:
    void look();
    void layOut();
    void Form_Activate() override;
    void Form_Unload(bool& cancel) override;
    void cmdUpdate_Click();
    void cmdCancel_Click();

    static void reset_Editors();
    void open_Add();
    void open_Change();
    void open_Delete();
    void add_Again();
    QString heading_Of(const QString& pattern) const;
    const editing::Kind& kind_In_Heading() const;

    // False where the list holds the name that was added last.
    bool LocationIsNew = true;
    bool CategoryIsNew = true;
    bool ItemIsNew = true;
};
