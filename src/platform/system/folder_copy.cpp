// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/folder_copy.h"

#include "platform/system/file_handle.h"

#include <QFile>

#include <algorithm>
#include <climits>
#include <filesystem>
#include <memory>
#include <string_view>
#include <vector>

#include <fcntl.h>
#include <stdio.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

namespace sys {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view TemporaryPrefix = ".folder-copy-";

// An open folder and its path, which is for words alone.
struct Place {
    std::shared_ptr<const Handle> handle;
    fs::path path;

    int number() const { return handle->number(); }
};

Place placeOf(Handle handle, const char* attempt, const fs::path& path)
{
    if (!handle.isOpen())
        throw refused(attempt, path);
    return {std::make_shared<const Handle>(std::move(handle)), path};
}

Place placeIn(const Place& above, const std::string& name, const char* attempt)
{
    return placeOf(openedFolderIn(*above.handle, name.c_str()), attempt, above.path / name);
}

mode_t modeOf(const Place& place, const std::string& name)
{
    struct ::stat found { };
    return ::fstatat(place.number(), name.c_str(), &found, AT_SYMLINK_NOFOLLOW) == 0 ? found.st_mode : 0;
}

// The path by which another part of the program reaches what lies in an open folder.
QString wayTo(const Place& place, const std::string& name)
{
    return QStringLiteral("/proc/self/fd/%1/").arg(place.number()) + textOf(name);
}

void removeLeftovers(const Place& place)
{
    for (const Entry& entry : entriesOf(*place.handle, place.path)) {
        if (!entry.name.starts_with(TemporaryPrefix) || S_ISDIR(entry.mode))
            continue;
        if (::unlinkat(place.number(), entry.name.c_str(), 0) != 0 && errno != ENOENT)
            throw refused("removing", place.path / entry.name);
    }
}

// A copy under way. What isn't put in place is taken back.
class PendingCopy {
public:
    PendingCopy(const CopyProof& proof, const CopyFilter& leavesOut)
        : proof_(proof)
        , leavesOut_(leavesOut)
    {
    }
    PendingCopy(const PendingCopy&) = delete;
    PendingCopy& operator=(const PendingCopy&) = delete;
    ~PendingCopy();

    /// The target itself, which may be a link to where it shall lie.
    Place openTarget(const fs::path& path);
    void addContents(const Place& source, const Place& target);
    void putInPlace();

private:
    struct File {
        Place folder;
        std::string temporary;
        std::string name;
    };
    struct MadeFolder {
        Place above;
        std::string name;
    };

    Place openSubFolder(const Place& above, const std::string& name);
    void addFile(const Place& source, const Place& target, const std::string& name);
    void addLink(const Place& source, const Place& target, const std::string& name);
    Handle openTemporaryFor(const Place& folder, const std::string& name);
    void touch(const Place& folder);

