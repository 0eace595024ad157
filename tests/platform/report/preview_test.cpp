// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/trial_form.h"
#include "platform/report/preview.h"
#include "support/files.h"
#include "support/painted.h"
#include "support/pdf_text.h"
#include "support/printer.h"
#include "trial_report.h"

#include <QTest>
#include <QtWidgets>

#include <cmath>

namespace {

/// A screen from which a report of four pages is opened, on Letter and on A4, and its window.
class ReportPreview : public FormInFront {
protected:
    ReportPreview()
    {
        for (const char* variable : {"HOME", "XDG_CONFIG_HOME"})
            qputenv(variable, home_.path().toLocal8Bit());
        printer::be(printer::State::Ready);
        forms::setHelpHandler([this](int, const QString& window) { journal += "(help of " + window + ')'; });
    }

    ~ReportPreview() override { delete preview_; }

    template <class Widget>
    Widget* part(const QString& name)
    {
        return preview_->findChild<Widget*>(name);
    }

    void open(int rows)
    {
        document_ = trial::document(trial::rows(rows));
        delete preview_;
        preview_ = new report::Preview("Trial", document_, [this] { journal += "(error)"; });
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
        else if (step.startsWith("held:")) {
            QKeyEvent again(QEvent::KeyPress, QKeySequence(object)[0].key(), Qt::NoModifier, {}, true);
            QApplication::sendEvent(preview_->focusWidget(), &again);
        } else if (step.startsWith("folder:"))
            QDir().mkdir(object);
        else if (step.startsWith("gone:"))
            QDir(object).removeRecursively();
        else if (step == "refuse")
            printer::be(printer::State::Refusing);
        else if (step == "hang" || step == "slow")
            printer::hang(step == "hang" ? printer::User::GivesUp : printer::User::Waits);
        else if (step == "answer")
            printer::answer();
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

    /// In the dialogue that is open: what its parts are to hold, by their names, or what they hold, the part to go to,
    /// a key, a button of the window behind that tells only now that it was pressed, or that window closed or at its
    /// end.
    void enter(const QStringList& entries)
    {
        QWidget* dialog = QApplication::activeModalWidget();
        if (const auto* files = qobject_cast<QFileDialog*>(dialog))
            journal += "(as " + files->directory().filePath(part<QLineEdit>("fileNameEdit")->text()) + ')';
        if (const auto* box = qobject_cast<QMessageBox*>(dialog))
            journal += '(' + QString(box->text()).replace('\n', ' ') + ' ' + box->defaultButton()->text()
                + (box->textFormat() == Qt::PlainText ? ")" : ", as it is meant)");
        if (const auto* sideways = dialog->findChild<QWidget*>("landscape"))
            journal += sideways->isVisible() ? "(sideways)" : "(upright)";
        for (const QString& entry : entries) {
            auto* part = dialog->findChild<QWidget*>(entry.section(QRegularExpression("[=?]"), 0, 0));
            if (entry == "delete")
                delete preview_;
            else if (part && entry.endsWith(u'?'))
                journal += QStringList{entry, part->isHidden() ? "hidden" : "", part->isEnabled() ? "" : "grey",
                    part->metaObject()->userProperty().read(part).toString(), part->property("maximum").toString()}
                               .join(' ')
                               .simplified();
            else if (entry == "shut")
                preview_->close();
            else if (entry == "hang" || entry == "slow")
                printer::hang(entry == "hang" ? printer::User::GivesUp : printer::User::Waits);
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

    /// How the page is shown: as wide or as high as there is room, or by the factor that the list tells; always in the
    /// middle and beside a bar to scroll it. And how far it is scrolled.
    QString sizeOfPage()
    {
        const auto* view = part<QScrollArea>("pageView");
        const QScrollBar& bar = *view->verticalScrollBar();
        const QRect sheet = view->widget()->geometry();
        const QSize rest = view->viewport()->size() - sheet.size();
        const QString zoom = part<QComboBox>("zoom")->currentText();
        const QPageSize paper(part<QComboBox>("paper")->currentIndex() == 0 ? QPageSize::Letter : QPageSize::A4);
        const double inches = double(sheet.width() - 32) / view->logicalDpiX();
        QString told = zoom;
        if (std::abs(rest.width()) <= 1)
            told += ", as wide";
        else if (std::abs(rest.height()) <= 1)
            told += ", as high";
        else if (zoom != QString("%1 %").arg(qRound(100 * inches / paper.size(QPageSize::Inch).width())))
            told += ", which it isn't";
        if (rest.width() > 0 && std::abs(sheet.left() - rest.width() / 2) > 1)
            told += ", aside";
        if (!bar.isVisible())
            told += ", without a bar";
        return told
            + (bar.maximum() == 0                 ? ""
                    : bar.value() == 0            ? ", top"
                    : bar.value() < bar.maximum() ? ""
                                                  : ", end");
    }

    /// The page with its number, the part that has the focus, the buttons that are off, the choices, and what the
    /// window tells.
    QStringList state()
    {
        if (!preview_)
            return {"closed"};
        const auto* number = part<QSpinBox>("page");
        QString off = "off:";
        for (const QPushButton* button : preview_->findChildren<QPushButton*>())
            off += button->isEnabled() ? QString() : ' ' + button->objectName();
        return {part<QWidget>("pageView")->accessibleName(),
            QString("number %1 to %2").arg(number->text()).arg(number->maximum()), part<QLabel>("count")->text(), off,
            sizeOfPage(), part<QComboBox>("paper")->currentText(), '[' + part<QLabel>("status")->text() + ']',
            "at " + preview_->focusWidget()->objectName(), preview_->windowTitle() + " as " + preview_->windowRole()};
    }

    /// "Paper Trial at 1000: 1 2 3 4": how far down the first page begins, and which pages they are.
    static QString told(const printer::Job& job)
    {
        QStringList words{job.queue, job.title,
            QString("at %1:").arg(100 * std::lround(placesOf(job.pages[0], "Page")[0].top() / 100))};
        for (const pdf::Page& page : job.pages)
            words += page.text().section(u' ', 1, 1);
        return (words + job.options).join(' ');
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
        for (const QString& wait : printer::waits())
            journal += '(' + wait + ')';
        const QStringList before = std::exchange(seen_, state());
        for (const QString& each : seen_)
            journal += before.contains(each) ? QString() : each;
        if (const auto job = printer::job())
            journal += told(*job);
        journal.removeAll({});
        return std::exchange(journal, {}).join("; ").replace(home_.path(), "~");
    }

    const QTemporaryDir home_;
    std::shared_ptr<report::Document> document_;
    QPointer<report::Preview> preview_;
    QStringList seen_;
};

// The paper of a job is the printer's own, as far as it reaches; odd and even are the numbers that stand on the pages.
TEST_F(ReportPreview, GoesAsItIsKept)
{
    expectSteps("platform/report/preview.txt", [this](const QString& step) { return after(step); });
    const QImage sheet = part<QScrollArea>("pageView")->widget()->grab().toImage();
    const auto lightness = [&sheet, scale = (sheet.width() - 32) / 12240.0](double left, double top, int dots) {
        return sheet.pixelColor(qRound(16 + left * scale), qRound(16 + top * scale) + dots).lightness();
    };
    EXPECT_LT(std::min({lightness(6120, 3500, -1), lightness(6120, 3500, 0), lightness(6120, 3500, 1)}), 200)
        << "a rule";
    EXPECT_EQ(lightness(6120, 3450, 0) + lightness(10, 10, 0), 2 * 255);
    const QRgb shadow = sheet.pixel(sheet.width() - 15, sheet.height() / 2);
    EXPECT_NE(shadow, sheet.pixel(sheet.width() - 5, sheet.height() / 2));
    EXPECT_EQ(shadow, sheet.pixel(sheet.width() / 2, sheet.height() - 15));
    EXPECT_TRUE(pdf::output("pdfinfo", {home_.filePath("printed.pdf")}).contains("(letter)"));
    EXPECT_TRUE(bytesOf(home_.filePath("Documents/Trial 2026-11-24.csv")).contains("Name,Amount,Note\r\n"));
    EXPECT_EQ(pdf::read(home_.filePath("Else/Mine 11.25.pdf")).size(), 4);
    const FullDisk full(10);
    EXPECT_EQ(after("save | Return"),
        "(as ~/Documents/Trial 2026-11-24.pdf); (error); [The report could not be saved as "
        "~/Documents/Trial 2026-11-24.pdf. Choose another name or folder.]; at save");
}

// Room gives way first, then the words, then the single row; nothing is cut and nothing lies outside.
TEST_F(ReportPreview, FitsANarrowWindowWithAllItsButtons)
{
    open(24);
    preview_->resize(1400, 720);
    settle();
    const auto* print = part<QPushButton>("print");
    QWidget& bar = *print->parentWidget();
    const QImage drawn = bar.grab().toImage();
    QStringList dividers;
    for (int dot = 1, y = print->geometry().center().y(); dot < drawn.width(); ++dot)
        if (!bar.childAt(dot, y) && drawn.pixelColor(dot, y) != drawn.pixelColor(0, y))
            dividers += bar.childAt(dot - forms::look::grid(1), y)->objectName();
    EXPECT_EQ(dividers, QStringList({"last", "zoomIn"}));
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
    open(600);
    for (const char* paper : {"Home", "End"}) {
        after(QString("paper ") + paper); // has more pages, or fewer
        EXPECT_EQ(part<QLabel>("count")->width(), part<QLabel>("count")->sizeHint().width());
    }
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
    const auto share = [&] {
        const QRectF sheet = view->widget()->geometry();
        return QPointF((pointer.x() - sheet.x() - 16) / (sheet.width() - 32), // without the desk around it
            (pointer.y() - sheet.y() - 16) / (sheet.height() - 32));
    };
    const QPointF before = share();
    for (const int eighths : {50, 70}) {
        EXPECT_EQ(share(), before);
        QWheelEvent turn(pointer, view->viewport()->mapToGlobal(pointer), {}, {0, eighths}, Qt::NoButton,
            Qt::ControlModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(view->viewport(), &turn);
    }
    EXPECT_GT(view->verticalScrollBar()->value(), 0);
    EXPECT_NEAR(share().x(), before.x(), 0.002);
    EXPECT_NEAR(share().y(), before.y(), 0.002);
}

/// Rows of which one can't be told from some moment on; and how often they were asked.
struct BrokenTable : trial::Table {
    QString text(int row, int column) const override
    {
        ++asked;
        if (isBroken)
            throw std::runtime_error("a value that can't be printed");
        return trial::Table::text(row, column);
    }

    bool isBroken = false;
    mutable int asked = 0;
};

TEST_F(ReportPreview, PaintsAPageAnewThatIsTurnedToAndTellsOnceThatOneCantBePainted)
{
    open(24);
    settle();
    const auto table = std::make_shared<BrokenTable>();
    table->rows = trial::rows(24);
    document_->rows = table;
    take("next"); // tells its words, and paints them
    EXPECT_GE(table->asked, 2 * 6 * 3);
    table->isBroken = true;
    for (int times = 0; times < 3; ++times)
        part<QScrollArea>("pageView")->widget()->repaint();
    settle();
    EXPECT_EQ(std::exchange(journal, {}).join(' '), "(error)");
    EXPECT_TRUE(after("save | Return").contains("; (error);"));
}

} // namespace
