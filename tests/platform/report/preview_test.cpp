// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/report/preview.h"
#include "support/forms_test.h"
#include "support/pdf_text.h"
#include "trial_report.h"

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>
#include <QVBoxLayout>

namespace {

using report::Preview;

/// A screen of the program.
struct TrialScreen : forms::Form {
    TrialScreen()
        : forms::Form("TrialScreen")
    {
        (new QVBoxLayout(canvas()))->addWidget(button.widget());
        button.Click = [this] { ++clicks; };
    }

    void Form_Activate() override { ++activations; }

    forms::CommandButton button{*this, "button"};
    int activations = 0;
    int clicks = 0;
};

/// A screen from which the report is opened, and its window.
class ReportPreview : public FormsTest {
protected:
    ReportPreview()
    {
        screen_.show();
        open();
    }

    void TearDown() override
    {
        delete preview_;
        FormsTest::TearDown();
    }

    // Four pages on Letter and on A4.
    void open(int rows = 24)
    {
        preview_ = new Preview("Trial", trial::document(trial::rows(rows)), [this] { ++errors_; });
        preview_->open();
        user::settle();
    }

    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        preview_->activateWindow();
        QTest::keyClick(preview_->windowHandle(), key, modifiers);
        user::settle();
    }

    void click(const char* button)
    {
        QTest::mouseClick(part<QPushButton>(button), Qt::LeftButton);
        user::settle();
    }

    template <class Widget>
    Widget* part(const char* name)
    {
        auto* found = preview_->findChild<Widget*>(name);
        EXPECT_TRUE(found) << "There is no " << name;
        return found;
    }

    QStringList disabled()
    {
        QStringList names;
        for (const QPushButton* button : preview_->findChildren<QPushButton*>())
            if (!button->isEnabled())
                names.append(button->objectName());
        return names;
    }

    report::PageView& view() { return *part<report::PageView>("pageView"); }
    QScrollBar& bar() { return *view().verticalScrollBar(); }

    /// Types a path into the dialog that Ctrl+S opens, and accepts it.
    void saveAs(const QString& path)
    {
        whileModal([path] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            suggested_ = dialog->selectedFiles().value(0).section(u'/', -1);
            auto* name = dialog->findChild<QLineEdit*>("fileNameEdit");
            name->setText(path);
            QTest::keyClick(name, Qt::Key_Return);
        });
        key(Qt::Key_S, Qt::ControlModifier);
    }

    TrialScreen screen_;
    QPointer<Preview> preview_;
    QTemporaryDir folder_;
    int errors_ = 0;
    inline static QString suggested_;
};

