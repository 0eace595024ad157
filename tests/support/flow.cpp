// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/look.h"
#include "support/files.h"
#include "support/rows.h"
#include "support/scene.h"
#include "support/screen_test.h"

#include <QKeySequence>
#include <QMap>
#include <QPointer>
#include <QRegularExpression>
#include <QWidget>

namespace {

using State = QMap<QString, QStringList>; // what is to be seen, by where it stands

// "front" is what stands before the user, the name of a screen what it holds, the name of a table its rows.
State stateNow(const forms::Form* form)
{
    State state{{"front", {scene()}}};
    if (form) {
        QStringList& held = state[form->name()];
        held = contents(*form).split(", ", Qt::SkipEmptyParts);
        held.removeAll("imgHome hidden"); // where the desktop is small
        if (!form->isEnabled())
            held += "off";
        for (const forms::Control* control : form->controls()) {
            if (const auto* label = dynamic_cast<const forms::Label*>(control))
                held += label->name() + ": " + label->caption();
            if (control->backColour() == forms::look::colours().error)
                held += control->name() + " red";
        }
    }
    if (!Data1.Home.isOpen())
        return state;
    for (const storage::TableView* view : {&Data1.rsGeneral, &Data1.rsBank, &Data1.rsIndoor, &Data1.rsMobile,
             &Data1.rsInventory, &Data1.rsOutdoor, &Data1.rsPrint}) {
        const auto& table = view->snapshot().definition();
        state[QString::fromUtf8(table.name)] = rowsOf(*view, 0, static_cast<int>(table.columns.size()) - 1);
    }
    return state;
}

// What has come and what has gone, a line for each place; all that a screen holds when it is there for the first time.
QStringList changes(const State& before, const State& now)
{
    QStringList told;
    for (auto place = now.begin(); place != now.end(); ++place) {
        QStringList come = place.value(), gone = before.value(place.key());
        for (const QString& same : before.value(place.key()))
            if (come.removeOne(same))
                gone.removeOne(same);
        for (const QString& text : place.key() == "front" ? QStringList() : gone)
            told += place.key() + " - " + text;
        for (const QString& text : come)
            told += place.key() + " + " + text;
    }
    return told.replaceInStrings("\n", "\\n");
}

forms::Control& named(const QString& name)
{
    return user::control(*forms::activeForm(), name);
}

// Most screens only go out of sight.
void close(forms::Form& form)
{
    const QString name = form.name();
    const QPointer<QWidget> window = form.window();
    user::closeBox(form);
    user::settle();
    if (!window)
        throw std::logic_error(name.toStdString() + " is gone for good");
}

// By code, as the program itself does.
void put(forms::Control& control, const QString& content)
{
    if (auto* option = dynamic_cast<forms::OptionButton*>(&control))
        option->setValue(content == "on");
    else
        dynamic_cast<forms::TextEntry&>(control).setText(content);
}

QString itemsWith(const QString& word, const QString& name)
{
    const QStringList items = user::itemsOf(dynamic_cast<forms::ComboBox&>(named(name)));
    return (name + ": " + items.filter(word, Qt::CaseInsensitive).join('|')).trimmed();
}

// "click cmdAdd(0)", "type Oak", "paste Oak", "pick cmbLoc Library", "press Alt+D", "close", by code "put txtPur
// 2/30/2006"; or "list cmbLoc oak", which tells the items that hold the word
QString act(const QString& line)
{
    const QString verb = line.section(' ', 0, 0), rest = line.section(' ', 1), name = rest.section(' ', 0, 0);
    if (verb == "list")
        return itemsWith(rest.section(' ', 1), name);
    if (verb == "click")
        user::click(named(name));
    else if (verb == "type")
        user::type(QString(rest).replace("\\n", "\n"));
    else if (verb == "paste")
        user::paste(rest);
    else if (verb == "pick")
        user::pick(dynamic_cast<forms::ComboBox&>(named(name)), rest.section(' ', 1));
    else if (verb == "put")
        put(named(name), rest.section(' ', 1));
    else if (verb == "close")
        close(*forms::activeForm());
    else if (verb == "press")
        for (const QString& key : rest.split(' ')) {
            const QKeyCombination keys = QKeySequence(key)[0];
            user::press(keys.key(), keys.keyboardModifiers());
        }
    else
        throw std::invalid_argument("Nobody can " + line.toStdString());
    return {};
}

} // namespace

// "refuse INSERT Bank_Info", as a full disk does, until "allow Bank_Info" or "reopen", which reads the tables anew
bool ScreenTest::arranges(const QString& line)
{
    const QStringList words = line.split(' ');
    if (words[0] == "refuse")
        refuseWrites(words.at(1).toUtf8(), words.at(2).toUtf8());
    else if (words[0] == "allow")
        makeRoom(words.at(1).toUtf8());
    else if (line == "reopen")
        reopenData();
    else if (line == "close" && reportWindow())
        closeReport();
    else
        return false;
    return true;
}

// What comes of a line, but for what is to be seen.
QStringList ScreenTest::played(const QString& line)
{
    QStringList told;
    try {
        if (const auto seen = happen(line))
            told = seen->split('\n', Qt::SkipEmptyParts);
        else if (!arranges(line))
            told += act(line);
    } catch (const std::exception& failure) {
        told += failure.what();
    }
    if (const auto failure = reportedFailure())
        told += "fails in " + failure->handler;
    if (const auto number = openedHelp())
        told += QStringLiteral("help %1").arg(*number);
    told.removeAll(QString());
    return told;
}

void ScreenTest::replay(const char* file, const std::function<QStringList()>& tells)
{
    QStringList lines;
    QStringList reactions;
    const bool isOfTheTables = Data1.Home.isOpen();
    const forms::Form* form = forms::activeForm(); // before the action, that is behind what it opens
    State state = stateNow(form);
    state.remove("front");
    if (form)
        state.remove(form->name());
    const auto note = [&lines](const QStringList& told) {
        lines += QStringList(told).replaceInStrings(QRegularExpression("^"), "  ");
    };
    const auto tell = [&] {
        const State now = stateNow(form);
        note(tells ? tells() : changes(state, now));
        state.insert(now);
    };
    const auto look = [&] {
        if (!reactions.isEmpty() && reactions.first() == "look") {
            reactions.removeFirst();
            tell();
        }
    };
    forms::setMessageHandler([&](const forms::Message& box) {
        look();
        note({QStringLiteral("box %1 \"%2\"").arg(box.flags).arg(box.text)});
        const bool isYes = !reactions.isEmpty() && reactions.takeFirst() == "Yes";
        return isYes ? forms::Answer::Yes : box.flags & forms::box::YesNo ? forms::Answer::No : forms::Answer::OK;
    });
    for (const QString& line : QString::fromUtf8(bytesOf(kept(file))).split('\n').filter(QRegularExpression("^[>#]"))) {
        lines += line;
        if (line.startsWith('#'))
            continue;
        reactions = line.mid(2).split(" | ");
        const QString action = reactions.takeFirst();
        if (const qsizetype modal = reactions.indexOf(QRegularExpression("^\\w+ .*")); modal >= 0)
            whileModal([then = reactions.takeAt(modal), &look] { look(), act(then); });
        note(played(action));
        form = forms::activeForm();
        tell();
    }
    forms::setMessageHandler({}); // a way ends its test
    if (isOfTheTables)
        reopenData();
    for (const QString& change : isOfTheTables ? changes(state, stateNow(forms::activeForm())) : QStringList())
        lines += "  in the file " + change; // nothing, unless the tables were closed on the way
    expectKept(file, lasting(lines.join('\n') + '\n'));
}
