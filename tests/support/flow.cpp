// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/screens/notice.h"
#include "support/files.h"
#include "support/rows.h"
#include "support/scene.h"
#include "support/screen_test.h"

#include <QtWidgets>

#include <algorithm>

namespace {

forms::Control& named(const QString& name)
{
    return user::control(*forms::activeForm(), name);
}

// ---- what has come of a step

// The controls of each screen as it comes, by "frmMain.cmdIn".
QMap<QString, QStringList> screensAsTheyCome()
{
    static const QRegularExpression listed("^(\\w+)(?:\\(([\\d ]+)\\))?(.*)$");
    static const QRegularExpression betweenParts(
        ", (?=(on|locked|grey|hidden|red|default|destructive|tip|limit|list|help)\\b)");
    QMap<QString, QStringList> all;
    QString form;
    for (const QString& line : QString::fromUtf8(bytesOf(kept("core/screens_as_they_come.txt"))).split('\n')) {
        if (line.startsWith("# ")) {
            form = line.mid(2) + '.';
            continue;
        }
        const auto parts = listed.match(line);
        const QStringList said =
            parts.captured(3).split(betweenParts).filter(QRegularExpression("^(?!limit|list|help)"));
        for (const QString& index : parts.captured(2).split(' '))
            all[form + parts.captured(1) + (index.isEmpty() ? index : '(' + index + ')')] = said;
    }
    return all;
}

// "cmdNext grey", "txtLoc=None, not locked"
QString changed(const forms::Control& control, QStringList was, const QStringList& now)
{
    QStringList told;
    for (const QString& part : now.mid(1))
        if (!was.removeOne(part))
            told += part;
    const bool hasTip = now.last().startsWith("tip"); // which takes the place of another
    for (const QString& part : was.mid(1))
        if (!hasTip || !part.startsWith("tip"))
            told += "not " + part;
    const QString value = now[0] == was.value(0) ? QString() : now[0];
    return control.name() + value + (told.isEmpty() ? QString() : (value.isEmpty() ? " " : ", ") + told.join(", "));
}

// What names a row: all of it in a table of names.
QString keyOf(const QString& row)
{
    return row.count('|') < 4 ? row : row.section('|', 0, 0);
}

// "Inventory 7: Amount=$25.50"
QString changed(const storage::TableDefinition& table, const QString& was, const QString& now, bool isOnly)
{
    QStringList cells;
    for (int column = 0; column < static_cast<int>(table.columns.size()); ++column)
        if (const QString cell = now.section('|', column, column); cell != was.section('|', column, column))
            cells += QString(table.columns[static_cast<std::size_t>(column)].name) + '=' + cell;
    return table.name + (isOnly ? QString() : ' ' + keyOf(was)) + ": " + cells.join(", ");
}

QStringList changes(const storage::TableView& view, const QStringList& was, const QStringList& now)
{
    const auto& table = view.snapshot().definition();
    QStringList come = now, gone = was, told;
    for (const QString& same : was)
        if (come.removeOne(same))
            gone.removeOne(same);
    if (come.size() == gone.size()) {
        for (qsizetype row = 0; row < come.size(); ++row)
            told += changed(table, gone[row], come[row], now.size() == 1);
        return told;
    }
    for (const QString& row : gone)
        told += QString("- ") + table.name + ' ' + keyOf(row);
    for (const QString& row : come)
        told +=
            QString("+ ") + table.name + ' ' + QString(row).replace(QRegularExpression("(\\|None){3,}$"), "|None...");
    return told;
}

// What a user has been told already.
class Known {
public:
    Known() { tableNews(); }

    QStringList tableNews()
    {
        QStringList told;
        if (!Data1.Home.isOpen())
            return told;
        for (const storage::TableView* view : {&Data1.rsGeneral, &Data1.rsBank, &Data1.rsIndoor, &Data1.rsMobile,
                 &Data1.rsInventory, &Data1.rsOutdoor, &Data1.rsPrint}) {
            const auto& table = view->snapshot().definition();
            const QStringList now = rowsOf(*view, 0, static_cast<int>(table.columns.size()) - 1);
            if (const QStringList was = std::exchange(rows_[table.name], now); was != now)
                told += changes(*view, was, now);
        }
        return told;
    }

