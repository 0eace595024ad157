// SPDX-License-Identifier: GPL-3.0-or-later
#include "trial_form.h"

#include "platform/values/failure.h"

#include <cstdio>

namespace {

[[noreturn]] void fail(const QString& detail = "why")
{
    throw values::RuntimeFailure(values::FailureKind::InvalidCall, detail);
}

class Failures : public FormsTest {
protected:
    void SetUp() override
    {
        FormsTest::SetUp();
        form.show();
        journal.taken();
    }

    Journal journal;
    TwoBoxes form{"Form", journal};
    TwoBoxes other{"Other", journal};
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
    EXPECT_EQ(reportedFailure().value().handler, "Form.one_Change");
    EXPECT_FALSE(journal.taken().contains("not reached"));
}

TEST_F(Failures, AreCaughtByTheHandlerAroundThem)
{
    form.one.Change = [] { fail(); };
    form.answers["two.GotFocus"] = [] { fail(); };
    other.onActivate = [] { fail(); };
    form.answers["ok.Click"] = [this] {
        const std::function<void()> steps[] = {
            [this] { form.one.setText("bad"); },
            [this] { form.two.setFocus(); },
            [this] { other.show(); },
            [this] { other.show_Modal(form); },
        };
        for (const auto& step : steps) {
            try {
                step();
            } catch (const values::RuntimeFailure&) {
                form.note("caught");
            }
            other.hide();
        }
    };
    journal.taken();
    click(form.ok);
    EXPECT_EQ(journal.taken().count("caught"), 4);
    EXPECT_FALSE(reportedFailure());
    EXPECT_EQ(form.one.text(), "bad") << "the text was set all the same";
}

TEST_F(Failures, CaughtInSilenceGiveTheirHandlersNameToNoOther)
{
    form.one.Change = [] { fail("first"); };
    form.answers["ok.Click"] = [this] {
        try {
            form.one.setText("bad");
        } catch (const values::RuntimeFailure&) {
        }
        fail("second");
    };
    click(form.ok);
    const auto report = reportedFailure().value();
    EXPECT_EQ(report.handler + report.failure.section(':', -1), "Form.ok_Click second");
}

class LastWords : public Failures {
protected:
    void SetUp() override
    {
        GTEST_FLAG_SET(death_test_style, "threadsafe"); // the toolkit has threads of its own
        Failures::SetUp();
    }
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
