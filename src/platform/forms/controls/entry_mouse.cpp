// SPDX-License-Identifier: GPL-3.0-or-later
// What comes to a box by the mouse: presses, the menu, and texts that are dragged in.
#include "platform/forms/controls/entry.h"
#include "platform/forms/input/input_filter.h"
#include "platform/forms/runtime/boundary.h"
#include "platform/forms/screens/form.h"

#include <QContextMenuEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QPointer>
#include <QStyleHints>

#include <utility>

namespace forms {

void Entry::pressed(QMouseEvent& event, const ToolkitStep& step)
{
    fromToolkit([this, &event, &step] {
        InputFilter& filter = InputFilter::instance();
        steady_ = filter.bringsFocus();
        {
            const ToolkitCall call;
            step(); // puts the caret
        }
        pressedAt_ = event.position();
        isSecondPress_ = false;
        pressed_ = filter.reaches(box_);
        if (pressed_)
            box_.MouseDown.fire();
    });
    event.accept();
}

void Entry::moved(QMouseEvent& event, const ToolkitStep& step)
{
    if (event.buttons() && !pressed_)
        return;
    const auto distance = (event.position() - pressedAt_).manhattanLength();
    if (steady_ && distance < QGuiApplication::styleHints()->startDragDistance())
        return; // a trembling hand must not undo what GotFocus has selected
    steady_ = false;
    const ToolkitCall call;
    step();
}

void Entry::released(QMouseEvent& event, const ToolkitStep& step)
{
    steady_ = false;
    fromToolkit([this, &event, &step] {
        const bool isOurs = std::exchange(pressed_, false);
        if (event.button() != Qt::MiddleButton) {
            const ToolkitCall call;
            step();
        } else if (isOurs) {
            takeText(clipboardText(QClipboard::Selection));
        }
        if (!isOurs)
            return;
        box_.MouseUp.fire();
        const bool ofCombo = box_.widget() != &self(); // whose Click is the pick of an item
        const bool clicks = event.button() == Qt::LeftButton && !isSecondPress_ && !ofCombo;
        if (clicks && self().rect().contains(event.position().toPoint()))
            box_.Click.fire();
    });
    event.accept();
}

void Entry::doubleClicked(QMouseEvent& event, const ToolkitStep& step)
{
    if (InputFilter::instance().bringsFocus()) { // the first click was elsewhere
        pressed(event, step);
        return;
    }
    fromToolkit([this, &event, &step] {
        {
            const ToolkitCall call;
            step();
        }
        pressed_ = true;
        isSecondPress_ = true;
        if (event.button() == Qt::LeftButton)
            box_.DblClick.fire();
    });
    event.accept();
}

// The commands go the ways of the keys. In a box that answers the mouse the right button is a mouse down and no more.
void Entry::menuAsked(QContextMenuEvent& event)
{
    event.accept();
    const bool isDead = event.reason() == QContextMenuEvent::Mouse && !pressed_;
    if (box_.MouseDown || isDead)
        return;
    fromToolkit([this, &event] {
        const bool changeable = !isLocked();
        const bool selected = !selectedText().isEmpty();
        QMenu menu(&self());
        const std::pair<QAction*, std::function<void()>> commands[] = {
            {menu.addAction(QStringLiteral("Cu&t")), [this] { cutByUser(); }},
            {menu.addAction(QStringLiteral("&Copy")), [this] { copySelected(); }},
            {menu.addAction(QStringLiteral("&Paste")), [this] { takeText(clipboardText(QClipboard::Clipboard)); }},
            {menu.addAction(QStringLiteral("&Delete")), [this] { removeByUser(); }},
            {menu.addAction(QStringLiteral("Select &All")), [this] { box_.selectAll(); }},
        };
        const bool enabled[] = {selected && changeable, selected, changeable, selected && changeable, true};
        for (std::size_t at = 0; at < std::size(commands); ++at)
            commands[at].first->setEnabled(enabled[at]);
        const QPointer<QWidget> alive(&self());
        const QAction* chosen = menu.exec(event.globalPos());
        for (const auto& [action, command] : commands)
            if (alive && chosen == action)
                command();
    });
}

void Entry::answerWithCopy(QDropEvent& event)
{
    const bool takes = event.isAccepted() && (event.possibleActions() & Qt::CopyAction);
    event.setDropAction(takes ? Qt::CopyAction : Qt::IgnoreAction);
    event.setAccepted(takes);
}

void Entry::dropped(QDropEvent& event)
{
    fromToolkit([this, &event] {
        box_.setFocus();
        {
            const ToolkitCall call;
            placeCaret(event.position().toPoint());
        }
        takeText(event.mimeData()->text());
    });
    event.accept();
    answerWithCopy(event);
}

} // namespace forms
