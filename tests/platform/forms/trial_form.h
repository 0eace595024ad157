// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/forms_test.h"

#include <QStringList>
#include <QVBoxLayout>
#include <QWindow>

#include <functional>
#include <map>

using namespace user; // tests speak as a user all the time

/// What has happened, in order: "box.LostFocus ok.Click".
class Journal {
public:
    void note(const QString& event) { events_ += event; }

    /// Everything since the last question.
    QString taken() { return std::exchange(events_, {}).join(' '); }

private:
    QStringList events_;
};

/// A form whose events are noted and can be answered by the test.
class TrialForm : public forms::Form {
public:
    TrialForm(const QString& name, Journal& journal)
        : forms::Form(name)
        , journal_(journal)
    {
    }

    std::function<void()> onActivate = [] {};

    /// What happens instead of a note of the event: answers["ok.Click"].
    std::map<QString, std::function<void()>> answers;

    /// Puts all controls below each other, in the order of the Tab key, and notes their focus and clicks.
    void layOut()
    {
        auto* column = new QVBoxLayout(canvas());
        for (forms::Control* each : controls()) {
            each->setTabIndex(column->count());
            column->addWidget(each->widget());
            each->GotFocus = [this, each] { happened(each->name() + ".GotFocus"); };
            each->LostFocus = [this, each] { happened(each->name() + ".LostFocus"); };
            each->Click = [this, each] { happened(each->name() + ".Click"); };
        }
    }

    void happened(const QString& event)
    {
        const auto answer = answers.find(event);
        if (answer == answers.end())
            note(event);
        else
            answer->second();
    }

    void note(const QString& event) { journal_.note(event); }

    /// Has a button ask, and notes the answer.
    void askAt(const QString& event)
    {
        answers[event] = [this] {
            const auto answer = forms::MsgBox("Sure?", forms::box::Question + forms::box::YesNo, "Title");
            note(answer == forms::Answer::Yes ? "Yes" : "No");
        };
    }

protected:
    void Form_Activate() override
    {
        note(name() + ".Activate");
        onActivate();
    }

    void Form_Deactivate() override { note(name() + ".Deactivate"); }

private:
    Journal& journal_;
};

/// A screen with two boxes and a button, for what focus and activation do.
class TwoBoxes : public TrialForm {
public:
    explicit TwoBoxes(Journal& journal, const QString& name = "Form")
        : TrialForm(name, journal)
    {
        ok.setCaption("&OK");
        layOut();
    }

    forms::TextBox one{*this, "one"};
    forms::TextBox two{*this, "two"};
    forms::CommandButton ok{*this, "ok"};
};

/// A screen with a control of every kind; Enter is the click of `ok`.
class AllKinds : public TrialForm {
public:
    explicit AllKinds(Journal& journal)
        : TrialForm("AllKinds", journal)
    {
        for (forms::Button* each : std::initializer_list<forms::Button*>{&check, &house, &garage, &other})
            each->setCaption("Words");
        ok.setCaption("&OK");
        ok.setDefault(true);
        for (forms::ComboBox* each : {&combo, &locked, &choice})
            each->addItems({"alpha", "beta", "gamma"});
        locked.setLocked(true);
        layOut();
    }

    forms::TextEntry& entry(const QString& name) { return control<forms::TextEntry>(*this, name); }

    forms::TextBox line{*this, "line"};
    forms::ComboBox empty{*this, "empty", forms::ComboStyle::Editable, forms::ItemOrder::Sorted};
    forms::ComboBox combo{*this, "combo"};
    forms::ComboBox locked{*this, "locked"};
    forms::ComboBox choice{*this, "choice", forms::ComboStyle::PickOnly};
    forms::MemoBox memo{*this, "memo"};
    forms::CheckBox check{*this, "check"};
    forms::OptionButton house{*this, "house"};
    forms::OptionButton garage{*this, "garage"};
    forms::CommandButton other{*this, "other"};
    forms::CommandButton ok{*this, "ok"};
};

/// A test with a form that is in front, since when the journal is kept.
template <class TestedForm>
class FormInFront : public FormsTest {
protected:
    FormInFront()
    {
        form.show();
        journal.taken();
    }

    /// Puts the focus there and forgets what has happened until then.
    void stand(forms::Control& control)
    {
        control.setFocus();
        journal.taken();
    }

    /// What happens at a step of the user or of the code.
    QString after(const std::function<void()>& step)
    {
        step();
        return journal.taken();
    }

    Journal journal;
    TestedForm form{journal};
};
