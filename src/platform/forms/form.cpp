// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/form.h"

#include "platform/forms/boundary.h"
#include "platform/forms/buttons.h"
#include "platform/forms/displays.h"
#include "platform/forms/keyboard.h"
#include "platform/forms/look.h"
#include "platform/forms/screen_interface.h"
#include "platform/forms/stage.h"
#include "platform/values/failure.h"

#include <QCloseEvent>
#include <QEventLoop>
#include <QGuiApplication>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace forms {

/// The window of a screen. The canvas scrolls where the desktop is smaller than the screen.
class FormWindow : public QWidget {
public:
    explicit FormWindow(Form& form)
        : QWidget(nullptr,
            Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint
                | Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint)
        , form_(form)
    {
        auto* around = new QVBoxLayout(this);
        around->setContentsMargins(0, 0, 0, 0);
        scroller_ = new QScrollArea(this);
        scroller_->setFrameShape(QFrame::NoFrame);
        scroller_->setFocusPolicy(Qt::NoFocus);
        scroller_->setWidgetResizable(true);
        around->addWidget(scroller_);
    }

    QWidget* makeCanvas()
    {
        auto* canvas = new QWidget;
        scroller_->setWidget(canvas);
        return canvas;
    }

    const Form& form() const { return form_; }

    void reveal(QWidget* widget) { scroller_->ensureWidgetVisible(widget); }

    void setLeastSize(const QSize& size) { minimumSize_ = minimumSize_.expandedTo(size); }

    /// Takes the canvas's own size, or what of it the desktop has room for, and the place of the screen before; the
    /// first one takes the middle of the desktop.
    void fitAndPlace()
    {
        QScreen* under = centre_.isNull() ? nullptr : QGuiApplication::screenAt(centre_);
        const QRect desktop = (under ? under : screen())->availableGeometry();
        const QSize frame(frameMargins_.left() + frameMargins_.right(), frameMargins_.top() + frameMargins_.bottom());
        const QSize room = desktop.size() - frame;
        makeFit(room);
        QSize size = scroller_->widget()->sizeHint();
        const int bar = scroller_->verticalScrollBar()->sizeHint().width();
        if (size.height() > room.height())
            size.rwidth() += bar;
        if (size.width() > room.width())
            size.rheight() += bar;
        size = size.boundedTo(room).expandedTo(minimumSize_.boundedTo(room));
        minimumSize_ = size; // a screen never shrinks between two visits
        setFixedSize(size);
        place(desktop.marginsRemoved(frameMargins_),
            under ? centre_ : desktop.center() + QPoint(0, frameMargins_.top() / 2));
    }

protected:
    bool focusNextPrevChild(bool next) override
    {
        if (insideToolkitCall())
            return false; // the layer decides where the focus goes
        fromToolkit([this, next] {
            if (Control* control = form_.nextInTabOrder(next))
                control->setFocus();
        });
        return true;
    }

    void closeEvent(QCloseEvent* event) override
    {
        event->ignore();
        if (form_.isEnabled() && form_.isVisible()) // a press that waited finds the screen gone
            fromToolkit([this] { form_.close(); });
    }

    void keyPressEvent(QKeyEvent* event) override
    {
        fromToolkit([this, event] { Keyboard::pressedOnForm(form_, *event); });
        event->accept();
    }

    void moveEvent(QMoveEvent*) override
    {
        if (isVisible() && !isModal())
            centre_ = geometry().center();
    }

    void changeEvent(QEvent* event) override
    {
        QWidget::changeEvent(event);
        if (event->type() != QEvent::ActivationChange || !isActiveWindow())
            return;
        frameMargins_ = windowHandle() ? windowHandle()->frameMargins() : QMargins();
        Stage::instance().windowActivated(form_);
    }

private:
    // Around a point, and within the room that the desktop has inside a frame.
    void place(const QRect& room, const QPoint& centre)
    {
        QRect inside(QPoint(), size());
        inside.moveCenter(centre);
        inside.moveLeft(std::max(std::min(inside.left(), room.right() + 1 - width()), room.left()));
        inside.moveTop(std::max(std::min(inside.top(), room.bottom() + 1 - height()), room.top()));
        move(inside.topLeft() - QPoint(frameMargins_.left(), frameMargins_.top()));
    }

    // On a small desktop the pictures give up their room first, then the gaps; what is left scrolls. They don't come
    // back into what the gaps have given up: a screen looks the same at each visit.
    void makeFit(const QSize& room)
    {
        const auto fits = [this, &room] {
            scroller_->widget()->layout()->activate(); // inner layouts measure again
            const QSize size = scroller_->widget()->sizeHint();
            return size.width() <= room.width() && size.height() <= room.height();
        };
        for (const double share : {1.0, 0.75, 0.5, 0.0}) {
            showPictures(tight_ ? 0 : share);
            if (fits())
                return;
        }
        if (!std::exchange(tight_, true))
            look::tighten(*scroller_->widget()->layout());
    }

    void showPictures(double share)
    {
        for (Control* control : form_.controls())
            if (auto* picture = dynamic_cast<Picture*>(control); picture && picture->isOrnament())
                picture->setShare(share);
    }

    Form& form_;
    QScrollArea* scroller_;
    QSize minimumSize_;
    bool tight_ = false;
    inline static QMargins frameMargins_; // known once a first window has been shown
    inline static QPoint centre_; // of the screen shown or moved last, without its frame
};

namespace {

QAccessibleInterface* describeWindow(const QString&, QObject* object)
{
    if (auto* window = dynamic_cast<FormWindow*>(object))
        return new ScreenInterface(*window, window->form());
    if (auto* notice = dynamic_cast<Notice*>(object))
        return new QAccessibleWidget(notice, QAccessible::Notification);
    // A window that is no screen, as the help; the toolkit tells of a plain one as if it were a part of another.
    auto* widget = qobject_cast<QWidget*>(object);
    const bool isPlainWindow = widget && widget->isWindow() && widget->metaObject() == &QWidget::staticMetaObject;
    return isPlainWindow ? new QAccessibleWidget(widget, QAccessible::Window) : nullptr;
}

} // namespace

Form::Form(const QString& name)
    : name_(name)
    , window_(new FormWindow(*this))
    , canvas_(window_->makeCanvas())
{
    [[maybe_unused]] static const bool described = (QAccessible::installFactory(describeWindow), true);
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

void Form::setDefaultButton(CommandButton* button)
{
    defaultButton_ = button;
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
        modalLoop_->quit(); // show_Modal hands over to the owner
        return;
    }
    if (stage.active() == this)
        stage.giveUpFront();
}

void Form::show_Modal(Form& owner)
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
    static std::vector<Screen> the;
    return the;
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
