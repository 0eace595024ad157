// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Tells the desktop by what name and icon it knows the program's windows. The application object must exist.
void name_Program();
