// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools_test.h"

#include "platform/forms/boxes/file_choice.h"
#include "platform/storage/file_lock.h"
#include "platform/values/file_name.h"
#include "support/disk.h"
#include "tools/commands.h"
#include "tools/frmExport.h"
#include "tools/frmImport.h"
#include "tools/frmRestore.h"
#include "tools/terminal.h"

#include <QtWidgets>

#include <algorithm>
#include <set>
#include <stdexcept>

#include <fcntl.h>
#include <pty.h>
#include <termios.h>

using forms::screen;

namespace {

// Cancels the next run that shows how far it is, as soon as its window is made.
class Canceller : public QObject {
public:
    void expect() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* object, QEvent* event) override
    {
        auto* dialog = qobject_cast<QProgressDialog*>(object);
        if (dialog && event->type() == QEvent::WindowTitleChange) {
            qApp->removeEventFilter(this);
            dialog->cancel();
        }
        return false;
    }
};

// A test whose list tells what happens to the household and its files.
class ListedTest : public ToolsTest {
protected:
    ~ListedTest() override { forms::setChoiceHandler({}); }

    static int command(const QStringList& words)
    {
        static const std::map<QString, int (*)(const QStringList&)> commands{{"check", commands::check},
            {"export", commands::exportAll}, {"import", commands::importAll}, {"restore", commands::restore}};
        return commands.at(words[0])(words);
    }

    std::optional<QString> happen(const QString& line) override
    {
        const QStringList words = QString(line).replace("~/", below({})).split(' ');
        const QString path = words.value(1), rest = words.mid(2).join(' ');
        QString seen;
        const std::map<QString, std::function<void()>> events{{"asset", [&] { addAsset(path, rest); }},
            {"sql", [&] { runOnFile(path, rest); }}, {"copy", [&] { putFile(rest, bytesOf(path)); }},
            {"write", [&] { putFile(path, rest.toUtf8()); }},
            {"keep",
                [&] {
                    sys::Folder::made(QFileInfo(rest).path())
                        .keep(sys::Folder(QFileInfo(path).path()), "KTL.db", "KTL.db");
                }},
            {"shell",
                [&] {
                    const QString where = QString("cd '%1' && ").arg(below({}));
                    EXPECT_EQ(QProcess::execute("/bin/sh", {"-c", where + line.section(' ', 1)}), 0);
                }},
            {"folder", [&] { sys::Folder::made(path); }}, {"remove", [&] { QDir(path).removeRecursively(); }},
            {"damage", [&] { damage(path, rest == "last" ? static_cast<int>(QFileInfo(path).size() / 1024) - 1 : 1); }},
            {"break", [] { breakOff(); }}, {"lock", [&] { running_.emplace(path); }},
            {"unlock", [&] { running_.reset(), another_.reset(); }},
            {"another", [&] { another_.emplace(sys::Folder(QFileInfo(path).path()), QFileInfo(path).fileName()); }},
            {"refuse", [&] { Disk::refuse(rest, path.toInt()); }}, {"full", [&] { full_.emplace(path.toInt()); }},
            {"empty", [&] { full_.reset(), Disk::refuse("never", 0); }},
            {"files",
                [&] {
                    seen = "| "
                        + QDir(path).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).join("\n| ");
                }},
            {"disk", [&] { seen = "| " + Disk::told.join(", "); }},
            {"compare", [&] { seen = bytesOf(path) == bytesOf(rest) ? "| same" : "| different"; }},
            {"show", [&] { seen = "| " + QString::fromUtf8(bytesOf(path)).split('\n').filter(rest).join("\n| "); }},
            {"table", [&] { seen = "| " + table(path); }},
            // And to the windows.
            {"open", [&] { open(path); }}, {"read", [&] { read(path.toInt()); }},
            {"begin", [&] { begin(), seen = QString("| asked %1").arg(asked_); }},
            {"choose",
                [&] { forms::setChoiceHandler([this, file = words.mid(1).join(' ')] { return ++asked_, file; }); }},
            {"cancel", [&] { canceller_.expect(); }}, {"heard", [&] { seen = heard(); }},
            {"bar", [&] { seen = bar(); }},
            {"records", [&] { seen = records(words[1], words.value(2, "99").toInt()); }},
            {"status", [&] { seen = "| " + QString::number(endStatus().value_or(-1)); }}};
        const auto event = events.find(words[0]);
        if (event == events.end())
            return {};
        event->second();
        return seen;
    }

    QString lasting(const QString& told) const override
    {
        const std::pair<const char*, const char*> changes[] = {
            {"(?!2020)\\d{4}-\\d\\d-\\d\\d_\\d\\d-\\d\\d-\\d\\d(_put-aside)?(_\\d)?", "DATE\\1"},
            {"\\d+-\\d\\d-\\d\\dT[\\d:]+Z", "NOW"}, {"(Kestrill )\\d+-\\d\\d-\\d\\d", "\\1DATE"},
            {"(Kestrill |\"version\": \")\\d[\\d.]*", "\\1VERSION"}, {"Usage: \\S+", "Usage: COMMAND"},
            {"(kestrill-export-)\\w+", "\\1NEW"}, {"(?:\r *\\d+ %)*\r( *\\d+ %)", "\\1"}, {"\t", " | "},
            {"(\\w+: \\d+)\n(?=\\w+: \\d+\n)", "\\1, "}, {"File too large", "no room"}, {"Tree \\d+ page", "Page"},
            {"\\d+/\\d+/(?!2020)\\d+ \\d+:\\d+ [AP]M", "DAY"}, {"[\\x00-\\x09\\x0b-\\x1f\\x7f]", "^"}};
        QString lasting = told;
        for (qsizetype at = 0; at < lasting.size(); ++at)
            if (lasting[at].isLowSurrogate() && (at == 0 || !lasting[at - 1].isHighSurrogate()))
                lasting.replace(at, 1, QString("<%1>").arg(lasting[at].unicode() & 0xFF, 0, 16).toUpper());
        for (const auto& [what, with] : changes)
            lasting.replace(QRegularExpression(what), with);
        return lasting.replace(below({}), "~/").replace(QDir(below({})).dirName(), "~");
    }

