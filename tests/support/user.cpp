// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/user.h"

#include <QTest>
#include <QtWidgets>

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
    QTest::lastMouseTimestamp += QTest::mouseDoubleClickInterval; // a click on its own, also within another
    return spot;
}

QPoint lastPlace; // of a click, on the display

QWindow& frontWindow()
{
    QWidget* front = QApplication::activePopupWidget();
    if (!front)
        front = QApplication::activeModalWidget();
    if (!front && forms::activeForm())
        front = forms::activeForm()->window();
    QWindow* window = front ? front->windowHandle() : QGuiApplication::focusWindow();
    if (!window)
        throw std::logic_error("No window is in front to take a key");
    return *window;
}

QString textOf(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    if (key >= Qt::Key_A && key <= Qt::Key_Z && (modifiers & Qt::ControlModifier))
        return QChar(key - Qt::Key_A + 1); // the control character of the letter, as keyboards give it
    if (key >= Qt::Key_A && key <= Qt::Key_Z && (modifiers & Qt::ShiftModifier))
        return QChar(key);
    if (key >= Qt::Key_F1 && key <= Qt::Key_F35)
        return {};
    const char character = QTest::keyToAscii(key);
    return character ? QString(QLatin1Char(character)) : QString();
}

void goDown(Qt::Key key, const QString& text, Qt::KeyboardModifiers modifiers)
{
    settle();
    QTest::sendKeyEvent(QTest::Press, &frontWindow(), key, text, modifiers);
}

void typeCharacter(char32_t character)
{
    if (character == U'\n')
        return press(Qt::Key_Return);
    if (character == U'\t')
        return tab();
    const QString text = QString::fromUcs4(&character, 1);
    if (character > 0xFFFF)
        return commit(text); // no keyboard has a key for it
    const auto key = Qt::Key(text.at(0).toUpper().unicode());
    const Qt::KeyboardModifiers shift = text.at(0).isUpper() ? Qt::ShiftModifier : Qt::NoModifier;
    goDown(key, text, shift);
    letGo(key, shift);
}

// As one leaves it who finds the command grey.
void chooseIn(QMenu& menu, const QString& command)
{
    for (QAction* action : menu.actions())
        if (action->isEnabled() && !command.isEmpty() && action->text().startsWith(command))
            return QTest::mouseClick(menu.windowHandle(), Qt::LeftButton, {}, menu.actionGeometry(action).center());
    menu.close();
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

// ---- the mouse

void clickAt(forms::Control& control, QPoint position)
{
    const Spot spot = spotOf(control, position);
    lastPlace = spot.window->mapToGlobal(spot.position);
    QTest::mouseClick(spot.window, Qt::LeftButton, {}, spot.position);
}

void drag(forms::Control& control, QPoint from, QPoint to)
{
    const Spot begin = spotOf(control, from);
    const Spot end = spotOf(control, to);
    QTest::mousePress(begin.window, Qt::LeftButton, {}, begin.position);
    QTest::mouseMove(end.window, end.position);
    QTest::mouseRelease(end.window, Qt::LeftButton, {}, end.position);
}

void clickAgain(int milliseconds)
{
    QTest::lastMouseTimestamp += milliseconds - QTest::mouseDoubleClickInterval; // which the release has added
    QWindow& window = frontWindow();
    QTest::mouseClick(&window, Qt::LeftButton, {}, window.mapFromGlobal(lastPlace));
}

void click(forms::Control& control)
{
    clickAt(control, control.widget()->rect().center());
}

void wheel(QWidget& widget, int eighths)
{
    const QPointF middle = widget.rect().center();
    QWheelEvent turn(middle, widget.mapToGlobal(middle), {}, {0, eighths}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&widget, &turn);
}

QStringList rightClick(forms::Control& control, const QString& command)
{
    QStringList offered;
    QTimer inMenu; // which has an event loop of its own, inside the click
    QObject::connect(&inMenu, &QTimer::timeout, &inMenu, [&] {
        if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
            for (const QAction* action : menu->actions())
                if (action->isEnabled())
                    offered += action->text();
            chooseIn(*menu, command);
        }
    });
    inMenu.start(0);
    const Spot spot = spotOf(control, control.widget()->rect().center());
    QTest::mouseClick(spot.window, Qt::RightButton, {}, spot.position);
    return offered;
}

