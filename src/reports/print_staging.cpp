// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/frmPrint.h"

void frmPrint::clear_Print_Database() { }

void frmPrint::hide_Print_Progress() { }
