// SPDX-License-Identifier: GPL-3.0-or-later
#include "trial_form.h"

#include "platform/forms/boxes/failure_box.h"
#include "platform/values/failure.h"
#include "support/files.h"

#include <QAbstractItemModelTester>
#include <QtWidgets>

#include <cstdio>

namespace {

using Failures = FormInFront;

TEST_F(Failures, ThatNobodyCatchesCleanUpShowTheReportAndEndWithStatusOne)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe"); // the toolkit has threads of its own
    const auto cleanUp = [] {
        std::fputs("cleaned up, ", stderr);
        forms::runAsHandler("late", [] { std::fputs("no handler may run any more", stderr); });
    };
    TrialForm& kept = madeScreen();
    kept.show();
    kept.answers["ok.Click"] = [] { throw values::RuntimeFailure(values::FailureKind::InvalidCall, "why"); };
    const auto run = [&] {
        forms::setFailureReporter({});
        forms::setReportWords("Title, ", [] { return QString("All is safe."); });
        forms::onEnd(cleanUp);
        whileModal([&] {
            const QWidget& box = *QApplication::activeModalWidget();
            std::fputs(qPrintable(box.windowTitle()), stderr);
            for (const QLabel* words : box.findChildren<QLabel*>())
                std::fputs(qPrintable(words->text() + u'\n'), stderr);
            press({Qt::Key_Tab, Qt::Key_Space}); // Copy Details
            std::fputs(qPrintable(QGuiApplication::clipboard()->text()), stderr);
            press(Qt::Key_Return);
        });
        click(kept.ok);
    };
    EXPECT_EXIT(run(), testing::ExitedWithCode(1),
        "^cleaned up, Form.ok_Click: (.*why)\nTitle, \n“OK” could not be carried out. The program has to close.\nAll "
        "is safe.\nFor whoever helps you:\n.*why\nForm.ok_Click\n.*why\nForm.ok_Click$");
    const auto end = [&] {
        forms::setProcessEnder({});
        forms::onEnd(cleanUp);
        forms::endProcess(3);
    };
    EXPECT_EXIT(end(), testing::ExitedWithCode(3), "^cleaned up, $");
    EXPECT_DEATH(
        form.ok.Click = [] {}, "Form.ok_Click has a handler already");
}

TEST_F(Failures, AreToldInTheWordsOfTheScreen)
{
    using Kind = values::FailureKind;
    const std::pair<QString, std::optional<Kind>> reports[] = {{"Form.ok_Click", Kind::TypeMismatch},
        {"Form.line_LostFocus", Kind::Overflow}, {"Form.memo_Click", Kind::NoCurrentRecord},
        {"Form.check_GotFocus", Kind::Database}, {"Form_Activate", Kind::File}, {"Gone.ok_Click", Kind::System},
        {"Form.gone_Click", Kind::InvalidCall}, {"signal_Event", {}}, {"", {}}};
    TrialForm& kept = madeScreen();
    kept.label.setRole(forms::TextRole::Title);
    kept.label.setCaption("Tower");
    kept.label.nameFor(kept.line);
    QString told;
    for (const auto& [handler, kind] : reports) {
        whileModal([&] {
            QWidget& box = *QApplication::activeModalWidget();
            QStringList parts{box.windowRole()};
            QRect picture, above; // the words stand beside the one and below the other
            for (const QLabel* words : box.findChildren<QLabel*>()) {
                parts += words->text() + words->accessibleName();
                const QRect place = words->geometry();
                EXPECT_TRUE(box.rect().contains(place) && place.height() >= words->heightForWidth(place.width()));
                EXPECT_TRUE(place.left() > picture.right() && place.top() > above.bottom());
                const int line = box.fontMetrics().averageCharWidth() * 60;
                EXPECT_NEAR(place.width(), picture.isNull() ? place.width() : line, 9);
                (picture.isNull() ? picture : above) = place;
            }
            for (const auto* button : box.findChildren<QPushButton*>())
                parts += button->text() + button->toolTip();
            told += parts.join(" | ").replace('\n', "\\n") + '\n';
            press(Qt::Key_Escape);
        });
        forms::showFailure({handler, "why", kind}, "Title", "All is safe.");
    }
    expectKept("platform/forms/failures.txt", told);
}

TEST_F(Failures, KeepTheirButtonsOnTheDesktopHoweverLongTheirWordsAre)
{
    whileModal([&] {
        const QWidget& box = *QApplication::activeModalWidget();
        const QRect desktop = box.screen()->availableGeometry();
        EXPECT_LT(box.height(), desktop.height());
        EXPECT_GT(box.height(), desktop.height() / 2) << "and the words have the rest";
        for (const auto* button : box.findChildren<QPushButton*>())
            EXPECT_TRUE(box.rect().contains({button->mapTo(&box, QPoint()), button->size()}))
                << qPrintable(button->text());
        press(Qt::Key_Escape);
    });
    forms::showFailure({"", QString("why\n").repeated(200), {}}, "Title", "All is safe.");
}

TEST_F(FormInFront, AssistiveToolsAreToldOfATextWhereTheFocusIsAndOfADayInTheCellOfTheLast)
{
    QStringList told;
    const auto tell = [&told] {
        const auto silence = QAccessible::installUpdateHandler({});
        QAccessible::installUpdateHandler(silence);
        told += silence ? "silent" : "told";
    };
    QObject::connect(qobject_cast<QPlainTextEdit*>(form.memo.widget()), &QPlainTextEdit::textChanged, tell);
    for (const char* text : {"elsewhere", "here"}) {
        form.memo.setText(text);
        form.memo.setFocus();
    }
    const QItemSelectionModel* days = form.month.widget()->findChild<QTableView*>()->selectionModel();
    QObject::connect(days, &QItemSelectionModel::currentChanged, [&told](const QModelIndex& day) {
        if (day.isValid())
            told += "day";
    });
    for (const int month : {2, 3}) // of 2007, in which February is four whole weeks
        form.month.setValue(values::Date::fromDayMonthYear(28, month, 2007));
    for (const int column : {0, 6})
        for (const int role : {Qt::DisplayRole, Qt::AccessibleTextRole})
            told += days->model()->headerData(column, Qt::Horizontal, role).toString();
    EXPECT_EQ(told.join(' '), "silent told day day Sun Sunday Sat Saturday");
}

TEST_F(Failures, ThereAreNoneWhereAScreenIsClosedWhileItsHandlerAsks)
{
    useRealBoxes();
    TrialForm& kept = madeScreen();
    kept.show();
    const QPointer<QWidget> window = kept.window();
    kept.answers["ok.Click"] = [&] {
        whileModal([&] {
            kept.close();
            settle();
            EXPECT_EQ(forms::madeScreens().size(), 0U);
            press(Qt::Key_Return);
        });
        forms::MsgBox("Sure?", forms::box::Question, "Title");
        EXPECT_TRUE(window);
    };
    click(kept.ok);
    settleUntil([&window] { return !window; });
    EXPECT_FALSE(window);
}

TEST_F(Failures, ThereAreNoneWhereAListIsAskedForWhatItDoesNotHold)
{
    for (const auto* view : form.window()->findChildren<QAbstractItemView*>()) {
        const QAbstractItemModelTester asked(view->model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
        EXPECT_EQ(view->model()->data({}), QVariant()) << view->model()->metaObject()->className();
    }
}

} // namespace
