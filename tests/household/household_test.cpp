// SPDX-License-Identifier: GPL-3.0-or-later
#include "frame/frmMain.h"
#include "household/frmIntroduction.h"
#include "support/harness.h"

using forms::screen;

namespace {

// Today is 24 November 2026.
class Household : public ScreenTest {
protected:
    static void keepPolicy(const char* expiration, const char* notify)
    {
        put(Data1.rsGeneral,
            {{General::PolicyCompany, "Mutual"}, {General::PolicyNumber, "P-1"},
                {General::PolicyExpiration, expiration}, {General::PolicyCoverage, "$5.00"},
                {General::PolicyNotify, notify}});
    }
};

TEST_F(Household, IsGoneThrough)
{
    screen<frmMain>().show();
    replay("household/household.txt");
}

TEST_F(Household, IsIntroducedOnTheFirstRun)
{
    keepPolicy("12/25/2026", "yes");
    for (int entry = General::Last; entry <= General::EMail; ++entry)
        put(Data1.rsGeneral, {{entry, "1"}});
    screen<frmIntroduction>().show();
    replay("household/first_run.txt");
}

TEST_F(Household, HasAPolicyThatHasExpired)
{
    keepPolicy("11/23/2026", "Yes");
    screen<frmMain>().show();
    replay("household/policy.txt");
}

} // namespace
