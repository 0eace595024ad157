// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// From here on the salt and the vectors of encrypted pages are drawn from a fixed sequence, so that the same names
/// make the same file on every machine. For a file without secrets alone; what a program writes to it later is drawn
/// anew.
void drawFromFixedSequence();
