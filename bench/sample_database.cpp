// SPDX-License-Identifier: GPL-3.0-or-later
#include "sample_database.h"

#include "data/data_store.h"
#include "platform/storage/schema.h"

#include <QTemporaryDir>

#include <map>

using storage::TableView;

namespace {

void addAsset(TableView& view, int asset)
{
    view.AddNew();
    for (int column = Inventory::Area; column <= Inventory::WarrantyDescription; ++column)
        view.Fields(column) = sampleText(asset, column);
    view.Update();
}

void fill(const QString& path, int assets)
{
    storage::createDatabase(path, databaseKey(), databaseTables());
    DataStore store;
    store.Home.open(path, databaseKey());
    store.rsInventory.Open();
    storage::Transaction transaction(store.Home.handle());
    for (int asset = 0; asset < assets; ++asset)
        addAsset(store.rsInventory, asset);
    transaction.commit();
}

// Of 40 to 254 characters.
QString description(int asset)
{
    static const QString told = QStringLiteral("Bought together with its companion from the dealer at the corner, "
                                               "mended twice since; the left leg was glued in "
                                               "the summer of the flood, the varnish is the first one, and the drawer "
                                               "sticks when the weather turns. A photograph "
                                               "lies with the policy.");
    return QStringLiteral("What the owner tells of asset %1: ").arg(asset, 5) + told.left(1 + asset * 37 % 215);
}

} // namespace

QString sampleText(int asset, int column)
{
    switch (column) {
    case Inventory::Area:
        return QStringLiteral("Indoor");
    case Inventory::Location:
        return QStringLiteral("Room %1").arg(asset % 25);
    case Inventory::Category:
        return QStringLiteral("Category %1").arg(asset % 30);
    case Inventory::Type:
        return QStringLiteral("Item %1").arg(asset % 300);
    case Inventory::Year:
        return QString::number(1950 + asset % 75);
    case Inventory::Amount:
        return QStringLiteral("$%1.%2").arg(asset % 9000).arg(asset % 90 + 10);
    case Inventory::Make:
    case Inventory::Model:
    case Inventory::SerialVinId:
        return QStringLiteral("Text %1 of asset %2").arg(column).arg(asset);
    case Inventory::DatePurchased:
        return QStringLiteral("%1/%2/%3").arg(asset % 12 + 1).arg(asset % 28 + 1).arg(1990 + asset % 35);
    case Inventory::Description:
        return description(asset);
    default:
        return QStringLiteral("None");
    }
}

QString sampleDatabase(int assets)
{
    static const QTemporaryDir folder;
    static std::map<int, QString> made;
    QString& path = made[assets];
    if (path.isEmpty()) {
        path = folder.filePath(QStringLiteral("%1.db").arg(assets));
        fill(path, assets);
    }
    return path;
}
