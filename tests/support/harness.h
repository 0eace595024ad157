// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// All that a test of screens needs.
#include "support/rows.h"
#include "support/scene.h"
#include "support/screen_test.h"

#include <gtest/gtest.h>

using namespace user; // tests speak as a user all the time
