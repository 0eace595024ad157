// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/forms.h"

/// The closing sequence: dead rows of the name tables are removed, the views closed and the backup made.
class frmProgress : public forms::Form {
public:
    frmProgress();

    forms::ControlArray<forms::Label, 3> lblHead{*this, "lblHead"};
    forms::ProgressBar pbSave{*this, "pbSave"};

    void close_Program();

private:
    struct NameTable;

    void look();
    void Form_Activate() override;
    void Form_Unload(bool& cancel) override;
    void purge_Blank_Names(const NameTable& table);
};
