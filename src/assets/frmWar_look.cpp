// SPDX-License-Identifier: GPL-3.0-or-later
#include "assets/frmWar.h"
#include "platform/forms/look.h"
#include "shared/conventions.h"
#include "shared/frmCalendar.h"

#include <QGridLayout>
#include <QVBoxLayout>
#include <QWidget>

namespace behaviours = forms::behaviours;

namespace {

constexpr int helpTopic = 6001;
constexpr int FirstYear = 2005;
constexpr int LastYear = 2050;
constexpr int LongestType = 255; // from so many characters on nothing more is typed

enum Subhead { AssetName, Parts, Labor, Type, Coverage, Amount, Expiration, Month, Day, Year, Terms };

constexpr const char* subheads[] = {"Asset Name", "Parts", "Labor", "Type", "Coverage", "Amount", "Expiration", "Month",
    "Day", "Year", "Terms && Conditions"};

/// The heads of the columns of the table, from the left.
constexpr Subhead columns[] = {Type, Amount, Coverage, Month, Day, Year};

QStringList years()
{
    QStringList years;
    for (int year = FirstYear; year <= LastYear; ++year)
        years.append(QString::number(year));
    return years;
}

} // namespace

void frmWar::look()
{
    setTitle(conventions::Title);
    setHelpNumber(helpTopic);
    lblHead[0].setCaption("Asset Warranty Information");
    lblHead[1].setCaption("First, Complete The Warranty Information Below:");
    lblHead[2].setCaption("Second, Click Save To Continue:");
    for (int index = 0; index < lblSubhead.count(); ++index)
        lblSubhead[index].setCaption(subheads[index]);
    lblSelIn.setCaption(conventions::HelpHint);
    lblCopyright.setCaption(conventions::Footer);
    describeFields();
    giveItems();
    layOut();
    answerFields();
    for (const Expiry& end : expiries_)
        answer(end);
    cmdSave.Click = [this] { cmdSave_Click(); };
    cmdCancel.Click = [this] { cmdCancel_Click(); };
}

void frmWar::describeFields()
{
    constexpr auto icon = " This Icon Opens A Calendar So A Date Can Be Selected ";
    forms::look::configure(
        {
            {txtName, 18, " This Is The Asset's Name That This Warranty Information Will Cover ", 254},
            {cmbParts, 1, " Enter The Warranty Parts Coverage Type For This Asset "},
            {txtPAmt, 2, " Enter The Maximum Dollar Amount Of Warranty Coverage For Parts Here ", 254},
            {txtPCover, 3, " Enter The Warranty Coverage Percentage Amount For Parts Here ", 3},
            {cmbPMonth, 4, " Enter The Month The Warranty Will Expire For Parts "},
            {cmbPDay, 5, " Enter The Day The Warranty Will Expire For Parts "},
            {cmbPYear, 6, " Enter The Year The Warranty Will Expire For Parts "},
            {picPDate, -1, icon},
            {cmbLabor, 7, " Enter The Warranty Labor Coverage Type For This Asset "},
            {txtLAmt, 8, " Enter The Maximum Dollar Amount Of Warranty Coverage For Labor Here ", 254},
            {txtLCover, 9, " Enter The Warranty Coverage Percentage Amount For Labor Here ", 3},
            {cmbLMonth, 10, " Enter The Month The Warranty Will Expire For Labor "},
            {cmbLDay, 11, " Enter The Day The Warranty Will Expire For Labor "},
            {cmbLYear, 12, " Enter The Year The Warranty Will Expire For Labor "},
            {picLDate, -1, icon},
            {txtDescription, 13, " Any Descriptive Information About The Warranty Can Be Entered Here ", 254},
        },
        helpTopic);
    forms::look::configure(
        {
            {cmdSave, 15, "&Save", " Click Here To Save Changes To The Warranty Information ", "ok"},
            {cmdCancel, 14, "&Cancel", " Click Here To Return To Previous Window ", "cancel"},
        },
        helpTopic);
    cmdSave.setDefault(true);
    txtName.setLocked(true); // for display
    txtName.setBackColour(forms::look::colours().buttonFace);
}

void frmWar::giveItems()
{
    for (forms::ComboBox* box : {&cmbParts, &cmbLabor})
        box->addItems({"None", "Limited", "Unlimited", "Lifetime", "Other"});
    for (const Expiry& end : expiries_) {
        end.month.addItems(frmCalendar::MonthNames);
        end.year.addItems(years());
        end.icon.setPicture(":/pictures/calendar.png", "Calendar");
    }
}

