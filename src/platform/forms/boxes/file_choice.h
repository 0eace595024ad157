// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <functional>

namespace forms {

/// Has the user choose a folder, in front of the active screen. Empty where the user doesn't.
QString chooseFolder(const QString& title, const QString& start);

/// The same with a file that is there. `kinds` are offered as filters, "Tables (*.csv *.txt)", the first one at once.
QString chooseFile(const QString& title, const QString& start, const QStringList& kinds);

/// Takes the place of the dialogue on the screen, for tests. An empty function gives it back.
void setChoiceHandler(std::function<QString()> handler);

} // namespace forms
