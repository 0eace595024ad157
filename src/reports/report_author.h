// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/storage/snapshot.h"

/// The household whose inventory it is; the program, as long as no name has been entered.
QString report_Author(const storage::Snapshot& household);
