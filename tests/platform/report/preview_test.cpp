// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/trial_form.h"
#include "platform/report/preview.h"
#include "support/files.h"
#include "support/painted.h"
#include "support/pdf_text.h"
#include "trial_report.h"

#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>

#include <cups/cups.h>

#include <cmath>

// The print service of this process, in place of the system's: it has one queue and keeps what it is handed.
namespace {

QStringList job;
bool takesJobs = true;

} // namespace

extern "C" {

int cupsGetDests(cups_dest_t** queues)
{
    return cupsAddDest("Paper", nullptr, 0, queues);
}

cups_dest_t* cupsGetNamedDest(http_t*, const char* name, const char* instance)
{
    cups_dest_t* queue = nullptr;
    cupsAddDest(name, instance, 0, &queue);
    return queue;
}

const char* cupsGetPPD(const char*)
{
    static const QTemporaryDir folder;
    static const QByteArray path = folder.filePath("printer.ppd").toLocal8Bit();
    QFile::copy(kept("platform/report/printer.ppd"), path); // whoever asks deletes it
    return path.constData();
}

int cupsPrintFile(const char* queue, const char* file, const char* title, int count, cups_option_t* options)
{
    const std::vector<pdf::Page> pages = pdf::read(file);
    job =
        QStringList{queue, title, QString("at %1:").arg(100 * std::lround(placesOf(pages[0], "Page")[0].top() / 100))};
    for (const pdf::Page& page : pages)
        job += page.text().section(u' ', 1, 1);
    for (const cups_option_t* option = options; option != options + count; ++option)
        job += QString("%1=%2").arg(option->name, option->value);
    return takesJobs ? 1 : 0;
}

} // extern "C"

namespace {

/// A screen from which a report of four pages is opened, on Letter and on A4, and its window.
class ReportPreview : public FormInFront {
protected:
    ReportPreview()
    {
        for (const char* variable : {"HOME", "XDG_CONFIG_HOME"})
            qputenv(variable, home_.path().toLocal8Bit());
    }

    ~ReportPreview() override { delete preview_; }

    template <class Widget>
    Widget* part(const QString& name)
    {
        return preview_->findChild<Widget*>(name);
    }

    void open(int rows)
    {
        delete preview_;
        preview_ = new report::Preview("Trial", trial::document(trial::rows(rows)), [this] { journal += "(error)"; });
        preview_->open();
    }

    /// Over the page where no other part is named.
    void turnWheel(int eighths, const QString& over)
    {
        QWidget* page = part<QAbstractScrollArea>("pageView")->viewport();
        wheel(over.isEmpty() ? *page : *part<QWidget>(over), eighths);
    }

    /// A button clicked, another part given the focus, something else done, or a key pressed.
    void take(const QString& step)
    {
        const QString object = step.section(u':', 1);
        if (step.startsWith("report:"))
            open(object.toInt());
        else if (step.startsWith("wheel:"))
            turnWheel(object.section(u':', 0, 0).toInt(), object.section(u':', 1));
        else if (step.startsWith("folder:"))
            QDir().mkdir(object);
        else if (step == "refuse")
            takesJobs = false;
        else if (step == "behind")
            form.window()->activateWindow();
        else if (step == "ok")
            user::click(form.ok);
        else if (auto* button = part<QPushButton>(step))
            QTest::mouseClick(button, Qt::LeftButton);
        else if (auto* other = part<QWidget>(step))
            other->setFocus();
        else {
            preview_->activateWindow();
            QTest::keySequence(preview_->windowHandle(), QKeySequence(step));
        }
        settle();
    }

    /// In the dialogue that is open: what its parts are to hold, by their names, the part to go to, or a key.
    void enter(const QStringList& entries)
    {
        QWidget* dialog = QApplication::activeModalWidget();
        if (const auto* files = qobject_cast<QFileDialog*>(dialog))
            journal += "(as " + files->directory().filePath(part<QLineEdit>("fileNameEdit")->text()) + ')';
        for (const QString& entry : entries) {
            auto* part = dialog->findChild<QWidget*>(entry.section(u'=', 0, 0));
            if (part && entry.contains(u'='))
                EXPECT_TRUE(part->metaObject()->userProperty().write(part, entry.section(u'=', 1)));
            else if (part)
                part->setFocus();
            else
                QTest::keySequence(dialog->windowHandle(), QKeySequence(entry));
        }
    }

    /// The page with its number, the buttons that are off, the choices, and what the window tells.
    QStringList state()
    {
        if (!preview_)
            return {"closed"};
        const auto* number = part<QSpinBox>("page");
        const auto* view = part<QScrollArea>("pageView");
        const QSize rest = view->viewport()->size() - view->widget()->size();
        const char* fit = std::abs(rest.width()) <= 1 ? ", as wide" : std::abs(rest.height()) <= 1 ? ", as high" : "";
        QString off = "off:";
        for (const QPushButton* button : preview_->findChildren<QPushButton*>())
            off += button->isEnabled() ? QString() : ' ' + button->objectName();
        return {view->accessibleName(), QString("number %1 to %2").arg(number->value()).arg(number->maximum()),
            part<QLabel>("count")->text(), off, part<QComboBox>("zoom")->currentText() + fit,
            part<QComboBox>("paper")->currentText(), '[' + part<QLabel>("status")->text() + ']'};
    }

    /// What comes after steps, with what is entered in a dialogue behind " | ".
    QString after(const QString& steps)
    {
        QStringList entries = QString(steps).replace("~", home_.path()).split(" | ");
        const QStringList words = entries.takeFirst().split(u' ');
        if (!entries.isEmpty())
            whileModal([&] { enter(entries); });
        for (const QString& step : words)
            take(step);
        if (const auto help = openedHelp())
            journal += QString("(help %1)").arg(*help);
        const QStringList before = std::exchange(seen_, state());
        for (const QString& each : seen_)
            journal += before.contains(each) ? QString() : each;
        journal += std::exchange(job, {}).join(' ');
        journal.removeAll({});
        return std::exchange(journal, {}).join("; ").replace(home_.path(), "~");
    }

    const QTemporaryDir home_;
    QPointer<report::Preview> preview_;
    QStringList seen_;
};

// The paper of a job is the printer's own, as far as it reaches; odd and even are the numbers that stand on the pages.
TEST_F(ReportPreview, GoesAsItIsKept)
{
    expectSteps("platform/report/preview.txt", [this](const QString& step) { return after(step); });
    const QImage sheet = part<QScrollArea>("pageView")->widget()->grab({40, 40, 300, 400}).toImage();
    EXPECT_NE(sheet, sheet.scaled(1, 1).scaled(sheet.size())) << "a blank sheet";
    EXPECT_EQ(sheet.pixelColor(0, 0), QColor(Qt::white));
    EXPECT_TRUE(pdf::output("pdfinfo", {home_.filePath("printed.pdf")}).contains("(letter)"));
    EXPECT_TRUE(bytesOf(home_.filePath("Documents/Trial 2026-11-24.csv")).contains("Name,Amount,Note\r\n"));
    EXPECT_EQ(pdf::read(home_.filePath("Else/Mine.pdf")).size(), 4);
    const FullDisk full(10);
    EXPECT_EQ(after("save | Return"), "(as ~/Else/Trial 2026-11-24.pdf); (error); []");
}

} // namespace