    const CopyProof& proof_;
    const CopyFilter& leavesOut_;
    std::vector<MadeFolder> madeFolders_;
    std::vector<File> files_;
    std::vector<Place> touched_; // folders whose names change, each once
};

PendingCopy::~PendingCopy()
{
    for (const File& file : files_)
        ::unlinkat(file.folder.number(), file.temporary.c_str(), 0);
    for (auto folder = madeFolders_.rbegin(); folder != madeFolders_.rend(); ++folder)
        ::unlinkat(folder->above.number(), folder->name.c_str(), AT_REMOVEDIR);
}

Place PendingCopy::openTarget(const fs::path& path)
{
    const Place above = placeOf(openedFolder(path.parent_path()), "making the folder", path);
    const bool isThere = fs::exists(path);
    if (!isThere && ::mkdirat(above.number(), path.filename().c_str(), S_IRWXU) != 0)
        throw refused("making the folder", path);
    if (!isThere) {
        madeFolders_.push_back({above, path.filename()});
        touch(above);
    }
    Place target = placeOf(openedFolder(path), "making the folder", path);
    removeLeftovers(target);
    return target;
}

// A link in its place would lead the copy out of the target.
Place PendingCopy::openSubFolder(const Place& above, const std::string& name)
{
    if (S_ISLNK(modeOf(above, name)) && ::unlinkat(above.number(), name.c_str(), 0) != 0)
        throw refused("replacing", above.path / name);
    if (::mkdirat(above.number(), name.c_str(), S_IRWXU) == 0) {
        madeFolders_.push_back({above, name});
        touch(above);
    } else if (errno != EEXIST) {
        throw refused("making the folder", above.path / name);
    }
    Place folder = placeIn(above, name, "making the folder");
    removeLeftovers(folder);
    return folder;
}

// Folders come first: where one can't be made, nothing has been copied yet.
void PendingCopy::addContents(const Place& source, const Place& target)
{
    const std::vector<Entry> entries = entriesOf(*source.handle, source.path);
    for (const Entry& entry : entries)
        if (S_ISDIR(entry.mode))
            addContents(placeIn(source, entry.name, "reading the folder"), openSubFolder(target, entry.name));
    for (const Entry& entry : entries) {
        if (S_ISREG(entry.mode) && (!leavesOut_ || !leavesOut_(textOf(source.path / entry.name))))
            addFile(source, target, entry.name);
        if (S_ISLNK(entry.mode))
            addLink(source, target, entry.name);
    }
}

// The disk begins to write before the proof and ends after it: the two overlap, and the copy is on the disk before it
// takes its name.
void PendingCopy::addFile(const Place& source, const Place& target, const std::string& name)
{
    const Handle copy = openTemporaryFor(target, name);
    copyBytes(*source.handle, name.c_str(), source.path / name, copy, target.path / name);
    ::sync_file_range(copy.number(), 0, 0, SYNC_FILE_RANGE_WRITE);
    if (proof_)
        proof_(textOf(source.path / name), wayTo(target, files_.back().temporary));
    if (::fsync(copy.number()) != 0)
        throw refused("writing", target.path / name);
}

void PendingCopy::addLink(const Place& source, const Place& target, const std::string& name)
{
    std::string aim(PATH_MAX, '\0');
    const ssize_t length = ::readlinkat(source.number(), name.c_str(), aim.data(), aim.size());
    if (length < 0)
        throw refused("reading", source.path / name);
    aim.resize(static_cast<std::size_t>(length));
    openTemporaryFor(target, name);
    const std::string& temporary = files_.back().temporary;
    if (::unlinkat(target.number(), temporary.c_str(), 0) != 0
        || ::symlinkat(aim.c_str(), target.number(), temporary.c_str()) != 0)
        throw refused("writing", target.path / name);
}

// The temporary's name doesn't hold the target's, which may be as long as a name can be.
Handle PendingCopy::openTemporaryFor(const Place& folder, const std::string& name)
{
    if (S_ISDIR(modeOf(folder, name)))
        throw refused("replacing", folder.path / name, EISDIR);
    const QByteArray beginning = QFile::encodeName(wayTo(folder, std::string(TemporaryPrefix) + "XXXXXX"));
    std::string path = beginning.toStdString();
    const int number = ::mkostemp(path.data(), O_CLOEXEC);
    if (number < 0)
        throw refused("writing", folder.path / name);
    files_.push_back({folder, fs::path(path).filename(), name});
    touch(folder);
    return Handle(number);
}

void PendingCopy::touch(const Place& folder)
{
    if (std::ranges::find(touched_, folder.handle, &Place::handle) == touched_.end())
        touched_.push_back(folder);
}

void PendingCopy::putInPlace()
{
    for (const File& file : files_)
        if (::renameat2(file.folder.number(), file.temporary.c_str(), file.folder.number(), file.name.c_str(), 0) != 0)
            throw refused("copying", file.folder.path / file.name);
    files_.clear();
    madeFolders_.clear();
    std::ranges::sort(touched_, {}, &Place::path);
    for (const Place& folder : touched_)
        flushFolder(*folder.handle, folder.path);
}

bool isInside(const fs::path& inner, const fs::path& outer)
{
    return std::mismatch(outer.begin(), outer.end(), inner.begin(), inner.end()).first == outer.end();
}

void copyContents(const fs::path& source, const fs::path& target, const CopyProof& proof, const CopyFilter& leavesOut)
{
    if (isInside(fs::weakly_canonical(target), fs::canonical(source)))
        throw refused("copying a folder into itself,", target, EINVAL);
    PendingCopy copy(proof, leavesOut);
    const Place from = placeOf(openedFolder(source), "reading the folder", source);
    copy.addContents(from, copy.openTarget(target));
    copy.putInPlace();
}

} // namespace

void copyFolder(const QString& source, const QString& target, const CopyProof& proof, const CopyFilter& leavesOut)
{
    try {
        copyContents(pathOf(source), pathOf(target), proof, leavesOut);
    } catch (const fs::filesystem_error& failure) {
        throw refused("copying", failure.path1(), failure.code().value());
    }
}

} // namespace sys
