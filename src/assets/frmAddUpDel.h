// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "assets/money_field.h"
#include "platform/forms/forms.h"
#include "platform/values/integer.h"
#include "shared/areas.h"
#include "shared/ways.h"

#include <array>

namespace editing {
struct Kind;
}
namespace asset_rules {
struct Requirement;
}

/// The asset screen, on which one asset is entered, or one that was found is shown for update and deletion. It has no
/// load of its own: check_Form_Type prepares it.
class frmAddUpDel : public AssetScreen {
public:
    frmAddUpDel();

    forms::Label lblYear{*this, "lblYear", "Year"};
    forms::ComboBox cmbYear{*this, "cmbYear"};
    forms::Label lblMake{*this, "lblMake", "Make"};
    forms::TextBox txtMake{*this, "txtMake"};
    forms::Label lblModel{*this, "lblModel", "Model"};
    forms::TextBox txtMod{*this, "txtMod"};
    forms::Label lblSerial{*this, "lblSerial", "Serial"};
    forms::TextBox txtSerial{*this, "txtSerial"};
    forms::GroupBox frmPurNewUsed{*this, "frmPurNewUsed"};
    forms::ControlArray<forms::OptionButton, 2> optPurNewUsed{*this, "optPurNewUsed"}; ///< New, Used
    forms::Label lblPurchaseDate{*this, "lblPurchaseDate", "Purchase Date"};
    forms::TextBox txtPur{*this, "txtPur"};
    forms::Picture picDate{*this, "picDate"};
    forms::Label lblPurchasePrice{*this, "lblPurchasePrice", "Purchase Price"};
    forms::TextBox txtPPrice{*this, "txtPPrice"};
    forms::GroupBox frmReceipt{*this, "frmReceipt"};
    forms::ControlArray<forms::OptionButton, 2> optRecOnFile{*this, "optRecOnFile"}; ///< Yes, No
    forms::Label lblReceiptLocation{*this, "lblReceiptLocation", "Receipt Location"};
    forms::TextBox txtLoc{*this, "txtLoc"};
    forms::Label lblDescription{*this, "lblDescription", "Description"};
    forms::MemoBox txtDescription{*this, "txtDescription"};
    forms::CheckBox chkWar{*this, "chkWar"};
    forms::CheckBox chkClear{*this, "chkClear"};
    forms::CommandButton cmdWarranty{*this, "cmdWarranty"};
    forms::CommandButton cmdAdd{*this, "cmdAdd"};
    forms::CommandButton cmdUpdate{*this, "cmdUpdate"};
    forms::CommandButton cmdDelete{*this, "cmdDelete"};
    forms::CommandButton cmdCancel{*this, "cmdCancel"};
    forms::CommandButton cmdMain{*this, "cmdMain"};
    forms::CommandButton cmdClear{*this, "cmdClear"};
    forms::CommandButton cmdPrint{*this, "cmdPrint"};
    forms::Label lblSelIn{*this, "lblSelIn"};
    forms::Label lblCopyright{*this, "lblCopyright"};

    void default_To_Update() override;
    void check_Form_Type() override;

    /// Saves the asset on the screen as a new one, after a check of the input.
    void save_It();

    /// Empties the lists of locations, categories and items.
    void clear_ComboBoxes();

private:
    void look();
    void describeFields();
    void giveFirstValues();
    void describeButtons();
    void answerFields();
    void answerButtons();
    void layOut();
    void Form_Activate() override;
    void Form_Unload(bool& cancel) override;

    void cmbArea_Click();
    void cmbLoc_GotFocus();
    void cmbLoc_Click();
    void cmbCat_Click();
    void cmbYear_GotFocus();
    void cmbYear_LostFocus();
    static void fill_If_Empty(forms::TextEntry& box, const QString& text);
    void txtPur_KeyPress(int& KeyAscii);
    void optRecOnFile_GotFocus(int Index);
    void txtLoc_GotFocus();
    void txtLoc_KeyPress();
    void chkWar_Click();
    void chkClear_Click();
    void cmdWarranty_Click();
    void cmdUpdate_Click();
    void cmdDelete_Click();
    void cmdCancel_Click();
    void cmdMain_Click();
    void cmdClear_Click();
    void cmdPrint_Click();

    void prepare_For_Adding();
    void prepare_For_Updating();
    void load_Add_Mode();
    void load_Area(const areas::Area& area);
    void load_Update_Mode();
    bool find_Selected_Asset();
    void load_Asset();
    void load_War_Option();
    void load_Help_IDs();
    void reset_Fields();
    void empty_Details();
    void fill_Lists(const areas::Area& area);
    void open_List_Menu(const editing::Kind& kind);
    static void clear_Menu_Options();
    void open_Calendar();
    bool leaving_Is_Confirmed();
    void return_To_Results();

    void check_Input();
    bool has_All_Required();
    forms::TextEntry& field_Of(Inventory::Column column);
    void refuse(const asset_rules::Requirement& unmet);
    void store_Asset();
    void add_Asset_Row();
    void put_Fields(storage::TableView& row);
    void add_To_Item_List();
    bool names_Are_Known(storage::TableView& table);
    void tell_And_Go_On();
    void open_Warranty_Of_New_Asset();
    void refuse_Date();

    void update_Asset();
    void follow_Price();
    void print_Asset();

    /// A field that shows a column as it stands.
    struct PlainField {
        forms::TextEntry& field;
        Inventory::Column column;
    };
    std::array<PlainField, 8> plain_Fields();

    values::Integer HelpBase;
    bool NoReceipt = false; // the user has last stepped onto the "No" receipt option
    bool InputBad = false;
    bool WarrantyDue = false; // chkWar was set when the save started
    bool LocIsNew = false;
    bool CatIsNew = false;
    bool ItemIsNew = false;
    QString SavedPrice; // as it stood when the asset was opened or last updated
    MoneyField moneyField_{txtPPrice};
};
