// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/look.h"
#include "platform/forms/trial_form.h"
#include "platform/help/printing.h"
#include "platform/help/viewer.h"
#include "platform/help/words.h"
#include "support/files.h"
#include "support/printer.h"
#include "support/traits.h"

#include <QPrinter>
#include <QTest>
#include <QtWidgets>

using report::Outcome;

namespace {

/// The viewer of a small book, beside a screen that is in front, and one to be shown over it.
class HelpViewer : public FormInFront {
protected:
    HelpViewer()
    {
        makeViewer();
        forms::setHelpHandler([this](int number, const QString&) { viewer_->open(QString::number(number)); });
        form.setHelpNumber(2001);
        modal.setHelpNumber(2001);
        printer::be(printer::State::Missing);
    }

    void makeViewer() { viewer_.emplace(help::Book(kept("platform/help/book")), "Help"); }

    template <class Widget = QWidget>
    Widget& part(const char* name)
    {
        return *viewer_->findChild<Widget*>(name);
    }

    QTextBrowser& text() { return part<QTextBrowser>("page"); }

    /// In the dialogue: a key, "hang" for a service that doesn't answer then, or "to" a file.
    void print(const QString& how)
    {
        whileModal([this, how] {
            const QWidget& dialog = *QApplication::activeModalWidget();
            EXPECT_EQ(dialog.objectName(), "helpPrintDialog");
            if (how == "hang")
                printer::hang(printer::User::GivesUp);
            if (how == "to") {
                auto* printers = dialog.findChild<QComboBox*>("printers");
                printers->setCurrentText("Print to File (PDF)");
                dialog.findChild<QLineEdit*>("filename")->setText(folder_.filePath("page.pdf"));
            }
            QTest::keySequence(dialog.windowHandle(), QKeySequence(how == "Esc" ? "Esc" : "Return"));
        });
        QTest::keySequence(viewer_->windowHandle(), QKeySequence("Ctrl+P"));
        if (how == "hang")
            printer::answer();
        viewer_->activateWindow(); // as a window manager does
    }

    /// "open TOPIC", "click PART", "choose CHAPTER", "hit NUMBER", "seek WORDS", "type TEXT", "print HOW", or keys.
    void take(const QString& step)
    {
        const QString more = step.section(' ', 1);
        auto& contents = part<QTreeWidget>("contents");
        auto& found = part<QListWidget>("found");
        if (step.startsWith("open "))
            viewer_->open(more);
        else if (step.startsWith("click "))
            QTest::mouseClick(&part(more.toLatin1()), Qt::LeftButton);
        else if (step.startsWith("choose "))
            clickIn(contents,
                contents.visualItemRect(contents.findItems(more, Qt::MatchRecursive | Qt::MatchStartsWith).at(0)));
        else if (step.startsWith("hit "))
            clickIn(found, found.visualItemRect(found.item(more.toInt() - 1)));
        else if (step.startsWith("seek ")) {
            QTest::keySequence(viewer_->windowHandle(), QKeySequence("Ctrl+K"));
            QTest::keyClicks(QApplication::focusWidget(), more);
        } else if (step.startsWith("print "))
            print(more);
        else if (step.startsWith("printer "))
            printer::be(more == "ready" ? printer::State::Ready : printer::State::Refusing);
        else if (step == "minimise")
            viewer_->showMinimized();
        else if (step.startsWith("type "))
            QTest::keyClicks(QApplication::focusWidget(), more);
        else
            QTest::keySequence(viewer_->windowHandle(), QKeySequence(step));
        settle();
    }

    static void clickIn(const QAbstractScrollArea& list, const QRect& item)
    {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, item.center());
    }

