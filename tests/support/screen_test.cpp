// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/screen_test.h"

#include "data/places.h"
#include "platform/storage/statement.h"
#include "platform/values/date.h"
#include "shared/conventions.h"
#include "support/scene.h"

#include <QTest>
#include <QtWidgets>

ScreenTest::ScreenTest()
{
    setBoxTitle(conventions::Title);
    EXPECT_TRUE(QDir().mkpath(folder_.filePath(QStringLiteral("C_db"))));
    EXPECT_TRUE(QFile::copy(QStringLiteral(KESTRILL_SHIPPED_DATABASE), databaseFile()));
    places::setFolders(folder_.filePath(QStringLiteral("C_db")), backupFolder());
    values::setToday(values::Date::fromDayMonthYear(24, 11, 2026));
    frmStartup::CurrentScreen = 20;
    forms::onHandlerReturn([] {
        if (Data1.Home.isOpen())
            Data1.Home.commitPending();
    });
    openData();
}

void ScreenTest::TearDown()
{
    // A report that is left open would block those of the next test.
    delete reportWindow();
    FormsTest::TearDown();
    closeData();
    values::setToday({});
}

void ScreenTest::expectToStay(const std::function<void()>& leave, const QString& question)
{
    const QRegularExpression focus(QStringLiteral(": [^;]*"));
    const QString before = scene().remove(focus);
    expectBox(question, YesNoQuestion, forms::Answer::No);
    leave();
    EXPECT_EQ(scene().remove(focus), before);
}

void ScreenTest::refuseWrites(const QByteArray& statement, const QByteArray& table, const QByteArray& rows)
{
    storage::execute(Data1.Home.handle(),
        "CREATE TEMP TRIGGER Refuse" + table + " BEFORE " + statement + " ON " + table + " WHEN " + rows
            + " BEGIN SELECT RAISE(ABORT, 'no room'); END");
}

void ScreenTest::makeRoom(const QByteArray& table)
{
    storage::execute(Data1.Home.handle(), "DROP TRIGGER Refuse" + table);
}

QWidget* ScreenTest::reportWindow()
{
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->testAttribute(Qt::WA_DeleteOnClose) && window->isVisible())
            return window;
    return nullptr;
}

void ScreenTest::closeReport()
{
    if (QWidget* window = reportWindow()) {
        window->activateWindow();
        user::settle();
        QTest::keyClick(window->windowHandle(), Qt::Key_Escape);
        user::settle();
    }
    forms::activeForm()->window()->activateWindow(); // as a window manager does
    user::settle();
    EXPECT_FALSE(reportWindow());
}
