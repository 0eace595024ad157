// SPDX-License-Identifier: GPL-3.0-or-later
#include "trial_form.h"

using forms::TextEntry;

namespace {

/// A way in which text gets into a box that has the focus, and its name.
using Way = std::pair<const char*, void (*)(TextEntry& box, const QString& text)>;

const Way ways[] = {
    {"Typed", [](TextEntry&, const QString& text) { type(text); }},
    {"ControlV", [](TextEntry&, const QString& text) { paste(text); }},
    {"ShiftInsert", [](TextEntry&, const QString& text) { paste(text, Qt::Key_Insert, Qt::ShiftModifier); }},
    {"Menu", [](TextEntry& box, const QString& text) { pasteByMenu(box, text); }},
    {"Drop", [](TextEntry& box, const QString& text) { EXPECT_EQ(drop(box, text), !box.isLocked()); }},
    {"InputMethod", [](TextEntry&, const QString& text) { commit(text); }},
    {"Assistant", [](TextEntry& box, const QString& text) { setByAssistant(box, text); }},
};

const char* const boxNames[] = {"line", "memo", "empty"}; // a line, several, a combo box

using Entry = FormInFront;
class TextEnters : public Entry, public testing::WithParamInterface<Way> { };

INSTANTIATE_TEST_SUITE_P(
    By, TextEnters, testing::ValuesIn(ways), [](const auto& way) { return std::string(way.param.first); });

TEST_P(TextEnters, CharacterByCharacterThroughKeyPressThenThroughTheLimitAndNoLockedBox)
{
    const QString grin = QString::fromUcs4(U"\U0001F600");
    for (const char* name : boxNames) {
        SCOPED_TRACE(name);
        TextEntry& box = control<TextEntry>(form, name);
        click(box);
        box.setMaxLength(4);
        GetParam().second(box, "ab" + grin + grin + "c");
        EXPECT_EQ(box.text(), "ab" + grin + grin) << "whole characters";

        box.Change = [this] { journal += "Change"; };
        box.setText("ab");
        box.setLocked(true);
        taken();
        GetParam().second(box, "x");
        press(Qt::Key_Backspace);
        press(Qt::Key_Delete);
        EXPECT_EQ(box.text() + taken(), "ab") << "a locked box";

        box.setLocked(false);
        box.setText("");
        QString strokes;
        box.KeyPress = [&strokes](int& keyAscii) {
            strokes += QString(" %1").arg(keyAscii);
            keyAscii = keyAscii >= 'a' ? forms::key::Refused : keyAscii == 'B' ? int('X') : keyAscii;
        };
        GetParam().second(box, "1aB2");
        EXPECT_EQ(strokes, " 49 97 66 50");
        EXPECT_EQ(box.text(), "1X2");
    }
}

TEST_F(Entry, DropsControlCharactersAndLineEndsInOneLineAndKeepsANoBreakSpace)
{
    const QString text = QString::fromUtf8("a\tb\r\nc\x01\x7f\u2028\u0085\u00A0d");
    const QString left = QString::fromUtf8("abc\u00A0d");
    for (const char* name : boxNames) {
        TextEntry& box = control<TextEntry>(form, name);
        const QString entered = &box == &form.memo ? left : text;
        click(box);
        paste(entered);
        press(Qt::Key_Tab, Qt::AltModifier); // types nothing
        EXPECT_EQ(box.text(), left) << name;
        box.setText("");
        box.KeyPress = [](int&) {};
        commit(entered);
        EXPECT_EQ(box.text(), left) << name;
    }
}

TEST_F(Entry, AMegabytePastedIsCutToTheLimit)
{
    const QString megabyte(1 << 20, 'x');
    for (const char* name : boxNames) {
        TextEntry& box = control<TextEntry>(form, name);
        box.setMaxLength(50);
        click(box);
        paste(megabyte);
        EXPECT_EQ(box.text(), QString(50, 'x')) << name;
        press(Qt::Key_Tab);
        EXPECT_EQ(box.selectionStart(), 0) << "the beginning doesn't show again: " << name;
        int strokes = 0;
        box.KeyPress = [&strokes](int&) { ++strokes; };
        box.setText("");
        click(box);
        paste(megabyte);
        EXPECT_EQ(box.text(), QString(50, 'x')) << name;
        EXPECT_EQ(strokes, 51) << "the rest of a text is dropped once the box is full";
        box.setText(QString(60, 'y'));
        EXPECT_EQ(box.text().size(), 60) << "a text set by code has no limit";
    }
}

TEST_F(Entry, ALengthCapAndAListOnlyBoxHoldWhateverHandIsLaidOnThem)
{
    forms::behaviours::lengthCap(form.line, 3);
    type(form.line, "abxy");
    EXPECT_EQ(form.line.text(), "abx");
    press(Qt::Key_Backspace);
    EXPECT_EQ(form.line.text(), "ab");
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

// ---- lists

class Combo : public FormInFront {
protected:
    Combo()
    {
        for (forms::ComboBox* each : boxes) {
            each->Change = [this, each] { journal += "Change:" + each->text(); };
            form.answers[each->name() + ".Click"] = [this, each] { journal += "Click:" + each->text(); };
        }
    }

    forms::ComboBox* const boxes[2] = {&form.combo, &form.choice};
};

TEST_F(Combo, FiresClickAtAPickChangeOrClickAtATextByCodeAndNothingWhenItIsCleared)
{
    for (forms::ComboBox* each : boxes) {
        SCOPED_TRACE(each->name().toStdString());
        stand(*each);
        for (int times = 0; times < 2; ++times) // the same item again, too
            EXPECT_EQ(after([each] { pick(*each, "gamma"); }), "Click:gamma");
        EXPECT_EQ(each->listIndex(), 2);
        QStringList clicks;
        for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Up, Qt::Key_Up, Qt::Key_Down})
            clicks += after([key] { press(key); });
        EXPECT_EQ(clicks, QStringList({"Click:beta", "Click:alpha", "", "Click:beta"}));
        each->setText("alpha");
        EXPECT_EQ(taken(), each == &form.combo ? "Change:alpha" : "Click:alpha");
        EXPECT_EQ(after([each] { each->setText("alpha"); }), "");
        EXPECT_EQ(after([each] { each->setListIndex(2); }), "Click:gamma");
        EXPECT_EQ(after([each] { each->setListIndex(2); }), "");
        EXPECT_EQ(each->text(), "gamma");
        EXPECT_EQ(after([each] { each->clear(); }), "");
        EXPECT_EQ(each->text() + itemsOf(*each).join(u' ') + QString::number(each->listIndex()), "-1");
    }
}

} // namespace
