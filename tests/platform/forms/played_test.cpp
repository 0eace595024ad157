// SPDX-License-Identifier: GPL-3.0-or-later
#include "trial_form.h"

#include "platform/forms/boxes/file_choice.h"
#include "platform/forms/looks/light_style.h"
#include "platform/forms/runtime/boundary.h"
#include "platform/values/failure.h"
#include "support/files.h"

#include <QTest>
#include <QtWidgets>

#include <cmath>
#include <deque>
#include <set>
#include <stdexcept>

namespace {

/// What a user and the code of screens do one after the other, and what comes of each step: the events, then all that
/// looks otherwise than before. The parameter is the list and the heading of a scene.
class Played : public FormsTest, public testing::WithParamInterface<std::pair<QString, QString>> {
protected:
    Played()
    {
        useRealBoxes();
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.path()); // of the folder dialog
        forms::setHelpHandler(
            [this](int number, const QString& name) { note(QString("(help %1 %2)").arg(number).arg(name)); });
        QPixmap red(40, 20);
        red.fill(Qt::red);
        red.save(folder.filePath("red.png"));
        {
            TrialForm first(journal, "First"); // tells the frame that the display gives to windows
            first.show();
            settle();
            first.window()->move(134, 0);
        }
        screen("Form").show();
        whatCame();
    }
    ~Played() override { values::setToday({}); }

    // A scene that names controls behind its title is played for each, which is "IT" and has the focus.
    void playScene()
    {
        const auto& [list, heading] = GetParam();
        const QString part = partOf(list, heading), names = heading.section(" [", 1).remove(']');
        for (const QString& it : names.split(' ')) {
            lines = QString(part).replace(QRegularExpression("\\bIT\\b"), it).split('\n');
            next = concluded = 0;
            told.clear();
            if (!it.isEmpty())
                of({it}).setFocus(), whatCame();
            playTo([] { return false; });
            expectPart(list, heading,
                it.isEmpty() ? told.join('\n') : told.join('\n').replace(QRegularExpression("\\b" + it + "\\b"), "IT"));
        }
    }

private:
    using Words = const QStringList&;

    void playTo(const std::function<bool()>& end)
    {
        while (!end() && next < lines.size()) {
            const qsizetype here = ++next;
            const QString steps = step();
            for (const QString& each : takesAll(steps) ? QStringList(steps) : steps.split(", "))
                playOrTell(each);
            if (here == next)
                conclude();
        }
    }

    QString step() const { return lines[next - 1].section(" => ", 0, 0); }

    // Of what stands behind these words all belongs to them.
    static bool takesAll(const QString& steps)
    {
        return QStringList{"when", "once", "run", "returning", "dropping", "inside"}.contains(steps.section(' ', 0, 0));
    }

    void playOrTell(const QString& step)
    {
        try {
            play(step);
            settle();
        } catch (const values::RuntimeFailure& refusal) {
            note('(' + refusal.text() + ')');
        }
    }

    void play(const QString& step)
    {
        QStringList words = step.split(' ');
        const auto& deed = deeds.at(words.takeFirst());
        deed(words);
    }

    // What comes when a line has been told already belongs to the next.
    void conclude()
    {
        if (std::exchange(concluded, next) != next)
            told += stepTold(step(), whatCame());
    }

    void note(const QString& event) { journal += event; }

    // ---- of what a step speaks

    // What it says behind its first words, with the escapes of JSON.
    static QString text(Words words, qsizetype from = 1)
    {
        const QString quoted = "[\"" + words.mid(from).join(' ') + "\"]";
        return QJsonDocument::fromJson(quoted.toUtf8()).array().first().toString();
    }

    static bool isYes(Words words) { return words.last() == "yes"; }

    TrialForm& screen(const QString& name)
    {
        auto& made = screens[name];
        if (!made) {
            made = std::make_unique<TrialForm>(journal, name);
            changes();
        }
        return *made;
    }

    template <class Kind = forms::Control>
    Kind& of(Words words)
    {
        const QString& name = words.first();
        return control<Kind>(screen(name.contains('.') ? name.section('.', 0, 0) : "Form"), name.section('.', -1));
    }

