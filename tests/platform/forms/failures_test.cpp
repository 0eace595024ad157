// SPDX-License-Identifier: GPL-3.0-or-later
#include "trial_form.h"

#include "platform/values/failure.h"

#include <cstdio>

namespace {

[[noreturn]] void fail(const QString& detail = "why")
{
    throw values::RuntimeFailure(values::FailureKind::InvalidCall, detail);
}

using Failures = FormInFront;

TEST_F(Failures, InsideAHandlerInsideAHandlerNameTheInnerOneOnce)
{
    form.line.Change = [] { fail(); };
    form.answers["memo.GotFocus"] = [this] { form.line.setText("bad"); };
    form.answers["ok.Click"] = [this] { form.memo.setFocus(); };
    click(form.ok);
    EXPECT_EQ(failedHandler(), "Form.line_Change");
}

TEST_F(Failures, AreCaughtByTheHandlerAroundThemAndGiveTheirNameToNoOther)
{
    TrialForm other(journal, "Other");
    form.line.Change = form.answers["memo.GotFocus"] = other.answers["Other.Activate"] = [] { fail(); };
    form.answers["ok.Click"] = [&] {
        EXPECT_THROW(form.line.setText("bad"), values::RuntimeFailure);
        EXPECT_THROW(form.memo.setFocus(), values::RuntimeFailure);
        EXPECT_THROW(other.show(), values::RuntimeFailure);
        other.hide();
        EXPECT_THROW(other.show_Modal(form), values::RuntimeFailure);
        other.hide();
        fail("second");
    };
    click(form.ok);
    EXPECT_EQ(form.line.text(), "bad") << "the text was set all the same";
    const auto report = reportedFailure().value();
    EXPECT_EQ(report.handler + report.failure.section(':', -1), "Form.ok_Click second");
}

TEST_F(Failures, ThatNobodyCatchesCleanUpShowTheReportAndEndWithStatusOne)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe"); // the toolkit has threads of its own
    form.answers["ok.Click"] = [] { fail(); };
    const auto run = [this] {
        forms::setFailureReporter({});
        forms::onEnd([] { std::fputs("cleaned up, ", stderr); });
        whileModal([] {
            std::fputs("shown", stderr);
            press(Qt::Key_Return);
        });
        click(form.ok);
    };
    EXPECT_EXIT(run(), testing::ExitedWithCode(1), "cleaned up, Form.ok_Click: .*why\nshown");
    EXPECT_DEATH(
        form.ok.Click = [] {}, "Form.ok_Click has a handler already");
}

} // namespace
