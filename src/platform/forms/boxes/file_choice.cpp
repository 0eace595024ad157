// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/boxes/file_choice.h"

#include "platform/forms/boxes/file_dialog_room.h"
#include "platform/forms/screens/form.h"
#include "platform/forms/screens/stage.h"

#include <QFileDialog>

namespace forms {

namespace {

std::function<QString()>& choiceHandler()
{
    static std::function<QString()> instance;
    return instance;
}

QString choose(const QString& title, const QString& start, const std::function<void(QFileDialog&)>& prepare)
{
    Stage& stage = Stage::instance();
    stage.interrupted();
    if (choiceHandler())
        return choiceHandler()();
    stage.settle();
    Form* front = stage.active();
    QFileDialog dialog(front ? front->window() : nullptr, title, start);
    prepare(dialog);
    dialog.setLabelText(QFileDialog::Accept, QStringLiteral("Choose"));
    giveRoom(dialog);
    const bool isChosen = dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty();
    QString chosen = isChosen ? dialog.selectedFiles().first() : QString();
    if (front && front->isVisible())
        stage.bringForward(*front);
    return chosen;
}

} // namespace

QString chooseFolder(const QString& title, const QString& start)
{
    return choose(title, start, [](QFileDialog& dialog) {
        dialog.setFileMode(QFileDialog::Directory);
        dialog.setOption(QFileDialog::ShowDirsOnly);
    });
}

QString chooseFile(const QString& title, const QString& start, const QStringList& kinds)
{
    return choose(title, start, [&kinds](QFileDialog& dialog) {
        dialog.setFileMode(QFileDialog::ExistingFile);
        dialog.setNameFilters(kinds);
    });
}

void setChoiceHandler(std::function<QString()> handler)
{
    choiceHandler() = std::move(handler);
}

} // namespace forms
