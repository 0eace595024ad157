// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/report/preview_bar.h"

#include "platform/forms/look.h"

#include <QEvent>
#include <QPainter>

#include <algorithm>

namespace report {

namespace {

int margin()
{
    return forms::look::grid(1);
}

int rowHeight()
{
    return forms::look::grid(3);
}

int widthOfWidget(const QWidget& widget, bool withWords)
{
    if (const auto* button = dynamic_cast<const BarButton*>(&widget))
        return button->widthWith(withWords);
    return std::clamp(widget.sizeHint().width(), widget.minimumWidth(), widget.maximumWidth());
}

} // namespace

// ---- its buttons

BarButton::BarButton(const QIcon& picture, const QString& words, QWidget* parent)
    : QPushButton(picture, words, parent)
    , words_(words)
    , width_(sizeHint().width())
{
}

void BarButton::showWords(bool shown)
{
    if (shown == !text().isEmpty())
        return;
    setText(shown ? words_ : QString());
    setShortcut(QKeySequence::mnemonic(words_));
}

int BarButton::widthWith(bool words) const
{
    return words && !words_.isEmpty() ? width_ : forms::look::grid(4);
}

// By an access key the toolkit would have it tell of the press a tenth of a second later, whatever has come by then.
bool BarButton::event(QEvent* event)
{
    if (event->type() != QEvent::Shortcut)
        return QPushButton::event(event);
    click();
    return true;
}

// ---- how it is shown

PreviewBar::PreviewBar(QWidget* parent)
    : QWidget(parent)
{
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void PreviewBar::setGroups(std::vector<Group> groups)
{
    groups_ = std::move(groups);
    updateGeometry();
}

std::vector<PreviewBar::Way> PreviewBar::ways()
{
    const int wide = forms::look::grid(1) / 2;
    const int narrow = forms::look::grid(1) / 4;
    return {{wide, true, false}, {narrow, true, false}, {narrow, false, false}, {narrow, true, true},
        {narrow, false, true}};
}

PreviewBar::Way PreviewBar::wayFor(int width) const
{
    const std::vector<Way> all = ways();
    const auto fitting =
        std::find_if(all.begin(), all.end(), [this, width](const Way& way) { return widthOf(way) <= width; });
    return fitting == all.end() ? all.back() : *fitting;
}

int PreviewBar::groupWidth(const Way& way, const Group& group) const
{
    int width = way.gap * (static_cast<int>(group.size()) - 1);
    for (const QWidget* widget : group)
        width += widthOfWidget(*widget, way.hasWords);
    return width;
}

// Between two groups there are three gaps, the middle one for a divider.
int PreviewBar::rowWidth(const Way& way, std::size_t first, std::size_t end) const
{
    int width = 2 * margin() - 3 * way.gap;
    for (std::size_t number = first; number < end; ++number)
        width += groupWidth(way, groups_[number]) + 3 * way.gap;
    return width;
}

int PreviewBar::widthOf(const Way& way) const
{
    const std::size_t end = groups_.size();
    return way.hasTwoRows ? std::max(rowWidth(way, 0, 1), rowWidth(way, 1, end)) : rowWidth(way, 0, end);
}

QSize PreviewBar::sizeHint() const
{
    const int width = widthOf(ways().front());
    return {width, heightForWidth(width)};
}

QSize PreviewBar::minimumSizeHint() const
{
    return {widthOf(ways().back()), heightForWidth(width())};
}

int PreviewBar::heightForWidth(int width) const
{
    const int rows = wayFor(width).hasTwoRows ? 2 : 1;
    return 2 * margin() + rows * rowHeight() + (rows - 1) * margin() / 2;
}

// ---- where its widgets stand

void PreviewBar::resizeEvent(QResizeEvent*)
{
    arrange();
}

bool PreviewBar::event(QEvent* event)
{
    if (event->type() == QEvent::LayoutRequest) // the count of pages has another width
        arrange();
    return QWidget::event(event);
}

void PreviewBar::arrange()
{
    const Way way = wayFor(width());
    for (const Group& group : groups_)
        for (QWidget* widget : group)
            if (auto* button = dynamic_cast<BarButton*>(widget))
                button->showWords(way.hasWords);
    dividers_.clear();
    const std::size_t end = groups_.size();
    placeRow(way, 0, way.hasTwoRows ? 1 : end, margin());
    if (way.hasTwoRows)
        placeRow(way, 1, end, margin() + rowHeight() + margin() / 2);
    update();
}

void PreviewBar::placeRow(const Way& way, std::size_t first, std::size_t end, int top)
{
    int left = margin();
    for (std::size_t number = first; number < end; ++number) {
        const Group& group = groups_[number];
        if (number + 1 == groups_.size())
            left = std::max(left, width() - margin() - groupWidth(way, group));
        else if (number > first)
            dividers_.emplace_back(left - 3 * way.gap / 2, top, left - 3 * way.gap / 2, top + rowHeight());
        left = place(way, group, left, top) + 3 * way.gap;
    }
}

int PreviewBar::place(const Way& way, const Group& group, int left, int top)
{
    for (QWidget* widget : group) {
        const int width = widthOfWidget(*widget, way.hasWords);
        widget->setGeometry(left, top, width, rowHeight());
        left += width + way.gap;
    }
    return left - way.gap;
}

void PreviewBar::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Mid));
    for (const QLine& divider : dividers_)
        painter.drawLine(divider);
}

} // namespace report
