// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "data/data_store.h"

#include <QString>

#include <span>

/// The three areas in which a household keeps its assets, and what differs between them.
namespace areas {

struct Area {
    QString name; ///< in cmbArea and in the inventory
    QString menuTitle; ///< of the area menu, the program's record of the current area
    int menuHelp; ///< the area menu's help number
    QString addHeading; ///< of the asset screen while an asset is added
    int addHelp; ///< the asset screen's help number then
    storage::TableView DataStore::*names; ///< the area's name table
    const char* namesTable; ///< and what that is called in the file
    bool preparesBeforeTelling; ///< a new name makes the screen ready for the next asset before the user is told

    storage::TableView& nameTable() const { return Data1.*names; }
};

/// All three, in the order of the main menu.
std::span<const Area> all();

/// The area of a title; Mobile for any title but the other two.
const Area& ofMenuTitle(const QString& title);

/// The area of a name; Mobile for any name but the other two.
const Area& ofName(const QString& name);

/// The same without regard to case.
const Area& ofNameUpper(const QString& name);

/// The area of exactly this name, or none.
const Area* find(const QString& name);

/// The same without regard to case.
const Area* findUpper(const QString& name);

} // namespace areas