private:
    int asked_ = 0; // for a folder

    static void open(const QString& name)
    {
        forms::destroyScreens();
        if (name == "frmRestore")
            screen<frmRestore>().show();
        else
            name == "frmImport" ? screen<frmImport>().show() : screen<frmExport>().show();
    }

    static void begin()
    {
        const bool isImport = forms::activeForm()->name() == "frmImport";
        forms::Ticker& start = isImport ? screen<frmImport>().tmStart : screen<frmExport>().tmStart;
        start.elapse();
        start.elapse(); // and asks no more
    }

    // Of many the first, which stand for the others.
    static QString records(const QString& name, int most)
    {
        const auto& list = dynamic_cast<forms::RecordList&>(control(*forms::activeForm(), name));
        QStringList seen;
        for (int i = 0; i < list.recordCount(); ++i)
            seen += (i == list.picked() ? "> " : "| ") + list.record(i).join('\t').replace('\n', "\\n");
        return seen.mid(0, most).join('\n') + (seen.size() > most ? QString("\n| of %1").arg(seen.size()) : QString());
    }

    // What a file is taken for, and where its columns go; or why it is refused.
    static QString table(const QString& path)
    {
        try {
            const importing::Source source(path);
            QStringList told{source.described()};
            for (const QStringList& column : importing::mapOf(source, source.targets()))
                told += column[0] + " -> " + column[1] + (column[2].isEmpty() ? QString() : " (" + column[2] + ')');
            return told.join(", ");
        } catch (const Refusal& refusal) {
            return refusal.words();
        }
    }

    // What a screen reader says of the window in front, and what it was told to read out last.
    static QString heard()
    {
        QWidget& window = *forms::activeForm()->window();
        QString heard = "| " + QAccessible::queryAccessibleInterface(&window)->text(QAccessible::Name);
        for (QWidget* each : window.findChildren<QWidget*>())
            if (const auto* told = QAccessible::queryAccessibleInterface(each);
                told->role() == QAccessible::Notification)
                heard += "\n| " + each->accessibleName();
        return heard;
    }

    static QString bar()
    {
        const auto& bar = screen<frmRestore>().pbRestore;
        return QString("| %1 of %2").arg(bar.value()).arg(bar.max());
    }

    // So many backups, or all.
    static void read(int count)
    {
        forms::Ticker& reading = screen<frmRestore>().tmRead;
        for (int read = 0; reading.isEnabled() && (count == 0 || read < count); ++read)
            reading.elapse();
    }

    Disk disk_;
    Canceller canceller_;
    std::optional<FullDisk> full_;
    std::optional<storage::FileLock> running_;
    std::optional<sys::RunLock> another_;
};

class CommandsTest : public ListedTest, public testing::WithParamInterface<QString> {
protected:
    CommandsTest()
    {
        for (const char* variable : {"HOME", "XDG_DATA_HOME", "QT_QPA_PLATFORM" /* no window comes up on that */})
            environment_.insert(variable, below({}));
    }

    static QString heard(int status, const std::string& output, const std::string& errors)
    {
        QString complaints = values::textOfName(QByteArrayView(errors));
        complaints.replace(QRegularExpression("^(?=.)", QRegularExpression::MultilineOption), "! ");
        return values::textOfName(QByteArrayView(output)) + complaints + "-> " + QString::number(status);
    }