    forms::TextEntry& entry(Words words) { return of<forms::TextEntry>(words); }
    forms::ComboBox& combo(Words words) { return of<forms::ComboBox>(words); }

    QPushButton& button(Words words) { return *qobject_cast<QPushButton*>(of(words).widget()); }

    // In percents of the control's size; the middle where nothing is said.
    QPoint place(Words words, qsizetype at = 1)
    {
        const QSize size = of(words).widget()->size();
        const auto share = [&](qsizetype index) { return index < words.size() ? words[index].toInt() : 50; };
        return {size.width() * share(at) / 100, size.height() * share(at + 1) / 100};
    }

    // Several steps with commas between.
    std::function<void()> answerBy(const QString& steps)
    {
        return [this, steps] {
            for (const QString& each : steps.split(", "))
                play(each);
        };
    }

    void when(const QString& event, const QString& steps)
    {
        const QString name = event.at(0).isUpper() ? event.section('.', 0, 0) : "Form";
        screen(name).answers[event.section('.', -2)] = answerBy(steps);
    }

    // Has events noted. Of a key also its code, which "!" refuses; "~" refuses small letters and turns a B into an X.
    void noteEvents(Words words)
    {
        forms::Control& control = of(words);
        auto* entry = dynamic_cast<forms::TextEntry*>(&control);
        auto* combo = dynamic_cast<forms::ComboBox*>(&control);
        const std::map<QString, forms::Event<>*> plain{{"MouseDown", &control.MouseDown}, {"MouseUp", &control.MouseUp},
            {"DblClick", &control.DblClick}, {"Change", entry ? &entry->Change : nullptr},
            {"DropDown", combo ? &combo->DropDown : nullptr}};
        const std::map<QString, forms::Event<int&>*> ofKeys{
            {"KeyDown", &control.KeyDown}, {"KeyPress", &control.KeyPress}, {"KeyUp", &control.KeyUp}};
        for (QString event : words.mid(1)) {
            const bool all = event.endsWith('!');
            const bool some = event.endsWith('~');
            event.remove(QRegularExpression("\\W"));
            const QString name = control.name() + '.' + event;
            if (const auto found = plain.find(event); found != plain.end())
                *found->second = [this, name] { note(name); };
            else
                *ofKeys.at(event) = [this, name, all, some](int& code) {
                    note(name + QString(" %1").arg(code));
                    code = all || (some && code >= 'a') ? forms::key::Refused : some && code == 'B' ? int('X') : code;
                };
        }
    }

    // ---- what a user does

    static void eachStroke(Words names, void (*act)(Qt::Key, Qt::KeyboardModifiers))
    {
        for (const QString& name : names) {
            const QKeyCombination stroke = QKeySequence(name)[0];
            act(stroke.key(), stroke.keyboardModifiers());
        }
    }

    static void repeatTwice(Qt::Key key, Qt::KeyboardModifiers modifiers) { repeat(key, modifiers, 2); }

    void copy(const QString& text) { QGuiApplication::clipboard()->setText(seen["copied"] = text); }

    // As a window system tells it: with the code of the place on the keyboard and the time, the same for a repeat.
    void tell(QEvent::Type type, const QString& key, ulong when)
    {
        const QKeyCombination stroke = QKeySequence(key)[0];
        const auto code = stroke.key();
        const std::map<Qt::Key, QString> special{{Qt::Key_Delete, "\x7f"}, {Qt::Key_F1, ""}, {Qt::Key_Return, "\r"}};
        const QString text = special.contains(code) ? special.at(code) : key.right(1).toLower();
        QKeyEvent event(type, code, stroke.keyboardModifiers(), quint32(code), 0, 0, text);
        event.setTimestamp(when);
        QCoreApplication::sendEvent(forms::activeForm()->window()->windowHandle(), &event);
    }

