// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/controls/text_box.h"

#include <QStringList>

namespace forms {

class ComboEdit;
class ItemList;

enum class ComboStyle { Editable, PickOnly };
enum class ItemOrder { AsAdded, Sorted };

/// A box with a list. The user's pick, by mouse or cursor keys, fires Click and not Change. A text set by code fires
/// Change on the editable style and, where it selects another item, Click on the pick-only style.
class ComboBox : public TextEntry {
public:
    ComboBox(
        Form& form, const QString& name, ComboStyle style = ComboStyle::Editable, ItemOrder order = ItemOrder::AsAdded);

    /// Adds an item at the end or, sorted, where `values::compareNames` puts it, behind its equals. Text and selection
    /// stay.
    void addItem(const QString& item);

    /// Adds many at once, with the result of adding them one by one.
    void addItems(const QStringList& items);

    /// Empties the list and the text; no event fires.
    void clear();

    int listCount() const;

    /// An item; one past the end reads as empty.
    QString list(int index) const;

    /// The selected item's index, -1 for none. Setting it fires Click where it selects another item.
    int listIndex() const;
    void setListIndex(int index);

    QString text() const override;

    /// On the pick-only style a text that is not in the list is refused with an InvalidCall failure.
    void setText(const QString& text) override;
    void setLocked(bool locked) override;
    bool isLocked() const override;

    /// Makes the box wide enough for so many average characters; `least` as for a box of text.
    void setWidthInCharacters(int characters, int least = 0);

    /// Opens the list, as the user's click on the arrow does.
    void openList();

    /// The user opens the list; it isn't on the screen yet. A locked box has the event too: unlocked here, its list
    /// opens.
    Event<> DropDown{path(), "DropDown"};

private:
    friend class ComboEdit;

    Entry* entry() const override;

    ComboStyle style_;
    ItemOrder order_;
    ComboEdit* combo_;
    ItemList* items_;
};

} // namespace forms
