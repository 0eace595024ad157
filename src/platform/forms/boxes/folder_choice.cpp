// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/boxes/folder_choice.h"

#include "platform/forms/boxes/file_dialog_room.h"
#include "platform/forms/screens/form.h"
#include "platform/forms/screens/stage.h"

#include <QFileDialog>

namespace forms {

namespace {

std::function<QString()>& folderHandler()
{
    static std::function<QString()> instance;
    return instance;
}

} // namespace

QString chooseFolder(const QString& title, const QString& start)
{
    Stage& stage = Stage::instance();
    stage.interrupted();
    if (folderHandler())
        return folderHandler()();
    stage.settle();
    Form* front = stage.active();
    QFileDialog dialog(front ? front->window() : nullptr, title, start);
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    dialog.setLabelText(QFileDialog::Accept, QStringLiteral("Choose"));
    giveRoom(dialog);
    const bool isChosen = dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty();
    QString chosen = isChosen ? dialog.selectedFiles().first() : QString();
    if (front && front->isVisible())
        stage.bringForward(*front);
    return chosen;
}

void setFolderHandler(std::function<QString()> handler)
{
    folderHandler() = std::move(handler);
}

} // namespace forms
