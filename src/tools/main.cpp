// SPDX-License-Identifier: GPL-3.0-or-later
// One program with several names: kestrill-restore, kestrill-export, kestrill-import and kestrill-check, each a
// link to it.
#include "platform/values/file_name.h"
#include "tools/commands.h"
#include "tools/exit_codes.h"
#include "tools/terminal.h"
#include "tools/windows.h"

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
    {"kestrill-import", commands::importAll, windows::importAll},
    {"kestrill-check", commands::check, nullptr},
};

bool isDisplayThere()
{
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

// Reports need fonts and no display: a command runs in any session, and in none. Its options are its own, and so are
// its words: the toolkit has neither.
int runCommand(const Tool& tool, const QStringList& arguments, char* argv[])
{
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& words) {
        if (type == QtFatalMsg)
            terminal::complain(words);
    });
    qputenv("QT_QPA_PLATFORM", "offscreen");
    int nameAlone = 1;
    const QGuiApplication application(nameAlone, argv);
    return tool.command(arguments);
}

int runCalled(int& argc, char* argv[])
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(values::textOfName(argv[i]));
    const QString name = arguments.value(0).section(u'/', -1);
    const auto* tool =
        std::find_if(std::begin(tools), std::end(tools), [&](const Tool& each) { return name == each.name; });
    if (tool == std::end(tools)) {
        terminal::complain(
            QStringLiteral("Call it as kestrill-restore, kestrill-export, kestrill-import or kestrill-check."));
        return exit_code::Usage;
    }
    if (argc == 1 && tool->window && isDisplayThere())
        return tool->window(argc, argv);
    return runCommand(*tool, arguments, argv);
}

} // namespace

int main(int argc, char* argv[])
{
    terminal::keepStreams();
    try {
        return runCalled(argc, argv);
    } catch (const std::exception& failure) {
        terminal::complain(QString::fromLocal8Bit(failure.what()));
        return exit_code::Failed;
    }
}
