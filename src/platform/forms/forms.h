// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// All that a screen's class needs.
#include "platform/forms/boxes/message_box.h"
#include "platform/forms/calendar/month_calendar.h"
#include "platform/forms/controls/behaviours.h"
#include "platform/forms/controls/buttons.h"
#include "platform/forms/controls/combo_box.h"
#include "platform/forms/controls/displays.h"
#include "platform/forms/controls/text_box.h"
#include "platform/forms/prepare.h"
#include "platform/forms/runtime/runtime.h"
#include "platform/forms/screens/form.h"
#include "platform/forms/screens/painting.h"
