// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The text of an asset's column: a few in common with others, five of its own.
QString sampleText(int asset, int column);

/// The path of a database with so many assets, made at its first use.
QString sampleDatabase(int assets);
