// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/forms_test.h"

#include "platform/forms/runtime/boundary.h"
#include "shared/theme.h"

#include <QtWidgets>

#include <algorithm>

namespace {

constexpr int pollMilliseconds = 2;
constexpr int patiencePolls = 200;

int modalsUp()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    return static_cast<int>(std::count_if(windows.begin(), windows.end(), [](const QWidget* window) {
        // A run that takes its time shows how far it is, and waits for nobody.
        return window->isVisible() && window->isModal() && !qobject_cast<const QProgressDialog*>(window);
    }));
}

// No ticker ticks by itself, however long a test takes.
class StillTickers : public QObject {
    bool eventFilter(QObject* object, QEvent* event) override
    {
        return event->type() == QEvent::Timer && object->objectName() == QLatin1String("ticker");
    }
};

QString told(const forms::Message& box)
{
    return QStringLiteral("%1 [%2, flags %3]").arg(box.text, box.title).arg(box.flags);
}

} // namespace

// Before the forms that a test has as members.
FormsTest::FormsTest()
{
    [[maybe_unused]] static const bool prepared = [] {
        forms::prepare(*qApp, programTheme());
        static StillTickers still;
        qApp->installEventFilter(&still);
        return true;
    }();
    forms::setMessageHandler([this](const forms::Message& shown) { return answer(shown); });
    forms::setProcessEnder([this](int status) {
        endStatus_ = status;
        throw forms::ProcessEnd{status};
    });
    forms::setFailureReporter([this](const forms::FailureReport& report) {
        EXPECT_FALSE(failure_) << "A second failure after " << failure_->handler.toStdString();
        failure_ = report;
    });
    forms::setHelpHandler([this](int number, const QString&) { openedHelp_ = number; });
    QObject::connect(&attendance_, &QTimer::timeout, &attendance_, [this] { attendModals(); });
    attendance_.start(pollMilliseconds);
}

void FormsTest::TearDown()
{
    forms::destroyScreens();
    user::settle();
    for (const auto& box : boxes_)
        ADD_FAILURE() << "This message box did not come: " << box.first.toStdString();
    EXPECT_TRUE(scripts_.empty()) << scripts_.size() << " modal screens did not come";
    EXPECT_FALSE(endStatus_) << "The process has ended unexpectedly, with status " << *endStatus_;
    EXPECT_FALSE(failure_) << "Uncaught failure in " << failure_->handler.toStdString() << ": "
                           << failure_->failure.toStdString();
    forms::setMessageHandler({});
    forms::setProcessEnder({});
    forms::setFailureReporter({});
    forms::setHelpHandler({});
    forms::onHandlerReturn({});
    QGuiApplication::clipboard()->clear();
}

void FormsTest::expectBox(const QString& text, int flags, forms::Answer answer)
{
    boxes_.emplace_back(told({text, flags, boxTitle_}), answer);
}

forms::Answer FormsTest::answer(const forms::Message& shown)
{
    if (boxes_.empty()) {
        ADD_FAILURE() << "Unexpected message box: " << told(shown).toStdString();
        return shown.flags & forms::box::YesNo ? forms::Answer::No : forms::Answer::OK;
    }
    const auto [expected, answer] = boxes_.front();
    boxes_.pop_front();
    EXPECT_EQ(told(shown), expected);
    return answer;
}

void FormsTest::whileModal(std::function<void()> script)
{
    scripts_.push_back(std::move(script));
}

void FormsTest::attendModals()
{
    // A box runs in a call of the toolkit all along; a screen is ready once the layer has come back from showing it.
    const bool isReady = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()) || !forms::insideToolkitCall();
    const bool waits = isReady && modalsUp() > scriptsRunning_;
    polls_ = waits ? polls_ + 1 : 0;
    if (!waits)
        return;
    if (scripts_.empty()) {
        // It would wait for ever: the process ends instead.
        if (polls_ > patiencePolls)
            qFatal(
                "A modal window waits for the user: %s", qPrintable(QApplication::activeModalWidget()->objectName()));
        return;
    }
    const auto script = std::move(scripts_.front());
    scripts_.pop_front();
    attendance_.start(pollMilliseconds); // anew, since a timer is still while its slot runs
    ++scriptsRunning_;
    try {
        script();
    } catch (const std::exception& failure) {
        ADD_FAILURE() << failure.what();
    }
    --scriptsRunning_;
}
