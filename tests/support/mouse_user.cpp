// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/user.h"

#include <QApplication>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QScrollArea>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <stdexcept>

namespace user {

namespace {

/// A place in a window, as the mouse knows it.
struct Spot {
    QWindow* window;
    QPoint position;
};

// The user scrolls to what the window has no room for.
void bringIntoView(QWidget& widget)
{
    for (QWidget* parent = widget.parentWidget(); parent; parent = parent->parentWidget())
        if (auto* scroller = qobject_cast<QScrollArea*>(parent))
            scroller->ensureWidgetVisible(&widget);
}

Spot spotOf(forms::Control& control, QPoint position)
{
    settle();
    QWidget& widget = *control.widget();
    if (!widget.isVisible())
        throw std::logic_error("The user can't see " + control.name().toStdString());
    bringIntoView(widget);
    QWidget& window = *widget.window();
    Spot spot{window.windowHandle(), widget.mapTo(&window, position)};
    QWidget* hit = window.childAt(spot.position);
    if (widget.rect().contains(position) && hit != &widget && !widget.isAncestorOf(hit))
        throw std::logic_error("Something covers " + control.name().toStdString());
    if (QWidget* popup = QApplication::activePopupWidget()) // has the mouse to itself
        spot = {popup->windowHandle(), popup->mapFromGlobal(widget.mapToGlobal(position))};
    QTest::lastMouseTimestamp += QTest::mouseDoubleClickInterval; // a click on its own
    return spot;
}

struct Click {
    QPoint where; // on the display
    int when = 0;
} lastClick;

Spot middleOf(forms::Control& control)
{
    return spotOf(control, control.widget()->rect().center());
}

} // namespace

forms::Control& control(forms::Form& form, const QString& name)
{
    QString names;
    for (forms::Control* each : form.controls()) {
        if (each->name() == name)
            return *each;
        names += QLatin1Char(' ') + each->name();
    }
    throw std::out_of_range(
        QStringLiteral("%1 has no control %2. There are:%3").arg(form.name(), name, names).toStdString());
}

void clickAt(forms::Control& control, QPoint position)
{
    const Spot spot = spotOf(control, position);
    lastClick = {spot.window->mapToGlobal(spot.position), QTest::lastMouseTimestamp};
    QTest::mouseClick(spot.window, Qt::LeftButton, {}, spot.position);
}

void clickAgain()
{
    constexpr int betweenMilliseconds = 100;
    QTest::lastMouseTimestamp = lastClick.when + betweenMilliseconds;
    QWindow& window = frontWindow();
    QTest::mouseClick(&window, Qt::LeftButton, {}, window.mapFromGlobal(lastClick.where));
}

void clickScrollBar(forms::MemoBox& box)
{
    clickAt(box, {box.widget()->width() - 5, box.widget()->height() / 2});
}

void click(forms::Control& control)
{
    clickAt(control, control.widget()->rect().center());
}

bool rightClick(forms::Control& control)
{
    bool opened = false;
    inMenuOf(control, [&opened](QMenu& menu) {
        opened = true;
        menu.close();
    });
    return opened;
}

void inMenuOf(forms::Control& control, const std::function<void(QMenu&)>& script)
{
    // The menu has an event loop of its own, inside the click.
    QTimer inMenu;
    QObject::connect(&inMenu, &QTimer::timeout, &inMenu, [&inMenu, &script] {
        if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
            inMenu.stop();
            script(*menu);
        }
    });
    inMenu.start(0);
    const Spot spot = middleOf(control);
    QTest::mouseClick(spot.window, Qt::RightButton, {}, spot.position);
}

bool drop(forms::Control& control, const QString& text)
{
    const Spot spot = middleOf(control);
    QMimeData data;
    data.setText(text);
    QDragEnterEvent enter(spot.position, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
    QDragMoveEvent move(spot.position, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
    QDropEvent end(spot.position, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
    bool copies = true;
    for (QDropEvent* event : {static_cast<QDropEvent*>(&enter), static_cast<QDropEvent*>(&move), &end}) {
        QCoreApplication::sendEvent(spot.window, event);
        copies = copies && event->isAccepted() && event->dropAction() == Qt::CopyAction;
    }
    settle();
    return copies;
}

void clickWindow(forms::Form& form)
{
    QWindow& window = *form.window()->windowHandle();
    window.requestActivate();
    QTest::mouseClick(&window, Qt::LeftButton, {}, {1, 1});
}

void closeBox(forms::Form& form)
{
    settle();
    QWindow& window = *form.window()->windowHandle();
    if (QWindow* modal = QGuiApplication::modalWindow(); modal && modal != &window)
        return; // the toolkit drops the request for a window behind a modal one
    window.close();
}

void visitAnotherProgram()
{
    QWindow& own = frontWindow();
    {
        QWindow other; // a window that belongs to no screen
        other.show();
        other.requestActivate();
        settle();
    }
    own.requestActivate();
    settle();
}

} // namespace user
