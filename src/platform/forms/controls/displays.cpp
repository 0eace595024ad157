// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/controls/displays.h"

#include "platform/forms/input/keyboard.h"
#include "platform/forms/looks/theme.h"
#include "platform/forms/runtime/boundary.h"
#include "platform/forms/screens/form.h"
#include "platform/forms/screens/painting.h"
#include "platform/forms/screens/stage.h"
#include "platform/values/failure.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QGroupBox>
#include <QIcon>
#include <QImageReader>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <QProgressBar>
#include <QTimer>

namespace forms {

/// A label that can be clicked.
class LabelWidget : public QLabel {
public:
    LabelWidget(QWidget* parent, std::function<void(bool down, bool inside)> mouse)
        : QLabel(parent)
        , mouse_(std::move(mouse))
    {
        setTextFormat(Qt::PlainText);
    }

    void openHelp()
    {
        opensHelp_ = true;
        setCursor(Qt::PointingHandCursor);
    }
    bool opensHelp() const { return opensHelp_; }

    void click()
    {
        fromToolkit([this] { mouse_(true, true), mouse_(false, true); });
    }

    // A text that is broken into lines has one width, and so one height: a layout that had to ask for it would take no
    // room from other parts.
    bool hasHeightForWidth() const override { return false; }
    QSize sizeHint() const override { return sized(QLabel::sizeHint()); }
    QSize minimumSizeHint() const override { return sized(QLabel::minimumSizeHint()); }

protected:
    void mousePressEvent(QMouseEvent* event) override { report(event, true); }
    void mouseReleaseEvent(QMouseEvent* event) override { report(event, false); }

private:
    QSize sized(const QSize& hint) const
    {
        return wordWrap() ? QSize(maximumWidth(), heightForWidth(maximumWidth())) : hint;
    }

    void report(QMouseEvent* event, bool down)
    {
        event->accept();
        if (event->button() != Qt::LeftButton)
            return;
        if (!std::exchange(pressed_, down) && !down)
            return; // the press was elsewhere
        const bool inside = rect().contains(event->position().toPoint());
        fromToolkit([this, down, inside] { mouse_(down, inside); });
    }

    std::function<void(bool, bool)> mouse_;
    bool pressed_ = false;
    bool opensHelp_ = false;
};

// ---- labels

namespace {

// What is left free on the right of a number, for the closing parenthesis of one below zero.
int marginBehind(const QString& number, const QFontMetrics& metrics)
{
    const QFontMetrics largest(look::fontOf(TextRole::Heading));
    const int shown = number.endsWith(u')') ? metrics.horizontalAdvance(u')') : 0;
    return largest.horizontalAdvance(u')') - shown;
}

} // namespace

Label::Label(Form& form, const QString& name)
    : Control(form, name)
    , label_(new LabelWidget(form.canvas(), [this](bool down, bool inside) {
        if (!down && inside)
            Click.fire();
    }))
{
    adopt(label_);
    setRole(TextRole::Body);
}

Label::Label(Form& form, const QString& name, const QString& caption)
    : Label(form, name)
{
    setCaption(caption);
}

void Label::setCaption(const QString& caption)
{
    caption_ = caption;
    QString shown = caption;
    if (!namesControl_) {
        // Without a control that it names, a label has no access key: only "&&" is left to be read as "&".
        shown.replace(QLatin1String("&&"), QLatin1String("\x01"));
        shown.remove(u'&').replace(u'\x01', u'&');
    }
    const ToolkitCall call;
    label_->setText(shown);
    if (alignsAmounts_)
        label_->setContentsMargins(0, 0, marginBehind(caption, label_->fontMetrics()), 0);
}

void Label::setRole(TextRole role)
{
    role_ = role;
    label_->setFont(look::fontOf(role));
    QPalette palette = label_->palette();
    const bool heading = role == TextRole::Title || role == TextRole::Heading;
    const QColor colour = heading ? look::colours().accent
        : role == TextRole::Hint  ? look::colours().quiet
                                  : look::colours().text;
    palette.setColor(QPalette::WindowText, colour);
    label_->setPalette(palette);
    if (role == TextRole::Title)
        label_->setAlignment(Qt::AlignCenter);
}

void Label::wrapAt(int characters)
{
    label_->setWordWrap(true);
    label_->setFixedWidth(label_->fontMetrics().averageCharWidth() * characters);
}

void Label::alignAmounts()
{
    alignsAmounts_ = true;
    label_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setCaption(caption_);
}

void Label::openHelp()
{
    label_->openHelp();
    // What assistive tools have found there until now was a text.
    if (QAccessibleInterface* text = QAccessible::queryAccessibleInterface(label_))
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(text));
    Click = [this] { Keyboard::openHelpFor(form(), form().activeControl()); };
}

namespace {

/// A link that has no place in the Tab order, since F1 does the same.
class HelpLabelInterface : public QAccessibleWidget {
public:
    explicit HelpLabelInterface(LabelWidget& label)
        : QAccessibleWidget(&label, QAccessible::Link, label.text())
        , label_(label)
    {
    }

    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& action) override
    {
        if (action == pressAction())
            label_.click();
    }

private:
    LabelWidget& label_;
};

} // namespace

