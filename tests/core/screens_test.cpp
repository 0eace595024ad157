// SPDX-License-Identifier: GPL-3.0-or-later
#include "frame/frmBW_Splash.h"
#include "frame/frmExit.h"
#include "frame/frmMain.h"
#include "frame/frmProgress.h"
#include "household/frmIntroduction.h"
#include "household/frmKeyboard.h"
#include "household/frmTotals.h"
#include "platform/forms/look.h"
#include "platform/help/book.h"
#include "shared/frmCalendar.h"
#include "support/files.h"
#include "support/harness.h"
#include "support/traits.h"

#include <QtWidgets>

#include <algorithm>

using forms::screen;

namespace {

/// Each screen as it comes; and at each "tour" where the Tab key goes and the topics that F1 opens on the controls, as
/// far as that wasn't told of it before.
class AllScreens : public ScreenTest {
protected:
    AllScreens()
    {
        for (int count = 0; count < 11; ++count) {
            addAssetRow({"Indoor", "Attic", "None", "None", "None", "Acme"});
            // Without a month its day asks for one.
            put(Data1.rsInventory, {{Inventory::PartsMonth, "Jan"}, {Inventory::LaborMonth, "Jan"}});
        }
        addAssetRow({"Indoor", "Attic", "None", "None", "None", "Ajax"});
        for (int count = 0; count < 3; ++count)
            addRow(Data1.rsBank, Bank::FinancialInstitution, QString("None ").repeated(12).trimmed().split(' '));
        forms::setHelpHandler(
            [this](int number, const QString& window) { topics_ += number > 0 ? QString::number(number) : window; });
    }

    std::optional<QString> happen(const QString& step) override
    {
        list(*forms::activeForm());
        if (step == "press F1")
            return "help " + topicOf([] { press(Qt::Key_F1); });
        return step == "tour" ? tour(*forms::activeForm()).join('\n') : std::optional<QString>();
    }

    /// A screen as it comes, once.
    void list(const forms::Form& form)
    {
        const QString heading = "# " + form.name();
        if (screens_.contains(heading))
            return;
        QStringList controls;
        for (const forms::Control* control : form.controls()) {
            QStringList parts = partsOf(*control);
            parts[0].prepend(control->name());
            const auto* entry = dynamic_cast<const forms::TextEntry*>(control);
            const auto* combo = dynamic_cast<const forms::ComboBox*>(control);
            if (entry && entry->maxLength() > 0)
                parts += QString("limit %1").arg(entry->maxLength());
            if (const int count = combo ? combo->listCount() : 0; count > 0)
                parts += QString("list %1..%2 (%3)").arg(combo->list(0), combo->list(count - 1)).arg(count);
            if (control->helpNumber() > 0)
                parts += QString("help %1").arg(control->helpNumber());
            controls += parts.join(", ");
        }
        screens_ += heading;
        screens_ += gathered(controls);
        traits_.add(*form.window(), form.name());
    }

    /// What F1 opens.
    QString topicOf(const std::function<void()>& pressF1)
    {
        const qsizetype before = topics_.size();
        pressF1();
        return topics_.size() > before ? topics_.last() : "nothing";
    }

    static void expectToBeSeen(const forms::Form& form)
    {
        EXPECT_LE(form.canvas()->sizeHint().width(), std::min(1024, forms::look::leastWindow().width()));
        for (const auto* button : form.canvas()->findChildren<QPushButton*>())
            EXPECT_TRUE(button->icon().isNull()
                || button->icon().actualSize({999, 999}).width() >= 2 * button->iconSize().width())
                << button->objectName().toStdString() << " is blurred on a sharp screen";
        QRegion taken;
        for (const forms::Control* control : form.controls()) {
            if (!control->isVisible())
                continue;
            const QRect place(control->widget()->mapTo(form.window(), QPoint()), control->widget()->size());
            EXPECT_FALSE(taken.intersects(place)) << control->name().toStdString() << " lies on another one";
            taken += dynamic_cast<const forms::GroupBox*>(control) ? QRect() : place; // which holds others
            const QImage shown = control->widget()->grab().toImage();
            QImage blank = shown;
            blank.fill(shown.pixelColor(0, 0));
            EXPECT_NE(shown, blank) << control->name().toStdString() << " is blank";
        }
    }

