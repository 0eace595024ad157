// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

/// Walks the inventory from its first row to the asset of an ID, which becomes the current row. False where there is
/// none; the inventory stands behind its last row then.
bool findAsset(qint64 id);