    // Of the focus nothing where it is on the control that was meant.
    QStringList placeNews(const QString& meant)
    {
        const QString focused = focus(), frame = scene().remove(": " + focused), was = focus_;
        focus_ = focused;
        if (std::exchange(frame_, frame) != frame)
            return {scene()};
        const bool isAsMeant = meant.isEmpty() ? was == focused || was.startsWith(focused + " [") : meant == focused;
        return isAsMeant ? QStringList() : QStringList("at " + focused);
    }

    QStringList screenNews(const forms::Form& form)
    {
        QStringList told;
        if (const bool isGrey = !form.isEnabled(); std::exchange(isGrey_[form.name()], isGrey) != isGrey)
            told += form.name() + (isGrey ? " grey" : " not grey");
        for (const forms::Control* control : form.controls()) {
            const QStringList now = partsOf(*control);
            if (const QStringList was = std::exchange(parts_[form.name() + '.' + control->name()], now); was != now)
                told += changed(*control, was, now);
        }
        for (const QWidget* part : form.canvas()->findChildren<QWidget*>())
            if (dynamic_cast<const forms::Notice*>(part) && std::exchange(said_, part->accessibleName()) != said_)
                told += "says \"" + said_ + '"';
        return gathered(told);
    }

private:
    QMap<QString, QStringList> parts_ = screensAsTheyCome(), rows_;
    QMap<QString, bool> isGrey_;
    QString frame_, focus_, said_;
};

// Below 120 characters a line, where that can be.
QString wrapped(QString line, const QStringList& seen)
{
    QString between = " =>";
    for (QString each : seen) {
        each.replace('\n', "\\n");
        const qsizetype begin = line.lastIndexOf('\n') + 1;
        const bool fits = line.size() - begin + between.size() + each.size() < 118;
        line += between + (fits ? " " : "\n    ") + each;
        between = ";";
    }
    return line;
}

// ---- what a user does

// Most screens only go out of sight.
QString close(forms::Form& form)
{
    const QString name = form.name();
    const QPointer<QWidget> window = form.window();
    user::closeBox(form);
    user::settle();
    return window ? QString() : name + " is gone for good";
}

// By code, as the program itself does.
void put(forms::Control& control, const QString& content)
{
    if (auto* option = dynamic_cast<forms::OptionButton*>(&control))
        option->setValue(content == "on");
    else
        dynamic_cast<forms::TextEntry&>(control).setText(content);
}

void press(const QString& keys)
{
    for (const QString& key : keys.split(' ')) {
        const QKeyCombination combined = QKeySequence(key)[0];
        user::press(combined.key(), combined.keyboardModifiers());
    }
}

void enter(forms::Control& control, const QString& text)
{
    user::click(control);
    press("Ctrl+A Del");
    user::type(QString(text).replace("\\n", "\n"));
}

// Tells whether a list has come up; it is closed again.
QString open(forms::Control& control)
{
    user::clickArrow(dynamic_cast<forms::ComboBox&>(control));
    const bool isOpen = QApplication::activePopupWidget();
    if (isOpen)
        user::press(Qt::Key_Escape);
    return isOpen ? "a list" : "no list";
}

QString itemsWith(const QString& word, forms::Control& control)
{
    const QStringList items = user::itemsOf(dynamic_cast<forms::ComboBox&>(control)).filter(word, Qt::CaseInsensitive);
    return items.isEmpty() ? "nothing" : items.join('|');
}

// What is seen at once; all else shows by what has changed.
QString act(const QString& step)
{
    const QString verb = step.section(' ', 0, 0), rest = step.section(' ', 1), name = rest.section(' ', 0, 0),
                  text = rest.section(' ', 1);
    QString seen;
    const std::map<QString, std::function<void()>> deeds{{"click", [&] { user::click(named(name)); }},
        {"type", [&] { user::type(QString(rest).replace("\\n", "\n")); }}, {"paste", [&] { user::paste(rest); }},
        {"enter", [&] { enter(named(name), text); }}, {"press", [&] { press(rest); }},
        {"pick", [&] { user::pick(dynamic_cast<forms::ComboBox&>(named(name)), text); }},
        {"open", [&] { seen = open(named(name)); }}, {"list", [&] { seen = itemsWith(text, named(name)); }},
        {"put", [&] { put(named(name), text); }}, {"close", [&] { seen = close(*forms::activeForm()); }}};
    const auto deed = deeds.find(verb);
    if (deed == deeds.end())
        throw std::invalid_argument("Nobody can " + step.toStdString());
    deed->second();
    return seen;
}

// The control on which a step leaves the focus, as far as its words tell; empty where they don't.
QString meantBy(const QString& step)
{
    const forms::Form* form = forms::activeForm();
    const bool goes = QStringList({"click", "pick", "open", "enter"}).contains(step.section(' ', 0, 0));
    if (goes && form)
        for (const forms::Control* control : form->controls())
            if (control->name() == step.section(' ', 1, 1) && control->canTakeFocus())
                return control->name();
    return {};
}

} // namespace

