// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/controls/record_list.h"

#include "platform/forms/input/input_filter.h"
#include "platform/forms/input/keyboard.h"
#include "platform/forms/looks/theme.h"
#include "platform/forms/runtime/boundary.h"
#include "platform/forms/screens/form.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QStyleOption>
#include <QTreeWidget>

namespace forms {

class RecordList::Widget : public QTreeWidget {
public:
    Widget(QWidget* parent, RecordList& list)
        : QTreeWidget(parent)
        , control_(list)
    {
        setRootIsDecorated(false);
        setUniformRowHeights(true);
        setAllColumnsShowFocus(true);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
        header()->setSectionsMovable(false);
        header()->setSectionResizeMode(QHeaderView::Fixed);
        connect(this, &QTreeWidget::currentItemChanged, this, [this] { pickedByAssistant(); });
    }

    void setOwnHeight(int height, int least)
    {
        height_ = height;
        setMinimumHeight(least);
        setMaximumHeight(height);
        updateGeometry();
    }

    QSize sizeHint() const override { return {QTreeWidget::sizeHint().width(), height_}; }

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        fromToolkit([this, event] {
            if (Keyboard::down(control_, *event) || Keyboard::pressDefault(control_.form(), *event))
                return;
            if (Keyboard::pressText(control_, *event))
                passOn([this, event] { QTreeWidget::keyPressEvent(event); });
        });
        event->accept();
    }

    void keyReleaseEvent(QKeyEvent* event) override
    {
        fromToolkit([this, event] { Keyboard::up(control_, *event); });
    }

    void mousePressEvent(QMouseEvent* event) override
    {
        fromToolkit([this, event] {
            if (InputFilter::instance().reaches(control_))
                passOn([this, event] { QTreeWidget::mousePressEvent(event); });
        });
    }

    void mouseDoubleClickEvent(QMouseEvent* event) override
    {
        if (event->button() == Qt::LeftButton && itemAt(event->position().toPoint()))
            fromToolkit([this] { control_.DblClick.fire(); });
    }

private:
    // The event comes after the toolkit has done what the user's hand wants, from the layer's own frame.
    template <class Step>
    void passOn(Step step)
    {
        const QTreeWidgetItem* before = currentItem();
        {
            const ToolkitCall call;
            step();
        }
        if (currentItem() != before)
            control_.Click.fire();
    }

    void pickedByAssistant()
    {
        if (!insideToolkitCall())
            fromToolkit([this] { control_.Click.fire(); });
    }

    RecordList& control_;
    int height_ = 0;
};

RecordList::RecordList(Form& form, const QString& name)
    : Control(form, name)
    , list_(new Widget(form.canvas(), *this))
{
    adopt(list_);
}

void RecordList::setColumns(const QStringList& headings, const QStringList& widestTexts)
{
    const ToolkitCall call;
    list_->setHeaderLabels(headings);
    int width = list_->verticalScrollBar()->sizeHint().width() + 2 * list_->frameWidth();
    for (int column = 0; column < headings.size(); ++column) {
        const QFontMetrics metrics = list_->fontMetrics();
        const int text =
            std::max(metrics.horizontalAdvance(headings[column]), metrics.horizontalAdvance(widestTexts[column]));
        list_->setColumnWidth(column, text + look::grid(2));
        width += text + look::grid(2);
    }
    list_->setFixedWidth(width);
}

void RecordList::alignRight(int column)
{
    list_->headerItem()->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
}

void RecordList::clear()
{
    const ToolkitCall call;
    list_->clear();
}

void RecordList::addRecord(const QStringList& texts)
{
    addRecords({texts});
}

// The toolkit is quick with many that come together.
void RecordList::addRecords(const std::vector<QStringList>& records)
{
    {
        const ToolkitCall call;
        QList<QTreeWidgetItem*> items;
        for (const QStringList& texts : records)
            items.append(itemOf(texts));
        list_->addTopLevelItems(items);
    }
    if (picked() < 0 && !records.empty())
        setPicked(0);
}

QTreeWidgetItem* RecordList::itemOf(const QStringList& texts) const
{
    auto* item = new QTreeWidgetItem(texts);
    for (int column = 0; column < list_->columnCount(); ++column)
        item->setTextAlignment(column, Qt::Alignment(list_->headerItem()->textAlignment(column)) | Qt::AlignVCenter);
    return item;
}

void RecordList::setRecord(int index, const QStringList& texts)
{
    const ToolkitCall call;
    for (int column = 0; column < texts.size(); ++column)
        list_->topLevelItem(index)->setText(column, texts[column]);
}

QStringList RecordList::record(int index) const
{
    QStringList texts;
    for (int column = 0; column < list_->columnCount(); ++column)
        texts.append(list_->topLevelItem(index)->text(column));
    return texts;
}

int RecordList::recordCount() const
{
    return list_->topLevelItemCount();
}

int RecordList::picked() const
{
    return list_->indexOfTopLevelItem(list_->currentItem());
}

void RecordList::setPicked(int index)
{
    if (index == picked())
        return;
    {
        const ToolkitCall call;
        list_->setCurrentItem(list_->topLevelItem(index));
    }
    Click.fire();
}

void RecordList::setRows(int rows, int least)
{
    QStyleOptionViewItem option;
    option.initFrom(list_);
    const int row = list_->style()->sizeFromContents(QStyle::CT_ItemViewItem, &option, {}, list_).height();
    const int around = list_->header()->sizeHint().height() + 2 * list_->frameWidth();
    list_->setOwnHeight(around + row * rows, around + row * least);
}

} // namespace forms
