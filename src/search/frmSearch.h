// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/forms.h"
#include "platform/values/integer.h"
#include "search/search_fields.h"

/// The screen from which assets are searched: by a word, and by four lists that narrow each other. Who shows it
/// prepares it; hidden, it keeps what was typed and picked.
class frmSearch : public SearchFields {
public:
    frmSearch();

    forms::CommandButton cmdBack{*this, "cmdBack"};
    forms::CommandButton cmdClearForm{*this, "cmdClearForm"};
    forms::CommandButton cmdContinue{*this, "cmdContinue"};
    forms::Label lblSelIn{*this, "lblSelIn"};
    forms::Label lblCopyright{*this, "lblCopyright"};

    values::Integer ClearLevel; ///< the level from which clear_listboxes starts

    /// Sets the lists back to "Any": all four, or from ClearLevel on.
    void clear_listboxes();

private:
    struct AreaWalk;

    void look();
    void answer();
    void layOut();
    void Form_Activate() override;
    void Form_Unload(bool& cancel) override;

    void cmbArea_Click();
    void cmbLocation_GotFocus();
    void cmbCat_GotFocus();
    void cmbType_GotFocus();
    void cmbType_LostFocus();
    void cmdContinue_Click();
    void cmdClearForm_Click();
    void cmdBack_Click();

    void fill_Location_List();
    void fill_Category_List();
    void fill_Item_List();
    const AreaWalk* choose_Area();
    static bool is_Chosen(forms::ComboBox& box, const QString& demand);

    QString AreaKey; // the area chosen, in upper case
};
