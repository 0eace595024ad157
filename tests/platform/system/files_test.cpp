// SPDX-License-Identifier: GPL-3.0-or-later
// Steps on files and folders where the system refuses a part of them, as files.txt has them: the step, the calls that
// are refused and why; what is done on the disk in which order, or how the step fails; and what is there then.
#include "platform/system/files.h"
#include "platform/system/folder.h"
#include "platform/system/folder_copy.h"
#include "platform/values/failure.h"
#include "support/disk.h"
#include "support/files.h"
#include "support/print.h"

#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace {

class Folders {
public:
    Folders()
    {
        putFile(at("old/a"), "one");
        putFile(at("new/b"), "two");
        putFile(at("new/below/b"), "three");
        putFile(at("kept.part"), "left by a run that was killed");
        // All that can lie in a folder, and what can lie in its way.
        putFile(at("rich/data"), QByteArray(2'097'159, 'n')); // more than is copied at once
        putFile(at("rich/data-journal"), "left out");
        putFile(at("rich/below/further/.hidden"), "");
        QDir().mkdir(at("rich/empty"));
        putFile(at("full/data"), "old");
        putFile(at("full/dead"), "a file where a link comes");
        putFile(at("full/mine"), "mine");
        putFile(at("full/.folder-copy-Xy12Zz"), "left behind by a copy that was killed");
        QDir().mkdir(at("full/.folder-copy-of-mine"));
        for (const auto& [link, aim] : {std::pair("rich/round", "below/.."), {"rich/link", "../old"},
                 {"rich/dead", "../nowhere"}, {"full/below", "../old"}, {"linked", "new"}})
            std::filesystem::create_symlink(aim, at(link).toStdString());
    }

    QString run(const QString& step, const QString& refused, const QString& reason) const
    {
        const std::map<QString, std::function<void()>> steps{
            {"keep", [this] { sys::Folder(place.path()).keep(sys::Folder(at("old")), "a", "kept"); }},
            {"copy", [this] { sys::Folder(at("new")).copy(sys::Folder(at("old")), "a", "a"); }},
            {"make", [this] { sys::Folder::made(at("far/below/old")); }},
            {"lock", [this] { const sys::RunLock alone(sys::Folder(at("new")), "below"); }},
            {"enter", [this] { sys::Folder(place.path()).madeEntered("linked"); }},
            {"exchange", [this] { sys::Folder(place.path()).exchange("new", "old"); }},
            {"into", [&] { sys::copyFolder(at("new"), QDir(place.path()).filePath(step.section(':', 1))); }},
            {"replace", [this] { sys::copyFolder(at("rich/"), at("full/"), {}, isJournal); }},
            {"without-room",
                [this] {
                    const FullDisk full(2'000'000);
                    sys::copyFolder(at("rich"), at("old"));
                }},
            {"unproved",
                [this] {
                    int proofs = 0;
                    copyProvedBy([&proofs](const QString& copy) {
                        EXPECT_TRUE(bytesOf(copy) == "two" || bytesOf(copy) == "three");
                        if (++proofs == 2)
                            throw values::RuntimeFailure(values::FailureKind::File, "not proved");
                    });
                }},
            {"killed-before", [this] { killedBefore(); }},
            {"lured", [this] { copyProvedBy([this](auto&) { lure(); }); }}};
        const std::map<QString, int> reasons{{"", 0}, {"EXDEV", EXDEV}, {"EPERM", EPERM}, {"ENOTSUP", ENOTSUP},
            {"ENOSYS", ENOSYS}, {"EMLINK", EMLINK}, {"EIO", EIO}, {"ENOSPC", ENOSPC}, {"EINVAL", EINVAL}};
        const auto before = treeOf(place.path());
        const Disk disk;
        Disk::refuse(refused, reasons.at(reason));
        std::string line = told(steps.at(step.section(':', 0, 0))).toStdString();
        const auto now = treeOf(place.path());
        for (const auto& [name, contents] : now)
            if (!before.contains(name) || before.at(name) != contents)
                line += "; " + (contents == "(folder)" ? name + '/' : name + " = " + shortened(contents));
        for (const auto& [name, contents] : before)
            if (!now.contains(name))
                line += "; no " + name;
        return QString::fromStdString(line);
    }

private:
    void copyProvedBy(const std::function<void(const QString& copy)>& prove) const
    {
        sys::copyFolder(at("new"), at("old"), [&prove](const QString&, const QString& copy) { prove(copy); });
    }

    // The next copy isn't held up by what the killed one has left.
    void killedBefore() const
    {
        const auto before = treeOf(at("old"));
        EXPECT_EQ(inProcess([this] { copyProvedBy([](auto&) { _exit(1); }); }), 1);
        EXPECT_THAT(treeOf(at("old")), testing::IsSupersetOf(before));
        copyProvedBy([](auto&) {});
        EXPECT_EQ(QFile::permissions(at("old/b")) & (QFile::ReadGroup | QFile::ReadOther), 0);
    }

    // Somebody puts a link in the way meanwhile.
    void lure() const
    {
        if (QDir().rename(at("old/below"), at("old/moved")))
            std::filesystem::create_symlink("../full", at("old/below").toStdString());
    }

    static std::string shortened(const std::string& contents)
    {
        const bool isOneLetter = contents.find_first_not_of(contents[0]) == std::string::npos;
        return contents.size() > 99 && isOneLetter ? std::to_string(contents.size()) + contents[0] : contents;
    }

    static bool isJournal(const QString& file) { return file.endsWith("/data-journal"); }

    QString at(const QString& name) const { return place.filePath(name); }

    QString told(const std::function<void()>& step) const
    {
        const auto open = openFiles();
        QString told;
        try {
            step();
            told = Disk::told.join(", ");
        } catch (const values::RuntimeFailure& failure) {
            told = QString(failure.text()).remove(place.path()).remove("below/"); // whichever comes first
        }
        EXPECT_EQ(openFiles(), open);
        return told.replace(QRegularExpression("folder-copy-\\w+( [^,]+)?"), "new")
            .replace(QDir(place.path()).dirName(), "top");
    }

    QTemporaryDir place;
};

} // namespace

TEST(Files, AndFoldersGoThroughTheStepsThatTheListHas)
{
    expectSteps("platform/system/files.txt", [](const QString& step) {
        const QStringList words = step.split(' ');
        return Folders().run(words[0], words.value(1, "never"), words.value(2));
    });
}