    static QString run(const QStringList& words)
    {
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        const int status = command(words);
        std::fflush(nullptr);
        const std::string output = testing::internal::GetCapturedStdout();
        return heard(status, output, testing::internal::GetCapturedStderr());
    }

    static QString runAttended(const QStringList& words, const QByteArray& typed)
    {
        termios settings{};
        ::cfmakeraw(&settings); // without an echo
        int terminal = -1;
        const pid_t child = ::forkpty(&terminal, nullptr, &settings, nullptr);
        if (child == 0) {
            const int status = command(words);
            std::fflush(nullptr);
            _exit(status);
        }
        EXPECT_EQ(::write(terminal, typed.constData(), static_cast<std::size_t>(typed.size())), typed.size());
        std::string said;
        for (char byte = 0; TEMP_FAILURE_RETRY(::read(terminal, &byte, 1)) == 1;) // the child's end may come between
            said += byte;
        int status = 0;
        ::waitpid(child, &status, 0);
        ::close(terminal);
        return heard(WEXITSTATUS(status), said, {});
    }

    /// The program itself, by a shell. A word in capitals names a display that it finds.
    QString runProgram(QStringList words) const
    {
        QProcess process;
        QProcessEnvironment environment = environment_;
        for (const char* display : {"DISPLAY", "WAYLAND_DISPLAY"})
            environment.insert(display, words.removeAll(display) > 0 ? "none" : "");
        environment.remove("XDG_RUNTIME_DIR");
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(below({}));
        process.start("/bin/sh", {"-c", "exec " + QCoreApplication::applicationDirPath() + '/' + words.join(' ')});
        EXPECT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        return heard(process.exitCode(), process.readAllStandardOutput().toStdString(),
            process.readAllStandardError().toStdString());
    }

    // The files and folders that a command has brought, with their rights, has changed and has taken away.
    static QString changes(const std::map<std::string, std::string>& before)
    {
        std::map<QString, QStringList> told; // names by what has become of them and where they lie
        const auto now = everything();
        const auto tell = [&told](const QString& what, const std::string& path) {
            const QString name = values::textOfName(path.c_str());
            const qsizetype behindFolder = name.lastIndexOf('/') + 1;
            told[what + ' ' + name.first(behindFolder)] += name.sliced(behindFolder);
        };
        for (const auto& [name, contents] : now) {
            const auto rights = std::filesystem::symlink_status(below({}).toStdString() + name).permissions();
            if (!before.contains(name))
                tell(QString("+ %1").arg(static_cast<int>(rights), 0, 8), name);
            else if (before.at(name) != contents && !name.starts_with("out/")) // an export tells its time
                tell("~", name);
        }
        for (const auto& [name, contents] : before)
            if (!now.contains(name))
                tell("-", name);
        QStringList lines;
        for (const auto& [place, names] : told)
            lines += place + names.join(", ");
        return lines.join('\n');
    }

    // Lines that stand in an answer before, several in a row, are only counted.
    QString withoutKnown(const QString& answer)
    {
        QStringList told, known;
        for (const QString& line : answer.split('\n')) {
            const bool isKnown = answered_.contains(line) && !line.startsWith("-> ");
            answered_.insert(line);
            if (isKnown) {
                known += line;
                continue;
            }
            told += known.size() > 1 ? QStringList(QString("(%1 as before)").arg(known.size())) : known;
            known.clear();
            told += line;
        }
        return (told + known).join('\n');
    }

    QString obey(const QStringList& words, const QString& next)
    {
        if (words[0].startsWith("kestrill"))
            return runProgram(words);
        const auto before = everything();
        const QString typed = next.mid(2).replace(' ', '\n') + '\n';
        const QString heard = next.startsWith('?') ? next + '\n' + runAttended(words, typed.toUtf8()) : run(words);
        return heard + '\n' + changes(before);
    }

    // A line of the list and what follows from it.
    QString told(const QString& line, const QString& next)
    {
        const QString step = line.section(" => ", 0, 0);
        if (step[0] == '#') {
            const QStringList seen = lasting(happen(step.mid(2)).value()).split('\n');
            return seen.size() == 1 ? stepTold(step, seen[0].mid(2)) : step + '\n' + seen.join('\n');
        }
        Disk::told.clear();
        QString meant = QString(step).replace("DATE_put-aside", aside_).replace("~/", below({}));
        meant.replace("<07>", "\a").replace("<E9>", QChar(0xDCE9)).replace("<FF>", QChar(0xDCFF));
        const QString told = obey(meant.split(' ').mid(1), next);
        const auto aside = QRegularExpression("\\S+_put-aside\\S*").match(told);
        aside_ = aside.hasMatch() ? aside.captured() : aside_;
        return inOrder(step, withoutKnown(lasting(told).trimmed()));
    }

