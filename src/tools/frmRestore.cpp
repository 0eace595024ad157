// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/frmRestore.h"

#include "data/earlier_backups.h"
#include "data/places.h"
#include "shared/conventions.h"
#include "tools/comparison.h"
#include "tools/exit_codes.h"
#include "tools/frmRestored.h"
#include "tools/restoring.h"

#include <algorithm>
#include <functional>
#include <utility>

using conventions::MsgBox;

namespace {

// A close while the window is open makes another file the last backup, under the name of the one that is listed.
bool areSame(const std::vector<Backup>& now, const std::vector<Backup>& listed)
{
    return std::ranges::equal(
        now, listed, [](const Backup& a, const Backup& b) { return a.made == b.made && a.file == b.file; });
}

} // namespace

frmRestore::frmRestore()
    : forms::Form("frmRestore")
{
    look();
}

void frmRestore::Form_Load()
{
    restoring::part_From_Today();
    tell_Trouble();
    fill_List(backups::all());
}

// Else nobody hears that the last close has kept no earlier backup: its screen stands for a moment only.
void frmRestore::tell_Trouble()
{
    const QString trouble = earlier::lastTrouble();
    if (!trouble.isEmpty())
        lblTell.setCaption(lblTell.caption() + u'\n' + trouble);
}

// What was read by then counts the next time.
void frmRestore::Form_Unload(bool& /*cancel*/)
{
    backups::remember(list_);
    forms::endProcess(exit_code::Done);
}

void frmRestore::tmRead_Timer()
{
    if (!isTodayRead_) {
        read_Today();
        return;
    }
    const auto unread = std::ranges::find_if_not(list_, &Backup::isRead);
    if (unread == list_.end()) {
        backups::remember(list_);
        tmRead.setEnabled(false);
        pbRestore.setVisible(false);
        return;
    }
    read_Backup(static_cast<std::size_t>(unread - list_.begin()));
}

void frmRestore::lstBackups_Click()
{
    show_State();
}

void frmRestore::cmdRestore_Click()
{
    std::vector<Backup> now = backups::all();
    if (!areSame(now, list_)) {
        fill_List(std::move(now));
        MsgBox("There are other backups by now. Choose again.", forms::box::Exclamation);
        return;
    }
    const auto picked = static_cast<std::size_t>(lstBackups.picked());
    const Backup& chosen = list_[picked];
    try {
        restoring::refuse_While_Running();
        const Household household(chosen.file);
        read_Today();
        if (MsgBox(question(chosen, household), forms::box::Exclamation + forms::box::YesNo) == forms::Answer::Yes)
            restore(chosen);
    } catch (const Refusal& refusal) {
        MsgBox(refusal.words(), forms::box::Stop);
    } catch (const UnreadableHousehold& failure) {
        MsgBox(QStringLiteral("This backup can't be restored: %1.").arg(failure.reason()), forms::box::Stop);
    }
}

void frmRestore::restore(const Backup& chosen)
{
    pbRestore.setValue(0);
    pbRestore.setMax(restoring::StepCount);
    pbRestore.setVisible(true);
    tmRead.setEnabled(false);
    try {
        const restoring::Result result = restoring::lay_Down(chosen, [this](int step) { pbRestore.setValue(step); });
        forms::screen<frmRestored>().tell(backups::spoken(chosen.made), result);
        hide();
    } catch (const Refusal&) {
        tmRead.setEnabled(true); // reads what is left, and takes the bar away
        throw;
    }
}

// The list stands at once; what is in each backup follows, one at a time.
void frmRestore::fill_List(std::vector<Backup> backups)
{
    list_ = std::move(backups);
    lstBackups.clear();
    for (const Backup& backup : list_)
        lstBackups.addRecord(backups::columnsOf(backup));
    cmdRestore.setEnabled(!list_.empty());
    isTodayRead_ = false;
    pbRestore.setValue(0);
    pbRestore.setMax(static_cast<int>(std::ranges::count_if(list_, std::not_fn(&Backup::isRead))) + 1);
    pbRestore.setVisible(true);
    show_State();
    tmRead.setEnabled(true);
}

void frmRestore::read_Today()
{
    isTodayRead_ = true;
    try {
        today_.emplace(places::databaseFile());
        lblToday.setCaption(QStringLiteral("Today's file: %1").arg(today_->summary()));
    } catch (const UnreadableHousehold& failure) {
        today_.reset();
        whyNotToday_ = failure.reason();
        lblToday.setCaption(QStringLiteral("Today's file: %1").arg(failure.state().toLower()));
    }
}

void frmRestore::read_Backup(std::size_t index)
{
    backups::read(list_[index]);
    lstBackups.setRecord(static_cast<int>(index), backups::columnsOf(list_[index]));
    pbRestore.setValue(std::min(pbRestore.value() + 1, pbRestore.max()));
    show_State();
}

void frmRestore::show_State()
{
    if (list_.empty()) {
        lblState.setCaption("There is no backup yet: the program makes one each time it is closed.");
        return;
    }
    const Backup& picked = list_[static_cast<std::size_t>(lstBackups.picked())];
    lblState.setCaption(!picked.isRead() ? QStringLiteral("This backup is being read...")
            : picked.isInOrder()         ? QStringLiteral("This backup can be read to its last page.")
                                         : QStringLiteral("This backup can't be restored: %1.").arg(picked.reason));
}

QString frmRestore::question(const Backup& chosen, const Household& household) const
{
    QStringList lines{QStringLiteral("Go back to the backup of %1?").arg(backups::spoken(chosen.made)), QString(),
        QStringLiteral("The backup: %1").arg(household.summary())};
    if (!today_) {
        lines.append(QStringLiteral("Today's file can't be read: %1").arg(whyNotToday_));
    } else {
        lines.append(QStringLiteral("Today's file: %1").arg(today_->summary()));
        const QStringList lost = what_Is_Lost(*today_, household);
        lines += QString();
        lines += lost.isEmpty() ? QStringList(QStringLiteral("Both hold the same.")) : lost;
    }
    lines += {QString(), QStringLiteral("Today's file is put aside and can be brought back in the same way.")};
    return lines.join(u'\n');
}
