// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/print.h"
#include "support/user.h"

#include <QTimer>

#include <gmock/gmock.h>

#include <deque>
#include <functional>
#include <optional>

/// A test with forms. Message boxes are answered from a script, the end of the process and uncaught failures are
/// caught, the help viewer stays shut. What happens without being expected fails the test, and so does what is expected
/// and doesn't happen.
class FormsTest : public testing::Test {
protected:
    FormsTest();
    void TearDown() override;

    /// Queues a message box that has to come, and the answer to it. The title is that of setBoxTitle().
    void expectBox(const QString& text, int flags, forms::Answer answer = forms::Answer::OK);

    /// Clicks a control, at which such a box has to come.
    void clickTold(forms::Control& control, const QString& text, int flags, forms::Answer answer = forms::Answer::OK)
    {
        expectBox(text, flags, answer);
        user::click(control);
    }

    void setBoxTitle(const QString& title) { boxTitle_ = title; }

    /// Shows boxes on the screen, to be answered by whileModal().
    void useRealBoxes() { forms::setMessageHandler({}); }

    /// Queues what the user does when the next modal screen or real box is up, inside its event loop. Scripts run in
    /// the order in which they are queued, one for each opening.
    void whileModal(std::function<void()> script);

    /// The status with which the process would have ended; asking makes it an expected end.
    std::optional<int> endStatus() { return std::exchange(endStatus_, {}); }

    /// The failure that no handler caught; asking makes it an expected one.
    std::optional<forms::FailureReport> reportedFailure() { return std::exchange(failure_, {}); }

    /// Its handler; empty where none was missed.
    QString failedHandler() { return reportedFailure().value_or(forms::FailureReport()).handler; }

    /// The number under which help was opened last; nothing when it wasn't since the last question.
    std::optional<int> openedHelp() { return std::exchange(openedHelp_, {}); }

private:
    forms::Answer answer(const forms::Message& shown);
    void attendModals();

    QString boxTitle_;
    std::deque<std::pair<QString, forms::Answer>> boxes_;
    std::deque<std::function<void()>> scripts_;
    int scriptsRunning_ = 0;
    int polls_ = 0;
    QTimer attendance_;
    std::optional<int> endStatus_;
    std::optional<forms::FailureReport> failure_;
    std::optional<int> openedHelp_;
};
