// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/user.h"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QMimeData>
#include <QScrollArea>
#include <QTest>
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
    const Spot spot{window.windowHandle(), widget.mapTo(&window, position)};
    QWidget* hit = window.childAt(spot.position);
    if (widget.rect().contains(position) && hit != &widget && !widget.isAncestorOf(hit))
        throw std::logic_error("Something covers " + control.name().toStdString());
    return spot;
}

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
    QTest::mouseClick(spot.window, Qt::LeftButton, {}, spot.position);
}

void click(forms::Control& control)
{
    clickAt(control, control.widget()->rect().center());
}

void rightClick(forms::Control& control)
{
    const Spot spot = middleOf(control);
    QTest::mouseClick(spot.window, Qt::RightButton, {}, spot.position);
}

void pasteByMiddleClick(forms::Control& control, const QString& text)
{
    QClipboard& clipboard = *QGuiApplication::clipboard();
    clipboard.setText(text, clipboard.supportsSelection() ? QClipboard::Selection : QClipboard::Clipboard);
    const Spot spot = middleOf(control);
    QTest::mouseClick(spot.window, Qt::MiddleButton, {}, spot.position);
}

void drop(forms::Control& control, const QString& text)
{
    const Spot spot = middleOf(control);
    QMimeData data;
    data.setText(text);
    QDragEnterEvent enter(spot.position, Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(spot.window, &enter);
    QDragMoveEvent move(spot.position, Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(spot.window, &move);
    QDropEvent event(spot.position, Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(spot.window, &event);
    settle();
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
