// SPDX-License-Identifier: GPL-3.0-or-later
#include "failure_of.h"
#include "platform/values/integer.h"
#include "support/print.h"

#include <gtest/gtest.h>

using values::Integer;
using values::wholeNumber;

TEST(Integer, OverflowIsAFailureAndLeavesTheNumberAsItWas)
{
    Integer top = 32767;
    Integer bottom = -32768;
    EXPECT_EQ(failureOf([&top] { ++top; }), "Overflow");
    EXPECT_EQ(failureOf([&bottom] { --bottom; }), "Overflow");
    EXPECT_EQ(failureOf([&top] { static_cast<void>(top * 2 - 32767); }), "Overflow");
    EXPECT_EQ(failureOf([&top] { top = (Q_INT64_C(1) << 32) + 5; }), "Overflow");
    EXPECT_EQ(failureOf([] { Integer::fromText("32768"); }), "Overflow");
    EXPECT_EQ(top, 32767);
    EXPECT_EQ(bottom, -32768);
}