void frmWar::answerFields()
{
    for (forms::ComboBox* box : {&cmbParts, &cmbLabor}) {
        behaviours::selectOnClick(*box);
        behaviours::lengthCap(*box, LongestType);
    }
    for (forms::TextBox* box : {&txtPCover, &txtLCover}) {
        behaviours::selectOnClick(*box);
        box->KeyPress = [](int& KeyAscii) { coverage_KeyPress(KeyAscii); };
    }
    behaviours::selectOnClick(txtDescription);
}

void frmWar::answer(const Expiry& end)
{
    for (forms::ComboBox* box : {&end.month, &end.day, &end.year})
        behaviours::listOnly(*box);
    behaviours::movementOnly(end.month);
    behaviours::movementOnly(end.day);
    end.year.KeyDown = [&end](int& KeyCode) { year_KeyDown(end, KeyCode); };
    end.month.Change = [&end] { month_Change(end); };
    end.month.Click = [&end] { month_Click(end); };
    end.day.GotFocus = [&end] { day_GotFocus(end); };
    end.icon.Click = [this, &end] { picDate_Click(end); };
}

void frmWar::size()
{
    for (forms::ComboBox* box : {&cmbParts, &cmbLabor})
        box->setWidthInCharacters(14, 13); // "Manufacturer"
    for (forms::TextBox* box : {&txtPAmt, &txtLAmt})
        box->setWidthInCharacters(14, 8);
    for (forms::TextBox* box : {&txtPCover, &txtLCover})
        box->setWidthInCharacters(6, 4);
    for (const Expiry& end : expiries_) {
        end.month.setWidthInCharacters(6);
        end.day.setWidthInCharacters(5);
        end.year.setWidthInCharacters(7);
    }
    txtDescription.setSizeInCharacters(50, 5, 20);
    txtDescription.widget()->setMaximumWidth(QWIDGETSIZE_MAX); // as wide as the table above it
}

// A table with a row for each coverage; month, day and year stand under one head.
QGridLayout* frmWar::table()
{
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(forms::look::grid(1));
    grid->setVerticalSpacing(forms::look::grid(1) * 3 / 4);
    addHead(*grid, 0, AssetName);
    grid->addWidget(txtName.widget(), 0, 1, 1, -1);
    grid->setRowMinimumHeight(1, forms::look::grid(1));
    grid->addWidget(lblSubhead[Expiration].widget(), 2, 4, 1, 3);
    for (int column = 0; column < static_cast<int>(std::size(columns)); ++column)
        grid->addWidget(lblSubhead[columns[column]].widget(), 3, column + 1);
    addCoverage(*grid, 4, Parts, {&cmbParts, &txtPAmt, &txtPCover, &cmbPMonth, &cmbPDay, &cmbPYear}, picPDate);
    addCoverage(*grid, 5, Labor, {&cmbLabor, &txtLAmt, &txtLCover, &cmbLMonth, &cmbLDay, &cmbLYear}, picLDate);
    grid->setRowMinimumHeight(6, forms::look::grid(1));
    addHead(*grid, 7, Terms, Qt::AlignTop);
    grid->addWidget(txtDescription.widget(), 7, 1, 1, -1);
    return grid;
}

void frmWar::addHead(QGridLayout& grid, int row, int head, Qt::Alignment vertical)
{
    grid.addWidget(lblSubhead[head].widget(), row, 0, Qt::AlignRight | vertical);
}

void frmWar::addCoverage(QGridLayout& grid, int row, int head, std::initializer_list<forms::TextEntry*> boxes,
    const forms::Picture& calendar)
{
    addHead(grid, row, head);
    int column = 0;
    for (const forms::TextEntry* box : boxes) {
        forms::look::nameForTools(
            *box->widget(), QStringLiteral("%1 %2").arg(subheads[head], subheads[columns[column]]));
        grid.addWidget(box->widget(), row, ++column);
    }
    grid.addWidget(calendar.widget(), row, ++column);
}

void frmWar::layOut()
{
    size();
    lblSubhead[AssetName].nameFor(txtName);
    lblSubhead[Terms].nameFor(txtDescription);

    forms::look::Page page(*this);
    page.title(lblHead[0]);
    page.instruction(lblHead[1]);
    page.add(table());
    page.space(1);
    page.instruction(lblHead[2]);
    page.buttons({&cmdSave, &cmdCancel});
    page.space(1);
    page.foot(&lblSelIn, &lblCopyright);
}