    // A status that isn't 0, and a line that stands alone, behind the step; all else below it.
    static QString inOrder(const QString& step, const QString& told)
    {
        QStringList lines = told.split('\n');
        const qsizetype at = lines.indexOf(QRegularExpression("-> \\d+"));
        const QString status = lines.takeAt(at).mid(3);
        if (lines.size() == 1)
            return stepTold(step, status + ' ' + lines[0]);
        return stepTold(step, status == "0" ? QString() : status) + (lines.isEmpty() ? "" : "\n" + lines.join('\n'));
    }

    QProcessEnvironment environment_ = QProcessEnvironment::systemEnvironment();
    QString aside_;
    std::set<QString> answered_;
};

} // namespace

TEST_P(CommandsTest, GoAsTheListHasIt)
{
    const QStringList lines = partOf("tools/commands.txt", GetParam()).split('\n');
    QStringList all;
    for (qsizetype i = 0; i < lines.size(); ++i)
        if (lines[i].startsWith("# ") || lines[i].startsWith("$ "))
            all += told(lines[i], lines.value(i + 1));
    expectPart("tools/commands.txt", GetParam(), all.join('\n'));
}

INSTANTIATE_TEST_SUITE_P(Each, CommandsTest, testing::ValuesIn(partsOf("tools/commands.txt")));

TEST_F(ListedTest, AndWindowsGoAsTheListHasIt)
{
    replay("tools/windows.txt");
}

TEST_F(ListedTest, AndCommandsEndWhereTheyAreAskedAndLeaveNothing)
{
    addAsset("Lamp", "$10.00");
    backUp();
    putFile(below("list.csv"), "Area,Location,Category,Item,Date,Price\nIndoor,Attic,Art,Frame,2006-07-04,5\n");
    const auto before = everything();
    EXPECT_EQ(inProcess([&] {
        const terminal::Count count;
        std::raise(SIGTERM);
        EXPECT_EQ(command({"export", below("out")}), exit_code::Declined);
        EXPECT_EQ(command({"import", "--yes", below("list.csv")}), exit_code::Declined);
        EXPECT_EQ(command({"restore", "--list"}), exit_code::Declined);
        _exit(HasFailure() ? 1 : 0);
    }),
        0);
    EXPECT_EQ(everything(), before);
}

TEST(Commands, EndAtTheNextStepWhenTheyAreAsked)
{
    for (const int signal : {SIGINT, SIGTERM, SIGHUP})
        EXPECT_EQ(inProcess([signal] {
            std::optional<terminal::Count> count(std::in_place);
            EXPECT_TRUE(count->tell(0, 0) && count->tell(1, 3));
            std::raise(signal);
            EXPECT_FALSE(count->tell(2, 3));
            count.reset();
            EXPECT_EQ(std::signal(signal, SIG_IGN), SIG_DFL);
            _exit(HasFailure() ? 1 : 0);
        }),
            0);
}

TEST(Commands, AskOnlyWhereQuestionAndAnswerAreBothAtATerminal)
{
    int terminal = -1;
    const pid_t child = ::forkpty(&terminal, nullptr, nullptr, nullptr);
    if (child == 0) {
        int attended = terminal::isAttended() ? 1 : 0;
        for (const int stream : {STDIN_FILENO, STDERR_FILENO}) {
            const int kept = ::dup(stream);
            ::dup2(::open("/dev/null", O_RDWR), stream);
            attended += terminal::isAttended() ? 2 : 0;
            ::dup2(kept, stream);
        }
        _exit(attended);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    ::close(terminal);
    EXPECT_EQ(WEXITSTATUS(status), 1);
}

TEST(Commands, TellInOrderWhereBothOutputsGoTogetherAndWhateverFails)
{
    const QTemporaryDir folder;
    const QString all = folder.filePath("all");
    EXPECT_EQ(inProcess([&all] {
        ::dup2(::open(QFile::encodeName(all).constData(), O_WRONLY | O_CREAT, S_IRWXU), STDOUT_FILENO);
        ::dup2(STDOUT_FILENO, STDERR_FILENO);
        QCommandLineParser parser;
        _exit(terminal::run(parser, {"command"}, []() -> int {
            terminal::print("first");
            terminal::complain("then");
            terminal::print("last");
            throw std::runtime_error("odd");
        }));
    }),
        exit_code::Failed);
    EXPECT_EQ(bytesOf(all), "first\nthen\nlast\nFailed: odd\n");
}