    // What was on its way to a screen that has gone, or that has opened a list; or to a list that has closed.
    void pressBehind(Words words)
    {
        QWidget* popup = QApplication::activePopupWidget();
        QWindow* to = words[0] == "list" ? popup->windowHandle() : screen(words[0]).window()->windowHandle();
        for (const QString& name : words.mid(1))
            QTest::keyClick(to, QKeySequence(name)[0].key(), QKeySequence(name)[0].keyboardModifiers());
    }

    void clickBehind(Words words)
    {
        QWidget& widget = *of(words).widget();
        QTest::mouseClick(widget.window()->windowHandle(), Qt::LeftButton, {}, widget.geometry().center());
    }

    // The release of a press that was on something that has gone by now.
    void lift(Words words)
    {
        QWidget& whole = *of(words).widget();
        QWidget* under = whole.childAt(place(words));
        QWidget& widget = under ? *under : whole;
        const QPointF at = widget.mapFrom(&whole, place(words));
        QMouseEvent release(QEvent::MouseButtonRelease, at, widget.mapToGlobal(at), Qt::LeftButton, {}, {});
        QCoreApplication::sendEvent(&widget, &release);
    }

    void mouse(QTest::MouseAction action, Words words)
    {
        QWidget& widget = *of(words).widget();
        QWidget& window = *widget.window();
        QTest::mouseEvent(action, window.windowHandle(), Qt::LeftButton, {}, widget.mapTo(&window, place(words)));
    }

    void rightPress(Words words)
    {
        const QStringList offered = rightClick(of(words), text(words));
        note(offered.isEmpty() ? "(no menu)" : '(' + offered.join(' ') + ')');
    }

    void turnWheel(Words words)
    {
        QWidget& whole = *of(words).widget();
        QWidget* under = whole.childAt(place(words, 2));
        wheel(under ? *under : whole, words[1].toInt());
    }

    // A box, by mouse.
    static void confirm()
    {
        auto* button = QApplication::activeModalWidget()->findChild<QPushButton*>();
        const QPoint place = button->mapTo(button->window(), QPoint(9, 9));
        QTest::mouseClick(button->window()->windowHandle(), Qt::LeftButton, {}, place);
    }

    // Plays the next lines in front of a modal window.
    void playInFront()
    {
        whileModal([this] {
            conclude();
            const QPointer<QWidget> modal = QApplication::activeModalWidget();
            playTo([&modal] { return !modal || !modal->isVisible(); });
        });
    }

    // What comes while the layer waits for the toolkit, and what comes of it once that has returned.
    void inToolkitCall(const QString& steps)
    {
        const qsizetype before = journal.size();
        {
            const forms::ToolkitCall call;
            answerBy(steps)();
            note("returned");
        }
        settleUntil([this, before] { return journal.size() != before + 1; });
    }

    // By an assistive tool, which has met the label before it leads to the help.
    void pressHelp()
    {
        forms::Label& label = labels.back();
        const auto found = [&label] { return QAccessible::queryAccessibleInterface(label.widget()); };
        EXPECT_EQ(found()->role(), QAccessible::StaticText);
        label.openHelp();
        EXPECT_EQ(found()->role(), QAccessible::Link);
        EXPECT_EQ(found()->actionInterface()->actionNames(), QStringList(QAccessibleActionInterface::pressAction()));
        found()->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
        found()->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    }

    void chooseFile(const QString& start)
    {
        playInFront();
        note("chosen (" + forms::chooseFile("Title", start, {"Pictures (*.png)"}) + ')');
    }

    // What the dialogue for files lets the user take, and how it calls that.
    void lookAtChoice()
    {
        const auto& dialog = dynamic_cast<QFileDialog&>(*QApplication::activeModalWidget());
        note(QString("%1 %2 %3 %4")
                 .arg(dialog.windowTitle(), dialog.labelText(QFileDialog::Accept))
                 .arg(dialog.fileMode())
                 .arg(dialog.nameFilters().join(',')));
        if (dialog.testOption(QFileDialog::ShowDirsOnly))
            note("folders alone");
        if (dialog.width() == dialog.screen()->availableSize().width())
            note("as wide as the desktop");
    }

