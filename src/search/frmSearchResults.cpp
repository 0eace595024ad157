// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/frmSearchResults.h"

#include "platform/forms/controls/behaviours.h"
#include "search/search_fields.h"
#include "shared/conventions.h"
#include "shared/ways.h"

#include <algorithm>
#include <exception>
#include <optional>

namespace {

// By SortColumn; 0 and 3 sort by nothing.
constexpr const char* sortColumns[] = {"", "Area", "Location", "", "Type", "Year", "Make", "Model"};

// By the index of the header. The first, which numbers the results, keeps the order.
constexpr int sortOfHeader[] = {0, 1, 2, 4, 5, 6, 7};

struct ShownColumn {
    frmSearchResults::ResultColumn frmSearchResults::*boxes;
    Print::Column column;
    bool isDetail; // left as it is, shown or hidden, when a page is turned
};

constexpr ShownColumn shownColumns[] = {
    {&frmSearchResults::txtArea, Print::Area, false},
    {&frmSearchResults::txtLocation, Print::Location, false},
    {&frmSearchResults::txtType, Print::Type, false},
    {&frmSearchResults::txtYear, Print::Year, true},
    {&frmSearchResults::txtMake, Print::Make, true},
    {&frmSearchResults::txtModel, Print::Model, true},
};

constexpr frmSearchResults::ResultColumn frmSearchResults::*unnamedColumns[] = {
    &frmSearchResults::txtIDNum, &frmSearchResults::txtMore, &frmSearchResults::txtItem};

// A button that can't be pressed again hands the focus to its counterpart, so that a second press of a key turns the
// page back and doesn't leave the screen.
void handOver(bool hadFocus, const forms::CommandButton& pressed, forms::CommandButton& counterpart)
{
    if (hadFocus && !pressed.isEnabled())
        counterpart.setFocus();
}

} // namespace

frmSearchResults::frmSearchResults()
    : NumberedScreen("frmSearchResults", 5)
    , rule_(ways::frmSearch())
{
    look();
}

void frmSearchResults::Form_Activate()
{
    CurrentScreen = Number;
}

void frmSearchResults::Form_Unload(bool& cancel)
{
    cancel = true;
    conventions::confirm_Close(*this);
}

// ---- buttons

void frmSearchResults::cmdNext_Click()
{
    const bool hadFocus = cmdNext.hasFocus();
    PageOffset += Rows;
    if (CurrentPage > 0)
        cmdPrevious.setEnabled(true);
    if (CurrentPage + 1 == PageCount)
        cmdNext.setEnabled(false);
    ++CurrentPage;
    show_Page_Number();
    load_Items();
    handOver(hadFocus, cmdNext, cmdPrevious);
}

void frmSearchResults::cmdPrevious_Click()
{
    const bool hadFocus = cmdPrevious.hasFocus();
    PageOffset -= Rows;
    --CurrentPage;
    show_Page_Number();
    if (CurrentPage < 2)
        cmdPrevious.setEnabled(false);
    if (CurrentPage <= PageCount)
        cmdNext.setEnabled(true);
    load_Items();
    handOver(hadFocus, cmdPrevious, cmdNext);
}

void frmSearchResults::cmdBack_Click()
{
    clear_Result_Rows();
    auto& search = ways::frmSearch();
    search.show();
    search.txtKey.setText({});
    search.pbSearch.setValue(0);
    hide();
}

void frmSearchResults::cmdPrint_Click()
{
    if (ways::report_Guard())
        return;
    try {
        ways::show_AssetReport();
    } catch (const std::exception&) {
        conventions::MsgBox(
            "Error Printing Report...Please Ensure Printer Is Turned On And Working Properly!", forms::box::Stop);
    }
}

void frmSearchResults::cmdMain_Click()
{
    clear_Result_Rows();
    ways::frmMain().show();
    hide();
}

void frmSearchResults::lblSubHead_Click(int Index)
{
    const forms::WaitPointer hourglass;
    if (Index > 0)
        SortColumn = sortOfHeader[Index];
    FromSearchScreen = false;
    begin_Load();
    Get_Records_For_Print();
}

// ---- rows

