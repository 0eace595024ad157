// SPDX-License-Identifier: GPL-3.0-or-later
#include "trial_form.h"

using forms::TextEntry;

namespace {

class Boxes : public TrialForm {
public:
    explicit Boxes(Journal& journal)
        : TrialForm("Boxes", journal)
    {
        layOut({&line, &memo, &combo});
    }

    forms::TextBox line{*this, "line"};
    forms::MemoBox memo{*this, "memo"};
    forms::ComboBox combo{*this, "combo"};

    TextEntry& entry(const QString& name) { return control<TextEntry>(*this, name); }
};

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

const char* const boxNames[] = {"line", "memo", "combo"};

using Case = std::tuple<const char*, Way>;

class TextEntersABox : public FormsTest, public testing::WithParamInterface<Case> {
protected:
    void SetUp() override
    {
        FormsTest::SetUp();
        form.show();
        click(box);
    }

    void enter(const QString& text) { std::get<Way>(GetParam()).enter(box, text); }

    Journal journal;
    Boxes form{journal};
    TextEntry& box{form.entry(std::get<0>(GetParam()))};
};

QString nameOf(const Case& each)
{
    return QString(std::get<0>(each)) + std::get<Way>(each).name;
}

INSTANTIATE_TEST_SUITE_P(AllWays, TextEntersABox,
    testing::Combine(testing::ValuesIn(boxNames), testing::ValuesIn(ways)),
    [](const auto& each) { return nameOf(each.param).toStdString(); });

TEST_P(TextEntersABox, CharacterByCharacterThroughKeyPress)
{
    box.KeyPress = [this](int& keyAscii) {
        journal.note(QString::number(keyAscii));
        if (keyAscii >= 'a')
            keyAscii = forms::key::Refused;
        else if (keyAscii == 'B')
            keyAscii = 'X';
    };
    enter("1aB2");
    EXPECT_EQ(journal.taken().remove("Boxes.Activate "), "49 97 66 50");
    EXPECT_EQ(box.text(), "1X2");
}

TEST_P(TextEntersABox, ThenThroughTheLimitWithWholeCharacters)
{
    box.setMaxLength(4);
    const QString grin = QString::fromUcs4(U"\U0001F600");
    enter("ab" + grin + grin + "c");
    EXPECT_EQ(box.text(), "ab" + grin + grin);
}

TEST_P(TextEntersABox, ALockedBoxTakesNothing)
{
    box.setText("kept");
    box.Change = [this] { journal.note("Change"); };
    box.setLocked(true);
    journal.taken();
    enter("x");
    press(Qt::Key_Backspace);
    press(Qt::Key_Delete);
    EXPECT_EQ(box.text(), "kept");
    EXPECT_EQ(journal.taken(), "");
}

class Entry : public FormsTest {
protected:
    void SetUp() override
    {
        FormsTest::SetUp();
        form.show();
    }

    Journal journal;
    Boxes form{journal};
};

TEST_F(Entry, ControlCharactersAndLineEndsAreDroppedInOneLine)
{
    const QString text = QString("a\tb\r\nc\x01\x7f") + QChar(0x2028) + QChar(0x85) + "d";
    for (const char* name : {"line", "combo"}) {
        TextEntry& box = form.entry(name);
        click(box);
        paste(text);
        EXPECT_EQ(box.text(), "abcd") << name;
        box.setText("");
        box.KeyPress = [](int&) {};
        commit(text);
        EXPECT_EQ(box.text(), "abcd") << name;
    }
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
        journal.taken();
        box.setText("new");
        EXPECT_EQ(journal.taken(), "new") << name;
        box.setText("new");
        EXPECT_EQ(journal.taken(), "") << name;
        box.setMaxLength(2);
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

TEST_F(Entry, ANoBreakSpaceStaysAndAltTabTypesNothing)
{
    const QString text = QString("a") + QChar(QChar::Nbsp) + "b";
    for (const char* name : boxNames) {
        TextEntry& box = form.entry(name);
        click(box);
        paste(text);
        press(Qt::Key_Tab, Qt::AltModifier);
        EXPECT_EQ(box.text(), text) << name;
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
    form.combo.addItems({"alpha", "beta"});
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
