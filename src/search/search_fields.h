// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/forms.h"
#include "shared/numbered_screen.h"

/// The search screen, as those know it that search by what it shows or raise its progress bar.
class SearchFields : public NumberedScreen {
public:
    forms::ControlArray<forms::Label, 5> lblHead{*this, "lblHead"}; ///< heading, lists, word, what to do, "And / Or"
    forms::TextBox txtKey{*this, "txtKey"};
    forms::Label lblArea{*this, "lblArea", "Area"};
    forms::ComboBox cmbArea{*this, "cmbArea", forms::ComboStyle::Editable, forms::ItemOrder::Sorted};
    forms::Label lblLocation{*this, "lblLocation", "Location"};
    forms::ComboBox cmbLocation{*this, "cmbLocation", forms::ComboStyle::Editable, forms::ItemOrder::Sorted};
    forms::Label lblCat{*this, "lblCat", "Category"};
    forms::ComboBox cmbCat{*this, "cmbCat", forms::ComboStyle::Editable, forms::ItemOrder::Sorted};
    forms::Label lblType{*this, "lblType", "Item"};
    forms::ComboBox cmbType{*this, "cmbType", forms::ComboStyle::Editable, forms::ItemOrder::Sorted};
    forms::ProgressBar pbSearch{*this, "pbSearch"};

    /// Puts the progress bar in the place of the line that tells what to do, and takes it away again.
    void raise_Progress();
    void hide_Progress();

protected:
    using NumberedScreen::NumberedScreen;
};