void frmSearchResults::txtMore_Click(int Index)
{
    SelectedAsset = txtIDNum[Index].text();
    ways::frmMain().FromResults = true;
    auto& asset = ways::frmAddUpDel();
    asset.AssetKey = values::Integer::fromText(SelectedAsset);
    asset.default_To_Update();
    asset.check_Form_Type();
    hide();
}

void frmSearchResults::txtMore_KeyPress(int Index, int KeyAscii)
{
    if (KeyAscii == forms::key::Enter)
        txtMore_Click(Index);
}

// The first header, as before any sort, where none is sorted by.
int frmSearchResults::headerSortedBy() const
{
    const auto* sorted = std::find(std::begin(sortOfHeader), std::end(sortOfHeader), SortColumn);
    return sorted == std::end(sortOfHeader) ? 0 : static_cast<int>(sorted - std::begin(sortOfHeader));
}

void frmSearchResults::clear_Result_Rows()
{
    for (int row = 0; row < Rows; ++row) {
        if (txtMore[row].isEnabled()) {
            txtMore[row].setEnabled(false);
            txtMore[row].setVisible(false);
        }
        // The other boxes stay where they have been shown.
        for (const auto boxes : unnamedColumns)
            (this->*boxes)[row].setText({});
        for (const ShownColumn& shown : shownColumns)
            (this->*shown.boxes)[row].setText({});
    }
}

void frmSearchResults::fill_Row(int number, Showing showing)
{
    txtMore[RowIndex].setEnabled(true);
    txtMore[RowIndex].setVisible(true);
    txtItem[RowIndex].setVisible(true);
    txtIDNum[RowIndex].setText(Data1.rsPrint.Fields(Print::ID).text());
    txtMore[RowIndex].setText("Update");
    txtItem[RowIndex].setText(QString::number(number));
    for (const ShownColumn& shown : shownColumns) {
        forms::TextBox& box = (this->*shown.boxes)[RowIndex];
        if (showing == Showing::WholeRow || !shown.isDetail)
            box.setVisible(true);
        box.setText(Data1.rsPrint.Fields(shown.column).text());
    }
    name_Row(number);
}

// Who hears the rows goes through their first boxes and is told which asset each would open.
void frmSearchResults::name_Row(int number)
{
    QStringList words;
    for (const auto boxes : {&txtType, &txtLocation, &txtYear, &txtMake})
        words += (*boxes)[RowIndex].text();
    txtMore[RowIndex].setSpokenName(QStringLiteral("Update %1: %2").arg(number).arg(words.join(", ")));
}

void frmSearchResults::tell_Result()
{
    const int header = headerSortedBy();
    const QString found = lblRecsFound.caption();
    setSpokenState(found);
    announce(header == 0 ? found : found + " Sorted By " + lblSubHead[header].caption());
}

// ---- the search

void frmSearchResults::load_From_Search_Screen()
{
    auto& search = ways::frmSearch();
    std::optional<forms::WaitPointer> hourglass;
    if (FromSearchScreen && rule_.finds_All()) {
        if (!conventions::confirmed(
                "This Search Will Display All Assets...Continue?", forms::box::Information + forms::box::YesNo)) {
            hide();
            search.show();
            AnyShown = false;
            search.txtKey.setFocus();
            return;
        }
        hourglass.emplace(); // for this search alone
    }
    begin_Load();
    clear_Result_Rows();
    Get_Records_For_Print();
}

// What both ways into a search begin with.
void frmSearchResults::begin_Load()
{
    cmdPrevious.setEnabled(false);
    forms::behaviours::showReleased(cmdNext);
    PageOffset = 0;
}

void frmSearchResults::Get_Records_For_Print()
{
    RowIndex = 0;
    KeyHit = false;
    AnyShown = false;
    auto& search = ways::frmSearch();
    ways::frmPrint().clear_Print_Database();
    search.pbSearch.setValue(0);
    if (Data1.rsInventory.RecordCount() != 0) {
        search.pbSearch.setMax(Data1.rsInventory.RecordCount());
        sort_Inventory();
        stage_Matches();
    }
    search.hide_Progress();
    show_First_Page();
}

// The order stays on the view, which all screens share.
void frmSearchResults::sort_Inventory()
{
    if (!Data1.rsInventory.atBOF())
        Data1.rsInventory.MoveFirst();
    Data1.rsInventory.Sort(sortColumns[SortColumn]);
    for (int header = 1; header < lblSorted.count(); ++header)
        lblSorted[header].setVisible(sortOfHeader[header] == SortColumn);
}