TEST_F(ReportPreview, TurnsPagesByKeysButtonsNumberAndWheel)
{
    EXPECT_EQ(preview_->windowTitle(), "Trial - Window");
    EXPECT_EQ(part<QLabel>("count")->text(), "of 4");
    EXPECT_EQ(disabled(), QStringList({"first", "previous"}));
    key(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(preview_->page(), 2);
    EXPECT_EQ(disabled(), QStringList());
    EXPECT_EQ(view().accessibleName(), "Page 2 of 4");
    click("last");
    EXPECT_EQ(preview_->page(), 4);
    EXPECT_EQ(disabled(), QStringList({"next", "last"}));
    click("previous");
    EXPECT_EQ(part<QSpinBox>("page")->value(), 3);
    key(Qt::Key_G, Qt::ControlModifier);
    key(Qt::Key_2);
    EXPECT_EQ(preview_->page(), 3); // not before the number is complete
    key(Qt::Key_Return);
    EXPECT_EQ(preview_->page(), 2);
    click("next");
    click("first");
    EXPECT_EQ(preview_->page(), 1);
    key(Qt::Key_Home);
    key(Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(preview_->page(), 1);

    view().setFocus();
    ASSERT_GT(bar().maximum(), 0);
    for (int strokes = 0; strokes < 20 && preview_->page() == 1; ++strokes)
        key(Qt::Key_PageDown); // down the page first
    EXPECT_EQ(preview_->page(), 2);
    EXPECT_EQ(bar().value(), 0);
    user::wheel(*view().viewport(), +120);
    EXPECT_EQ(preview_->page(), 1);
    EXPECT_EQ(bar().value(), bar().maximum());
    user::wheel(*view().viewport(), -120);
    EXPECT_EQ(preview_->page(), 2);
    key(Qt::Key_End);
    EXPECT_EQ(preview_->page(), 4);
}

TEST_F(ReportPreview, ZoomsAndRemembersZoomAndPaper)
{
    const double width = view().factor();
    key(Qt::Key_0, Qt::ControlModifier);
    EXPECT_LT(view().factor(), width);
    EXPECT_EQ(bar().maximum(), 0);
    EXPECT_EQ(part<QComboBox>("zoom")->currentText(), "Whole Page");
    key(Qt::Key_1, Qt::ControlModifier);
    EXPECT_EQ(view().factor(), width);
    for (int steps = 0; steps < 10; ++steps)
        click("zoomIn");
    EXPECT_EQ(part<QComboBox>("zoom")->currentText(), "300 %");
    EXPECT_EQ(disabled(), QStringList({"first", "previous", "zoomIn"}));
    key(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(view().factor(), 2);

    auto* paper = part<QComboBox>("paper");
    const QString other = paper->currentText() == "A4" ? "Letter" : "A4";
    paper->setFocus();
    QTest::keyClick(paper, other.at(0).toLatin1());
    key(Qt::Key_Escape);
    EXPECT_FALSE(preview_);
    open();
    EXPECT_EQ(part<QComboBox>("paper")->currentText(), other);
    EXPECT_EQ(view().factor(), 2);
    key(Qt::Key_1, Qt::ControlModifier);
    saveAs(folder_.filePath("other.pdf"));
    EXPECT_TRUE(pdf::info(folder_.filePath("other.pdf"), "Page size").contains(other, Qt::CaseInsensitive));
}

TEST_F(ReportPreview, IsNoScreenOfTheProgram)
{
    EXPECT_EQ(screen_.activations, 1);
    for (QWidget* window : {screen_.window(), static_cast<QWidget*>(preview_), screen_.window()}) {
        window->activateWindow();
        user::settle();
    }
    EXPECT_EQ(screen_.activations, 1);
    EXPECT_EQ(forms::activeForm(), &screen_);
    user::click(screen_.button);
    EXPECT_EQ(screen_.clicks, 1);
    key(Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(preview_);
    EXPECT_EQ(screen_.activations, 1);
}

TEST_F(ReportPreview, SavesAsDocumentAndAsTable)
{
    const QString document = folder_.filePath("a.pdf");
    saveAs(document);
    EXPECT_EQ(suggested_, "Trial 2026-11-24.pdf");
    EXPECT_EQ(pdf::read(document).size(), 4);
    EXPECT_TRUE(part<QLabel>("status")->text().contains(document));
    saveAs(folder_.filePath("a.csv"));
    QFile table(folder_.filePath("a.csv"));
    ASSERT_TRUE(table.open(QIODevice::ReadOnly));
    EXPECT_EQ(table.readAll().count('\n'), 25);
    saveAs(folder_.filePath("noending"));
    EXPECT_TRUE(QFile::exists(folder_.filePath("noending.pdf")));
    EXPECT_EQ(errors_, 0);
}

TEST_F(ReportPreview, TellsWhatFailed)
{
    // No print service listens here.
    qputenv("CUPS_SERVER", folder_.filePath("none").toLocal8Bit());
    click("print");
    EXPECT_EQ(errors_, 1);
    key(Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(errors_, 2);
    EXPECT_EQ(part<QLabel>("status")->text(), "");
}

} // namespace
