// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/system/kind.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

namespace sys {

class Handle;

/// An open folder. All that is done in it goes through its descriptor: who moves the folder meanwhile, or puts a link
/// in the place of it or of what lies in it, leads no step elsewhere.
///
/// A name is that of an entry, without a slash. A link among the entries is never followed. What the system refuses is
/// a `RuntimeFailure` of kind `File`, with path and reason; a step that fails has changed nothing, unless it says so.
class Folder {
public:
    /// What the system tells of an entry. Whoever changes a file changes one of these; times are nanoseconds.
    struct Status {
        Kind kind;
        quint64 device;
        quint64 number;
        qint64 size;
        qint64 modified;
        qint64 changed; ///< by what was written, or by another name or other rights
    };

    /// Opens the folder that lies there, through links, as its user has laid them.
    explicit Folder(const QString& path);

    /// The same; nothing where there is none.
    static std::optional<Folder> found(const QString& path);
    /// The same, made for its user alone (0700), with those above it, where it is missing.
    static Folder made(const QString& path);

    /// A folder in this one.
    Folder entered(const QString& name) const;
    /// The same, made for its user alone where it is missing.
    Folder madeEntered(const QString& name) const;
    /// A new one, for its user alone, whose name begins so and ends in six letters or digits.
    Folder madeNew(const QString& beginning) const;

    QString name() const;
    /// Where it was opened: for words.
    const QString& path() const { return path_; }
    QString pathOf(const QString& name) const { return path_ + u'/' + name; }
    /// A path that leads through the open folder to itself or to an entry, for what takes a path and nothing else.
    /// Valid in this process, as long as the object. A link at its end is followed.
    QString way() const;
    QString wayTo(const QString& name) const { return way() + u'/' + name; }

    /// The names of all entries, hidden ones too, in their order.
    QStringList names() const;
    /// Nothing where there is no such entry.
    std::optional<Status> look(const QString& name) const;
    bool hasFile(const QString& name) const;

    /// Copies a file of `source` into a new one that its user alone can read and write (0600), whole and on the disk
    /// when the call returns, or not there. There must be no entry of that name yet.
    void copy(const Folder& source, const QString& name, const QString& as) const;
    /// Removes what a copy to that name has left that was killed.
    void removePart(const QString& name) const;
    /// Gives a file of `source` a second name here: by a link, which takes no room, and where the file system has none
    /// there by a copy. There must be no entry of that name yet.
    void keep(const Folder& source, const QString& name, const QString& as) const;
    /// Gives an entry another name on the same file system, in one step; a file that has it loses it.
    void rename(const QString& name, const QString& as) const;
    /// Puts an entry in place of another, in one step, and gives that one its name. Where the file system can't, there
    /// is a moment with none.
    void exchange(const QString& one, const QString& other) const;
    /// Removes a file or link; one that isn't there is no failure.
    void remove(const QString& name) const;
    /// Removes a folder that is empty. False where it holds something, and stays.
    bool removeEmpty(const QString& name) const;

    /// Makes the names in it outlast a power cut.
    void sync() const;
    /// The bytes that are free for this user.
    qint64 freeSpace() const;

    int descriptor() const;

private:
    Folder(std::shared_ptr<const Handle> handle, QString path);
    void fill(const Folder& source, const QString& name, const QString& part, const QString& as) const;

    std::shared_ptr<const Handle> handle_;
    QString path_;
};

} // namespace sys
