// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/screens/control.h"

#include <QStringList>

#include <vector>

class QTreeWidget;
class QTreeWidgetItem;

namespace forms {

/// Records below each other, each a line of columns under headings, of which the user picks one by mouse or by cursor
/// keys. Which one is picked is Click's to tell, as in a box with a list; a double click fires DblClick as well.
class RecordList : public Control {
public:
    RecordList(Form& form, const QString& name);

    /// The columns from left to right, by their headings and the widest text that each will hold.
    void setColumns(const QStringList& headings, const QStringList& widestTexts);

    /// Numbers stand on the right, where they can be compared.
    void alignRight(int column);

    void clear();
    void addRecord(const QStringList& texts);

    /// Adds many at once, with the result of adding them one by one.
    void addRecords(const std::vector<QStringList>& records);
    void setRecord(int index, const QStringList& texts);
    QStringList record(int index) const;
    int recordCount() const;

    /// The record picked, counted from 0; -1 for none. Setting it fires Click where it picks another one.
    int picked() const;
    void setPicked(int index);

    /// Makes room for so many records, and for `least` where the desktop has no room for them; what is more scrolls.
    void setRows(int rows, int least);

private:
    class Widget;

    QTreeWidgetItem* itemOf(const QStringList& texts) const;

    Widget* list_;
};

} // namespace forms
