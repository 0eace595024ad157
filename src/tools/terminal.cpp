// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/terminal.h"

#include "platform/values/failure.h"
#include "platform/values/file_name.h"
#include "tools/exit_codes.h"
#include "tools/system_words.h"

#include <QCommandLineParser>
#include <QRegularExpression>

#include <algorithm>
#include <csignal>
#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

namespace terminal {

namespace {

volatile std::sig_atomic_t isAskedToEnd = 0;

void noteEnd(int)
{
    isAskedToEnd = 1;
}

constexpr int endingSignals[] = {SIGINT, SIGTERM, SIGHUP};

void say(std::FILE* stream, const QString& text)
{
    const QByteArray bytes = values::bytesOfName(text);
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stream);
}

// A variable of a script that isn't set, mostly. The parser complains where it is asked for the value of an option that
// has none, and doesn't tell which these are.
void refuseEmptyNames(const QStringList& arguments)
{
    const QRegularExpression isEmpty(QStringLiteral("\\A(--[a-z-]+=)?\\z"));
    if (arguments.mid(1).indexOf(isEmpty) >= 0)
        throw Refusal(exit_code::Usage, QStringLiteral("An empty name is none; see --help."));
}

int outcomeOf(const std::function<int()>& command)
{
    try {
        return command();
    } catch (const Refusal& refusal) {
        complain(refusal.words());
        return refusal.code();
    } catch (const values::RuntimeFailure& failure) {
        complain(failure.text());
        return failure.kind() == values::FailureKind::Database ? exit_code::Unreadable : exit_code::Failed;
    } catch (const std::exception& failure) {
        complain(QStringLiteral("Failed: %1").arg(QString::fromLocal8Bit(failure.what())));
        return exit_code::Failed;
    }
}

int whereHeard(int outcome)
{
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0)
        return outcome;
    complain(QStringLiteral("The output can't be written: %1.").arg(system_Words(errno)));
    return exit_code::Failed;
}

} // namespace

void print(const QString& line)
{
    say(stdout, line + u'\n');
    std::fflush(stdout); // before the next line, which may have to be read from the disk first
}

void complain(const QString& line)
{
    say(stderr, line + u'\n');
}

// The lowest number is given out first.
void keepStreams()
{
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        if (::fcntl(stream, F_GETFD) < 0)
            ::open("/dev/null", O_RDONLY);
}

bool isAttended()
{
    return ::isatty(STDIN_FILENO) == 1 && ::isatty(STDERR_FILENO) == 1;
}

bool isConfirmed(const QString& question)
{
    say(stderr, question + QStringLiteral(" [y/N] "));
    const int first = std::getchar();
    for (int rest = first; rest != '\n' && rest != EOF;)
        rest = std::getchar();
    return first == 'y' || first == 'Y';
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
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Shows this help."));
    const QCommandLineOption version(QStringLiteral("version"), QStringLiteral("Shows the version."));
    parser.addOptions({help, version});
    if (!parser.parse(arguments)) {
        complain(parser.errorText());
        return exit_code::Usage;
    }
    if (parser.isSet(help) || parser.isSet(version)) {
        print(parser.isSet(help) ? parser.helpText().trimmed() : QStringLiteral("Kestrill " KESTRILL_VERSION));
        return whereHeard(exit_code::Done);
    }
    return whereHeard(outcomeOf([&] {
        refuseEmptyNames(arguments);
        return command();
    }));
}

} // namespace terminal
