// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>

namespace forms {

/// Has the user choose a folder, in front of the active screen. Empty where the user doesn't.
QString chooseFolder(const QString& title, const QString& start);

/// Takes the place of the dialogue on the screen, for tests. An empty function gives it back.
void setFolderHandler(std::function<QString()> handler);

} // namespace forms
