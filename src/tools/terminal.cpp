// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/terminal.h"

#include "platform/values/failure.h"
#include "tools/exit_codes.h"

#include <QCommandLineParser>
#include <QTextStream>

#include <csignal>
#include <cstdio>

#include <unistd.h>

namespace terminal {

namespace {

volatile std::sig_atomic_t isAskedToEnd = 0;

void noteEnd(int)
{
    isAskedToEnd = 1;
}

constexpr int endingSignals[] = {SIGINT, SIGTERM, SIGHUP};

} // namespace

void print(const QString& line)
{
    std::fprintf(stdout, "%s\n", qUtf8Printable(line));
    std::fflush(stdout);
}

void complain(const QString& line)
{
    std::fprintf(stderr, "%s\n", qUtf8Printable(line));
}

bool isAttended()
{
    return ::isatty(STDIN_FILENO) == 1 && ::isatty(STDERR_FILENO) == 1;
}

bool isConfirmed(const QString& question)
{
    std::fprintf(stderr, "%s [y/N] ", qUtf8Printable(question));
    return QTextStream(stdin).readLine().startsWith(u'y', Qt::CaseInsensitive);
}

Count::Count()
    : isShown_(::isatty(STDERR_FILENO) == 1)
{
    for (const int signal : endingSignals)
        std::signal(signal, noteEnd);
}

Count::~Count()
{
    if (isShown_ && percent_ >= 0)
        std::fputs("\n", stderr);
    for (const int signal : endingSignals)
        std::signal(signal, SIG_DFL);
}

bool Count::tell(int done, int all)
{
    const int percent = all > 0 ? static_cast<int>(qint64{done} * 100 / all) : 100;
    if (isShown_ && percent != percent_)
        std::fprintf(stderr, "\r%3d %%", percent);
    percent_ = percent;
    return isAskedToEnd == 0;
}

void Count::clear()
{
    if (isShown_ && percent_ >= 0)
        std::fputs("\r      \r", stderr);
    percent_ = -1;
}

int run(QCommandLineParser& parser, const QStringList& arguments, const std::function<int()>& command)
{
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Says this."));
    const QCommandLineOption version(QStringLiteral("version"), QStringLiteral("Says the version."));
    parser.addOptions({help, version});
    if (!parser.parse(arguments)) {
        complain(parser.errorText());
        return exit_code::Usage;
    }
    if (parser.isSet(help) || parser.isSet(version)) {
        print(parser.isSet(help) ? parser.helpText().trimmed() : QStringLiteral("Kestrill " KESTRILL_VERSION));
        return exit_code::Done;
    }
    try {
        return command();
    } catch (const Refusal& refusal) {
        complain(refusal.words());
        return refusal.code();
    } catch (const values::RuntimeFailure& failure) {
        complain(failure.text());
        return exit_code::Unreadable;
    }
}

} // namespace terminal
