// SPDX-License-Identifier: GPL-3.0-or-later
#include "frame/frmMain.h"
#include "frame/frmStartup.h"
#include "household/frmIntroduction.h"
#include "platform/forms/look.h"
#include "platform/help/book.h"
#include "support/harness.h"

#include <QMap>
#include <QPushButton>

#include <algorithm>

using forms::screen;

namespace {

/// On each screen where F1 is pressed: where the Tab key goes, what the access keys reach, and the topics that F1 opens
/// on each control.
class AllScreens : public ScreenTest {
protected:
    AllScreens()
    {
        for (int count = 0; count < 11; ++count) {
            addAssetRow({"Indoor", "Attic", "None", "None", "None", "Acme"});
            // Without a month its day asks for one.
            put(Data1.rsInventory, {{Inventory::PartsMonth, "Jan"}, {Inventory::LaborMonth, "Jan"}});
        }
        for (int count = 0; count < 3; ++count)
            addRow(Data1.rsBank, Bank::FinancialInstitution, QString("None ").repeated(12).trimmed().split(' '));
        forms::setHelpHandler(
            [this](int number, const QString& window) { opened_ = number > 0 ? QString::number(number) : window; });
    }

    QString topicOf(forms::Control& control)
    {
        control.setFocus();
        opened_ = "nothing";
        press(Qt::Key_F1);
        topics_ += opened_;
        return std::exchange(opened_, {});
    }

    static void expectToBeSeen(const forms::Form& form)
    {
        EXPECT_LE(form.canvas()->sizeHint().width(), std::min(1024, forms::look::leastWindow().width()));
        for (const auto* button : form.canvas()->findChildren<QPushButton*>())
            EXPECT_GE(button->icon().actualSize({999, 999}).width(), 2 * button->iconSize().width())
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

    QStringList tour(forms::Form& form)
    {
        expectToBeSeen(form);
        const bool hasDate = form.name() == "frmBank" && control(form, "txtDate").canTakeFocus(); // opens the calendar
        for (int times = 0; hasDate && times < 2; ++times)
            whileModal([] { press(Qt::Key_Return); });
        QStringList told("Tab " + ring(form)), letters;
        QMap<QString, QStringList> helped;
        for (forms::Control* control : form.controls()) {
            if (!control->canTakeFocus())
                continue;
            helped[topicOf(*control)] += control->name();
            const auto* button = dynamic_cast<forms::Button*>(control);
            const QString caption = button ? button->caption().remove("&&") : QString();
            if (!caption.contains('&'))
                continue;
            letters += caption.section('&', 1).left(1).toUpper();
            told += "Alt+" + letters.last() + ' ' + control->name();
        }
        EXPECT_EQ(letters.removeDuplicates(), 0) << "keys that reach nothing";
        for (auto topic = helped.begin(); topic != helped.end(); ++topic)
            told += "F1 " + topic.key() + ": " + topic.value().join(' ');
        told += numberOf(form);
        return told;
    }

    /// The number under which a screen is hidden.
    static QString numberOf(forms::Form& form)
    {
        const int current = frmStartup::CurrentScreen;
        QString numbers;
        for (int number = 0; number <= 20; ++number) {
            frmStartup::CurrentScreen = number;
            screen<frmMain>().Hide_Screens();
            numbers += form.isVisible() ? QString() : QString(" %1").arg(number);
            form.show();
        }
        frmStartup::CurrentScreen = current;
        return "hidden as" + numbers;
    }

    /// What hasn't been told of a screen.
    QStringList seen()
    {
        QStringList told(scene());
        if (std::exchange(scene_, told.first()) == told.first())
            told.clear();
        if (opened_.isEmpty())
            return told;
        topics_ += opened_;
        told += "help " + std::exchange(opened_, {});
        if (reportWindow())
            return told;
        forms::Form& form = *forms::activeForm();
        for (const QString& line : tour(form))
            if (const QString there = form.name() + ": " + line; !told_.contains(there)) {
                told += line;
                told_ += there;
            }
        return told;
    }

    QString opened_, scene_;
    QStringList topics_{"frmProgress", "frmExit", "frmExport", "frmRestore", "frmRestored", "CoverSheet", "AssetReport",
        "MsgBox"}; // of other programs, and without a control
    QStringList told_;
};

TEST_F(AllScreens, AreGoneThroughByKeysHaveTheirHelpAndShowAllThatTheyHave)
{
    screen<frmIntroduction>().show();
    replay("core/screens.txt", [this] { return seen(); });
    const help::Book book(":/help");
    for (const QString& topic : topics_)
        EXPECT_TRUE(topic == "nothing" || book.knows(topic)) << topic.toStdString();
    for (const QString& topic : book.topics())
        EXPECT_TRUE(topic.toInt() == 0 || topics_.contains(topic)) << topic.toStdString() << " is of nothing";
}

TEST_F(AllScreens, ShowTheWorthOfAllWithBothViewsOnARow)
{
    for (const auto& leaveRow : {&storage::TableView::MovePrevious, &storage::TableView::MoveNext}) {
        (Data1.rsGeneral.*leaveRow)();
        screen<frmMain>().show();
        click(screen<frmMain>().cmdValue);
        for (const storage::TableView* view : {&Data1.rsGeneral, &Data1.rsInventory})
            EXPECT_FALSE(view->atBOF() || view->atEOF());
    }
}

} // namespace
