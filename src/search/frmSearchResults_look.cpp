// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/look.h"
#include "search/frmSearchResults.h"
#include "shared/conventions.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QWidget>

namespace {

constexpr int HelpNumber = 5001;
constexpr QColor LightGrey{224, 224, 224};

struct ColumnLook {
    frmSearchResults::ResultColumn frmSearchResults::*boxes;
    const char* name; // as it is read out
    int header; // of lblSubHead; none below 0
    int width; // characters
    int least; // where the desktop has no room for more
    forms::Alignment alignment;
};

// From left to right. Numbers stand on the right, where they can be compared.
constexpr ColumnLook columnLooks[] = {
    {&frmSearchResults::txtMore, "Update", -1, 6, 6, forms::Alignment::Centre},
    {&frmSearchResults::txtItem, "Item", 0, 5, 5, forms::Alignment::Right},
    {&frmSearchResults::txtArea, "Area", 1, 7, 7, forms::Alignment::Left},
    {&frmSearchResults::txtLocation, "Location", 2, 14, 8, forms::Alignment::Left},
    {&frmSearchResults::txtType, "Asset", 3, 16, 9, forms::Alignment::Left},
    {&frmSearchResults::txtYear, "Year", 4, 6, 6, forms::Alignment::Right},
    {&frmSearchResults::txtMake, "Make", 5, 13, 7, forms::Alignment::Left},
    {&frmSearchResults::txtModel, "Model", 6, 13, 7, forms::Alignment::Left},
};

constexpr frmSearchResults::ResultColumn frmSearchResults::*longTexts[] = {&frmSearchResults::txtArea,
    &frmSearchResults::txtLocation, &frmSearchResults::txtType, &frmSearchResults::txtYear, &frmSearchResults::txtMake,
    &frmSearchResults::txtModel};

void makeLink(forms::TextBox& box)
{
    box.setTextColour(forms::look::colours().link);
    box.widget()->setCursor(Qt::PointingHandCursor);
    box.setToolTip(" Click Here To Update Or Delete This Asset ");
    box.setHelpNumber(HelpNumber);
    box.setEnabled(false);
}

// A header over the text of its column. The mark of the order stands on the side that the column leaves free, so that
// the header stays where it is.
QLayout* headerLine(frmSearchResults& form, int header, forms::Alignment alignment)
{
    const bool right = alignment == forms::Alignment::Right;
    auto* line = new QHBoxLayout;
    line->setDirection(right ? QBoxLayout::RightToLeft : QBoxLayout::LeftToRight);
    line->setSpacing(forms::look::grid(1) / 3);
    line->setContentsMargins(forms::look::textInset(), 0, forms::look::textInset(), 0);
    line->addWidget(form.lblSubHead[header].widget());
    if (form.lblSorted.has(header))
        line->addWidget(form.lblSorted[header].widget());
    line->addStretch();
    return line;
}

QLayout* resultGrid(frmSearchResults& form)
{
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(forms::look::grid(1) / 4);
    grid->setVerticalSpacing(forms::look::grid(1) / 4);
    int place = 0;
    for (const ColumnLook& look : columnLooks) {
        if (look.header >= 0)
            grid->addLayout(headerLine(form, look.header, look.alignment), 0, place);
        for (int row = 0; row < frmSearchResults::Rows; ++row)
            grid->addWidget((form.*look.boxes)[row].widget(), row + 1, place);
        ++place;
    }
    return grid;
}

} // namespace

void frmSearchResults::look()
{
    setTitle(conventions::Title);
    setHelpNumber(HelpNumber);
    window()->setAccessibleDescription("Ctrl+Left And Ctrl+Right Sort By Another Column");
    lblHead[0].setCaption("Search Results");
    lblRecsFound.setCaption("Assets Found");
    lblPage.setCaption("Page 1 of 1");
    lblSelIn.setCaption(conventions::HelpHint);
    lblCopyright.setCaption(conventions::Footer);
    forms::look::configure(
        {
            {cmdPrevious, 0, "<= Pre&vious", " Click Here To Go To Previous Page ", nullptr},
            {cmdNext, 1, "&Next =>", " Click Here To Go To Next Page ", nullptr},
            {cmdPrint, 2, "&Print Results", " Click Here To Print All Of The Assets From This Search ", "printer"},
            {cmdBack, 3, "New &Search", " Click Here To Return To Previous Window ", "magnifier"},
            {cmdMain, 4, "&Main Menu", " Click Here To Return To Main Menu ", "back"},
        },
        HelpNumber);
    cmdPrevious.setEnabled(false);
    cmdNext.setEnabled(false);
    lookOfHeaders();
    lookOfRows();
    answer();
    layOut();
}

