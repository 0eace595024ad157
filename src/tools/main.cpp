// SPDX-License-Identifier: GPL-3.0-or-later
// One program with several names: kestrill-restore, kestrill-export and kestrill-check, each a link to it.
#include "tools/commands.h"
#include "tools/exit_codes.h"
#include "tools/terminal.h"
#include "tools/windows.h"

#include <QFileInfo>
#include <QGuiApplication>

#include <algorithm>

namespace {

struct Tool {
    const char* name;
    int (*command)(const QStringList& arguments);
    int (*window)(int& argc, char* argv[]); // what it does without arguments
};

constexpr Tool tools[] = {
    {"kestrill-restore", commands::restore, windows::restore},
    {"kestrill-export", commands::exportAll, windows::exportAll},
    {"kestrill-check", commands::check, nullptr},
};

bool isDisplayThere()
{
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

// Reports need fonts and no display: a command runs in any session, and in none.
int runCommand(const Tool& tool, int& argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    return tool.command(QGuiApplication::arguments());
}

} // namespace

int main(int argc, char* argv[])
{
    const QString name = QFileInfo(QString::fromLocal8Bit(argv[0])).fileName();
    const auto* tool =
        std::find_if(std::begin(tools), std::end(tools), [&](const Tool& each) { return name == each.name; });
    if (tool == std::end(tools)) {
        terminal::complain(QStringLiteral("Call it as kestrill-restore, kestrill-export or kestrill-check."));
        return exit_code::Usage;
    }
    if (argc == 1 && tool->window && isDisplayThere())
        return tool->window(argc, argv);
    return runCommand(*tool, argc, argv);
}
