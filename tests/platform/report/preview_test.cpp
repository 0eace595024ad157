// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/trial_form.h"
#include "platform/report/preview.h"
#include "trial_report.h"

#include <QComboBox>
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

    template <class Widget>
    Widget* part(const QString& name)
    {
        return preview_->findChild<Widget*>(name);
    }

    /// A button clicked, another part given the focus, the wheel turned, or keys pressed.
    void take(const QString& step)
    {
        if (auto* button = part<QPushButton>(step))
            QTest::mouseClick(button, Qt::LeftButton);
        else if (auto* other = part<QWidget>(step))
            other->setFocus();
        else if (step.startsWith("wheel "))
            wheel(*part<QAbstractScrollArea>("pageView")->viewport(), step.mid(6).toInt());
        else {
            preview_->activateWindow();
            QTest::keySequence(preview_->windowHandle(), QKeySequence(step));
        }
        settle();
    }

    /// The page, what its number says, and the buttons that are off.
    QString state()
    {
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
    const QString top = "1: 1 of 4, no first, no previous";
    const QString end = "4: 4 of 4, no next, no last";
    const std::pair<const char*, QString> steps[] = {{"pageView", top}, {"Ctrl+PgDown", "2: 2 of 4"}, {"last", end},
        {"previous", "3: 3 of 4"}, {"Ctrl+G", "3: 3 of 4"}, {"2", "3: 3 of 4"}, // not before the number is complete
        {"Return", "2: 2 of 4"}, {"next", "3: 3 of 4"}, {"first", top}, {"pageView", top}, {"PgDown", top},
        {"wheel -12000", top}, {"wheel -120", "2: 2 of 4"}, // down the page first
        {"wheel 120", top}, {"PgDown", "2: 2 of 4"}, // it had come to the bottom
        {"End", end}, {"Home", top}, {"Ctrl+0", top}, {"PgDown", "2: 2 of 4"}}; // the whole page is in sight
    for (const auto& [step, leadsTo] : steps) {
        take(step);
        EXPECT_EQ(state(), leadsTo) << step;
    }
    EXPECT_EQ(part<QWidget>("pageView")->accessibleName(), "Page 2 of 4");
    const QImage sheet = part<QScrollArea>("pageView")->widget()->grab({40, 40, 300, 400}).toImage();
    EXPECT_NE(sheet, sheet.scaled(1, 1).scaled(sheet.size())) << "a blank sheet";
}

TEST_F(ReportPreview, HasZoomAndPaperOfTheWindowBefore)
{
    const std::pair<QStringList, const char*> cases[] = {
        {{"zoom", "End", "zoomOut", "zoomOut", "zoomIn", "paper", "End"}, "200 %, A4"},
        {{"zoom", "Home", "paper", "Home"}, "Page Width, Letter"}};
    for (const auto& [steps, chosen] : cases) {
        for (const QString& step : steps)
            take(step);
        const QSize sheet = part<QScrollArea>("pageView")->widget()->size();
        take("Ctrl+W");
        ASSERT_FALSE(preview_);
        preview_ = new report::Preview("Trial", trial::document({}), [] {});
        preview_->open();
        EXPECT_EQ(part<QComboBox>("zoom")->currentText() + ", " + part<QComboBox>("paper")->currentText(), chosen);
        EXPECT_EQ(part<QScrollArea>("pageView")->widget()->size(), sheet);
    }
}

TEST_F(ReportPreview, IsNoScreenOfTheProgram)
{
    for (QWidget* window : {form.window(), static_cast<QWidget*>(preview_), form.window()}) {
        window->activateWindow();
        settle();
    }
    EXPECT_EQ(forms::activeForm(), &form);
    user::click(form.ok);
    EXPECT_EQ(taken(), "line.LostFocus ok.GotFocus ok.Click");
}

} // namespace