    void ask()
    {
        playInFront();
        const auto answer = forms::MsgBox("Sure?", forms::box::Question + forms::box::YesNo, "Title");
        note(answer == forms::Answer::Yes ? "Yes" : "No");
    }

    // What is set is all that differs from the usual.
    void paint(forms::Control& control, const QColor& colour)
    {
        control.setBackColour(colour);
        control.setTextColour(colour);
        for (const auto role : {QPalette::Base, QPalette::Button, QPalette::Text})
            note(control.widget()->palette().color(role).name());
    }

    // ---- what there is to see

    // The program's colours in a part of a control, from its upper left to its lower right.
    void lookAt(Words words)
    {
        const forms::look::Colours& the = forms::look::colours();
        const std::pair<const char*, QColor> colours[] = {{"accent", the.accent}, {"danger", the.danger},
            {"face", the.buttonFace}, {"faded", the.faded}, {"field", the.field}, {"line", the.line},
            {"pressed", the.pressed}, {"quiet", the.quiet}, {"text", the.text}};
        const QImage part = of(words).widget()->grab({place(words), place(words, 3)}).toImage();
        std::set<QRgb> found;
        for (int dot = 0; dot < part.width() * part.height(); ++dot)
            found.insert(part.pixel(dot % part.width(), dot / part.width()));
        for (const auto& [name, colour] : colours)
            if (found.contains(colour.rgb()))
                note(name);
    }

    // Whether an arrow in a part of a control points up or down: at its tip it is narrow.
    void followArrow(Words words)
    {
        const QImage part = of(words).widget()->grab({place(words), place(words, 3)}).toImage();
        QRegion ink;
        for (int dot = 0; dot < part.width() * part.height(); ++dot)
            if (const QPoint at(dot % part.width(), dot / part.width()); qGray(part.pixel(at)) < 200)
                ink += QRect(at, QSize(1, 1));
        const QRect all = ink.boundingRect();
        const auto widthAt = [&](int y) { return (ink & QRect(0, y, part.width(), 1)).boundingRect().width(); };
        const int narrows = widthAt(all.top()) - widthAt(all.bottom());
        note(narrows > 1 ? "down" : narrows < -1 ? "up" : "nowhere");
    }

    // So that a number has a whole pixel of its colour.
    void enlargeDays()
    {
        auto& days = *screen("Form").month.widget()->findChild<QTableView*>();
        QFont font = days.font();
        font.setPixelSize(24);
        font.setBold(true);
        days.setFont(font);
    }

    // As assistive tools tell it.
    static QString nameOf(QWidget& window)
    {
        const auto& told = *QAccessible::queryAccessibleInterface(&window);
        EXPECT_EQ(told.role(), QAccessible::Window);
        return told.text(QAccessible::Name);
    }

    // The screen in front and its focus.
    void look()
    {
        const forms::Form* front = forms::activeForm();
        note(front ? front->name() : "nothing");
        if (front && !front->window()->isActiveWindow())
            note("behind");
        if (front && front->window()->windowHandle()->transientParent())
            note("over " + front->window()->windowHandle()->transientParent()->objectName());
        if (front && front->activeControl())
            note(front->activeControl()->name());
    }

    static QString stateOf(const forms::TextEntry& box)
    {
        QString text = box.text();
        const int end = box.selectionStart() + box.selectionLength();
        text.insert(end, end > box.selectionStart() ? "]" : "|");
        text.insert(box.selectionStart(), end > box.selectionStart() ? "[" : "");
        const QString shown = text.size() < 99 ? text : QString("%1 characters").arg(text.size() - 1);
        const auto* memo = qobject_cast<const QPlainTextEdit*>(box.widget());
        const bool isSeen = !memo || memo->viewport()->rect().contains(memo->cursorRect().center());
        return '"' + shown + '"' + (box.toolTip().isEmpty() ? QString() : " tip " + box.toolTip())
            + (isSeen ? "" : " elsewhere");
    }