void frmSearchResults::stage_Matches()
{
    storage::TableView& assets = Data1.rsInventory;
    forms::ProgressBar& progress = ways::frmSearch().pbSearch;
    for (; !assets.atEOF(); assets.MoveNext()) {
        progress.setValue(progress.value() + 1);
        KeyHit = false;
        if (!rule_.names_Match(assets))
            continue;
        KeyHit = rule_.word_Occurs(assets);
        if (KeyHit || rule_.word_Is_Empty())
            copy_To_Print();
    }
}

void frmSearchResults::copy_To_Print()
{
    stageAsset();
    Data1.rsPrint.Update();
}

// ---- pages

void frmSearchResults::show_First_Page()
{
    RowIndex = CurrentPage = PageCount = MatchCount = 0;
    KeyHit = AnyShown = false;
    PageSize = Rows;
    count_Matches();
    cmdNext.setEnabled(MatchCount >= 11);
    fill_First_Page();
    if (AnyShown) {
        PageCount = MatchCount / Rows + (MatchCount % Rows > 0 ? 1 : 0);
        CurrentPage = 1;
        show_Page_Number();
        tell_Result();
        show();
    } else if (FromSearchScreen) {
        tell_Nothing_Found();
    }
    if (FromSearchScreen)
        ways::frmSearch().hide_Progress();
}

void frmSearchResults::count_Matches()
{
    storage::TableView& staged = Data1.rsPrint;
    forms::ProgressBar& progress = ways::frmSearch().pbSearch;
    if (FromSearchScreen)
        progress.setValue(0);
    if (staged.RecordCount() == 0)
        return;
    if (FromSearchScreen)
        progress.setMax(staged.RecordCount());
    for (staged.MoveFirst(); !staged.atEOF(); staged.MoveNext()) {
        if (FromSearchScreen)
            progress.setValue(progress.value() + 1);
        KeyHit = false;
        if (!rule_.names_Match(staged))
            continue;
        KeyHit = rule_.word_Occurs(staged);
        // Not as in the search: the word "empty" stands for an empty one here.
        if (KeyHit || rule_.word_Is("EMPTY"))
            ++MatchCount;
    }
}

void frmSearchResults::fill_First_Page()
{
    storage::TableView& staged = Data1.rsPrint;
    if (staged.RecordCount() == 0)
        return;
    for (staged.MoveFirst(); !staged.atEOF() && RowIndex < PageSize; staged.MoveNext()) {
        if (!rule_.matches(staged))
            continue;
        fill_Row(RowIndex + 1, Showing::WholeRow);
        lblRecsFound.setCaption(QString::number(MatchCount) + (MatchCount < 2 ? " Asset Found!" : " Assets Found!"));
        AnyShown = true;
        ++RowIndex;
    }
}

void frmSearchResults::tell_Nothing_Found()
{
    auto& search = ways::frmSearch();
    ways::hide_frmProgress(); // whose showing would close the program
    forms::MsgBox("No Assets Were Found Based On The Information You Entered!", forms::box::Exclamation,
        " Inventory Search Results");
    search.show();
    hide();
    search.txtKey.setFocus();
    search.txtKey.selectAll(); // where the focus has been there all along, too
    search.hide_Progress();
}

void frmSearchResults::show_Page_Number()
{
    lblPage.setCaption(QStringLiteral("Page %1 of %2").arg(CurrentPage).arg(PageCount));
}

void frmSearchResults::load_Items()
{
    clear_Result_Rows();
    RowIndex = 0;
    storage::TableView& staged = Data1.rsPrint;
    if (staged.RecordCount() == 0)
        return;
    staged.MoveFirst();
    for (int skipped = 0; skipped < PageOffset && !staged.atEOF(); ++skipped)
        staged.MoveNext();
    values::Integer running = PageOffset;
    for (; !staged.atEOF() && RowIndex < Rows; staged.MoveNext()) {
        if (!rule_.names_Match(staged))
            continue;
        fill_Row(running + 1, Showing::WithoutDetails);
        ++RowIndex;
        ++running;
    }
}
