// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/forms.h"
#include "shared/numbered_screen.h"

/// The main menu, as the screens know it that go back there.
class MainMenu : public NumberedScreen {
public:
    /// The asset screen was reached from the results pager and goes back there.
    bool FromResults = false;

    /// The search screen was entered from this menu.
    bool FromMenu = false;

protected:
    using NumberedScreen::NumberedScreen;
};

/// The area menu: the caption of lblHead1(0) is the program's record of the current area.
class AreaMenu : public NumberedScreen {
public:
    forms::ControlArray<forms::Label, 1> lblHead1{*this, "lblHead1"};

protected:
    using NumberedScreen::NumberedScreen;
};

/// The asset screen, as the list editors, the results and the warranty know it.
class AssetScreen : public NumberedScreen {
public:
    forms::Label lblHead{*this, "lblHead"};
    forms::Label lblArea{*this, "lblArea", "Area"};
    forms::ComboBox cmbArea{*this, "cmbArea", forms::ComboStyle::PickOnly};
    forms::Label lblLocation{*this, "lblLocation", "Location"};
    forms::ComboBox cmbLoc{*this, "cmbLoc", forms::ComboStyle::Editable, forms::ItemOrder::Sorted};
    forms::Label lblCategory{*this, "lblCategory", "Category"};
    forms::ComboBox cmbCat{*this, "cmbCat", forms::ComboStyle::Editable, forms::ItemOrder::Sorted};
    forms::Label lblItem{*this, "lblItem", "Item"};
    forms::ComboBox cmbType{*this, "cmbType", forms::ComboStyle::Editable, forms::ItemOrder::Sorted};

    QString ListInEdit; ///< "Location" or "Category": the list that the editors work on
    values::Integer AssetKey; ///< the ID of the asset that the warranty screen works on

    /// Makes cmdUpdate the default button, and cmdAdd none.
    virtual void default_To_Update() = 0;

    /// Shows the screen, in the mode that FromResults of the main menu says.
    virtual void check_Form_Type() = 0;

protected:
    using NumberedScreen::NumberedScreen;
};

/// The print menu, as those know it that stage assets or come from it.
class PrintMenu : public NumberedScreen {
public:
    /// The search screen was entered for a custom printout; during a report run, a row was staged.
    bool CustomPrint = false;

    /// Empties the staging table and raises the progress display of the search screen.
    virtual void clear_Print_Database() = 0;

protected:
    using NumberedScreen::NumberedScreen;
};

class AccountMenu;
class OptionMenu;
class SearchFields;

/// The ways that lead back, or across the house: to a screen that isn't known where the way begins. By what is named
/// here two screens go to each other, and only one of them includes the other. frame/ways.cpp says which they are.
namespace ways {

MainMenu& frmMain();
AreaMenu& frmAuto();
AssetScreen& frmAddUpDel();
OptionMenu& frmEditCmbBoxes();
SearchFields& frmSearch();
PrintMenu& frmPrint();
NumberedScreen& frmGenInfo();
AccountMenu& frmEditBankBoxes();

/// The closing, and its being hidden where it was made: to make it would close the program.
forms::Form& frmProgress();
void hide_frmProgress();

/// Of the reports: true, after telling the user, while one is open; the asset report on the staging table.
bool report_Guard();
void show_AssetReport();

} // namespace ways
