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
#include <QScrollBar>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>
#include <QWheelEvent>

#include <cups/cups.h>

#include <cmath>
#include <mutex>

// The print service of this process, in place of the system's: it has one queue and keeps what it is handed.
namespace {

QStringList job;
bool takesJobs = true;
std::mutex answers; // locked while the service is silent

// What most jobs are handed over with; the others are told.
const QStringList usual{"media=A4", "copies=1", "collate=true", "sides=one-sided", "print-color-mode=monochrome",
    "number-up=1", "number-up-layout=lrtb", "job-billing=", "job-priority=50", "job-sheets=none,none"};

} // namespace

extern "C" {

int cupsGetDests(cups_dest_t** queues)
{
    const std::lock_guard hung(answers);
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
    EXPECT_EQ(count, usual.size());
    for (const cups_option_t* option = options; option != options + count; ++option)
        if (const QString told = QString("%1=%2").arg(option->name, option->value); !usual.contains(told))
            job += told;
    return takesJobs ? 1 : 0;
}

} // extern "C"

namespace {

/// A user who has enough of a wait as soon as it is told, and by whom.
class Impatience : public QObject {
    bool eventFilter(QObject* shown, QEvent* event) override
    {
        if (event->type() == QEvent::Show && shown->objectName() == "reportWait") {
            const auto* wait = static_cast<QWidget*>(shown);
            EXPECT_EQ(wait->windowTitle(), wait->parentWidget()->windowTitle());
            QMetaObject::invokeMethod(shown, "cancel", Qt::QueuedConnection);
        }
        return false;
    }
};

/// A screen from which a report of four pages is opened, on Letter and on A4, and its window.
class ReportPreview : public FormInFront {
protected:
    ReportPreview()
    {
        for (const char* variable : {"HOME", "XDG_CONFIG_HOME"})
            qputenv(variable, home_.path().toLocal8Bit());
        takesJobs = true;
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
        preview_->resize(1000, 720);
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
        else if (step == "hang") {
            answers.lock();
            qApp->installEventFilter(&impatience_);
        } else if (step == "answer") {
            qApp->removeEventFilter(&impatience_);
            answers.unlock();
        } else if (step == "behind")
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

    /// In the dialogue that is open: what its parts are to hold, by their names, the part to go to, a key, a button of
    /// the window behind that tells only now that it was pressed, or that window closed or at its end.
    void enter(const QStringList& entries)
    {
        QWidget* dialog = QApplication::activeModalWidget();
        if (const auto* files = qobject_cast<QFileDialog*>(dialog))
            journal += "(as " + files->directory().filePath(part<QLineEdit>("fileNameEdit")->text()) + ')';
        if (const auto* sideways = dialog->findChild<QWidget*>("landscape"))
            journal += sideways->isVisible() ? "(sideways)" : "(upright)";
        for (const QString& entry : entries) {
            auto* part = dialog->findChild<QWidget*>(entry.section(u'=', 0, 0));
            if (entry == "delete")
                delete preview_;
            else if (entry == "shut")
                preview_->close();
            else if (entry.startsWith("late:"))
                this->part<QPushButton>(entry.mid(5))->click();
            else if (part && entry.contains(u'='))
                EXPECT_TRUE(part->metaObject()->userProperty().write(part, entry.section(u'=', 1)));
            else if (auto* button = qobject_cast<QPushButton*>(part))
                button->click();
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
        return {view->accessibleName(), QString("number %1 to %2").arg(number->text()).arg(number->maximum()),
            part<QLabel>("count")->text(), off, part<QComboBox>("zoom")->currentText() + fit,
            part<QComboBox>("paper")->currentText(), '[' + part<QLabel>("status")->text() + ']'};
    }

    /// What comes after steps, with what is entered in a dialogue behind " | ", and in the next one behind " || ".
    QString after(const QString& steps)
    {
        QStringList dialogs = QString(steps).replace("~", home_.path()).split(" || ");
        QStringList first = dialogs.takeFirst().split(" | ");
        const QStringList words = first.takeFirst().split(u' ');
        if (!first.isEmpty())
            whileModal([this, first] { enter(first); });
        for (const QString& dialog : dialogs)
            whileModal([this, dialog] { enter(dialog.split(" | ")); });
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
    Impatience impatience_;
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
    EXPECT_EQ(pdf::read(home_.filePath("Else/Mine 11.25.pdf")).size(), 4);
    const FullDisk full(10);
    EXPECT_EQ(after("save | Return"), "(as ~/Else/Trial 2026-11-24.pdf); (error)");
}

// Room gives way first, then the words, then the single row; nothing is cut and nothing lies outside.
TEST_F(ReportPreview, FitsANarrowWindowWithAllItsButtons)
{
    open(24);
    preview_->resize(1400, 720);
    const auto* print = part<QPushButton>("print");
    const QWidget& bar = *print->parentWidget();
    QStringList looks;
    for (int width = preview_->width(); width >= preview_->minimumSizeHint().width(); width -= 5) {
        preview_->resize(width, preview_->height());
        settle();
        QRegion covered;
        for (const QWidget* each : bar.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
            if (each->isVisible()) {
                EXPECT_TRUE(bar.rect().contains(each->geometry()) && !covered.intersects(each->geometry()))
                    << each->objectName().toStdString() << " at " << width;
                covered += each->geometry();
            }
        }
        looks += print->text() + (print->y() > part<QWidget>("page")->y() ? " below" : " beside");
    }
    looks.removeDuplicates();
    EXPECT_EQ(looks, QStringList({"&Print... beside", " beside", "&Print... below", " below"}));
    EXPECT_LT(preview_->minimumSizeHint().width(), forms::look::grid(56)) << "800 dots with letters of 16 points";
    EXPECT_TRUE(after("Alt+S | Esc").contains("Trial 2026-11-24.pdf"));
}

TEST_F(ReportPreview, ZoomsAboutThePointerAndTellsTheWordsOfThePage)
{
    open(24);
    auto* view = part<QScrollArea>("pageView");
    EXPECT_EQ(view->accessibleDescription().section(u'\n', 0, 2), "Page 1 of 4 11/24/2026\nrow0 $1.00\nshort");
    take("End");
    EXPECT_EQ(view->accessibleDescription().section(u'\n', -2), "row23 $1.00\nshort");
    take("zoomIn");
    const QPoint pointer(300, 200);
    const auto share = [&] { return (pointer.y() - view->widget()->y()) / double(view->widget()->height()); };
    const double before = share();
    for (const int eighths : {50, 70}) {
        EXPECT_NEAR(share(), before, 0.001);
        QWheelEvent turn(pointer, view->viewport()->mapToGlobal(pointer), {}, {0, eighths}, Qt::NoButton,
            Qt::ControlModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(view->viewport(), &turn);
    }
    EXPECT_GT(view->verticalScrollBar()->value(), 0);
    EXPECT_NEAR(share(), before, 0.01);
}

} // namespace
