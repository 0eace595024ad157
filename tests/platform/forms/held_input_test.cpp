// SPDX-License-Identifier: GPL-3.0-or-later
#include "trial_form.h"

#include <QApplication>
#include <QCompleter>
#include <QDialog>
#include <QLineEdit>
#include <QTest>
#include <QWindow>

namespace {

// A name typed into the toolkit's own dialogue for files; its list of suggestions belongs to no window.
TEST_F(FormInFront, KeysBehindSuggestionsThatHaveGoneAreForTheirBox)
{
    QDialog dialog(form.window());
    QLineEdit box(&dialog);
    QCompleter suggestions({"on", "once"});
    box.setCompleter(&suggestions);
    dialog.show();
    dialog.activateWindow();
    settle();
    for (const Qt::Key key : {Qt::Key_O, Qt::Key_N})
        QTest::keyClick(dialog.windowHandle(), key);
    QWindow* list = QApplication::activePopupWidget()->windowHandle();
    for (const Qt::Key key : {Qt::Key_E, Qt::Key_Minus, Qt::Key_A})
        QTest::keyClick(list, key);
    EXPECT_EQ(box.text(), "one-a");
}

} // namespace
