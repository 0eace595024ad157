// SPDX-License-Identifier: GPL-3.0-or-later
#include "frame/frmMain.h"
#include "household/frmIntroduction.h"
#include "shared/frmCalendar.h"
#include "tools/frmRestore.h"
#include "tools/tools_test.h"

#include <QTest>
#include <QtWidgets>

using forms::Answer;
using forms::screen;

namespace {

/// What is pressed right behind an answer counts as if it were pressed when the handler that asked has ended, where its
/// screen is in front then and nothing else was asked; else it is dropped.
class Questions : public ToolsTest, public testing::WithParamInterface<QString> {
protected:
    enum class Way { Enter, Space, AccessKey, Mouse, Escape };
    enum class Press { Mouse, AccessKey };

    Questions()
    {
        openData();
        for (storage::TableView* names : {&Data1.rsIndoor, &Data1.rsOutdoor, &Data1.rsMobile})
            addNames(*names, {"Gong", "Gong", "Bell"});
        for (int count = 0; count < 2; ++count)
            addAssetRow({"Indoor", "Attic", "None", "None", "None", "Acme"});
        closeData();
        household_ = bytesOf(databaseFile());
        backUp();
    }

    std::optional<QString> happen(const QString& line) override
    {
        const QStringList words = line.split(' ');
        if (line == "introduce")
            screen<frmMain>().hide(), screen<frmIntroduction>().show();
        else if (line == "restore")
            screen<frmMain>().hide(), closeData(), screen<frmRestore>().show();
        else if (line == "account")
            addRow(Data1.rsBank, Bank::FinancialInstitution, QString("None ").repeated(12).trimmed().split(' '));
        else if (line == "undated")
            screen<frmCalendar>().calDate.setDay(0), press(Qt::Key_Return);
        else if (line == "add")
            go("click cmdIn, click cmdAdd(0)");
        else if (line == "update")
            go("click cmdSearch, type Acme, press Return, click txtMore(0)");
        else if (words[0] == "edit") // "edit cmdIn Loc Location 2"
            go(QString("click %1, click cmdAdd(0), pick cmb%2 < Add/Edit %3 >, click optEdit(%4), click cmdUpdate")
                    .arg(words[1], words[2], words[3], words[4]));
        else
            return {};
        return QString();
    }

    // Of the line of the list.
    static QString part(int index) { return GetParam().split("/ ")[index].trimmed(); }

    void go(const QString& way)
    {
        for (const QString& step : way.split(", ", Qt::SkipEmptyParts))
            EXPECT_EQ(played(step).join("; "), "") << step.toStdString();
    }

    void goThere()
    {
        forms::setMessageHandler({});
        forms::destroyScreens();
        closeData();
        putFile(databaseFile(), household_);
        openData();
        asked_.clear();
        screen<frmMain>().show();
        go(part(0));
    }

    void note(const QString& question)
    {
        if (asked_.isEmpty())
            asking_ = forms::activeForm();
        asked_ += question;
    }

    // What stands there once the handlers have ended, where `then` comes next.
    QString ask(const std::function<void()>& answer, const std::function<void()>& then)
    {
        QString told;
        bool isOver = false;
        const auto end = [&] {
            settle();
            if (!std::exchange(isOver, true))
                then();
            settle();
        };
        const QStringList steps = part(1).split(" | ");
        const auto inCalendar = [&] {
            const auto isOpen = [] { return screen<frmCalendar>().isVisible(); };
            answer();
            go(steps[1]);
            settle();
            if (isOpen())
                end();
            if (isOpen()) {
                told = state();
                press(Qt::Key_Return);
            }
        };
        if (steps.size() > 1)
            whileModal(inCalendar);
        else
            answer();
        go(steps[0]);
        end();
        return told.isEmpty() ? state() : told;
    }

