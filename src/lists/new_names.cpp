// SPDX-License-Identifier: GPL-3.0-or-later
#include "lists/new_names.h"

#include "data/name_markers.h"
#include "platform/values/text.h"

NewNames::NewNames(const forms::ComboBox& list)
{
    known_.reserve(list.listCount());
    for (int index = 0; index < list.listCount(); ++index)
        known_.insert(values::upper(list.list(index)));
}

void NewNames::take(const QString& name)
{
    if (name.isEmpty() || name == names::Blank || !isNew(name, met_))
        return;
    if (isNew(values::upper(name), known_))
        names_.append(name);
}

bool NewNames::isNew(const QString& text, QSet<QString>& known)
{
    const qsizetype before = known.size();
    known.insert(text);
    return known.size() > before;
}
