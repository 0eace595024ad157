// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// All that a screen's class needs.
#include "platform/forms/behaviours.h"
#include "platform/forms/buttons.h"
#include "platform/forms/combo_box.h"
#include "platform/forms/displays.h"
#include "platform/forms/form.h"
#include "platform/forms/message_box.h"
#include "platform/forms/month_calendar.h"
#include "platform/forms/painting.h"
#include "platform/forms/prepare.h"
#include "platform/forms/runtime.h"
#include "platform/forms/text_box.h"
