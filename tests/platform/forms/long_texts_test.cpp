// SPDX-License-Identifier: GPL-3.0-or-later
#include "trial_form.h"

namespace {

using LongTexts = FormInFront;

TEST_F(LongTexts, AreCutWhereTheBoxIsFullAndAskNoHandlerForTheRest)
{
    const QString megabyte(1 << 20, 'x');
    for (forms::TextEntry* each : std::initializer_list<forms::TextEntry*>{&form.line, &form.memo, &form.combo}) {
        SCOPED_TRACE(each->name().toStdString());
        click(*each);
        paste(QString(33000, 'x'));
        EXPECT_EQ(each->text().size(), each == &form.memo ? 33000 : 32767);
        each->setText("");
        each->setMaxLength(50);
        int strokes = 0;
        each->KeyPress = [&strokes](int&) { ++strokes; };
        paste(megabyte);
        EXPECT_EQ(each->text(), QString(50, 'x'));
        EXPECT_EQ(strokes, 51);
        press(Qt::Key_Tab);
        EXPECT_EQ(each->selectionStart(), 0) << "the beginning doesn't show again";
        each->setText(QString(60, 'y'));
        EXPECT_EQ(each->text().size(), 60) << "a text set by code has no limit";
    }
}

} // namespace
