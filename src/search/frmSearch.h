// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/forms.h"
#include "platform/values/integer.h"

/// The screen from which assets are searched: by a word, and by four lists that narrow each other.
class frmSearch : public forms::Form {
public:
    frmSearch();

    forms::ControlArray<forms::Label, 5> lblHead{*this, "lblHead"};
    forms::TextBox txtKey{*this, "txtKey"};
    forms::ComboBox cmbArea{*this, "cmbArea", forms::ComboStyle::Editable, forms::ItemOrder::Sorted};
    forms::ComboBox cmbLocation{*this, "cmbLocation", forms::ComboStyle::Editable, forms::ItemOrder::Sorted};
    forms::ComboBox cmbCat{*this, "cmbCat", forms::ComboStyle::Editable, forms::ItemOrder::Sorted};
    forms::ComboBox cmbType{*this, "cmbType", forms::ComboStyle::Editable, forms::ItemOrder::Sorted};
    forms::ProgressBar pbSearch{*this, "pbSearch"};
    forms::CommandButton cmdBack{*this, "cmdBack"};
    forms::CommandButton cmdClearForm{*this, "cmdClearForm"};
    forms::CommandButton cmdContinue{*this, "cmdContinue"};

    values::Integer ClearLevel; ///< the level from which clear_listboxes starts
    void clear_listboxes();
};
