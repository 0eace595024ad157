// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/report/layout.h"

/// What stands where on the three reports.
namespace layouts {

report::Layout AssetReport();
report::Layout CoverSheet();
report::Layout FillOutForm();

} // namespace layouts
