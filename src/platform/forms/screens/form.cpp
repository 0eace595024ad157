// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/screens/form.h"

#include "platform/forms/runtime/boundary.h"
#include "platform/forms/screens/form_window.h"
#include "platform/forms/screens/notice.h"
#include "platform/forms/screens/stage.h"

#include <QAccessible>
#include <QEventLoop>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace forms {

Form::Form(const QString& name)
    : name_(name)
    , window_(new FormWindow(*this))
    , canvas_(window_->makeCanvas())
{
    window_->setObjectName(name);
    window_->setWindowRole(name); // tells screens apart, which share one title
}

Form::~Form()
{
    const ToolkitCall call;
    Stage::instance().destroyed(*this);
    delete window_;
}

QWidget* Form::window() const
{
    return window_;
}

void Form::setLeastSize(const QSize& size)
{
    window_->setLeastSize(size);
}

void Form::setTitle(const QString& title)
{
    window_->setWindowTitle(title);
}

QString Form::title() const
{
    return window_->windowTitle();
}

void Form::Form_Unload(bool&) { }

void Form::Form_KeyPress(int&) { }

void Form::load()
{
    if (std::exchange(loaded_, true))
        return;
    runHandler(path(), "Load", [this] { Form_Load(); });
}

void Form::enroll(Control& control)
{
    controls_.push_back(&control);
}

void Form::dismiss(Control& control)
{
    std::erase(controls_, &control);
    for (Control** held : {&focused_, &moving_, &wanted_})
        if (*held == &control)
            *held = nullptr;
    if (defaultButton_ == &control)
        defaultButton_ = nullptr;
}

void Form::setDefaultButton(Control* button)
{
    defaultButton_ = button;
}

// ---- what is read out

void Form::setSpokenState(const QString& words)
{
    if (words == spokenState_)
        return;
    spokenState_ = words;
    QAccessibleEvent renamed(window(), QAccessible::NameChanged);
    QAccessible::updateAccessibility(&renamed);
}

void Form::announce(const QString& words)
{
    const ToolkitCall call;
    delete notice_; // a screen reader may remember the name of one that it knows
    notice_ = new Notice(canvas_);
    notice_->setAccessibleName(words);
    notice_->show();
}

// ---- showing and hiding

void Form::show()
{
    load();
    Stage& stage = Stage::instance();
    stage.settleUnless(*this);
    if (!std::exchange(shown_, true)) {
        const ToolkitCall call;
        window_->fitAndPlace();
        window_->show();
    }
    stage.bringForward(*this);
    stage.activate(this);
}

void Form::hide()
{
    if (!shown_)
        return;
    Stage& stage = Stage::instance();
    stage.settle();
    shown_ = false;
    stage.hidden(*this);
    {
        const ToolkitCall call;
        window_->hide();
    }
    if (modalLoop_) {
        modalLoop_->quit(); // showModal hands over to the owner
        return;
    }
    if (stage.active() == this)
        stage.giveUpFront();
}

void Form::giveUpWindow()
{
    if (!shown_)
        window_->giveUp();
}

void Form::showModal(Form& owner)
{
    if (modalLoop_)
        return; // asked for once more before its first call has returned
    load();
    Stage& stage = Stage::instance();
    stage.settleUnless(*this);
    QEventLoop loop;
    shown_ = true;
    {
        const ToolkitCall call;
        window_->setWindowModality(Qt::ApplicationModal);
        window_->becomeDialog();
        window_->fitAndPlace();
        window_->winId(); // makes the native window, which then can name its owner
        window_->windowHandle()->setTransientParent(owner.window()->windowHandle());
        window_->show();
    }
    stage.bringForward(*this);
    modalLoop_ = &loop;
    struct Reset {
        Form& form;
        ~Reset() { form.modalLoop_ = nullptr; }
    } const reset{*this};
    stage.activate(this);
    if (shown_)
        loop.exec();
    {
        const ToolkitCall call;
        window_->setWindowModality(Qt::NonModal);
    }
    if (stage.active() != this)
        return;
    if (!owner.isVisible()) {
        stage.giveUpFront();
        return;
    }
    stage.bringForward(owner);
    stage.activate(&owner);
}

void Form::close()
{
    bool cancel = false;
    runHandler(path(), "Unload", [this, &cancel] { Form_Unload(cancel); });
    if (cancel)
        return;
    hide();
    loaded_ = false;
    detail::discardScreen(*this);
}

