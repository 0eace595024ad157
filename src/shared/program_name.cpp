// SPDX-License-Identifier: GPL-3.0-or-later
#include "shared/program_name.h"

#include "platform/forms/runtime/display.h"

#include <QApplication>
#include <QIcon>

namespace {

// In the sizes of a bar and a list of windows: each window hands all of them to the desktop, which takes larger ones
// from its own folders.
QIcon programIcon()
{
    QIcon icon;
    for (const int size : {16, 32, 48, 64, 128})
        icon.addFile(QStringLiteral(":/pictures/logo-%1.png").arg(size));
    return icon;
}

} // namespace

std::unique_ptr<QApplication> openProgram(int& argc, char* argv[])
{
    auto application =
        forms::openDisplay(argc, argv, NoDisplay, "Kestrill needs a display, and finds none that it can use.");
    nameProgram();
    return application;
}

void nameProgram()
{
    QApplication::setApplicationName("Kestrill");
    QApplication::setDesktopFileName("kestrill");
    QApplication::setWindowIcon(programIcon());
}