    QString state()
    {
        QStringList told{scene(), asked_.join('|')};
        EXPECT_TRUE(!told[0].contains(';') || QApplication::activeModalWidget())
            << "two screens at once: " << told[0].toStdString();
        if (const forms::Form* screen = forms::activeForm())
            for (const forms::Control* control : screen->controls())
                told += control->name() + partsOf(*control).join(", ");
        for (const storage::TableView* view :
            {&Data1.rsGeneral, &Data1.rsBank, &Data1.rsIndoor, &Data1.rsOutdoor, &Data1.rsMobile, &Data1.rsInventory})
            told += view->isOpen() ? QString::number(qHash(rowsOf(*view, 0, 3))) : "closed";
        if (const auto status = endStatus())
            told += QString("ends with %1").arg(*status);
        static const QRegularExpression clock("\\d+:\\d\\d [AP]M|\\S+_put-aside\\S*");
        return told.replaceInStrings(clock, {}).join("\n");
    }

    void pressNext(Press press) const
    {
        forms::Control& next = control(*asking_, part(2));
        const auto* button = dynamic_cast<forms::Button*>(&next);
        if (press == Press::Mouse)
            click(next);
        else if (button)
            accessKey(button->caption().section('&', 1).at(0).toLatin1());
        else
            user::press(Qt::Key_Return);
    }

    QString pressedAfterwards(Answer answer, Press press)
    {
        goThere();
        forms::setMessageHandler([&](const forms::Message& box) {
            note(box.text);
            return asked_.size() == 1 ? answer : box.flags & forms::box::YesNo ? Answer::Yes : Answer::OK;
        });
        return ask([] {},
            [&] {
                if (asked_.size() == 1 && forms::activeForm() == asking_)
                    pressNext(press);
            });
    }

    QString pressedBehind(Answer answer, Way way, Press press, qsizetype boxes)
    {
        goThere();
        const auto answerBoxes = [=, this] {
            whileModal([=, this] { note(box().text()), answerBy(way, answer), pressNext(press); });
            for (qsizetype more = 1; more < boxes; ++more)
                whileModal([=, this] { note(box().text()), user::press(Qt::Key_Return); });
        };
        return ask(answerBoxes, [] {});
    }

    static QMessageBox& box() { return dynamic_cast<QMessageBox&>(*QApplication::activeModalWidget()); }

    static void answerBy(Way way, Answer answer)
    {
        const QPointer<QMessageBox> asking = &box();
        const bool isYes = answer == Answer::Yes;
        const QAbstractButton& button = *asking->button(isYes ? QMessageBox::Yes : QMessageBox::No);
        const QPoint place = button.mapTo(asking, button.rect().center());
        if (way == Way::Escape)
            return press(Qt::Key_Escape);
        if (way == Way::Mouse)
            return QTest::mouseClick(asking->windowHandle(), Qt::LeftButton, {}, place);
        if (way == Way::AccessKey) {
            accessKey(isYes ? 'Y' : 'N');
            while (asking && asking->isVisible()) // the toolkit shows the button pressed for a moment
                settle();
            return;
        }
        if (!isYes)
            tab();
        press(way == Way::Enter ? Qt::Key_Return : Qt::Key_Space);
    }

    QByteArray household_;
    QStringList asked_;
    forms::Form* asking_ = nullptr;
};

TEST_P(Questions, AreAnsweredBeforeWhatIsPressedBehindTheAnswer)
{
    for (const Answer answer : {Answer::Yes, Answer::No})
        for (const Press press : {Press::Mouse, Press::AccessKey}) {
            const QString wanted = pressedAfterwards(answer, press);
            const qsizetype boxes = asked_.size();
            ASSERT_GT(boxes, 0);
            std::vector<Way> ways{Way::Enter, Way::Space, Way::AccessKey, Way::Mouse};
            if (answer == Answer::No)
                ways.push_back(Way::Escape);
            for (const Way way : ways)
                ASSERT_EQ(pressedBehind(answer, way, press, boxes), wanted)
                    << (answer == Answer::Yes ? "Yes" : "No") << ", by " << int(way) << ", behind it " << int(press);
        }
}

INSTANTIATE_TEST_SUITE_P(
    Each, Questions, testing::ValuesIn(linesOf("core/questions.txt").filter(QRegularExpression("^[^#]"))));

} // namespace