    // With type of 20 points on a display of 1366 dots, or of 14 on 1024, nothing has to be scrolled sideways: pictures
    // go and gaps are halved there.
    static void expectRoomForLargeType(const forms::Form& form)
    {
        for (forms::Control* control : form.controls())
            control->setVisible(!dynamic_cast<forms::Picture*>(control) || control->Click);
        forms::look::tighten(*form.canvas()->layout());
        while (forms::look::stackLastPair(*form.canvas()->layout())) { }
        const double points = QApplication::font().pointSizeF();
        EXPECT_LE(form.canvas()->minimumSizeHint().width(), std::min(1332 * points / 20, 1022 * points / 14))
            << form.name().toStdString();
    }

    QStringList tour(forms::Form& form)
    {
        expectToBeSeen(form);
        traits_.add(*form.window(), form.name());
        const bool hasDate = form.name() == "frmBank" && control(form, "txtDate").canTakeFocus(); // opens the calendar
        for (int times = 0; hasDate && times < 2; ++times)
            whileModal([] { press(Qt::Key_Return); });
        QStringList told("Tab " + ring(form)), letters;
        QMap<QString, QStringList> helped;
        for (forms::Control* control : form.controls()) {
            if (!control->canTakeFocus())
                continue;
            helped[topicOf([control] { control->setFocus(), press(Qt::Key_F1); })] += control->name();
            const auto* button = dynamic_cast<forms::Button*>(control);
            if (const QString caption = button ? button->caption().remove("&&") : QString(); caption.contains('&'))
                letters += caption.section('&', 1).left(1).toUpper();
        }
        EXPECT_EQ(letters.removeDuplicates(), 0) << "keys that reach nothing";
        const auto isLess = [](const QStringList& some, const QStringList& others) {
            return some.size() < others.size();
        };
        const QString most = std::max_element(helped.begin(), helped.end(), isLess).key();
        told += "F1 " + most;
        helped.remove(most);
        for (auto topic = helped.begin(); topic != helped.end(); ++topic)
            told += "F1 " + topic.key() + " at " + topic.value().join(' ');
        const auto wasTold = [&](const QString& line) { return told_.contains(form.name() + ": " + line); };
        told.removeIf(wasTold);
        for (const QString& line : told)
            told_ += form.name() + ": " + line;
        return told;
    }

    QStringList topics_{"frmProgress", "frmExport", "frmImport", "frmImportPlan", "frmImported", "frmRestore",
        "frmRestored", "CoverSheet", "AssetReport", "MsgBox"}; // of other programs, and without a control
    QStringList told_, screens_;
    Traits traits_;
};

TEST_F(AllScreens, AreGoneThroughByKeysHaveTheirHelpAndShowAllThatTheyHave)
{
    screen<frmIntroduction>().show();
    replay("core/screens.txt");
    list(screen<frmCalendar>());
    list(screen<frmBW_Splash>());
    list(screen<frmProgress>());
    list(screen<frmExit>());
    expectKept("core/screens_as_they_come.txt", screens_.join('\n') + '\n');
    expectKept("core/traits.txt", traits_.told());
    for (const forms::Form* form : forms::madeScreens())
        expectRoomForLargeType(*form);
    const help::Book book(":/help");
    for (const QString& topic : topics_)
        EXPECT_TRUE(book.knows(topic)) << topic.toStdString();
    for (const QString& topic : book.topics())
        EXPECT_TRUE(topic.toInt() == 0 || topics_.contains(topic)) << topic.toStdString() << " is of nothing";
}

// Number 19 is the start's, not that of the calendar, which has it while it is open.
TEST_F(ScreenTest, TheMenuHidesTheScreenWhoseNumberIsTheCurrentOne)
{
    QStringList hidden;
    for (int number = 1; number <= 20; ++number) {
        for (forms::Form* form : std::initializer_list<forms::Form*>{
                 &screen<frmTotals>(), &screen<frmKeyboard>(), &screen<frmCalendar>(), &screen<frmMain>()})
            form->show();
        CurrentScreen = number;
        screen<frmMain>().Hide_Screens();
        for (const forms::Form* form : forms::madeScreens())
            if (form->name() != "frmProgress" && !form->isVisible())
                hidden += QString("%1 %2").arg(number).arg(form->name());
    }
    EXPECT_EQ(hidden.join(", "), "2 frmMain, 6 frmTotals, 18 frmKeyboard");
}

} // namespace
