// SPDX-License-Identifier: GPL-3.0-or-later
#include "trial_form.h"

#include "platform/values/failure.h"

#include <cstdio>

namespace {

[[noreturn]] void fail(const QString& detail = "why")
{
    throw values::RuntimeFailure(values::FailureKind::InvalidCall, detail);
}

class Failures : public FormInFront<TwoBoxes> {
protected:
    Failures()
    {
        GTEST_FLAG_SET(death_test_style, "threadsafe"); // the toolkit has threads of its own
        form.one.Change = [] { fail(); };
    }

    // Runs a step in the Click of the button, and notes the failure that it ends in.
    void caught(const std::function<void()>& step)
    {
        try {
            step();
        } catch (const values::RuntimeFailure&) {
            form.note("caught");
        }
    }
};

TEST_F(Failures, InsideAHandlerInsideAHandlerNameTheInnerOneOnce)
{
    form.answers["two.GotFocus"] = [this] { form.one.setText("bad"); };
    form.answers["ok.Click"] = [this] {
        form.two.setFocus();
        form.note("not reached");
    };
    EXPECT_FALSE(after([this] { click(form.ok); }).contains("not reached"));
    EXPECT_EQ(failedHandler(), "Form.one_Change");
}

TEST_F(Failures, AreCaughtByTheHandlerAroundThemAndGiveTheirNameToNoOther)
{
    TwoBoxes other(journal, "Other");
    form.answers["two.GotFocus"] = other.onActivate = [] { fail(); };
    form.answers["ok.Click"] = [&] {
        caught([&] { form.one.setText("bad"); });
        caught([&] { form.two.setFocus(); });
        caught([&] { other.show(); });
        other.hide();
        caught([&] { other.show_Modal(form); });
        other.hide();
        fail("second");
    };
    EXPECT_EQ(after([this] { click(form.ok); }).count("caught"), 4);
    EXPECT_EQ(form.one.text(), "bad") << "the text was set all the same";
    const auto report = reportedFailure().value();
    EXPECT_EQ(report.handler + report.failure.section(':', -1), "Form.ok_Click second");
}

TEST_F(Failures, ThatNobodyCatchesCleanUpShowTheReportAndEndWithStatusOne)
{
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
