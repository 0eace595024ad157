// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shared/option_menu.h"

namespace editing {
struct Kind;
}

/// The menu between the asset screen and the list editors: add, change or delete a name of the list whose heading
/// stands in lblHead.
class frmEditCmbBoxes : public OptionMenu {
public:
    frmEditCmbBoxes();

    int MenuHelpNumber = 0;

    /// Gives the controls the number that the asset screen has written.
    void load_Help();

private:
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