// How far a way has come.
struct ScreenTest::Walk {
    Known known;
    const forms::Form* form = forms::activeForm(); // before the step, that is behind what it opens
    QStringList reactions, seen;

    void tell(const QString& meant)
    {
        seen += known.tableNews() + known.placeNews(meant);
        if (form)
            seen += known.screenNews(*form);
    }

    void look()
    {
        if (reactions.isEmpty() || reactions.first() != "look")
            return;
        reactions.removeFirst();
        tell({});
    }

    forms::Answer answer(const forms::Message& box)
    {
        look();
        seen += QStringLiteral("box %1 \"%2\"").arg(box.flags).arg(box.text);
        const bool isYes = !reactions.isEmpty() && reactions.takeFirst() == "Yes";
        return isYes ? forms::Answer::Yes : box.flags & forms::box::YesNo ? forms::Answer::No : forms::Answer::OK;
    }
};

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

// What comes of a step, but for what is to be seen.
QStringList ScreenTest::played(const QString& step)
{
    QStringList told;
    if (const auto seen = happen(step))
        told = seen->split('\n', Qt::SkipEmptyParts);
    else if (!arranges(step))
        told += act(step);
    if (const auto failure = reportedFailure())
        told += "fails in " + failure->handler;
    if (const auto number = openedHelp())
        told += QStringLiteral("help %1").arg(*number);
    told.removeAll(QString());
    return told;
}

// All that comes of a line of a way.
QStringList ScreenTest::seenOn(const QString& way, Walk& walk)
{
    static const QRegularExpression nextStep(
        ", (?=(click|type|paste|enter|press|pick|open|list|put|close|refuse|allow|reopen|tour)\\b)");
    walk.seen.clear();
    walk.reactions = way.split(" | ");
    const QStringList steps = walk.reactions.takeFirst().split(nextStep);
    if (const qsizetype modal = walk.reactions.indexOf(QRegularExpression("^\\w+ .*")); modal >= 0)
        whileModal([then = walk.reactions.takeAt(modal).split(nextStep), &walk] {
            walk.look();
            std::ranges::for_each(then, act);
        });
    QString meant;
    try {
        for (const QString& step : steps) {
            const QString goal = meantBy(step);
            meant = goal.isEmpty() ? meant : goal;
            walk.seen += played(step);
        }
    } catch (const std::exception& failure) {
        ADD_FAILURE() << way.toStdString() << ": " << failure.what();
    }
    walk.form = forms::activeForm();
    walk.tell(meant);
    return walk.seen;
}

void ScreenTest::replay(const char* file)
{
    static const QRegularExpression outcome(" =>( |$)");
    const bool isOfTheTables = Data1.Home.isOpen();
    QStringList lines;
    Walk walk;
    forms::setMessageHandler([&](const forms::Message& box) { return walk.answer(box); });
    for (const QString& line : QString::fromUtf8(bytesOf(kept(file))).split('\n').filter(QRegularExpression("^[^ ]"))) {
        const QString way = line.section(outcome, 0, 0);
        if (line.startsWith('#'))
            lines += line;
        else
            lines += wrapped(way, seenOn(way, walk));
    }
    forms::setMessageHandler({}); // a way ends its test
    if (isOfTheTables)
        reopenData();
    for (const QString& change : isOfTheTables ? walk.known.tableNews() : QStringList())
        lines += "    in the file " + change; // nothing, unless the tables were closed on the way
    expectKept(file, lasting(lines.join('\n') + '\n'));
}
