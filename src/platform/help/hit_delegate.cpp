// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/help/hit_delegate.h"

#include "platform/forms/look.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QPainter>

namespace help {

namespace {

int gap()
{
    return forms::look::grid(1) / 2;
}

// Of the item itself: the view's own text has other line breaks.
QString titleOf(const QModelIndex& index)
{
    return index.data().toString().section(u'\n', 0, 0);
}

QString excerptOf(const QModelIndex& index)
{
    return index.data().toString().section(u'\n', 1);
}

QFont boldOf(QFont font)
{
    font.setBold(true);
    return font;
}

QRect linesOf(const QFont& font, const QRect& room, const QString& text)
{
    return QFontMetrics(font).boundingRect(room, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, text);
}

} // namespace

void HitDelegate::paint(QPainter* painter, const QStyleOptionViewItem& given, const QModelIndex& index) const
{
    QStyleOptionViewItem option = given;
    initStyleOption(&option, index);
    const QString title = titleOf(index);
    const QString excerpt = excerptOf(index);
    option.text.clear();
    QApplication::style()->drawControl(QStyle::CE_ItemViewItem, &option, painter, option.widget);

    const bool isActive = option.state & QStyle::State_Active;
    const bool isOnAccent = isActive && (option.state & QStyle::State_Selected);
    const forms::look::Colours& colours = forms::look::colours();
    QRect room = option.rect.adjusted(gap(), gap(), -gap(), -gap());
    painter->save();
    painter->setFont(boldOf(option.font));
    painter->setPen(isOnAccent ? colours.field : colours.accent);
    painter->drawText(room, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, title);
    room.setTop(linesOf(painter->font(), room, title).bottom() + 1);
    painter->setFont(option.font);
    painter->setPen(isOnAccent ? colours.field : colours.text);
    painter->drawText(room, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, excerpt);
    painter->restore();
}

QSize HitDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const auto* view = qobject_cast<const QAbstractItemView*>(option.widget);
    const int width = view ? view->viewport()->width() : option.rect.width();
    const QRect room(0, 0, width - 2 * gap(), 10'000);
    const int title = linesOf(boldOf(option.font), room, titleOf(index)).height();
    const int excerpt = linesOf(option.font, room, excerptOf(index)).height();
    return {width, title + excerpt + 2 * gap()};
}

} // namespace help
