// SPDX-License-Identifier: GPL-3.0-or-later
#include "trial_form.h"

#include "platform/forms/look.h"

#include <QApplication>
#include <QPalette>
#include <QScreen>
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

class Looks : public FormsTest {
protected:
    Journal journal;
};

TEST_F(Looks, ADarkDesktopChangesNothing)
{
    const QPalette light = QApplication::palette();
    QApplication::setPalette(QPalette(Qt::black));
    forms::look::apply(*qApp);
    for (int role = 0; role < QPalette::NColorRoles; ++role)
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
            EXPECT_EQ(QApplication::palette().color(group, QPalette::ColorRole(role)),
                light.color(group, QPalette::ColorRole(role)))
                << "role " << role << " in group " << group;
}

TEST_F(Looks, AScreenLargerThanTheDesktopScrollsToTheControlThatHasTheFocus)
{
    struct Tall : TrialForm {
        using TrialForm::TrialForm;
        forms::ControlArray<forms::TextBox, 60> boxes{*this, "boxes"};
    } form("Tall", journal);
    auto* column = new QVBoxLayout(form.canvas());
    for (int index = 0; index < 60; ++index) {
        column->addWidget(form.boxes[index].widget());
        form.boxes[index].setTabIndex(index);
    }
    form.show();
    settle();
    EXPECT_LE(form.window()->height(), form.window()->screen()->availableGeometry().height());
    EXPECT_TRUE(form.boxes[59].widget()->visibleRegion().isEmpty());
    backTab();
    EXPECT_TRUE(form.boxes[59].hasFocus());
    EXPECT_EQ(form.boxes[59].widget()->visibleRegion().boundingRect(), form.boxes[59].widget()->rect());
}

} // namespace
