// SPDX-License-Identifier: GPL-3.0-or-later
#include "trial_form.h"

#include <QWidget>

namespace {

/// Counts how often a widget is painted.
class PaintCounter : public QObject {
public:
    explicit PaintCounter(QWidget& widget) { widget.installEventFilter(this); }

    int paints = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        paints += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

class Progress : public FormsTest {
protected:
    Journal journal;
};

TEST_F(Progress, IsSeenWhileAHandlerRunsOnAndCostsFewPaints)
{
    struct Working : TrialForm {
        using TrialForm::TrialForm;
        forms::ProgressBar bar{*this, "bar"};
        forms::CommandButton go{*this, "go"};
    } form("Working", journal);
    form.layOut({&form.bar, &form.go});
    form.show();
    settle();
    PaintCounter counter(*form.bar.widget());
    static constexpr int steps = 20000;
    form.go.Click = [&form, &counter] {
        form.bar.setMax(steps);
        for (int step = 1; step <= steps; ++step)
            form.bar.setValue(step);
        EXPECT_GT(counter.paints, 0);
        EXPECT_LT(counter.paints, steps / 10);
        EXPECT_EQ(form.bar.value(), steps);
    };
    click(form.go);
}

} // namespace
