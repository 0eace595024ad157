// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/controls/record_list.h"
#include "platform/forms/look.h"
#include "support/forms_test.h"

#include <QtWidgets>

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
        records.setColumns({"Made", "Price"}, {"2026-11-24", "$1,000"});
        records.setRows(3, 3);
        picture.widget()->setFixedSize(40, 40);
        month.widget()->setFixedSize(forms::look::grid(50), forms::look::grid(40));
        month.setValue(values::Date::fromDayMonthYear(31, 1, 2007));
        ticker.Timer = [this] { happened("tick"); };
        new QVBoxLayout(canvas());
        for (forms::Control* each : controls())
            add(*each);
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
    forms::OptionButton yard{*this, "yard"};
    forms::RecordList records{*this, "records"};
    forms::MonthCalendar month{*this, "month"};
    forms::Label label{*this, "label", "Words"};
    forms::Picture picture{*this, "picture"};
    forms::ProgressBar bar{*this, "bar"};
    forms::Ticker ticker{*this, "ticker", 1'000'000};

private:
    // Puts a control below the others.
    void add(forms::Control& control)
    {
        control.setTabIndex(canvas()->layout()->count());
        canvas()->layout()->addWidget(control.widget());
        control.GotFocus = [this, &control] { happened(control.name() + ".GotFocus"); };
        control.LostFocus = [this, &control] { happened(control.name() + ".LostFocus"); };
        control.Click = [this, &control] { happened(control.name() + ".Click"); };
    }

    void Form_Activate() override { happened(name() + ".Activate"); }
    void Form_Deactivate() override { happened(name() + ".Deactivate"); }
    void Form_KeyPress(int& keyAscii) override { happened(name() + QString(".KeyPress%1").arg(keyAscii)); }

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
        journal.clear();
    }

    /// One of the screens that the program has made, as `screen` makes them.
    TrialForm& madeScreen()
    {
        return static_cast<TrialForm&>(
            forms::detail::keepScreen(typeid(TrialForm), std::make_unique<TrialForm>(journal)));
    }

    QStringList journal;
    TrialForm form{journal};
};
