// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/forms.h"
#include "platform/values/integer.h"
#include "search/match_rule.h"
#include "shared/numbered_screen.h"

/// The pager of search results: ten rows of the staging table at a time. A row opens its asset in the asset screen, a
/// header sorts, a button prints all results.
class frmSearchResults : public NumberedScreen {
public:
    static constexpr int Rows = 10;
    using ResultColumn = forms::ControlArray<forms::TextBox, Rows>;

    frmSearchResults();

    forms::ControlArray<forms::Label, 1> lblHead{*this, "lblHead"};
    forms::Label lblRecsFound{*this, "lblRecsFound"};
    forms::Label lblPage{*this, "lblPage"};
    forms::ControlArray<forms::Label, 7> lblSubHead{*this, "lblSubHead"};
    forms::ControlArray<forms::Label, 7> lblSorted{*this, "lblSorted", {0}}; ///< beside the header sorted by
    ResultColumn txtMore{*this, "txtMore"};
    ResultColumn txtItem{*this, "txtItem"};
    ResultColumn txtArea{*this, "txtArea"};
    ResultColumn txtLocation{*this, "txtLocation"};
    ResultColumn txtType{*this, "txtType"};
    ResultColumn txtYear{*this, "txtYear"};
    ResultColumn txtMake{*this, "txtMake"};
    ResultColumn txtModel{*this, "txtModel"};
    ResultColumn txtIDNum{*this, "txtIDNum"};
    forms::CommandButton cmdPrevious{*this, "cmdPrevious"};
    forms::CommandButton cmdNext{*this, "cmdNext"};
    forms::CommandButton cmdBack{*this, "cmdBack"};
    forms::CommandButton cmdPrint{*this, "cmdPrint"};
    forms::CommandButton cmdMain{*this, "cmdMain"};
    forms::Label lblSelIn{*this, "lblSelIn"};
    forms::Label lblCopyright{*this, "lblCopyright"};

    values::Integer SortColumn; ///< Area 1, Location 2, Type 4, Year 5, Make 6, Model 7; orders all later searches too
    bool KeyHit = false; ///< the word was found in a column of the row under test
    bool FromSearchScreen = false; ///< the load comes from the search button, not from a sort or the asset screen
    bool AnyShown = false; ///< the last load has shown a row at least
    values::Integer RowIndex; ///< the row on the page that is filled
    values::Integer PageOffset; ///< rows of the staging table before the page
    values::Integer PageCount;
    values::Integer PageSize;
    values::Integer CurrentPage; ///< counted from 1
    values::Integer MatchCount;
    QString SelectedAsset; ///< the ID of the opened asset, as text

    /// Searches by what the search screen shows, and fills the first page.
    void load_From_Search_Screen();

    /// Stages the assets that match, in the order chosen, and shows the first page of them.
    void Get_Records_For_Print();

    /// Fills the page that begins behind PageOffset.
    void load_Items();

private:
    enum class Showing { WholeRow, WithoutDetails };

    void look();
    void lookOfHeaders();
    void lookOfRows();
    void answer();
    void layOut();
    void Form_Activate() override;
    void Form_Unload(bool& cancel) override;

    void cmdNext_Click();
    void cmdPrevious_Click();
    void cmdBack_Click();
    void cmdPrint_Click();
    void cmdMain_Click();
    void lblSubHead_Click(int Index);
    void txtMore_Click(int Index);
    void txtMore_KeyPress(int Index, int KeyAscii);
    void any_KeyDown(int& KeyCode);

    void begin_Load();
    void clear_Result_Rows();
    void sort_Inventory();
    void stage_Matches();
    void copy_To_Print();
    void show_First_Page();
    void count_Matches();
    void fill_First_Page();
    void fill_Row(int number, Showing showing);
    void name_Row(int number);
    void tell_Result();
    void tell_Nothing_Found();
    void show_Page_Number();
    void sort_By_Neighbour(int direction);
    void turn_Page(forms::CommandButton& button);
    void step_Through_Rows(int direction);
    int rowInFocus() const;
    int headerSortedBy() const;

    MatchRule rule_;
};