    static QString stateOf(const QLabel& label)
    {
        const double share = label.font().pointSizeF() / QApplication::font().pointSizeF();
        return QString("\"%1\" %2 %3%%4")
            .arg(label.text(), label.palette().color(QPalette::WindowText).name())
            .arg(std::lround(share * 100))
            .arg(label.alignment() & Qt::AlignHCenter ? " centred" : "");
    }

    static QString stateOf(const forms::RecordList& records)
    {
        QString all = QString("%1 of %2:").arg(records.picked()).arg(records.recordCount());
        for (int index = 0; index < records.recordCount(); ++index)
            all += ' ' + records.record(index).join(',');
        return all;
    }

    // As it is seen, which follows at once where the bar is full.
    static QString stateOf(const forms::ProgressBar& bar)
    {
        const auto seen = [&bar](const char* property) { return bar.widget()->property(property).toInt(); };
        return QString("%1 of %2").arg(bar.value() == bar.max() ? seen("value") : bar.value()).arg(seen("maximum"));
    }

    static QString stateOf(const forms::Picture& picture)
    {
        const QSizeF size = picture.widget()->size().toSizeF() / forms::look::pictureScale();
        return picture.widget()->accessibleName()
            + (picture.isVisible() ? QString(" %1 x %2").arg(qRound(size.width())).arg(qRound(size.height()))
                                   : " hidden");
    }

    // The month's name and what an assistive tool says of the place of the focus; a button is known by its tool tip.
    static QString stateOf(const forms::MonthCalendar& month)
    {
        const auto& days = *month.widget()->findChild<QTableView*>();
        QWidget* stop = QApplication::focusWidget();
        if (!month.widget()->isAncestorOf(stop))
            return days.accessibleName();
        auto& spoken = *QAccessible::queryAccessibleInterface(stop);
        if (stop != &days)
            return stop->toolTip() + ", " + spoken.text(QAccessible::Description);
        const QModelIndex day = days.currentIndex();
        auto* cell = day.isValid() ? spoken.tableInterface()->cellAt(day.row(), day.column()) : nullptr;
        return days.accessibleName() + (cell ? ": " + cell->text(QAccessible::Name) : QString());
    }

    static QString stateOf(const forms::Control& control)
    {
        if (const auto* box = dynamic_cast<const forms::ComboBox*>(&control); box && box->listCount() > 0)
            return QString("%1 %2 of %3").arg(stateOf(*box)).arg(box->listIndex()).arg(itemsOf(*box).join(','));
        if (const auto* box = dynamic_cast<const forms::TextEntry*>(&control))
            return stateOf(*box);
        if (const auto* option = dynamic_cast<const forms::OptionButton*>(&control))
            return option->value() ? "on" : "off";
        if (const auto* check = dynamic_cast<const forms::CheckBox*>(&control))
            return QString::number(check->value());
        if (const auto* bar = dynamic_cast<const forms::ProgressBar*>(&control))
            return stateOf(*bar);
        if (const auto* records = dynamic_cast<const forms::RecordList*>(&control))
            return stateOf(*records);
        if (const auto* month = dynamic_cast<const forms::MonthCalendar*>(&control))
            return stateOf(*month);
        if (const auto* picture = dynamic_cast<const forms::Picture*>(&control))
            return stateOf(*picture);
        const auto* label = dynamic_cast<const forms::Label*>(&control);
        return label ? stateOf(*qobject_cast<const QLabel*>(label->widget())) : QString();
    }

    static QString popupTold()
    {
        QWidget* popup = QApplication::activePopupWidget();
        auto* list = popup ? popup->findChild<QListView*>() : nullptr;
        return list ? "at " + list->currentIndex().data().toString() : "closed";
    }

    // What looks otherwise than it did the last time.
    QStringList changes()
    {
        std::map<QString, QString> now{{"list", popupTold()}, {"copied", QGuiApplication::clipboard()->text()}};
        for (const auto& [name, form] : screens)
            for (const forms::Control* each : form->controls())
                now.insert({(name == "Form" ? "" : name + '.') + each->name(), stateOf(*each)});
        QStringList changed;
        for (const auto& [name, state] : now)
            if (state != std::exchange(seen[name], state))
                changed += '{' + name + ' ' + state + '}';
        return changed;
    }

