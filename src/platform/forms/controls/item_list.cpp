// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/controls/item_list.h"

#include "platform/forms/controls/entry.h"
#include "platform/forms/looks/theme.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QScrollBar>
#include <QToolTip>

#include <algorithm>

namespace forms {

namespace {

constexpr int longestLine = 80; // characters

} // namespace

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
    setTextElideMode(Qt::ElideMiddle); // names of one room, one maker differ in their ends
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

// ---- long items

int OpenList::widthOf(const QModelIndex& item) const
{
    return sizeHintForIndex(item).width();
}

void OpenList::fitItems(int desktop)
{
    const QFontMetrics metrics = fontMetrics();
    int longest = 0;
    int longestAdvance = 0;
    for (int row = 0; row < model()->rowCount(); ++row) {
        const int advance = metrics.horizontalAdvance(model()->index(row, 0).data().toString());
        if (advance > longestAdvance)
            longest = row;
        longestAdvance = std::max(advance, longestAdvance);
    }
    const int bar = verticalScrollBar()->sizeHint().width();
    setMinimumWidth(std::min({widthOf(model()->index(longest, 0)) + bar, look::fieldWidth(longestLine), desktop}));
}

bool OpenList::viewportEvent(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QListView::viewportEvent(event);
    tellWhole(static_cast<const QHelpEvent&>(*event));
    return true;
}

void OpenList::tellWhole(const QHelpEvent& event) const
{
    const QModelIndex item = indexAt(event.pos());
    const bool isCut = item.isValid() && widthOf(item) > viewport()->width();
    QToolTip::showText(event.globalPos(), isCut ? asToolTip(item.data().toString()) : QString(), viewport());
}

// ---- copying

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
