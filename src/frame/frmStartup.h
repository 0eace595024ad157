// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/system/processes.h"
#include "shared/numbered_screen.h"

#include <functional>
#include <vector>

/// The hidden object of the start: the first touch of it, from the splash screen's timer, is the start of the program.
class frmStartup : public NumberedScreen {
public:
    frmStartup();

    /// The number of the screen in front. It belongs to the class, since touching the object starts the program.
    static inline values::Integer& CurrentScreen = ::CurrentScreen;

    void check_Already_Running();
    void open_First_Screen();

    /// Opens all views of Data1, each on its first row.
    static void open_Tables();

    /// The list that check_Already_Running asks for; tests give their own.
    static std::function<std::vector<sys::Process>()> list_Processes;

private:
    void Form_Load() override;
    void start_Up();
    void check_Policy_Alert();
    void set_Report_Titles();
};
