// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/help/side_panel.h"

#include "platform/forms/look.h"
#include "platform/help/hit_delegate.h"
#include "platform/help/parts.h"

#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QShortcut>
#include <QStackedWidget>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

#include <algorithm>

namespace help {

namespace {

constexpr int placeRole = Qt::UserRole;

// The arrows lead from the box into the hits.
void onKey(QWidget& widget, Qt::Key key, const std::function<void()>& action)
{
    auto* shortcut = new QShortcut(QKeySequence(key), &widget);
    shortcut->setContext(Qt::WidgetShortcut);
    QObject::connect(shortcut, &QShortcut::activated, &widget, action);
}

QString summaryOf(const QString& sought, std::size_t hits)
{
    if (hits == 0)
        return QStringLiteral("Nothing was found about \"%1\". Try another word.").arg(sought);
    return hits == 1 ? QStringLiteral("1 topic was found:")
                     : QStringLiteral("%1 topics were found, the best first:").arg(hits);
}

} // namespace

SidePanel::SidePanel(const Book& book, QWidget* parent)
    : QWidget(parent)
    , book_(book)
    , sought_(new QLineEdit(this))
    , state_(new QLabel(this))
    , pages_(new QStackedWidget(this))
    , contents_(new QTreeWidget(pages_))
    , found_(new QListWidget(pages_))
{
    look();
    fill();
    answer();
    layOut();
}

void SidePanel::look()
{
    parts::name(*sought_, "sought", "Search All Topics", "Search All Topics (Ctrl+K)");
    sought_->setClearButtonEnabled(true);
    state_->setObjectName(QStringLiteral("searchState"));
    state_->setTextFormat(Qt::PlainText);
    state_->setWordWrap(true);
    parts::name(*pages_, "ways", "Contents Or Topics Found", "");
    parts::name(*contents_, "contents", "Contents", "");
    contents_->setHeaderHidden(true);
    contents_->setFrameShape(QFrame::NoFrame);
    parts::name(*found_, "found", "Topics Found", "");
    found_->setFrameShape(QFrame::NoFrame);
    found_->setItemDelegate(new HitDelegate(found_));
    found_->setResizeMode(QListView::Adjust);
    found_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    found_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn); // one that came would narrow hits that are measured
    found_->setWordWrap(true); // has them measured anew in another width
}

void SidePanel::answer()
{
    connect(sought_, &QLineEdit::textChanged, this, [this] { search(); });
    connect(sought_, &QLineEdit::returnPressed, this, [this] { openHit(0); });
    connect(found_, &QListWidget::itemClicked, this, [this] { openHit(found_->currentRow()); });
    connect(found_, &QListWidget::itemActivated, this, [this] { openHit(found_->currentRow()); });
    const auto choose = [this](QTreeWidgetItem* item) { Chosen(item->data(0, placeRole).toString()); };
    connect(contents_, &QTreeWidget::itemClicked, this, choose);
    connect(contents_, &QTreeWidget::itemActivated, this, choose);
    onKey(*sought_, Qt::Key_Down, [this] { pages_->currentWidget()->setFocus(); });
}

void SidePanel::layOut()
{
    auto* caption = new QLabel(QStringLiteral("Search All &Topics:"), this);
    caption->setBuddy(sought_);
    pages_->addWidget(contents_);
    pages_->addWidget(found_);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(parts::margins());
    for (QWidget* widget : std::initializer_list<QWidget*>{caption, sought_, state_})
        column->addWidget(widget);
    column->addWidget(pages_, 1);
    state_->hide();
}

void SidePanel::fill()
{
    QTreeWidgetItem* chapter = nullptr;
    for (const Chapter& line : book_.contents()) {
        auto* item = line.level > 1 && chapter ? new QTreeWidgetItem(chapter) : new QTreeWidgetItem(contents_);
        item->setText(0, line.title);
        item->setToolTip(0, line.title);
        item->setData(0, placeRole, line.place);
        if (line.level == 1)
            chapter = item;
    }
    contents_->expandAll();
}

// A chapter may be a part of a page: where none bears the anchor, that of the page is marked.
void SidePanel::mark(const QString& place)
{
    QTreeWidgetItem* marked = nullptr;
    for (QTreeWidgetItemIterator item(contents_); *item; ++item) {
        const QString each = (*item)->data(0, placeRole).toString();
        if (each == place || (!marked && each.section(u'#', 0, 0) == place.section(u'#', 0, 0)))
            marked = *item;
    }
    contents_->setCurrentItem(marked);
}

int SidePanel::widthOfContents() const
{
    int widest = 0;
    for (QTreeWidgetItemIterator item(contents_); *item; ++item) {
        const int level = (*item)->parent() ? 2 : 1;
        const int width = contents_->sizeHintForIndex(contents_->indexFromItem(*item)).width();
        widest = std::max(widest, level * contents_->indentation() + width);
    }
    const QMargins margins = layout()->contentsMargins();
    return widest + contents_->verticalScrollBar()->sizeHint().width() + margins.left() + margins.right();
}

void SidePanel::toSearch()
{
    sought_->setFocus();
    sought_->selectAll();
}

void SidePanel::toContents()
{
    sought_->clear();
    contents_->setFocus();
}

void SidePanel::search()
{
    const QString sought = sought_->text().trimmed();
    pages_->setCurrentWidget(sought.isEmpty() ? static_cast<QWidget*>(contents_) : found_);
    found_->clear();
    if (sought.isEmpty())
        return parts::tell(*state_, {});
    if (!index_)
        index_.emplace(book_);
    hits_ = index_->find(sought);
    for (const Hit& hit : hits_)
        found_->addItem(hit.title + u'\n' + hit.excerpt);
    parts::tell(*state_, summaryOf(sought, hits_.size()));
}

void SidePanel::openHit(int row)
{
    if (row < 0 || row >= static_cast<int>(hits_.size()))
        return;
    found_->setCurrentRow(row);
    Found(hits_[static_cast<std::size_t>(row)]);
}

} // namespace help
