// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/forms_test.h"

#include "platform/forms/boundary.h"

#include <QApplication>
#include <QClipboard>
#include <QMessageBox>

#include <algorithm>

namespace {

int modalsUp()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    return static_cast<int>(std::count_if(windows.begin(), windows.end(),
        [](const QWidget* window) { return window->isVisible() && window->isModal(); }));
}

// A box runs in a call of the toolkit all along; a screen is ready once the layer has come back from showing it.
bool modalIsReady()
{
    return qobject_cast<QMessageBox*>(QApplication::activeModalWidget()) || !forms::insideToolkitCall();
}

} // namespace

// Before the forms that a test has as members.
FormsTest::FormsTest()
{
    [[maybe_unused]] static const bool prepared = [] {
        forms::prepare(*qApp);
        return true;
    }();
    forms::setMessageDoor([this](const forms::Message& shown) { return answer(shown); });
    forms::setProcessEnder([this](int status) {
        endStatus_ = status;
        throw forms::ProcessEnd{status};
    });
    forms::setFailureReporter([this](const forms::FailureReport& report) {
        EXPECT_FALSE(failure_) << "A second failure after " << failure_->handler.toStdString();
        failure_ = report;
    });
    forms::setHelpDoor([this](int number, const QString&) { openedHelp_ = number; });
    QObject::connect(&scriptPoll_, &QTimer::timeout, &scriptPoll_, [this] { runScript(); });
    QObject::connect(&guard_, &QTimer::timeout, &guard_, [this] { guardModal(); });
    constexpr int guardMilliseconds = 250;
    guard_.start(guardMilliseconds);
}

void FormsTest::TearDown()
{
    forms::destroyScreens();
    user::settle();
    for (const Box& box : boxes_)
        ADD_FAILURE() << "No message box came with: " << box.message.text.toStdString();
    EXPECT_TRUE(scripts_.empty()) << scripts_.size() << " modal screens did not come";
    EXPECT_FALSE(endStatus_) << "The process has ended unexpectedly, with status " << *endStatus_;
    EXPECT_FALSE(failure_) << "Uncaught failure in " << failure_->handler.toStdString() << ": "
                           << failure_->failure.toStdString();
    forms::setMessageDoor({});
    forms::setProcessEnder({});
    forms::setFailureReporter({});
    forms::setHelpDoor({});
    forms::onHandlerReturn({});
    QGuiApplication::clipboard()->clear();
}

void FormsTest::expectBox(const QString& text, int flags, forms::Answer answer)
{
    boxes_.push_back({{text, flags, boxTitle_}, answer});
}

forms::Answer FormsTest::answer(const forms::Message& shown)
{
    if (boxes_.empty()) {
        ADD_FAILURE() << "Unexpected message box: " << shown.text.toStdString() << "\n  flags " << shown.flags;
        return shown.flags & forms::box::YesNo ? forms::Answer::No : forms::Answer::OK;
    }
    const Box expected = boxes_.front();
    boxes_.pop_front();
    EXPECT_EQ(shown.text, expected.message.text);
    EXPECT_EQ(shown.flags, expected.message.flags) << "of: " << shown.text.toStdString();
    EXPECT_EQ(shown.title, expected.message.title) << "of: " << shown.text.toStdString();
    return expected.answer;
}

void FormsTest::whileModal(std::function<void()> script)
{
    scripts_.push_back(std::move(script));
    scriptPoll_.start(0);
}

void FormsTest::runScript()
{
    if (modalsUp() <= scriptsRunning_ || !modalIsReady())
        return;
    const auto script = std::move(scripts_.front());
    scripts_.pop_front();
    if (scripts_.empty())
        scriptPoll_.stop();
    ++scriptsRunning_;
    try {
        script();
    } catch (const std::exception& failure) {
        ADD_FAILURE() << failure.what();
    }
    --scriptsRunning_;
}

// A modal screen for which nothing is scripted would wait for ever: the process ends instead.
void FormsTest::guardModal()
{
    const bool waits = scripts_.empty() && modalsUp() > scriptsRunning_;
    unattended_ = waits ? unattended_ + 1 : 0;
    if (unattended_ > 1)
        qFatal("A modal window waits for the user: %s", qPrintable(QApplication::activeModalWidget()->objectName()));
}
