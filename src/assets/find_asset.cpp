// SPDX-License-Identifier: GPL-3.0-or-later
#include "assets/find_asset.h"

#include "data/data_store.h"

bool findAsset(qint64 id)
{
    auto& assets = Data1.rsInventory;
    assets.MoveTo(id);
    return !assets.atEOF();
}
