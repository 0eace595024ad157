// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/controls/record_list.h"
#include "platform/forms/forms.h"
#include "tools/backups.h"
#include "tools/household.h"

#include <optional>

/// The backups, one of which takes the place of today's file when the user wants it.
class frmRestore : public forms::Form {
public:
    frmRestore();

    forms::Label lblHead{*this, "lblHead"};
    forms::Label lblTell{*this, "lblTell"};
    forms::Label lblToday{*this, "lblToday"};
    forms::Label lblList{*this, "lblList"};
    forms::RecordList lstBackups{*this, "lstBackups"};
    forms::Label lblState{*this, "lblState"};
    forms::ProgressBar pbRestore{*this, "pbRestore"};
    forms::CommandButton cmdRestore{*this, "cmdRestore"};
    forms::CommandButton cmdClose{*this, "cmdClose"};
    forms::Label lblSelIn{*this, "lblSelIn"};
    forms::Label lblCopyright{*this, "lblCopyright"};
    forms::Ticker tmRead{*this, "tmRead", 1};

private:
    void look();
    void layOut();
    void Form_Load() override;
    void Form_Unload(bool& cancel) override;
    void tell_Trouble();
    void tmRead_Timer();
    void lstBackups_Click();
    void cmdRestore_Click();
    void fill_List(std::vector<Backup> backups);
    void read_Today();
    void read_Backup(std::size_t index);
    void show_State();
    QString question(const Backup& chosen, const Household& household) const;
    void restore(const Backup& chosen);

    std::vector<Backup> list_;
    std::optional<Household> today_;
    QString whyNotToday_;
    bool isTodayRead_ = false;
};
