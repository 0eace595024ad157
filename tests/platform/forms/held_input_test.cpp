// SPDX-License-Identifier: GPL-3.0-or-later
#include "trial_form.h"

#include <QTest>
#include <QtWidgets>

namespace {

// A name typed into the toolkit's own dialogue for files; its list of suggestions belongs to no window.
TEST_F(FormInFront, KeysBehindSuggestionsThatHaveGoneAreForTheirBox)
{
    QDialog dialog(form.window());
    QLineEdit box(&dialog);
    QCompleter suggestions({"on", "once"});
    box.setCompleter(&suggestions);
    dialog.open();
    dialog.activateWindow();
    settle();
    for (const Qt::Key key : {Qt::Key_O, Qt::Key_N})
        QTest::keyClick(dialog.windowHandle(), key);
    QWindow* list = QApplication::activePopupWidget()->windowHandle();
    for (const Qt::Key key : {Qt::Key_E, Qt::Key_Minus, Qt::Key_A})
        QTest::keyClick(list, key);
    EXPECT_EQ(box.text(), "one-a");
}

TEST_F(FormInFront, QuickClicksOnTheBarOfAnOpenListAllCount)
{
    form.choice.addItems(QString("item ").repeated(100).split(' '));
    form.choice.openList();
    QWidget* list = QApplication::activePopupWidget();
    QScrollBar* bar = list->findChild<QAbstractItemView*>()->verticalScrollBar();
    for (const int pages : {1, 2}) {
        QTest::lastMouseTimestamp -= QTest::mouseDoubleClickInterval - 1; // which each click has added
        QTest::mouseClick(list->windowHandle(), Qt::LeftButton, {}, bar->mapTo(list, QPoint(5, bar->height() / 2)));
        EXPECT_EQ(bar->value(), pages * bar->pageStep());
    }
}

} // namespace
