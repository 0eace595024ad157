// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/frmImportPlan.h"

#include "data/places.h"
#include "shared/conventions.h"
#include "tools/exit_codes.h"
#include "tools/frmImport.h"
#include "tools/frmImported.h"
#include "tools/importing.h"
#include "tools/shown_path.h"
#include "tools/shown_progress.h"

#include <QDir>
#include <QFileInfo>

using conventions::MsgBox;

namespace {

// Beside the list, where nobody has to look for it; at home, where the list's folder takes no file.
QString freshWrongFile(const QString& source)
{
    const QFileInfo from(source);
    const bool takesFiles = QFileInfo(from.path()).isWritable();
    const QString stem = (takesFiles ? from.path() : QDir::homePath()) + u'/' + from.completeBaseName()
        + QStringLiteral(" - wrong rows");
    QString file = stem + QStringLiteral(".csv");
    for (int more = 2; QFileInfo::exists(file); ++more)
        file = QStringLiteral("%1 (%2).csv").arg(stem).arg(more);
    return file;
}

QString whatToDo(const importing::Plan& plan)
{
    if (!plan.isPossible())
        return QStringLiteral("Rows that can't go in keep the others out. Mend them in the list, or leave them out.");
    if (!plan.bringsAnything())
        return QStringLiteral("There is nothing to import.");
    return QStringLiteral("Nothing is changed yet. Look through it, and click Import.");
}

} // namespace

frmImportPlan::frmImportPlan()
    : forms::Form("frmImportPlan")
{
    look();
}

void frmImportPlan::Form_Unload(bool& /*cancel*/)
{
    forms::endProcess(exit_code::Done);
}

void frmImportPlan::make_Plan(const importing::Source& source, const importing::Choices& choices)
{
    {
        const forms::WaitPointer wait;
        today_.emplace(places::databaseFile());
    }
    choices_ = choices;
    plan_From(source);
}

void frmImportPlan::show_It()
{
    show();
    if (cmdImport.isEnabled())
        cmdImport.setFocus();
    else
        lstRows.setFocus();
}

void frmImportPlan::forget()
{
    source_ = nullptr;
    for (forms::CheckBox* box : {&chkSkip, &chkKnown, &chkCut})
        box->setValue(0);
}

void frmImportPlan::plan_From(const importing::Source& source)
{
    choices_.skipsWrong = chkSkip.value() == 1;
    choices_.takesKnown = chkKnown.value() == 1;
    choices_.cutsTexts = chkCut.value() == 1;
    ShownProgress progress("The list is being looked through...", forms::activeForm()->window());
    plan_ = importing::planned(source, choices_, *today_, progress.told());
    source_ = &source;
    wrongFile_ = freshWrongFile(source.path());
    show_Plan();
}

// ---- what the user looks at and decides

void frmImportPlan::cmbShow_Click()
{
    lstRows.clear();
    const int shown = cmbShow.listIndex();
    if (shown >= 0)
        lstRows.addRecords(parts_[static_cast<std::size_t>(shown)].lines);
    lstRows_Click();
}

void frmImportPlan::lstRows_Click()
{
    const int picked = lstRows.picked();
    lblWhole.setCaption(
        picked < 0 ? QString() : lstRows.record(picked).join(QStringLiteral("  ")).trimmed().replace(u'\n', u' '));
}

void frmImportPlan::chkSkip_Click()
{
    if (!source_)
        return;
    plan_.skipsWrong = chkSkip.value() == 1;
    show_Buttons();
    announce(lblTell.caption());
}

void frmImportPlan::plan_Anew()
{
    if (!source_)
        return;
    try {
        plan_From(*source_);
        announce(spokenState());
    } catch (const Refusal& refusal) {
        MsgBox(refusal.words(), forms::box::Information);
        cmdBack_Click();
    }
}

void frmImportPlan::cmdBack_Click()
{
    forms::screen<frmImport>().go_On();
    hide();
}

// ---- the import

void frmImportPlan::cmdImport_Click()
{
    try {
        import();
    } catch (const Refusal& refusal) {
        wrongFile_ = freshWrongFile(source_->path()); // somebody may have taken that name
        show_Buttons();
        MsgBox(refusal.words(), refusal.code() == exit_code::Declined ? forms::box::Information : forms::box::Stop);
    }
}

void frmImportPlan::import()
{
    const QString wrongFile = plan_.wrong.empty() ? QString() : wrongFile_;
    importing::Result result;
    {
        ShownProgress progress("The assets are being imported...", window());
        result = importing::carry_Out(*source_, plan_, wrongFile, progress.told());
    }
    forms::screen<frmImported>().tell(plan_, result, wrongFile);
    hide();
}

// ---- what is shown

void frmImportPlan::show_Plan()
{
    lblAll.setCaption(QStringLiteral("To come: %1").arg(worth(static_cast<int>(plan_.assets.size()), plan_.sum)));
    for (int i = 0; i < lblArea.count(); ++i) {
        const importing::AreaCount& area = plan_.areas[static_cast<std::size_t>(i)];
        lblArea[i].setCaption(QStringLiteral("%1: %2").arg(area.area, worth(area.assets, area.sum)));
    }
    parts_ = importing::partsOf(plan_);
    cmbShow.clear();
    for (const importing::Part& part : parts_)
        cmbShow.addItem(part.name);
    cmbShow.setEnabled(!parts_.empty());
    if (parts_.empty())
        cmbShow_Click();
    else
        cmbShow.setListIndex(0);
    show_Buttons();
}

void frmImportPlan::show_Buttons()
{
    const bool isTable = source_ && source_->kind() == importing::Source::Kind::Table;
    chkSkip.setEnabled(!plan_.wrong.empty());
    chkKnown.setEnabled(!plan_.known.empty());
    chkCut.setEnabled(isTable && (!plan_.wrong.empty() || chkCut.value() == 1));
    const bool isWritten = !plan_.wrong.empty() && plan_.skipsWrong;
    lblWrongFile.setCaption(isWritten ? shownPath(wrongFile_) : QString());
    const bool isReady = plan_.isPossible() && plan_.bringsAnything();
    lblTell.setCaption(whatToDo(plan_));
    setSpokenState(lblAll.caption() + QStringLiteral(". ") + lblTell.caption());
    cmdImport.setEnabled(isReady);
    cmdImport.setDefault(isReady);
}
