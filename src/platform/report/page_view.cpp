// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/report/page_view.h"

#include "platform/forms/input/wheel.h"
#include "platform/forms/look.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>

namespace report {

namespace {

constexpr int gap = 16; // around the page, for its shadow
constexpr int shadow = 3;

} // namespace

/// The sheet of paper, with the desk around it.
class PageView::Sheet : public QWidget {
public:
    explicit Sheet(PageView& view)
        : view_(view)
    {
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        if (!view_.pages_ || failed_)
            return;
        QPainter painter(this);
        const QRect paper = rect().adjusted(gap, gap, -gap, -gap);
        painter.fillRect(paper.translated(shadow, shadow), forms::look::colours().line);
        painter.fillRect(paper, Qt::white);
        painter.translate(paper.topLeft());
        const double scale = paper.width() / view_.pages_->paper().size().width();
        painter.scale(scale, scale);
        paintPage(painter);
    }

private:
    // The failure is told when the toolkit has come back from painting, and once.
    void paintPage(QPainter& painter)
    {
        try {
            view_.pages_->paint(painter, view_.page_);
        } catch (const std::exception&) {
            failed_ = true;
            QMetaObject::invokeMethod(
                this, [this] { view_.Failed(); }, Qt::QueuedConnection);
        }
    }

    PageView& view_;
    bool failed_ = false;
};

PageView::PageView(QWidget* parent)
    : QScrollArea(parent)
    , sheet_(new Sheet(*this))
{
    setObjectName(QStringLiteral("pageView"));
    setAlignment(Qt::AlignCenter);
    setFrameShape(QFrame::NoFrame);
    // The room for the page doesn't depend on the page.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setWidget(sheet_);
}

void PageView::setPages(const Pages& pages)
{
    pages_ = &pages;
    page_ = std::min(page_, pages.count() - 1);
    fitSheet();
}

void PageView::setPage(int page)
{
    page = std::clamp(page, 0, pages_->count() - 1);
    if (page == page_)
        return;
    page_ = page;
    verticalScrollBar()->setValue(0);
    sheet_->update();
    Changed();
}

void PageView::setZoom(Zoom zoom, std::optional<QPoint> about)
{
    const QPoint place = about.value_or(viewport()->rect().center());
    const QPointF share = shareOfPaper(place);
    zoom_ = zoom;
    fitSheet();
    bring(share, place);
}

// Where a place of the view is on the paper, in parts of its width and height.
QPointF PageView::shareOfPaper(QPoint place) const
{
    const QPoint onPaper = place - sheet_->pos() - QPoint(gap, gap);
    const QSize paper = sheet_->size() - QSize(2 * gap, 2 * gap);
    return {double(onPaper.x()) / std::max(paper.width(), 1), double(onPaper.y()) / std::max(paper.height(), 1)};
}

void PageView::bring(QPointF share, QPoint place)
{
    const QSize paper = sheet_->size() - QSize(2 * gap, 2 * gap);
    horizontalScrollBar()->setValue(qRound(gap + share.x() * paper.width()) - place.x());
    verticalScrollBar()->setValue(qRound(gap + share.y() * paper.height()) - place.y());
}

QSizeF PageView::paperSize() const
{
    return pages_->paper().size() / TwipsPerInch * logicalDpiX();
}

double PageView::factor() const
{
    const double byWidth = (viewport()->width() - 2 * gap) / paperSize().width();
    const double byHeight = (viewport()->height() - 2 * gap) / paperSize().height();
    switch (zoom_.kind) {
    case Zoom::Kind::Width:
        return byWidth;
    case Zoom::Kind::Page:
        return std::min(byWidth, byHeight);
    default:
        return zoom_.factor;
    }
}

void PageView::fitSheet()
{
    if (!pages_)
        return;
    const QSizeF size = paperSize() * std::max(factor(), 0.05);
    sheet_->resize(size.toSize() + QSize(2 * gap, 2 * gap));
    if (Changed)
        Changed();
}

void PageView::resizeEvent(QResizeEvent* event)
{
    QScrollArea::resizeEvent(event);
    fitSheet();
}

// ---- turning pages

bool PageView::isAtEnd(int direction) const
{
    const QScrollBar& bar = *verticalScrollBar();
    return bar.value() == (direction > 0 ? bar.maximum() : bar.minimum());
}

void PageView::turn(int direction)
{
    const int before = page_;
    setPage(page_ + direction);
    if (page_ != before && direction < 0)
        verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

// Further down the page, and from its end to the next one.
void PageView::goOn(int direction)
{
    if (isAtEnd(direction))
        turn(direction);
    else
        verticalScrollBar()->triggerAction(
            direction > 0 ? QAbstractSlider::SliderPageStepAdd : QAbstractSlider::SliderPageStepSub);
}

bool PageView::turnsPage(int key)
{
    switch (key) {
    case Qt::Key_PageDown:
    case Qt::Key_Space:
        goOn(+1);
        return true;
    case Qt::Key_PageUp:
    case Qt::Key_Backspace:
        goOn(-1);
        return true;
    case Qt::Key_Home:
        setPage(0);
        return true;
    case Qt::Key_End:
        setPage(pages_->count() - 1);
        return true;
    default:
        return false;
    }
}

void PageView::keyPressEvent(QKeyEvent* event)
{
    if (event->modifiers() != Qt::NoModifier || !turnsPage(event->key()))
        QScrollArea::keyPressEvent(event);
}

void PageView::wheelEvent(QWheelEvent* event)
{
    event->accept();
    if (event->modifiers().testFlag(Qt::ControlModifier)) {
        zoomByWheel(*event);
        return;
    }
    const int angle = event->angleDelta().y();
    if (angle == 0 || !isAtEnd(angle < 0 ? +1 : -1)) {
        forms::dropWheelSum(); // what scrolls turns no page
        QScrollArea::wheelEvent(event);
        return;
    }
    int notches = -forms::wheelNotches(*this, *event);
    for (const int direction = notches > 0 ? +1 : -1; notches != 0 && isAtEnd(direction); notches -= direction)
        turn(direction);
}

// Summed up apart from what turns pages.
void PageView::zoomByWheel(const QWheelEvent& event)
{
    int notches = forms::wheelNotches(*sheet_, event);
    for (const int direction = notches > 0 ? +1 : -1; notches != 0; notches -= direction)
        WheelZoomed(direction, event.position().toPoint());
}

} // namespace report
