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
    // Runs a step in the Click of the button, and notes the failure that it ends in.
    void caught(const std::function<void()>& step)
    {
        try {
            step();
        } catch (const values::RuntimeFailure&) {
            form.note("caught");
        }
    }

    TwoBoxes other{journal, "Other"};
};

TEST_F(Failures, InsideAHandlerInsideAHandlerNameTheInnerOneOnce)
{
    form.one.Change = [] { fail(); };
    form.answers["two.GotFocus"] = [this] { form.one.setText("bad"); };
    form.answers["ok.Click"] = [this] {
        form.two.setFocus();
        form.note("not reached");
    };
    click(form.ok);
    EXPECT_EQ(failedHandler(), "Form.one_Change");
    EXPECT_FALSE(journal.taken().contains("not reached"));
}

TEST_F(Failures, AreCaughtByTheHandlerAroundThemAndGiveTheirNameToNoOther)
{
    form.one.Change = [] { fail(); };
    form.answers["two.GotFocus"] = [] { fail(); };
    other.onActivate = [] { fail(); };
    form.answers["ok.Click"] = [this] {
        caught([this] { form.one.setText("bad"); });
        caught([this] { form.two.setFocus(); });
        caught([this] { other.show(); });
        other.hide();
        caught([this] { other.show_Modal(form); });
        other.hide();
        fail("second");
    };
    click(form.ok);
    EXPECT_EQ(journal.taken().count("caught"), 4);
    EXPECT_EQ(form.one.text(), "bad") << "the text was set all the same";
    const auto report = reportedFailure().value();
    EXPECT_EQ(report.handler + report.failure.section(':', -1), "Form.ok_Click second");
}

class LastWords : public Failures {
protected:
    LastWords() { GTEST_FLAG_SET(death_test_style, "threadsafe"); } // the toolkit has threads of its own
};

TEST_F(LastWords, AnUncaughtFailureCleansUpShowsTheReportAndEndsWithStatusOne)
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
}

TEST_F(LastWords, ASecondHandlerOnAnEventEndsTheProcessAndNamesTheEvent)
{
    EXPECT_DEATH(
        form.ok.Click = [] {}, "Form.ok_Click has a handler already");
}

} // namespace