void Form::setEnabled(bool enabled)
{
    if (std::exchange(enabled_, enabled) == enabled)
        return;
    const ToolkitCall call;
    canvas_->setEnabled(enabled);
    if (enabled && activeControl())
        activeControl()->widget()->setFocus(Qt::OtherFocusReason);
}

// ---- the focus

void Form::moveFocus(Control* control)
{
    if ((focused_ == control && !moving_) || moving_ == control)
        return;
    Control* left = std::exchange(focused_, nullptr);
    moving_ = control;
    wanted_ = nullptr;
    if (left) {
        try {
            left->LostFocus.fire();
        } catch (...) {
            // The focus has moved all the same.
            if (moving_ == control) {
                moving_ = nullptr;
                focused_ = control;
            }
            throw;
        }
    }
    if (left && focused_ != left && moving_ != left)
        left->hasLostFocus();
    if (moving_ != control)
        return; // LostFocus has sent it elsewhere
    moving_ = nullptr;
    if (!control->canTakeFocus())
        return; // LostFocus has disabled or hidden it
    focused_ = control;
    window_->reveal(control->widget());
    control->GotFocus.fire();
}

void Form::enter()
{
    Control* target = activeControl();
    if (!target || !target->canTakeFocus())
        target = target ? nextInTabOrder(true) : firstInTabOrder();
    if (!target || !target->canTakeFocus())
        return;
    {
        const ToolkitCall call;
        target->widget()->setFocus(Qt::OtherFocusReason);
    }
    moveFocus(target);
}

namespace {

std::vector<Control*> tabOrder(const Form& form, const std::function<bool(const Control&)>& stops)
{
    std::vector<Control*> order;
    for (Control* control : form.controls())
        if (control->tabIndex() >= 0 && stops(*control))
            order.push_back(control);
    std::stable_sort(order.begin(), order.end(),
        [](const Control* one, const Control* other) { return one->tabIndex() < other->tabIndex(); });
    return order;
}

} // namespace

Control* Form::firstInTabOrder() const
{
    const auto order =
        tabOrder(*this, [](const Control& control) { return control.canTakeFocus() && control.isTabStop(); });
    return order.empty() ? nullptr : order.front();
}

Control* Form::nextInTabOrder(bool forward) const
{
    const Control* from = activeControl();
    const auto order = tabOrder(*this,
        [from](const Control& control) { return &control == from || (control.canTakeFocus() && control.isTabStop()); });
    if (order.empty())
        return nullptr;
    const auto here = std::find(order.begin(), order.end(), from);
    if (here == order.end())
        return forward ? order.front() : order.back();
    const auto count = order.size();
    const auto at = static_cast<std::size_t>(here - order.begin());
    return order[(at + (forward ? 1 : count - 1)) % count];
}

// ---- the screens of the program

namespace {

struct Screen {
    std::type_index type;
    std::unique_ptr<Form> form;
};

std::vector<Screen>& screens()
{
    static std::vector<Screen> instance;
    return instance;
}

// A handler of the screen may still run, inside a nested event loop too.
void destroyAfterHandlers(const std::shared_ptr<Form>& last, int delayMilliseconds)
{
    constexpr int again = 50;
    QTimer::singleShot(delayMilliseconds, [last] {
        if (handlerRuns())
            destroyAfterHandlers(last, again);
    });
}

} // namespace

namespace detail {

Form* findScreen(std::type_index type)
{
    for (const Screen& screen : screens())
        if (screen.type == type)
            return screen.form.get();
    return nullptr;
}

Form& keepScreen(std::type_index type, std::unique_ptr<Form> form)
{
    Form& kept = *form;
    screens().push_back({type, std::move(form)});
    kept.load();
    return kept;
}

void discardScreen(Form& form)
{
    const auto at = std::find_if(
        screens().begin(), screens().end(), [&form](const Screen& screen) { return screen.form.get() == &form; });
    if (at == screens().end())
        return;
    std::shared_ptr<Form> last(std::move(at->form));
    screens().erase(at);
    destroyAfterHandlers(last, 0);
}

} // namespace detail

std::vector<Form*> madeScreens()
{
    std::vector<Form*> made;
    for (const Screen& screen : screens())
        made.push_back(screen.form.get());
    return made;
}

void destroyScreens()
{
    const ToolkitCall call;
    while (!screens().empty())
        screens().pop_back();
}

} // namespace forms
