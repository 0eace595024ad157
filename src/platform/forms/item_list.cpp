// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/item_list.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>

namespace forms {

// ---- the items

int ItemList::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(items_.size());
}

// Asked for an item that isn't there too: an open list marks none where the box holds another text.
QVariant ItemList::data(const QModelIndex& index, int role) const
{
    const bool isText = role == Qt::DisplayRole || role == Qt::EditRole;
    if (!isText || !hasIndex(index.row(), index.column()))
        return {};
    return items_.at(index.row());
}

void ItemList::replace(const QStringList& items)
{
    beginResetModel();
    items_ = items;
    endResetModel();
}

// ---- the open list

OpenList::OpenList(QWidget* parent)
    : QListView(parent)
{
    setUniformItemSizes(true);
}

void OpenList::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Copy))
        copyMarked();
    else
        QListView::keyPressEvent(event);
}

// What isn't seen to be marked isn't copied: the toolkit has a current item that nobody has gone to.
void OpenList::copyMarked() const
{
    const QModelIndexList marked = selectedIndexes();
    if (!marked.isEmpty())
        QGuiApplication::clipboard()->setText(marked.first().data().toString());
}

} // namespace forms
