// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "data/data_store.h"
#include "shared/areas.h"
#include "shared/ways.h"

/// What the list editors work on: the names of one kind in one area. A difference that isn't in these tables isn't
/// there.
namespace editing {

/// A kind of names, and where they stand.
struct Kind {
    QString name;
    Names::Column column;
    Inventory::Column assetColumn;
    QString marker;
    forms::ComboBox AssetScreen::*box; ///< on the asset screen
};

const Kind& locations();
const Kind& categories();
const Kind& items(); ///< what is neither; no marker leads to an editor of items

/// A list that can be edited: one kind in one area. The mode of the editors travels in their headings.
struct List {
    const areas::Area& area;
    const Kind& kind;
    int menuHelp; ///< the help numbers of the menu and of the editors
    int addHelp;
    int changeHelp;
    int deleteHelp;
    bool storesByMovingOn; ///< a deletion leaves each row edited, and the move to the next one stores it

    QString text(const QString& pattern) const;
    storage::TableView& names() const { return area.nameTable(); }
};

/// The headings of the menu and of the editors, "{area}" and "{kind}" standing for the names.
inline const QString MenuHeading = QStringLiteral("Add/Edit {area} {kind}");
inline const QString AddHeading = QStringLiteral("Add {area} {kind}");
inline const QString ChangeHeading = QStringLiteral("Change {area} {kind}");
inline const QString DeleteHeading = QStringLiteral("Delete {area} {kind}");

/// The pattern with the names put in.
QString text(const QString& pattern, const areas::Area& area, const Kind& kind);

/// The list of locations or of categories of an area.
const List& listOf(const areas::Area& area, const Kind& kind);

/// The list to which the pattern gives exactly this text, or none.
const List* listWith(const QString& pattern, const QString& text);

/// The kind of that list; items where there is none.
const Kind& kindWith(const QString& pattern, const QString& text);

/// The box of the asset screen that lists this kind.
forms::ComboBox& boxOf(const Kind& kind);

/// Refuses an empty box: tells so, colours it and puts the focus there. A box with a text becomes white again.
bool isMissing(forms::TextEntry& box, const QString& message);

/// Fills an editor's list with the names of a box of the asset screen, without the marker.
void copyNames(forms::ComboBox& list, const Kind& kind);

/// Refills the asset screen's box from its table, the marker first.
void refillBox(const List& list);

} // namespace editing
