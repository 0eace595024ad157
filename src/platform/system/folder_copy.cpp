// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/folder_copy.h"

#include "platform/system/file_handle.h"

#include <algorithm>
#include <filesystem>
#include <set>
#include <string_view>
#include <vector>

#include <fcntl.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

namespace sys {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view TemporaryPrefix = ".folder-copy-";

// What a folder holds, as paths below it; a folder comes before what it holds itself.
struct Contents {
    std::vector<fs::path> folders;
    std::vector<fs::path> files;
    std::vector<fs::path> links;
};

void collect(const fs::path& top, const fs::path& below, Contents& contents)
{
    for (const fs::directory_entry& entry : fs::directory_iterator(top / below)) {
        const fs::path path = below / entry.path().filename();
        if (entry.is_symlink()) {
            contents.links.push_back(path);
        } else if (entry.is_directory()) {
            contents.folders.push_back(path);
            collect(top, path, contents);
        } else if (entry.is_regular_file()) {
            contents.files.push_back(path);
        }
    }
}

void removeLeftovers(const fs::path& folder)
{
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        if (entry.path().filename().native().starts_with(TemporaryPrefix) && !entry.is_directory())
            fs::remove(entry.path());
    }
}

// A copy under way. What isn't put in place is taken back.
class PendingCopy {
public:
    PendingCopy() = default;
    PendingCopy(const PendingCopy&) = delete;
    PendingCopy& operator=(const PendingCopy&) = delete;
    ~PendingCopy();

    void addFolder(const fs::path& folder);
    void addSubFolder(const fs::path& folder);
    void addFile(const fs::path& source, const fs::path& target, const CopyProof& proof);
    void addLink(const fs::path& source, const fs::path& target);
    void putInPlace();

private:
    struct File {
        fs::path temporary;
        fs::path target;
    };

    Handle openTemporaryFor(const fs::path& target);
    std::set<fs::path> touchedFolders() const;

    std::vector<fs::path> madeFolders_;
    std::vector<File> files_;
};

PendingCopy::~PendingCopy()
{
    std::error_code ignored;
    for (const File& file : files_)
        fs::remove(file.temporary, ignored);
    for (auto folder = madeFolders_.rbegin(); folder != madeFolders_.rend(); ++folder)
        fs::remove(*folder, ignored);
}

void PendingCopy::addFolder(const fs::path& folder)
{
    if (fs::is_directory(folder)) {
        removeLeftovers(folder);
        return;
    }
    if (::mkdir(folder.c_str(), S_IRWXU) != 0)
        throw refused("making the folder", folder);
    madeFolders_.push_back(folder);
}

// A link in its place would lead the copy out of the target.
void PendingCopy::addSubFolder(const fs::path& folder)
{
    if (fs::is_symlink(folder))
        fs::remove(folder);
    addFolder(folder);
}

// The disk begins to write before the proof and ends after it: the two overlap, and the copy is on the disk before it
// takes its name.
void PendingCopy::addFile(const fs::path& source, const fs::path& target, const CopyProof& proof)
{
    const Handle copy = openTemporaryFor(target);
    copyBytes(source, copy, target);
    ::sync_file_range(copy.number(), 0, 0, SYNC_FILE_RANGE_WRITE);
    if (proof)
        proof(textOf(source), textOf(files_.back().temporary));
    if (::fsync(copy.number()) != 0)
        throw refused("writing", target);
}

void PendingCopy::addLink(const fs::path& source, const fs::path& target)
{
    openTemporaryFor(target);
    fs::remove(files_.back().temporary);
    fs::create_symlink(fs::read_symlink(source), files_.back().temporary);
}

// The temporary's name doesn't hold the target's, which may be as long as a name can be.
Handle PendingCopy::openTemporaryFor(const fs::path& target)
{
    if (fs::is_directory(fs::symlink_status(target)))
        throw refused("replacing", target, EISDIR);
    std::string name = target.parent_path() / std::string(TemporaryPrefix).append("XXXXXX");
    const int number = ::mkostemp(name.data(), O_CLOEXEC);
    if (number < 0)
        throw refused("writing", target);
    files_.push_back({name, target});
    return Handle(number);
}

void PendingCopy::putInPlace()
{
    const std::set<fs::path> touched = touchedFolders();
    for (const File& file : files_)
        fs::rename(file.temporary, file.target);
    files_.clear();
    madeFolders_.clear();
    std::for_each(touched.begin(), touched.end(), [](const fs::path& folder) { flushFolder(folder); });
}

std::set<fs::path> PendingCopy::touchedFolders() const
{
    std::set<fs::path> touched;
    for (const fs::path& folder : madeFolders_)
        touched.insert(folder.parent_path());
    for (const File& file : files_)
        touched.insert(file.target.parent_path());
    return touched;
}

bool isInside(const fs::path& inner, const fs::path& outer)
{
    return std::mismatch(outer.begin(), outer.end(), inner.begin(), inner.end()).first == outer.end();
}

void copyContents(const fs::path& source, const fs::path& target, const CopyProof& proof, const CopyFilter& leavesOut)
{
    if (isInside(fs::weakly_canonical(target), fs::canonical(source)))
        throw refused("copying a folder into itself,", target, EINVAL);
    Contents contents;
    collect(source, {}, contents);
    PendingCopy copy;
    copy.addFolder(target);
    for (const fs::path& folder : contents.folders)
        copy.addSubFolder(target / folder);
    for (const fs::path& file : contents.files)
        if (!leavesOut || !leavesOut(textOf(source / file)))
            copy.addFile(source / file, target / file, proof);
    for (const fs::path& link : contents.links)
        copy.addLink(source / link, target / link);
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