void frmSearchResults::lookOfHeaders()
{
    const struct {
        const char* caption;
        const char* toolTip;
    } headers[] = {
        {"Item", ""},
        {"Area", " Click Here To Sort By Area "},
        {"Location", " Click Here To Sort By Location "},
        {"Asset", " Click Here To Sort By Asset "},
        {"Year", " Click Here To Sort By Year "},
        {"Make", " Click Here To Sort By Make "},
        {"Model", " Click Here To Sort By Model "},
    };
    for (int header = 0; header < lblSubHead.count(); ++header) {
        lblSubHead[header].setCaption(headers[header].caption);
        lblSubHead[header].setToolTip(headers[header].toolTip);
        lblSubHead[header].setRole(forms::TextRole::Instruction);
        if (!lblSorted.has(header))
            continue;
        lblSubHead[header].widget()->setCursor(Qt::PointingHandCursor);
        lblSorted[header].setCaption(QString(QChar(0x25B2)));
        lblSorted[header].setRole(forms::TextRole::Hint);
        lblSorted[header].setVisible(false);
    }
}

void frmSearchResults::lookOfRows()
{
    for (int row = 0; row < Rows; ++row) {
        for (const ColumnLook& look : columnLooks) {
            forms::TextBox& box = (this->*look.boxes)[row];
            box.setLocked(true);
            box.setBackColour(LightGrey);
            box.setAlignment(look.alignment);
            box.setWidthInCharacters(look.width, look.least);
            box.setSpokenName(QStringLiteral("%1, row %2").arg(look.name).arg(row + 1));
            box.setVisible(false);
            forms::look::keepPlace(box);
        }
        for (const auto boxes : longTexts)
            (this->*boxes)[row].setToldWhole(true);
        makeLink(txtMore[row]);
        txtIDNum[row].setVisible(false);
    }
}

void frmSearchResults::answer()
{
    for (forms::Control* control : controls())
        control->KeyDown = [this](int& KeyCode) { any_KeyDown(KeyCode); };
    for (int row = 0; row < Rows; ++row) {
        txtMore[row].Click = [this, row] { txtMore_Click(row); };
        txtMore[row].KeyPress = [this, row](int& KeyAscii) { txtMore_KeyPress(row, KeyAscii); };
    }
    for (int header = 0; header < lblSubHead.count(); ++header)
        lblSubHead[header].Click = [this, header] { lblSubHead_Click(header); };
    cmdPrevious.Click = [this] { cmdPrevious_Click(); };
    cmdNext.Click = [this] { cmdNext_Click(); };
    cmdBack.Click = [this] { cmdBack_Click(); };
    cmdPrint.Click = [this] { cmdPrint_Click(); };
    cmdMain.Click = [this] { cmdMain_Click(); };
}

void frmSearchResults::layOut()
{
    auto* counts = new QHBoxLayout;
    lblRecsFound.setRole(forms::TextRole::Instruction);
    lblPage.setRole(forms::TextRole::Instruction);
    counts->addWidget(lblRecsFound.widget());
    counts->addStretch();
    counts->addWidget(lblPage.widget());

    forms::look::Page page(*this);
    page.title(lblHead[0]);
    page.add(counts);
    page.add(resultGrid(*this));
    page.space(1);
    page.buttons({&cmdPrevious, &cmdNext, &cmdPrint, &cmdBack, &cmdMain});
    page.space(1);
    page.foot(&lblSelIn, &lblCopyright);
}
