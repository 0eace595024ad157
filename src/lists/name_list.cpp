// SPDX-License-Identifier: GPL-3.0-or-later
#include "lists/name_list.h"

#include "platform/values/text.h"

#include <QSet>
#include <QStringList>

namespace {

// Collects names that a list lacks.
class NewNames {
public:
    explicit NewNames(const forms::ComboBox& list)
    {
        known_.reserve(list.listCount());
        for (int index = 0; index < list.listCount(); ++index)
            known_.insert(values::upper(list.list(index)));
    }

    void take(const QString& name)
    {
        if (name.isEmpty() || name == names::Blank)
            return;
        const qsizetype before = known_.size();
        known_.insert(values::upper(name));
        if (known_.size() > before)
            names_.append(name);
    }

    const QStringList& names() const { return names_; }

private:
    QSet<QString> known_; // in upper case
    QStringList names_;
};

void rewind(storage::TableView& table)
{
    if (table.RecordCount() != 0)
        table.MoveFirst();
}

} // namespace

void fill_Name_List(forms::ComboBox& list, storage::TableView& table, Names::Column column)
{
    NewNames found(list);
    for (rewind(table); !table.atEOF(); table.MoveNext())
        found.take(table.Fields(column).text());
    list.addItems(found.names());
}

void fill_Item_List(forms::ComboBox& list, storage::TableView& table, const QString& category)
{
    list.clear();
    NewNames found(list);
    for (rewind(table); !table.atEOF(); table.MoveNext())
        if (values::equalUpper(table.Fields(Names::Category).text(), category))
            found.take(table.Fields(Names::Type).text());
    list.addItems(found.names());
}