    /// All that the window tells: "Title: focus [selected] at TOP OF PAGE in CHAPTER, words, ways that are shut", and
    /// the hits where they are others than the last time.
    QString state()
    {
        settle();
        const QTextCursor cursor = text().textCursor();
        QString all = viewer_->isMinimized() ? "minimised " : "";
        all += viewer_->windowTitle() + (text().accessibleName() == text().documentTitle() ? "" : " misnamed");
        all += ": " + QApplication::focusWidget()->objectName();
        if (cursor.hasSelection())
            all += " [" + cursor.selectedText() + ']';
        all += " at " + text().cursorForPosition({0, 0}).block().text();
        const QTreeWidgetItem* chapter = part<QTreeWidget>("contents").currentItem();
        all += chapter ? " in " + chapter->text(0) : QString();
        if (part("findWords").isVisible())
            all += ", find " + part<QLineEdit>("findWords").text()
                + (part("findWords").palette().base() == forms::look::colours().field ? "" : " in red");
        for (const char* words : {"searchState", "findState", "status"})
            if (part(words).isVisible())
                all += ", " + part<QLabel>(words).text().replace(folder_.path(), "~");
        if (const auto job = printer::job())
            all += ", printed " + job->title + ": " + job->pages.at(0).text();
        if (const int size = qRound(100 * text().font().pointSizeF() / QApplication::font().pointSizeF()); size != 100)
            all += QString(", type of %1 %").arg(size);
        for (const char* way : {"back", "forward", "smaller", "larger"})
            all += part(way).isEnabled() ? QString() : QString(", no ") + way;
        QString hits;
        const auto& found = part<QListWidget>("found");
        for (int row = 0; found.isVisible() && row < found.count(); ++row)
            hits += (row == found.currentRow() ? " * " : " - ") + found.item(row)->text().replace('\n', " \"") + '"';
        return all + (hits == std::exchange(hits_, hits) ? "" : hits);
    }

    /// What assistive tools and a pointer that waits are told of each part, its caption, and how far it is from the
    /// edges of the window that it lies at.
    QStringList parts()
    {
        QStringList all;
        for (const QWidget* each : viewer_->findChildren<QWidget*>())
            if (!each->accessibleName().isEmpty() || qobject_cast<const QLabel*>(each))
                all += QStringList{each->objectName(), each->accessibleName(), each->toolTip(),
                    each->property("text").toString(), edgesOf(*each)}
                           .join("; ");
        return all;
    }

    QString edgesOf(const QWidget& widget)
    {
        const QRect place(widget.mapTo(&*viewer_, QPoint()), widget.size()), window = viewer_->rect();
        QStringList edges;
        for (const auto& [edge, away] : {std::pair("left", place.left()), {"top", place.top()},
                 {"right", window.right() - place.right()}, {"bottom", window.bottom() - place.bottom()}})
            if (away <= 2 * forms::look::grid(1))
                edges += QString("%1 %2").arg(edge).arg(away / double(forms::look::grid(1)), 0, 'g', 2);
        return edges.join(", ");
    }

    double widthOfPicture()
    {
        const QVariant picture = text().document()->resource(QTextDocument::ImageResource, QUrl("wide.png"));
        return picture.value<QImage>().deviceIndependentSize().width();
    }

    /// The share that the contents have of more width.
    double shareOfContents()
    {
        const int before = part("ways").width();
        viewer_->resize(viewer_->width() + 700, viewer_->height());
        settle();
        return (part("ways").width() - before) / 700.0;
    }

    /// Where a colour is in a hit.
    QRect placeOf(const QColor& colour)
    {
        auto& found = part<QListWidget>("found");
        const QImage hit = found.viewport()->grab(found.visualItemRect(found.item(0))).toImage();
        QRect place;
        for (int dot = 0; dot < hit.width() * hit.height(); ++dot)
            if (const QPoint at(dot % hit.width(), dot / hit.width()); hit.pixelColor(at) == colour)
                place |= QRect(at, at);
        return place;
    }

    /// F1, a search and Esc.
    void read(const char* where)
    {
        press(Qt::Key_F1);
        EXPECT_TRUE(state().startsWith("Lists - Help: page")) << where;
        EXPECT_TRUE(viewer_->isActiveWindow());
        take("seek backup");
        take("Return");
        EXPECT_TRUE(state().startsWith("Backup"));
        take("Esc");
        EXPECT_FALSE(viewer_->isVisible());
        settle();
    }

    const QTemporaryDir folder_;
    QString hits_;
    TrialForm modal{journal, "Modal"};
    std::optional<help::Viewer> viewer_;
};

TEST_F(HelpViewer, LeadsByTopicsLinksContentsFindingAndSearch)
{
    expectSteps("platform/help/reading.txt", [this](const QString& steps) {
        for (const QString& step : steps.split(", "))
            take(step);
        return state();
    });
    QDialog own(&*viewer_); // of its own, which is to be answered first
    own.open();
    const QString before = viewer_->windowTitle();
    take("F1");
    EXPECT_EQ(viewer_->windowTitle(), before);
}