bool drop(forms::Control& control, const QString& text)
{
    const Spot spot = spotOf(control, control.widget()->rect().center());
    const Qt::DropActions offered = Qt::CopyAction | Qt::MoveAction;
    QMimeData data;
    data.setText(text);
    QDragEnterEvent enter(spot.position, offered, &data, Qt::LeftButton, {});
    QDragMoveEvent move(spot.position, offered, &data, Qt::LeftButton, {});
    QDropEvent end(spot.position, offered, &data, Qt::LeftButton, {});
    bool copies = true;
    for (QDropEvent* event : std::initializer_list<QDropEvent*>{&enter, &move, &end}) {
        QCoreApplication::sendEvent(spot.window, event);
        copies = copies && event->isAccepted() && event->dropAction() == Qt::CopyAction;
    }
    settle();
    return copies;
}

void closeBox(forms::Form& form)
{
    settle();
    QWindow& window = *form.window()->windowHandle();
    if (QWindow* modal = QGuiApplication::modalWindow(); modal && modal != &window)
        return; // the toolkit drops the request for a window behind a modal one
    window.close();
}

// ---- the keyboard, and other ways in which text gets into a box

void settle()
{
    QCoreApplication::processEvents();
}

void settleUntil(const std::function<bool()>& isSo)
{
    for (const QDeadlineTimer patience(30'000); !isSo() && !patience.hasExpired();)
        settle();
}

void type(const QString& text)
{
    for (const uint character : text.toUcs4())
        typeCharacter(character);
}

void type(forms::Control& control, const QString& text)
{
    if (!control.hasFocus())
        click(control);
    type(text);
}

void press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    hold(key, modifiers);
    letGo(key, modifiers);
}

void press(const std::vector<Qt::Key>& keys)
{
    for (const Qt::Key key : keys)
        press(key);
}

void hold(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    goDown(key, textOf(key, modifiers), modifiers);
}

void repeat(Qt::Key key, Qt::KeyboardModifiers modifiers, int times)
{
    for (; times > 0; --times)
        for (const bool down : {false, true})
            QTest::simulateEvent(&frontWindow(), down, key, modifiers, textOf(key, modifiers), true, 1);
}

void letGo(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    if (QGuiApplication::focusWindow() || forms::activeForm())
        QTest::sendKeyEvent(QTest::Release, &frontWindow(), key, QString(), modifiers);
}

void tab()
{
    press(Qt::Key_Tab);
}

void accessKey(char letter)
{
    press(QTest::asciiToKey(letter), Qt::AltModifier);
}

void paste(const QString& text)
{
    QGuiApplication::clipboard()->setText(text);
    press(Qt::Key_V, Qt::ControlModifier);
}

void commit(const QString& text)
{
    settle();
    QInputMethodEvent event;
    event.setCommitString(text);
    QObject* target = QGuiApplication::focusObject();
    if (!target)
        throw std::logic_error("Nothing has the focus to take a composed text");
    QCoreApplication::sendEvent(target, &event);
    settle();
}

void setByAssistant(forms::Control& control, const QString& text)
{
    QWidget* widget = control.widget();
    auto* line = widget->findChild<QLineEdit*>(); // of a combo box
    QAccessible::queryAccessibleInterface(line ? line : widget)->setText(QAccessible::Value, text);
}

// ---- lists

void clickArrow(forms::ComboBox& box)
{
    const int height = box.widget()->height();
    clickAt(box, {box.widget()->width() - height / 2, height / 2});
}

QStringList itemsOf(const forms::ComboBox& box)
{
    QStringList items;
    for (int index = 0; index < box.listCount(); ++index)
        items += box.list(index);
    return items;
}

void pick(forms::ComboBox& box, const QString& item)
{
    clickArrow(box);
    QWidget* popup = QApplication::activePopupWidget();
    auto* view = popup ? popup->findChild<QAbstractItemView*>() : nullptr;
    const auto row = static_cast<int>(itemsOf(box).indexOf(item));
    if (!view || row < 0)
        throw NoSuchItem((box.name() + " opens no list with " + item).toStdString());
    const QModelIndex index = view->model()->index(row, 0);
    view->scrollTo(index);
    const QPoint middle = view->viewport()->mapTo(popup, view->visualRect(index).center());
    // The pointer travels to the item: a release where the press was is taken for the end of the opening click.
    QTest::mouseMove(popup->windowHandle(), {1, 1});
    QTest::mouseMove(popup->windowHandle(), middle);
    lastPlace = popup->mapToGlobal(middle);
    QTest::mouseClick(popup->windowHandle(), Qt::LeftButton, {}, middle);
}

} // namespace user
