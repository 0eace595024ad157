// SPDX-License-Identifier: GPL-3.0-or-later
#include "trial_form.h"

#include "platform/values/failure.h"

#include <QAbstractItemModelTester>
#include <QAbstractItemView>
#include <QApplication>
#include <QMessageBox>

#include <cstdio>

namespace {

using Failures = FormInFront;

TEST_F(Failures, ThatNobodyCatchesCleanUpShowTheReportAndEndWithStatusOne)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe"); // the toolkit has threads of its own
    const auto cleanUp = [] {
        std::fputs("cleaned up, ", stderr);
        forms::runAsHandler("late", [] { std::fputs("no handler may run any more", stderr); });
    };
    form.answers["ok.Click"] = [] { throw values::RuntimeFailure(values::FailureKind::InvalidCall, "why"); };
    const auto run = [&] {
        forms::setFailureReporter({});
        forms::setReportWords("Title, ", [] { return QString("All is safe."); });
        forms::onEnd(cleanUp);
        whileModal([&] {
            const auto& box = dynamic_cast<QMessageBox&>(*QApplication::activeModalWidget());
            std::fputs(qPrintable(box.windowTitle() + box.text()), stderr);
            press(Qt::Key_Return);
        });
        click(form.ok);
    };
    EXPECT_EXIT(run(), testing::ExitedWithCode(1),
        "^cleaned up, Form.ok_Click: .*why\nTitle, The program has to close: an operation failed.\n\n.*why\n\n"
        "Where: Form.ok_Click\n\nAll is safe.$");
    const auto end = [&] {
        forms::setProcessEnder({});
        forms::onEnd(cleanUp);
        forms::endProcess(3);
    };
    EXPECT_EXIT(end(), testing::ExitedWithCode(3), "^cleaned up, $");
    EXPECT_DEATH(
        form.ok.Click = [] {}, "Form.ok_Click has a handler already");
}

TEST_F(Failures, ThereAreNoneWhereAListIsAskedForWhatItDoesNotHold)
{
    for (const auto* view : form.window()->findChildren<QAbstractItemView*>()) {
        const QAbstractItemModelTester asked(view->model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
        EXPECT_EQ(view->model()->data({}), QVariant()) << view->model()->metaObject()->className();
    }
}

} // namespace