QAccessibleInterface* describeHelpLabel(QObject* object)
{
    auto* label = dynamic_cast<LabelWidget*>(object);
    return label && label->opensHelp() ? new HelpLabelInterface(*label) : nullptr;
}

void Label::nameFor(Control& control)
{
    namesControl_ = true;
    label_->setBuddy(control.widget());
    // A list of records isn't asked by assistive tools for the label that names it.
    if (auto* list = qobject_cast<QAbstractItemView*>(control.widget()))
        list->setAccessibleName(QString(caption_).remove(u'&'));
    setCaption(caption_);
}

// ---- pictures

/// Paints a picture for the pixels of the screen that it is on.
class PictureWidget : public LabelWidget {
public:
    using LabelWidget::LabelWidget;

    void setPicture(const QString& resource)
    {
        resource_ = resource;
        natural_ = QImageReader(resource).size();
        picture_ = look::icon(resource);
        resize(1);
    }

    void release() { picture_ = look::icon(resource_); }

    void setShare(double share)
    {
        if (share == share_)
            return;
        setVisible(share > 0);
        resize(share);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        const QIcon::Mode mode = isEnabled() ? QIcon::Normal : QIcon::Disabled;
        painter.drawPixmap(rect(), picture_.pixmap(size(), devicePixelRatioF(), mode));
    }

private:
    void resize(double share)
    {
        share_ = share;
        setFixedSize((natural_ * share * look::pictureScale()).toSize());
    }

    QString resource_;
    QSizeF natural_;
    QIcon picture_;
    double share_ = 1;
};

Picture::Picture(Form& form, const QString& name)
    : Control(form, name)
    , picture_(new PictureWidget(form.canvas(), [this](bool down, bool inside) {
        if (down) {
            MouseDown.fire();
            return;
        }
        MouseUp.fire();
        if (inside)
            Click.fire();
    }))
{
    adopt(picture_);
}

void Picture::setPicture(const QString& resource, const QString& description)
{
    picture_->setPicture(resource);
    picture_->setAccessibleName(description);
}

void Picture::release()
{
    picture_->release();
}

void Picture::setShare(double share)
{
    picture_->setShare(share);
}

void Picture::takeShare(double share)
{
    const bool isOrnament = !Click && !MouseDown && !MouseUp;
    if (isOrnament)
        setShare(share);
}

// ---- group boxes

GroupBox::GroupBox(Form& form, const QString& name)
    : Control(form, name)
{
    adopt(new QGroupBox(form.canvas()));
}

QString GroupBox::caption() const
{
    return static_cast<QGroupBox*>(widget())->title();
}

void GroupBox::setCaption(const QString& caption)
{
    static_cast<QGroupBox*>(widget())->setTitle(caption);
}

void GroupBox::hold(Control& control)
{
    const ToolkitCall call;
    control.widget()->setParent(widget());
}

// ---- progress bars

ProgressBar::ProgressBar(Form& form, const QString& name)
    : Control(form, name)
    , bar_(new QProgressBar(form.canvas()))
{
    adopt(bar_);
    bar_->setTextVisible(false);
    bar_->setRange(0, max_);
    bar_->setValue(0);
}

void ProgressBar::setMax(int max)
{
    if (max < 1 || max < value_)
        throw values::RuntimeFailure(
            values::FailureKind::InvalidCall, QStringLiteral("%1 can't end at %2").arg(name()).arg(max));
    max_ = max;
    paintNow();
}

void ProgressBar::setValue(int value)
{
    if (value < 0 || value > max_)
        throw values::RuntimeFailure(values::FailureKind::InvalidCall,
            QStringLiteral("%1 can't stand at %2 of %3").arg(name()).arg(value).arg(max_));
    value_ = value;
    const bool due = !sincePaint_.isValid() || sincePaint_.elapsed() >= repaintMilliseconds;
    if (due || value == max_)
        paintNow();
}

void ProgressBar::paintNow()
{
    {
        const ToolkitCall call;
        bar_->setRange(0, max_);
        bar_->setValue(value_);
    }
    if (form().isVisible() && isVisible())
        Stage::paint(form());
    sincePaint_.start();
}

// ---- tickers

Ticker::Ticker(Form& form, const QString& name, int intervalMilliseconds)
    : name_(form.name() + QLatin1Char('.') + name)
    , timer_(std::make_unique<QTimer>())
{
    timer_->setObjectName(QStringLiteral("ticker"));
    timer_->setInterval(intervalMilliseconds);
    QObject::connect(timer_.get(), &QTimer::timeout, timer_.get(), [this] { elapse(); });
}

Ticker::~Ticker() = default;

int Ticker::interval() const
{
    return timer_->interval();
}

void Ticker::setEnabled(bool enabled)
{
    enabled_ = enabled;
    if (enabled)
        timer_->start();
    else
        timer_->stop();
}

void Ticker::elapse()
{
    if (insideToolkitCall()) {
        // The layer waits for the toolkit inside a handler: the tick comes after it.
        QTimer::singleShot(10, timer_.get(), [this] { elapse(); });
        return;
    }
    if (enabled_)
        fromToolkit([this] { Timer.fire(); });
}

} // namespace forms
