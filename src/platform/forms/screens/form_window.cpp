// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/screens/form_window.h"

#include "platform/forms/looks/theme.h"
#include "platform/forms/runtime/boundary.h"
#include "platform/forms/screens/form.h"
#include "platform/forms/screens/stage.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace forms {

FormWindow::FormWindow(Form& form)
    : QWidget(nullptr,
        Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint
            | Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint)
    , form_(form)
    , scroller_(new QScrollArea(this))
{
    auto* around = new QVBoxLayout(this);
    around->setContentsMargins(0, 0, 0, 0);
    scroller_->setFrameShape(QFrame::NoFrame);
    scroller_->setFocusPolicy(Qt::NoFocus);
    scroller_->setWidgetResizable(true);
    around->addWidget(scroller_);
}

QWidget* FormWindow::makeCanvas()
{
    auto* canvas = new QWidget;
    scroller_->setWidget(canvas);
    return canvas;
}

void FormWindow::reveal(QWidget* widget)
{
    scroller_->ensureWidgetVisible(widget);
}

void FormWindow::becomeDialog()
{
    setWindowFlags((windowFlags() & ~(Qt::WindowType_Mask | Qt::WindowMinimizeButtonHint)) | Qt::Dialog);
}

void FormWindow::fitAndPlace()
{
    QScreen* under = centre_.isNull() ? nullptr : QGuiApplication::screenAt(centre_);
    const QRect desktop = (under ? under : screen())->availableGeometry();
    const QSize frame(frameMargins_.left() + frameMargins_.right(), frameMargins_.top() + frameMargins_.bottom());
    const QSize room = desktop.size() - frame;
    makeFit(room);
    QSize size = scroller_->widget()->sizeHint();
    const int bar = scroller_->verticalScrollBar()->sizeHint().width();
    if (isTooHigh(room))
        size.rwidth() += bar;
    if (isTooWide(room))
        size.rheight() += bar;
    // A screen never shrinks between two visits.
    lastSize_ = size.boundedTo(room).expandedTo(leastSize_.expandedTo(lastSize_).boundedTo(room));
    setFixedSize(lastSize_);
    place(
        desktop.marginsRemoved(frameMargins_), under ? centre_ : desktop.center() + QPoint(0, frameMargins_.top() / 2));
}

bool FormWindow::focusNextPrevChild(bool next)
{
    if (insideToolkitCall())
        return false; // the layer decides where the focus goes
    fromToolkit([this, next] {
        if (Control* control = form_.nextInTabOrder(next))
            control->setFocus();
    });
    return true;
}

void FormWindow::closeEvent(QCloseEvent* event)
{
    event->ignore();
    if (form_.isEnabled() && form_.isVisible()) // a press that waited finds the screen gone
        fromToolkit([this] { form_.close(); });
}

void FormWindow::keyPressEvent(QKeyEvent* event)
{
    fromToolkit([this, event] { Stage::instance().keyPressed(form_, *event); });
    event->accept();
}

void FormWindow::moveEvent(QMoveEvent*)
{
    if (isVisible() && !isModal())
        centre_ = geometry().center();
}

void FormWindow::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::ActivationChange || !isActiveWindow())
        return;
    learnFrame();
    Stage::instance().windowActivated(form_);
}

// The first window was placed before anybody knew how large its frame is.
void FormWindow::learnFrame()
{
    const QMargins known = std::exchange(frameMargins_, windowHandle() ? windowHandle()->frameMargins() : QMargins());
    if (!known.isNull() || frameMargins_.isNull() || screen()->availableGeometry().contains(frameGeometry()))
        return;
    const ToolkitCall call;
    lastSize_ = {};
    fitAndPlace();
}

// Around a point, and within the room that the desktop has inside a frame.
void FormWindow::place(const QRect& room, const QPoint& centre)
{
    QRect inside(QPoint(), size());
    inside.moveCenter(centre);
    inside.moveLeft(std::max(std::min(inside.left(), room.right() + 1 - width()), room.left()));
    inside.moveTop(std::max(std::min(inside.top(), room.bottom() + 1 - height()), room.top()));
    move(inside.topLeft() - QPoint(frameMargins_.left(), frameMargins_.top()));
}

// On a small desktop boxes and pictures give up their room first, then the gaps; then the second of a pair goes below
// the first, and what is left scrolls. Pictures don't come back into what the gaps have given up: a screen looks the
// same at each visit.
void FormWindow::makeFit(const QSize& room)
{
    for (const double share : {1.0, 0.75, 0.5, 0.0}) {
        showPictures(tight_ ? 0 : share);
        if (!isTooWide(room) && !isTooHigh(room))
            return;
    }
    QLayout& layout = *scroller_->widget()->layout();
    if (!std::exchange(tight_, true))
        look::tighten(layout);
    while (isTooWide(room) && look::stackLastPair(layout)) { }
}

// The bar beside a screen that is too high takes room, too.
bool FormWindow::isTooWide(const QSize& room) const
{
    const int bar = isTooHigh(room) ? scroller_->verticalScrollBar()->sizeHint().width() : 0;
    return scroller_->widget()->minimumSizeHint().width() + bar > room.width();
}

bool FormWindow::isTooHigh(const QSize& room) const
{
    scroller_->widget()->layout()->activate(); // inner layouts measure again
    return scroller_->widget()->minimumSizeHint().height() > room.height();
}

void FormWindow::showPictures(double share)
{
    for (Control* control : form_.controls())
        control->takeShare(share);
}

} // namespace forms
