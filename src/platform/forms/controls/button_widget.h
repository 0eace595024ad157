// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/controls/buttons.h"
#include "platform/forms/input/input_filter.h"
#include "platform/forms/input/keyboard.h"
#include "platform/forms/runtime/boundary.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QShortcutEvent>

#include <utility>

namespace forms {

/// What the toolkit's buttons of all kinds have to do for the layer; not for screens.
template <class Base>
class ButtonWidget : public Base {
public:
    ButtonWidget(QWidget* parent, Button& button)
        : Base(parent)
        , button_(button)
    {
        this->setFocusPolicy(Qt::StrongFocus);
    }

protected:
    bool event(QEvent* event) override
    {
        if (event->type() != QEvent::Shortcut)
            return Base::event(event);
        const bool shared = static_cast<QShortcutEvent*>(event)->isAmbiguous();
        fromToolkit([this, shared] { accessKey(shared); });
        event->accept();
        return true;
    }

    // The whole control takes the click, not only mark and caption.
    bool hitButton(const QPoint& point) const override { return this->rect().contains(point); }

    void keyPressEvent(QKeyEvent* event) override
    {
        bool left = false;
        fromToolkit([this, event, &left] { left = !handleKey(*event); });
        if (left)
            Base::keyPressEvent(event);
        event->accept();
    }

    void keyReleaseEvent(QKeyEvent* event) override
    {
        letGo([this, event] { Base::keyReleaseEvent(event); }, [this, event] { Keyboard::up(button_, *event); });
        event->accept();
    }

    void mousePressEvent(QMouseEvent* event) override
    {
        bool reaches = false;
        fromToolkit([this, &reaches] { reaches = InputFilter::instance().reaches(button_); });
        if (!reaches) {
            event->accept();
            return;
        }
        Base::mousePressEvent(event);
        if (event->button() != Qt::LeftButton)
            return; // another one is no press, and doesn't end one
        pressed_ = true;
        fromToolkit([this] { button_.MouseDown.fire(); });
    }

    void mouseReleaseEvent(QMouseEvent* event) override
    {
        const bool isOurs = event->button() == Qt::LeftButton && std::exchange(pressed_, false);
        letGo([this, event] { Base::mouseReleaseEvent(event); },
            [this, isOurs] {
                if (isOurs)
                    button_.MouseUp.fire();
            });
    }

    // The press ends when a box opens over it, and a release that comes then doesn't get here. A move of the focus that
    // the layer makes leaves the hand its release.
    void focusOutEvent(QFocusEvent* event) override
    {
        Base::focusOutEvent(event);
        if (!pressed_ || insideToolkitCall() || button_.turns())
            return;
        pressed_ = false;
        fromToolkit([this] { button_.MouseUp.fire(); });
    }

private:
    // The toolkit's button clicks or turns when key or mouse let it go.
    template <class Step, class Fire>
    void letGo(Step&& clicks, Fire&& fires)
    {
        if (button_.turns())
            clicks();
        fromToolkit(fires);
        if (!button_.turns())
            clicks();
    }

    void accessKey(bool shared)
    {
        if (!button_.canTakeFocus())
            return;
        button_.setFocus();
        if (!shared && button_.canTakeFocus())
            this->click();
    }

    /// True when the key needs nothing more from the toolkit.
    bool handleKey(QKeyEvent& event)
    {
        const bool enter = Keyboard::isEnter(event);
        if (!button_.answersEnter() && Keyboard::pressDefault(button_.form(), event))
            return true;
        if (enter && event.isAutoRepeat())
            return true;
        if (Keyboard::down(button_, event) || !Keyboard::pressText(button_, event))
            return true;
        if (enter) {
            if (button_.answersEnter())
                this->click();
            return true;
        }
        switch (event.key()) {
        case Qt::Key_Escape:
            return true;
        case Qt::Key_Up:
        case Qt::Key_Left:
            return button_.moveByArrow(-1);
        case Qt::Key_Down:
        case Qt::Key_Right:
            return button_.moveByArrow(1);
        default:
            return false;
        }
    }

    Button& button_;
    bool pressed_ = false; // by a press that has reached the button
};

} // namespace forms
