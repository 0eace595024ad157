// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/forms_test.h"

#include <QStringList>
#include <QVBoxLayout>

#include <functional>
#include <map>

using namespace user; // tests speak as a user all the time

/// A screen with a control of every kind, below each other in the order of the Tab key; Enter is the click of `ok`. Its
/// events are noted and can be answered by the test.
class TrialForm : public forms::Form {
public:
    explicit TrialForm(QStringList& journal, const QString& name = "Form")
        : forms::Form(name)
        , journal_(journal)
    {
        for (forms::Button* each : std::initializer_list<forms::Button*>{&check, &house, &garage, &other})
            each->setCaption("Words");
        ok.setCaption("&OK");
        ok.setDefault(true);
        for (forms::ComboBox* each : {&combo, &locked, &choice})
            each->addItems({"alpha", "beta", "gamma"});
        locked.setLocked(true);
        auto* column = new QVBoxLayout(canvas());
        for (forms::Control* each : controls()) {
            each->setTabIndex(column->count());
            column->addWidget(each->widget());
            each->GotFocus = [this, each] { happened(each->name() + ".GotFocus"); };
            each->LostFocus = [this, each] { happened(each->name() + ".LostFocus"); };
            each->Click = [this, each] { happened(each->name() + ".Click"); };
        }
    }

    /// Has the button ask, and notes the answer.
    void askAtOk()
    {
        answers["ok.Click"] = [this] {
            const auto answer = forms::MsgBox("Sure?", forms::box::Question + forms::box::YesNo, "Title");
            journal_ += answer == forms::Answer::Yes ? "Yes" : "No";
        };
    }

    /// What happens instead of a note of the event: answers["ok.Click"].
    std::map<QString, std::function<void()>> answers;

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

private:
    void Form_Activate() override { happened(name() + ".Activate"); }
    void Form_Deactivate() override { happened(name() + ".Deactivate"); }

    void happened(const QString& event)
    {
        const auto answer = answers.find(event);
        if (answer == answers.end())
            journal_ += event;
        else
            answer->second();
    }

    QStringList& journal_;
};

/// A test with a form that is in front, since when the journal is kept.
class FormInFront : public FormsTest {
protected:
    FormInFront()
    {
        form.show();
        taken();
    }

    /// Puts the focus there and forgets what has happened until then.
    void stand(forms::Control& control)
    {
        control.setFocus();
        taken();
    }

    /// What has happened since the last question, in order: "line.LostFocus ok.Click".
    QString taken() { return std::exchange(journal, {}).join(' '); }

    /// What happens at a step of the user or of the code.
    QString after(const std::function<void()>& step)
    {
        step();
        return taken();
    }

    QStringList journal;
    TrialForm form{journal};
};