    // Since the last question.
    QString whatCame()
    {
        settle();
        if (const auto failure = reportedFailure())
            note("(failed " + failure->handler + ' ' + failure->failure.section(": ", -1) + ')');
        if (const auto status = endStatus())
            note(QString("(ended %1)").arg(*status));
        // A control is named at the first of several events.
        QString last;
        for (QString& event : journal) {
            const QString control = event.section('.', 0, -2);
            if (!control.isEmpty() && control == std::exchange(last, control))
                event.remove(0, control.size());
        }
        journal += changes();
        return std::exchange(journal, {}).join(' ').replace('\n', "\\n");
    }

    const QTemporaryDir folder;
    QStringList lines;
    qsizetype next = 0;
    qsizetype concluded = 0;
    QStringList told;
    ulong clock = 1;
    QStringList journal;
    std::map<QString, QString> seen;
    std::map<QString, std::unique_ptr<TrialForm>> screens;
    std::deque<forms::Label> labels;
    QWidget another; // that is no screen

    const std::map<QString, std::function<void(Words)>> deeds{
        // the user, by keys
        {"press", [](Words w) { eachStroke(w, press); }}, {"hold", [](Words w) { eachStroke(w, hold); }},
        {"repeat", [](Words w) { eachStroke(w, repeatTwice); }}, {"release", [](Words w) { eachStroke(w, letGo); }},
        {"third", [](Words w) { press(Qt::Key(w[0][0].unicode()), Qt::AltModifier | Qt::GroupSwitchModifier); }},
        {"down", [this](Words w) { tell(QEvent::KeyPress, w[0], clock); }},
        {"up", [this](Words w) { tell(QEvent::KeyRelease, w[0], ++clock); }}, {"wait", [this](Words) { ++clock; }},
        {"once", [this](Words w) { answerBy(text(w, 0))(); }}, // faster than the program answers
        {"behind", [this](Words w) { pressBehind(w); }}, {"late", [this](Words w) { clickBehind(w); }},
        {"untimed", [this](Words w) { tell(QEvent::KeyPress, w[0], 0), tell(QEvent::KeyRelease, w[0], 0); }},
        {"type", [](Words w) { type(text(w, 0)); }},
        // by mouse
        {"click", [this](Words w) { clickAt(of(w), place(w)); }},
        {"again", [](Words w) { clickAgain(w.value(0).toInt()); }},
        {"tremble", [this](Words w) { drag(of(w), QPoint(9, 16), QPoint(12, 16)); }},
        {"over", [this](Words w) { mouse(QTest::MouseMove, w); }},
        {"grip", [this](Words w) { mouse(QTest::MousePress, w); }},
        {"drag", [this](Words w) { drag(of(w), place(w), place(w, 3)); }},
        {"right", [this](Words w) { rightPress(w); }}, {"arrow", [this](Words w) { clickArrow(combo(w)); }},
        {"pick", [this](Words w) { pick(combo(w), text(w)); }}, {"wheel", [this](Words w) { turnWheel(w); }},
        {"confirm", [](Words) { confirm(); }}, {"dismiss", [](Words) { QApplication::activeModalWidget()->close(); }},
        {"closeBox", [this](Words w) { closeBox(screen(w[0])); }},
        {"move", [this](Words w) { screen(w[0]).window()->move(w[1].toInt(), w[2].toInt()); }},
        {"raise", [this](Words w) { screen(w[0]).window()->windowHandle()->requestActivate(); }},
        {"lift", [this](Words w) { lift(w); }}, {"pressHelp", [this](Words) { pressHelp(); }},
        // in other ways
        {"drop", [this](Words w) { note(drop(of(w), text(w)) ? "(taken)" : "(not taken)"); }},
        {"commit", [](Words w) { commit(text(w, 0)); }},
        {"assist", [this](Words w) { setByAssistant(of(w), text(w)); }},
        {"copied", [this](Words w) { copy(text(w, 0)); }},
        {"fill", [this](Words w) { copy(QString(w[0].toInt(), 'x') + text(w)); }},
        // the code, with screens
        {"show", [this](Words w) { screen(w[0]).show(); }}, {"hide", [this](Words w) { screen(w[0]).hide(); }},
        {"open", [this](Words w) { screen(w[0]).showModal(screen("Form")); }},
        {"modal", [this](Words w) { playInFront(), screen(w[0]).showModal(screen("Form")); }},
        {"input", [this](Words w) { screen(w[0]).setEnabled(isYes(w)); }},
        {"least", [this](Words w) { screen(w[0]).setLeastSize(QSize(500, 700)); }},
        {"title", [this](Words w) { screen("Form").setTitle(w[0]); }},
        {"help", [this](Words w) { screen(w[0]).setHelpNumber(7); }}, {"ask", [this](Words) { ask(); }},
        {"another", [this](Words w) { another.setWindowTitle(w[0]), another.show(); }},
        {"choose", [this](Words w) { playInFront(), note("chosen (" + forms::chooseFolder("Title", w[0]) + ')'); }},
        {"file", [this](Words w) { chooseFile(w[0]); }}, {"offer", [this](Words) { lookAtChoice(); }},
        // with every control
        {"focus", [this](Words w) { of(w).setFocus(); }}, {"enable", [this](Words w) { of(w).setEnabled(isYes(w)); }},
        {"visible", [this](Words w) { of(w).setVisible(isYes(w)); }},
        {"skip", [this](Words w) { of(w).setTabIndex(-1); }},
        {"colour", [this](Words w) { paint(of(w), QColor(w.value(1))); }},
        {"icon", [this](Words w) { button(w).setIcon(QIcon(folder.filePath("red.png"))); }},
        {"turn", [this](Words w) { of(w).widget()->setLayoutDirection(Qt::RightToLeft); }},
        {"destructive", [this](Words w) { of<forms::CommandButton>(w).setDestructive(true); }},
        {"default", [this](Words w) { of<forms::CommandButton>(w).setDefault(true); }},
        {"refuse", [this](Words w) { forms::behaviours::noKeys(of(w)); }},
        // with boxes
        {"text", [this](Words w) { entry(w).setText(text(w)); }},
        {"from", [this](Words w) { entry(w).setSelectionStart(w[1].toInt()); }},
        {"length", [this](Words w) { entry(w).setSelectionLength(w[1].toInt()); }},
        {"select", [this](Words w) { entry(w).selectAll(); }},
        {"width", [this](Words w) { combo(w).setWidthInCharacters(w[1].toInt()); }},
        {"limit", [this](Words w) { entry(w).setMaxLength(w[1].toInt()); }},
        {"lock", [this](Words w) { entry(w).setLocked(isYes(w)); }},
        {"keep", [this](Words w) { entry(w).setDeleteRefused(true); }},
        {"whole", [this](Words w) { of<forms::TextBox>(w).setToldWhole(isYes(w)); }},
        {"cap", [this](Words w) { forms::behaviours::lengthCap(entry(w), w[1].toInt()); }},
        {"digits", [this](Words w) { forms::behaviours::digitsOnly(entry(w)); }},
        {"add", [this](Words w) { combo(w).addItems(text(w).split(',')); }},
        {"clear", [this](Words w) { combo(w).clear(); }},
        {"index", [this](Words w) { combo(w).setListIndex(w[1].toInt()); }},
        {"list", [this](Words w) { combo(w).openList(); }},
        {"dropping", [this](Words w) { combo(w).DropDown = answerBy(text(w)); }},
        {"codes", [this](Words w) { forms::behaviours::twoLetterCode(combo(w)); }},
        {"movements", [this](Words w) { forms::behaviours::movementOnly(combo(w)); }},
        {"listonly", [this](Words w) { forms::behaviours::listOnly(combo(w)); }},
        // with the others
        {"option", [this](Words w) { of<forms::OptionButton>(w).setValue(w[1] == "on"); }},
        {"check", [this](Words w) { of<forms::CheckBox>(w).setValue(w[1].toInt()); }},
        {"record", [this](Words w) { screen("Form").records.addRecord(w); }},
        {"change", [this](Words w) { screen("Form").records.setRecord(w[0].toInt(), w.mid(1)); }},
        {"empty", [this](Words) { screen("Form").records.clear(); }},
        {"today", [](Words w) { values::setToday(values::Date::parse(w[0])); }},
        {"date", [this](Words w) { screen("Form").month.setValue(values::Date::parse(w[0])); }},
        {"caption", [this](Words w) { screen("Form").label.setCaption(text(w, 0)); }},
        {"role", [this](Words w) { of<forms::Label>(w).setRole(forms::TextRole(w[1].toInt())); }},
        {"names", [this](Words w) { screen("Form").label.nameFor(of(w)); }},
        {"label", [this](Words w) { labels.emplace_back(screen("Form"), w[0], w[0]); }},
        {"picture", [this](Words w) { screen("Form").picture.setPicture(folder.filePath("red.png"), text(w, 0)); }},
        {"share", [this](Words w) { screen("Form").picture.setShare(w[0].toDouble()); }},
        {"most", [this](Words w) { screen("Form").bar.setMax(w[0].toInt()); }},
        {"progress", [this](Words w) { screen("Form").bar.setValue(w[0].toInt()); }},
        {"ticking", [this](Words w) { screen("Form").ticker.setEnabled(isYes(w)); }},
        {"tick", [this](Words) { screen("Form").ticker.elapse(); }},
        // with events and failures
        {"note", [this](Words w) { noteEvents(w); }}, {"when", [this](Words w) { when(w[0], text(w)); }},
        {"run", [this](Words w) { forms::runAsHandler("signal", answerBy(text(w, 0))); }},
        {"returning", [this](Words w) { forms::onHandlerReturn(answerBy(text(w, 0))); }},
        {"inside", [this](Words w) { inToolkitCall(text(w, 0)); }}, {"say", [this](Words w) { note(w[0]); }},
        {"try", [this](Words w) { EXPECT_THROW(play(text(w, 0)), values::RuntimeFailure); }},
        {"fail", [](Words w) { throw values::RuntimeFailure(values::FailureKind::InvalidCall, w[0]); }},
        {"crash", [](Words w) { throw std::runtime_error(w[0].toStdString()); }}, {"burst", [](Words) { throw 7; }},
        {"end", [](Words) { forms::endProcess(3); }},
        // what there is to see
        {"look", [this](Words) { look(); }},
        {"where", [this](Words w) { note(QDebug::toString(screen(w[0]).window()->geometry())); }},
        {"parent", [this](Words) { note(nameOf(*QApplication::activeModalWidget()->parentWidget())); }},
        {"name", [this](Words) { note(nameOf(*screen("Form").window())); }}, {"seen", [this](Words w) { lookAt(w); }},
        {"points", [this](Words w) { followArrow(w); }},
        {"done", [this](Words w) { note(of(w).widget()->property("value").toString()); }},
        {"card", [this](Words w) { of(w).widget()->setProperty(forms::look::choiceProperty, true); }},
        {"large", [this](Words) { enlargeDays(); }},
        {"see", [this](Words w) { note(of(w).widget()->grab().toImage().pixelColor(place(w)).name()); }},
        {"then", [](Words) {}}, // a box or a modal screen is gone
    };
};

std::vector<std::pair<QString, QString>> scenes()
{
    std::vector<std::pair<QString, QString>> all;
    for (const char* list : {"platform/forms/screens.txt", "platform/forms/controls.txt"})
        for (const QString& heading : partsOf(list))
            all.emplace_back(list, heading);
    return all;
}

INSTANTIATE_TEST_SUITE_P(Out, Played, testing::ValuesIn(scenes()), [](const auto& scene) {
    return scene.param.second.section(" [", 0, 0).remove(QRegularExpression("\\W")).toStdString();
});

TEST_P(Played, HasTheseConsequences)
{
    playScene();
}

} // namespace
