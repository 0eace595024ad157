// SPDX-License-Identifier: GPL-3.0-or-later
#include "trial_form.h"

#include "platform/values/failure.h"

#include <QAbstractItemModelTester>
#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QDeadlineTimer>
#include <QLabel>
#include <QPointer>

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
    auto& kept =
        static_cast<TrialForm&>(forms::detail::keepScreen(typeid(TrialForm), std::make_unique<TrialForm>(journal)));
    kept.show();
    kept.answers["ok.Click"] = [] { throw values::RuntimeFailure(values::FailureKind::InvalidCall, "why"); };
    const auto run = [&] {
        forms::setFailureReporter({});
        forms::setReportWords("Title, ", [] { return QString("All is safe."); });
        forms::onEnd(cleanUp);
        whileModal([&] {
            const QWidget& box = *QApplication::activeModalWidget();
            std::fputs(qPrintable(box.windowTitle()), stderr);
            for (const QLabel* words : box.findChildren<QLabel*>())
                std::fputs(qPrintable(words->text() + u'\n'), stderr);
            press({Qt::Key_Tab, Qt::Key_Space}); // Copy Details
            std::fputs(qPrintable(QGuiApplication::clipboard()->text()), stderr);
            press(Qt::Key_Return);
        });
        click(kept.ok);
    };
    EXPECT_EXIT(run(), testing::ExitedWithCode(1),
        "^cleaned up, Form.ok_Click: (.*why)\nTitle, \n“OK” could not be carried out. The program has to close.\nAll "
        "is safe.\nFor whoever helps you:\n.*why\nForm.ok_Click\n.*why\nForm.ok_Click$");
    const auto end = [&] {
        forms::setProcessEnder({});
        forms::onEnd(cleanUp);
        forms::endProcess(3);
    };
    EXPECT_EXIT(end(), testing::ExitedWithCode(3), "^cleaned up, $");
    EXPECT_DEATH(
        form.ok.Click = [] {}, "Form.ok_Click has a handler already");
}

TEST_F(Failures, ThereAreNoneWhereAScreenIsClosedWhileItsHandlerAsks)
{
    useRealBoxes();
    auto& kept =
        static_cast<TrialForm&>(forms::detail::keepScreen(typeid(TrialForm), std::make_unique<TrialForm>(journal)));
    kept.show();
    const QPointer<QWidget> window = kept.window();
    kept.answers["ok.Click"] = [&] {
        whileModal([&] {
            kept.close();
            settle();
            EXPECT_EQ(forms::madeScreens().size(), 0U);
            press(Qt::Key_Return);
        });
        forms::MsgBox("Sure?", forms::box::Question, "Title");
        EXPECT_TRUE(window);
    };
    click(kept.ok);
    for (const QDeadlineTimer patience(2000); window && !patience.hasExpired();)
        settle();
    EXPECT_FALSE(window);
}

TEST_F(Failures, ThereAreNoneWhereAListIsAskedForWhatItDoesNotHold)
{
    for (const auto* view : form.window()->findChildren<QAbstractItemView*>()) {
        const QAbstractItemModelTester asked(view->model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
        EXPECT_EQ(view->model()->data({}), QVariant()) << view->model()->metaObject()->className();
    }
}

} // namespace
