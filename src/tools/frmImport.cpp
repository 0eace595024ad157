// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/frmImport.h"

#include "platform/forms/boxes/file_choice.h"
#include "platform/system/paths.h"
#include "shared/areas.h"
#include "shared/conventions.h"
#include "tools/exit_codes.h"
#include "tools/frmImportPlan.h"
#include "tools/restoring.h"
#include "tools/shown_path.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <utility>

using conventions::MsgBox;
using importing::Target;

namespace {

const QStringList kinds{
    QStringLiteral("Lists And Exports (*.csv *.tsv *.tab *.txt *.json)"), QStringLiteral("All Files (*)")};

QStringList columnsOf(const importing::ColumnSeen& column, const Target& target)
{
    return {column.heading, importing::nameOf(target), column.example};
}

// A field has one column: another one that had it goes to the end of the description.
void move(std::vector<Target>& targets, std::size_t at, const Target& target)
{
    if (target.kind == Target::Field)
        std::replace(targets.begin(), targets.end(), target, Target{Target::EndOfDescription});
    targets[at] = target;
}

} // namespace

frmImport::frmImport()
    : forms::Form("frmImport")
{
    look();
}

void frmImport::Form_Load()
{
    show_Source();
    tmStart.setEnabled(true);
}

void frmImport::Form_Unload(bool& /*cancel*/)
{
    forms::endProcess(exit_code::Done);
}

// Whoever wants to import is asked at once for the file.
void frmImport::tmStart_Timer()
{
    tmStart.setEnabled(false);
    cmdChoose_Click();
}

void frmImport::cmdChoose_Click()
{
    try {
        restoring::refuse_While_Running();
        const QString file = forms::chooseFile(
            "Choose The List To Import", source_ ? QFileInfo(source_->path()).path() : QDir::homePath(), kinds);
        if (!file.isEmpty())
            read(file);
    } catch (const Refusal& refusal) {
        MsgBox(refusal.words(), forms::box::Stop);
    }
}

void frmImport::read(const QString& file)
{
    {
        const forms::WaitPointer wait;
        source_ = importing::Source(sys::absolutePath(file)); // the one before stays where this one can't be read
    }
    targets_ = source_->targets();
    forms::screen<frmImportPlan>().forget();
    show_Source();
    announce(described());
    if (lstColumns.recordCount() > 0)
        lstColumns.setFocus();
    else
        cmdNext.setFocus();
}

// ---- what goes where

void frmImport::lstColumns_Click()
{
    const int picked = lstColumns.picked();
    before_ = targets_;
    if (picked >= 0)
        cmbTarget.setText(importing::nameOf(targets_[static_cast<std::size_t>(picked)]));
}

void frmImport::cmbTarget_GotFocus()
{
    before_ = targets_;
}

// The cursor keys pass through fields that aren't meant: what they took from other columns comes back.
void frmImport::cmbTarget_Click()
{
    const int picked = lstColumns.picked();
    const auto target = importing::targetNamed(cmbTarget.text());
    if (picked < 0 || !target || targets_[static_cast<std::size_t>(picked)] == *target)
        return;
    targets_ = before_;
    move(targets_, static_cast<std::size_t>(picked), *target);
    show_Columns();
}

// ---- on to what would be imported

void frmImport::cmdNext_Click()
{
    try {
        restoring::refuse_While_Running();
        show_Plan();
    } catch (const Refusal& refusal) {
        MsgBox(refusal.words(), refusal.code() == exit_code::Declined ? forms::box::Information : forms::box::Stop);
    } catch (const UnreadableHousehold& failure) {
        MsgBox(QStringLiteral("Today's file can't be read: %1.").arg(failure.reason()), forms::box::Stop);
    }
}

void frmImport::show_Plan()
{
    auto& next = forms::screen<frmImportPlan>();
    next.make_Plan(*source_, choices());
    if (next.plan().needsDateOrder) {
        MsgBox("The dates can be read in two ways. Choose the order of their numbers.", forms::box::Exclamation);
        cmbDates.setFocus();
    } else if (next.plan().needsDecimalSign) {
        MsgBox("The amounts can be read in two ways. Choose the sign that stands before the cents.",
            forms::box::Exclamation);
        cmbDecimal.setFocus();
    } else {
        next.show_It();
        hide();
    }
}

void frmImport::go_On()
{
    show();
    cmdNext.setFocus();
}

importing::Choices frmImport::choices() const
{
    importing::Choices choices;
    choices.targets = targets_;
    choices.dates = static_cast<importing::DateOrder>(std::max(cmbDates.listIndex(), 0));
    choices.decimals = static_cast<importing::DecimalSign>(std::max(cmbDecimal.listIndex(), 0));
    if (cmbArea.listIndex() > 0)
        choices.otherwise[Inventory::Area] = cmbArea.text();
    const std::pair<Inventory::Column, const forms::TextBox&> boxes[] = {
        {Inventory::Location, txtLoc}, {Inventory::Category, txtCat}, {Inventory::DatePurchased, txtPur}};
    for (const auto& [column, box] : boxes)
        if (const QString text = box.text().trimmed(); !text.isEmpty())
            choices.otherwise[column] = text;
    return choices;
}

// ---- what is shown

void frmImport::show_Source()
{
    if (source_) {
        lblFile.setCaption(shownPath(QFileInfo(source_->path()).fileName()) + u'\n' + described());
    } else {
        lblFile.setCaption("Choose a list that a spreadsheet or another program has saved as CSV, or the file "
                           "kestrill.json of an export.");
    }
    fill_Columns();
    enable_Choices();
}

QString frmImport::described() const
{
    const auto rows = static_cast<int>(source_->rows().size());
    return source_->described() + QStringLiteral(", ") + counted(rows, QStringLiteral("row"), QStringLiteral("rows"));
}

void frmImport::fill_Columns()
{
    std::vector<QStringList> lines;
    for (std::size_t i = 0; i < targets_.size(); ++i)
        lines.push_back(columnsOf(source_->columns()[i], targets_[i]));
    lstColumns.clear();
    lstColumns.addRecords(lines);
    cmbDates.setListIndex(0);
    cmbDecimal.setListIndex(0);
}

void frmImport::show_Columns()
{
    for (std::size_t i = 0; i < targets_.size(); ++i)
        lstColumns.setRecord(static_cast<int>(i), columnsOf(source_->columns()[i], targets_[i]));
}

// An export has its own columns, and everything in them.
void frmImport::enable_Choices()
{
    const bool isTable = source_ && source_->kind() == importing::Source::Kind::Table;
    for (forms::Control* control : std::initializer_list<forms::Control*>{
             &lstColumns, &cmbTarget, &cmbDates, &cmbDecimal, &cmbArea, &txtLoc, &txtCat, &txtPur})
        control->setEnabled(isTable);
    cmdNext.setEnabled(source_.has_value());
    if (source_)
        cmdNext.setDefault(true);
    else
        cmdChoose.setDefault(true);
}