TEST_F(HelpViewer, HasNamesTipsAndPlacesForItsPartsAndStandsAtTheRightEdgeOfTheDesktop)
{
    const QRect desktop = viewer_->screen()->availableGeometry();
    viewer_->open("9");
    EXPECT_EQ(desktop.right() - viewer_->x() - viewer_->width(), forms::look::grid(1));
    auto& contents = part<QTreeWidget>("contents");
    const QTreeWidgetItem* longest = contents.topLevelItem(0)->child(0);
    EXPECT_GE(
        contents.visualItemRect(longest).width(), contents.sizeHintForIndex(contents.indexFromItem(longest)).width());
    const QFont usual = QApplication::font();
    QFont small = usual;
    small.setPixelSize(5);
    QApplication::setFont(small); // which leaves room for the captions
    makeViewer();
    for (const char* step : {"open 9", "Ctrl+P", "seek lamps", "Ctrl+F", "type q"})
        take(step);
    Traits traits;
    traits.add(*viewer_, "Help");
    const QString look = traits.told().remove(QRegularExpression("[^\n]+ accessibleName=[^\n]+\n"));
    expectKept("platform/help/parts.txt", parts().join('\n') + "\n\n" + look);
    for (const QWidget* whole : {&part("find"), &part("findWords"), &part("sought")}) {
        QRegion covered;
        for (const QWidget* each : whole->parentWidget()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
            if (each->isVisible()) {
                EXPECT_FALSE(covered.intersects(each->geometry())) << each->objectName().toStdString();
                covered += each->geometry();
            }
    }
    EXPECT_EQ(part<QTreeWidget>("contents").topLevelItem(0)->child(0)->toolTip(0), "Lists, long and short");
    EXPECT_EQ(part<QTreeWidget>("contents").topLevelItem(1)->childCount(), 2);
    EXPECT_EQ(viewer_->y(), (desktop.height() - forms::look::grid(88)) / 2);
    EXPECT_NEAR(shareOfContents(), 2 / 7.0, 0.02);
    EXPECT_GT(part("print").x() - part("larger").x(), 700) << "the ways stand on the left";
    part<QSplitter>("halves").setSizes({0, 900});
    EXPECT_GT(part("ways").width(), 0) << "the divider hides nothing";
    QApplication::setFont(usual);
}

TEST_F(HelpViewer, PrintsAPageAsItIsChosenInTypeOfTheUsualSize)
{
    QPrinter chosen;
    chosen.setDocName("Pages");
    chosen.setPageSize(QPageSize(QPageSize::A5));
    chosen.setOutputFileName(folder_.filePath("page.pdf"));
    QList<int> heights;
    pdf::Page page;
    for (const char* step : {"open 1001", "Ctrl++"}) {
        take(step);
        EXPECT_EQ(help::printTo(chosen, text()).outcome, Outcome::Done);
        page = pdf::read(chosen.outputFileName()).at(0);
        EXPECT_EQ(page.text(), "Welcome Each receipt has its backup in a drawer. More 1");
        heights += qRound(page.words.at(1).place.height());
    }
    EXPECT_EQ(heights.at(0), heights.at(1));
    const QString pictures = pdf::output("pdfimages", {"-list", chosen.outputFileName()}).simplified();
    EXPECT_TRUE(pictures.contains(" image 320 80 ")) << pictures.toStdString();
    for (int steps = 0; steps < 4; ++steps)
        take("Ctrl++");
    help::printTo(chosen, text());
    const QString dotsOfAnInch =
        pdf::output("pdfimages", {"-list", chosen.outputFileName()}).simplified().section(' ', -4, -4);
    const double room =
        chosen.pageLayout().fullRect(QPageLayout::Inch).width() * 1440 - 2 * page.words.at(1).place.left();
    EXPECT_NEAR(320 * 1440 / dotsOfAnInch.toDouble(), room, 100) << "a large picture is as wide as the text may be";
    const QString told = pdf::output("pdfinfo", {chosen.outputFileName()}).simplified();
    for (const char* each : {"Title: Pages ", "Creator: test_help ", "(A5)"})
        EXPECT_TRUE(told.contains(each)) << each << "is not in " << told.toStdString();
    printer::be(printer::State::Refusing);
    for (const QString& nowhere : {folder_.filePath("nowhere/page.pdf"), QString()}) {
        chosen.setOutputFileName(nowhere);
        EXPECT_EQ(help::printTo(chosen, text()).outcome, Outcome::Failed) << "no folder, and no service that takes it";
    }
    chosen.setOutputFileName(folder_.filePath("page.pdf"));
    const FullDisk full(1000);
    EXPECT_EQ(help::printTo(chosen, text()).outcome, Outcome::Failed);
}

TEST_F(HelpViewer, PaintsTheTitleOfAHitAboveItsExcerptAndTheChosenOneOnTheAccent)
{
    const forms::look::Colours& colours = forms::look::colours();
    viewer_->open("9");
    take("seek theft");
    auto& found = part<QListWidget>("found");
    const QString hit = found.item(0)->text();
    const QRect title = placeOf(colours.accent), excerpt = placeOf(colours.text);
    QFont font = found.font();
    const auto widthOf = [&](const QString& text) {
        const QRect room(0, 0, found.viewport()->width() - forms::look::grid(1), 1000);
        return QFontMetrics(font).boundingRect(room, Qt::TextWordWrap, text).width();
    };
    EXPECT_NEAR(excerpt.width(), widthOf(hit.section('\n', 1)), 4);
    font.setBold(true);
    EXPECT_NEAR(title.width(), widthOf(hit.section('\n', 0, 0)), 4);
    EXPECT_LT(title.bottom(), excerpt.top());
    EXPECT_NEAR(title.top(), found.sizeHintForRow(0) - 1 - excerpt.bottom(), 4);
    take("Down");
    found.setCurrentRow(0);
    EXPECT_TRUE(placeOf(colours.text).isEmpty());
    EXPECT_EQ(placeOf(colours.field), title | excerpt);
}

TEST_F(HelpViewer, KeepsTheSizeOfTypeWhileItLivesAndFitsPicturesIntoThePage)
{
    viewer_->open("1001");
    for (int steps = 0; steps < 20; ++steps)
        take("Ctrl++");
    viewer_->resize(viewer_->minimumSizeHint());
    viewer_->close();
    viewer_->open("1001");
    EXPECT_LT(viewer_->width(), viewer_->screen()->availableSize().width()) << "its captions give way";
    EXPECT_GT(text().width(), part<QTreeWidget>("contents").width()) << "and the contents";
    take("seek receipts");
    const auto& found = part<QListWidget>("found");
    EXPECT_EQ(found.visualItemRect(found.item(0)).height(), found.sizeHintForRow(0)) << "the hits overlap";
    const double narrow = widthOfPicture();
    EXPECT_NEAR(narrow, text().viewport()->width() - 4 * forms::look::grid(1), 4);
    EXPECT_FALSE(text().toHtml().contains("width=\"9\"")) << "a size of the page's";
    const QSize small = viewer_->size();
    const double whole = 320 / 2 * forms::look::pictureScale();
    for (const auto& [size, width] :
        {std::pair(QSize(1200, 800), 2.5 * whole), {small, narrow}, {QSize(1200, 800), 2.5 * whole}}) {
        viewer_->resize(size);
        settle();
        EXPECT_NEAR(widthOfPicture(), width, 4);
    }
    take("Ctrl+0");
    EXPECT_NEAR(widthOfPicture(), whole, 4);
    take("Alt+L"); // the access keys are left to buttons without captions
    settleUntil([&] { return widthOfPicture() > whole; });
    EXPECT_NEAR(widthOfPicture(), 1.2 * whole, 4);
    take("Ctrl+K");
    take("Return");
    EXPECT_NEAR(text().cursorRect().top(), text().viewport()->height() / 4, 2) << "what was found has room above";
}

TEST_F(HelpViewer, IsNoScreenAndServesBehindModalOnes)
{
    useRealBoxes();
    whileModal([this] {
        settle();
        journal.clear();
        read("beside a modal screen");
        whileModal([this] {
            QWidget& box = *QApplication::activeModalWidget();
            read("beside a box on the modal screen");
            for (int times = 0; times < 2; ++times) {
                press(Qt::Key_F1); // stays open behind the box
                EXPECT_TRUE(viewer_->isActiveWindow());
                box.activateWindow();
                settle();
            }
            press(Qt::Key_Return);
        });
        forms::MsgBox("Text", forms::box::Information, "Title");
        EXPECT_TRUE(viewer_->isVisible());
        viewer_->activateWindow();
        settle();
        take("Ctrl+W");
        EXPECT_FALSE(viewer_->isVisible());
        EXPECT_TRUE(journal.isEmpty());
        EXPECT_EQ(forms::activeForm(), &modal);
        modal.hide();
    });
    modal.showModal(form);
}

TEST(HelpWords, HaveTheStemsAndSlipsOfTheList)
{
    expectSteps("platform/help/words.txt", [](const QString& step) {
        const QString text = step.section(' ', 1);
        const QStringList words = text.split(' ');
        QStringList told;
        if (step.startsWith("stems"))
            for (const help::Word& word : help::wordsOf(text))
                told += QString("%1 %2+%3").arg(word.stem).arg(word.at).arg(word.length);
        else
            for (const QString& word : words) {
                int slips = 0;
                while (!help::isSlipOf(words[0], word, slips))
                    ++slips;
                told += QString::number(slips);
            }
        return told.join(' ');
    });
}

} // namespace
