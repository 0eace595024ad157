// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/help/modal_companion.h"

#include <QEvent>
#include <QGuiApplication>
#include <QWidget>

namespace help {

namespace {

QWindow& nativeWindow(QWidget& window)
{
    window.winId();
    return *window.windowHandle();
}

} // namespace

ModalCompanion::ModalCompanion(QWidget& window)
    : QObject(&window)
    , window_(nativeWindow(window))
{
    window_.installEventFilter(this);
}

bool ModalCompanion::eventFilter(QObject* watched, QEvent* event)
{
    const bool isBlocked = watched == &window_ && event->type() == QEvent::WindowBlocked;
    const bool isFree = watched == modal_ && event->type() == QEvent::Hide;
    if (isBlocked || isFree)
        follow();
    return false;
}

void ModalCompanion::follow()
{
    QWindow* modal = QGuiApplication::modalWindow();
    if (modal && window_.isAncestorOf(modal, QWindow::IncludeTransients))
        return; // a dialogue of its own is to be answered first
    if (modal_)
        modal_->removeEventFilter(this);
    modal_ = modal;
    if (modal_)
        modal_->installEventFilter(this);
    window_.setTransientParent(modal);
}

} // namespace help
