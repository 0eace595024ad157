// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/trial_form.h"
#include "platform/report/preview.h"
#include "trial_report.h"

#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>

namespace {

/// A screen from which the report is opened, and its window.
class ReportPreview : public FormInFront {
protected:
    ReportPreview() { preview_->open(); }
    ~ReportPreview() override { delete preview_; }

    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        preview_->activateWindow();
        QTest::keyClick(preview_->windowHandle(), key, modifiers);
    }

    void click(const char* button) { QTest::mouseClick(part<QPushButton>(button), Qt::LeftButton); }

    template <class Widget>
    Widget* part(const char* name)
    {
        return preview_->findChild<Widget*>(name);
    }

    report::PageView& view() { return *part<report::PageView>("pageView"); }
    void turnWheel(int eighths) { wheel(*view().viewport(), eighths); }

    /// The page, what its number says, and the buttons that are off.
    QString state()
    {
        settle();
        QString all = QString("%1: %2 ").arg(preview_->page()).arg(part<QSpinBox>("page")->value());
        all += part<QLabel>("count")->text();
        for (const QPushButton* button : preview_->findChildren<QPushButton*>())
            all += button->isEnabled() ? QString() : ", no " + button->objectName();
        return all;
    }

    // Four pages on Letter and on A4.
    QPointer<report::Preview> preview_ = new report::Preview("Trial", trial::document(trial::rows(24)), [] {});
};

TEST_F(ReportPreview, TurnsPagesByKeysButtonsNumberAndWheel)
{
    const std::pair<std::function<void()>, QString> steps[] = {
        {[] {}, "1: 1 of 4, no first, no previous"},
        {[this] { key(Qt::Key_PageDown, Qt::ControlModifier); }, "2: 2 of 4"},
        {[this] { click("last"); }, "4: 4 of 4, no next, no last"}, {[this] { click("previous"); }, "3: 3 of 4"},
        {[this] { key(Qt::Key_G, Qt::ControlModifier); }, "3: 3 of 4"},
        {[this] { key(Qt::Key_2); }, "3: 3 of 4"}, // not before the number is complete
        {[this] { key(Qt::Key_Return); }, "2: 2 of 4"}, {[this] { click("next"); }, "3: 3 of 4"},
        {[this] { click("first"); }, "1: 1 of 4, no first, no previous"},
        {[this] { view().setFocus(); }, "1: 1 of 4, no first, no previous"},
        {[this] { key(Qt::Key_PageDown); }, "1: 1 of 4, no first, no previous"}, // down the page first
        {[this] { turnWheel(-12000); }, "1: 1 of 4, no first, no previous"}, {[this] { turnWheel(-120); }, "2: 2 of 4"},
        {[this] { turnWheel(+120); }, "1: 1 of 4, no first, no previous"},
        {[this] { key(Qt::Key_PageDown); }, "2: 2 of 4"}, // it had come to the bottom
        {[this] { key(Qt::Key_End); }, "4: 4 of 4, no next, no last"},
        {[this] { key(Qt::Key_Home); }, "1: 1 of 4, no first, no previous"},
        {[this] { key(Qt::Key_0, Qt::ControlModifier); }, "1: 1 of 4, no first, no previous"},
        {[this] { key(Qt::Key_PageDown); }, "2: 2 of 4"}, // the whole page is in sight
    };
    for (const auto& [step, leadsTo] : steps) {
        step();
        EXPECT_EQ(state(), leadsTo);
    }
    EXPECT_EQ(view().accessibleName(), "Page 2 of 4");
    EXPECT_EQ(preview_->windowTitle(), "Trial - Window");
}

TEST_F(ReportPreview, IsNoScreenOfTheProgram)
{
    for (QWidget* window : {form.window(), static_cast<QWidget*>(preview_), form.window()}) {
        window->activateWindow();
        settle();
    }
    EXPECT_EQ(forms::activeForm(), &form);
    user::click(form.ok);
    key(Qt::Key_W, Qt::ControlModifier);
    settle();
    EXPECT_FALSE(preview_);
    EXPECT_EQ(taken(), "line.LostFocus ok.GotFocus ok.Click");
}

} // namespace
