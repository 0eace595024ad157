// SPDX-License-Identifier: GPL-3.0-or-later
#include "trial_form.h"

using forms::TextEntry;

namespace {

/// A way in which text gets into a box that has the focus.
struct Way {
    const char* name;
    void (*enter)(TextEntry& box, const QString& text);
};

void PrintTo(const Way& way, std::ostream* out)
{
    *out << way.name;
}

const Way ways[] = {
    {"Typed", [](TextEntry&, const QString& text) { type(text); }},
    {"ControlV", [](TextEntry&, const QString& text) { paste(text); }},
    {"ShiftInsert", [](TextEntry&, const QString& text) { pasteByShiftInsert(text); }},
    {"Menu", [](TextEntry& box, const QString& text) { pasteByMenu(box, text); }},
    {"Drop", [](TextEntry& box, const QString& text) { EXPECT_EQ(drop(box, text), !box.isLocked()); }},
    {"InputMethod", [](TextEntry&, const QString& text) { commit(text); }},
    {"Assistant", [](TextEntry& box, const QString& text) { setByAssistant(box, text); }},
};

const char* const boxNames[] = {"line", "memo", "empty"}; // a line, several, a combo box

class TextEnters : public FormInFront<AllKinds>, public testing::WithParamInterface<Way> { };

INSTANTIATE_TEST_SUITE_P(
    By, TextEnters, testing::ValuesIn(ways), [](const auto& way) { return std::string(way.param.name); });

TEST_P(TextEnters, CharacterByCharacterThroughKeyPressThenThroughTheLimit)
{
    const QString grin = QString::fromUcs4(U"\U0001F600");
    for (const char* name : boxNames) {
        SCOPED_TRACE(name);
        TextEntry& box = form.entry(name);
        click(box);
        box.setMaxLength(4);
        GetParam().enter(box, "ab" + grin + grin + "c");
        EXPECT_EQ(box.text(), "ab" + grin + grin) << "whole characters";

        box.setText("");
        QString strokes;
        box.KeyPress = [&strokes](int& keyAscii) {
            strokes += QString(" %1").arg(keyAscii);
            keyAscii = keyAscii >= 'a' ? forms::key::Refused : keyAscii == 'B' ? int('X') : keyAscii;
        };
        GetParam().enter(box, "1aB2");
        EXPECT_EQ(strokes, " 49 97 66 50");
        EXPECT_EQ(box.text(), "1X2");
    }
}

TEST_P(TextEnters, NoLockedBox)
{
    for (const char* name : boxNames) {
        TextEntry& box = form.entry(name);
        box.setText("kept");
        box.Change = [] { ADD_FAILURE() << "a change"; };
        box.setLocked(true);
        click(box);
        GetParam().enter(box, "x");
        press(Qt::Key_Backspace);
        press(Qt::Key_Delete);
        EXPECT_EQ(box.text(), "kept") << name;
    }
}

using Entry = FormInFront<AllKinds>;

TEST_F(Entry, DropsControlCharactersAndLineEndsInOneLineAndKeepsANoBreakSpace)
{
    const QString text = QString("a\tb\r\nc\x01\x7f") + QChar(0x2028) + QChar(0x85) + QChar(QChar::Nbsp) + "d";
    const QString left = QString("abc") + QChar(QChar::Nbsp) + "d";
    for (const char* name : {"line", "empty"}) {
        TextEntry& box = form.entry(name);
        click(box);
        paste(text);
        press(Qt::Key_Tab, Qt::AltModifier); // types nothing
        EXPECT_EQ(box.text(), left) << name;
        box.setText("");
        box.KeyPress = [](int&) {};
        commit(text);
        EXPECT_EQ(box.text(), left) << name;
    }
    click(form.memo);
    paste(left);
    press(Qt::Key_Tab, Qt::AltModifier);
    EXPECT_EQ(form.memo.text(), left);
}

TEST_F(Entry, AMegabytePastedIsCutToTheLimit)
{
    const QString megabyte(1 << 20, 'x');
    for (const char* name : boxNames) {
        TextEntry& box = form.entry(name);
        box.setMaxLength(50);
        click(box);
        paste(megabyte);
        EXPECT_EQ(box.text(), QString(50, 'x')) << name;
        box.setText("");
        int strokes = 0;
        box.KeyPress = [&strokes](int&) { ++strokes; };
        paste(megabyte);
        EXPECT_EQ(box.text(), QString(50, 'x')) << name;
        EXPECT_EQ(strokes, 51) << "the rest of a text is dropped once the box is full";
    }
}

TEST_F(Entry, ChangeHasRunWhenTheSetterReturnsAndOnlyWhereTheTextDiffers)
{
    for (const char* name : boxNames) {
        TextEntry& box = form.entry(name);
        box.Change = [this, &box] { journal.note(box.text()); };
        box.setMaxLength(2);
        box.setText("longer than the limit");
        box.setText("longer than the limit");
        EXPECT_EQ(journal.taken(), "longer than the limit") << name;
    }
}

TEST_F(Entry, ALongTextShowsItsBeginningAgainWhenTheFocusHasGone)
{
    for (const char* name : boxNames) {
        TextEntry& box = form.entry(name);
        click(box);
        type(QString(80, 'x'));
        box.selectAll();
        press(Qt::Key_Tab);
        EXPECT_EQ(box.selectionStart() + box.selectionLength(), 0) << name;
    }
}

TEST_F(Entry, ALengthCapLetsTheLastCharacterInAndNoMore)
{
    form.line.setText("ab");
    forms::behaviours::lengthCap(form.line, 3);
    click(form.line);
    type("xyz");
    EXPECT_EQ(form.line.text(), "abx");
    press(Qt::Key_Backspace);
    EXPECT_EQ(form.line.text(), "ab");
}

TEST_F(Entry, AListOnlyBoxKeepsItsTextWhateverHandIsLaidOnIt)
{
    forms::behaviours::listOnly(form.combo);
    pick(form.combo, "beta");
    type("x");
    press(Qt::Key_Backspace);
    press(Qt::Key_Delete);
    form.combo.selectAll();
    press(Qt::Key_X, Qt::ControlModifier);
    setByAssistant(form.combo, "alphabet");
    setByAssistant(form.combo, "");
    EXPECT_EQ(form.combo.text(), "beta");
}

} // namespace
