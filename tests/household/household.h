// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/data_store.h"
#include "core/frmMain.h"
#include "household/frmGenInfo.h"
#include "support/harness.h"

inline constexpr int yesNoQuestion = forms::box::Question + forms::box::YesNo;

/// What the file holds of the household's row, Last to EMail.
inline QStringList stored()
{
    Data1.rsGeneral.Close();
    Data1.rsGeneral.Open();
    QStringList columns;
    for (int i = General::Last; i <= General::EMail; ++i)
        columns += Data1.rsGeneral.Fields(i).text();
    return columns;
}

inline void store(const QStringList& columns)
{
    for (int i = General::Last; i <= General::EMail; ++i)
        Data1.rsGeneral.Fields(i) = columns[i];
    Data1.rsGeneral.Update();
}

inline QStringList shown(const frmGenInfo& screen)
{
    QStringList texts;
    for (int i = General::Last; i <= General::EMail; ++i)
        texts += i == General::State ? screen.cmbState.text() : screen.txtInfo[i].text();
    return texts;
}

/// The personal information as the main menu opens it.
inline frmGenInfo& openFromMenu()
{
    auto& menu = forms::screen<frmMain>();
    menu.show();
    click(menu.cmdPersonal);
    return forms::screen<frmGenInfo>();
}

inline QString focused()
{
    const forms::Control* control = forms::activeForm()->activeControl();
    return control ? control->name() : QString();
}

inline void pasteInto(forms::TextEntry& box, const QString& text)
{
    click(box);
    paste(text);
}
