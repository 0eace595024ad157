// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>

namespace sys {

/// Proves one copied file against its source and throws to refuse it. The copy still bears a temporary name, and is
/// told by a way through its open folder; the source is told as the folder's path as it was given, and the file's below
/// it.
using CopyProof = std::function<void(const QString& source, const QString& copy)>;

/// Tells the files of the source, by their paths, that are left out of the copy.
using CopyFilter = std::function<bool(const QString& source)>;

/// Copies the contents of the folder `source`, sub-folders with theirs, onto the folder `target`, over what is there.
///
/// An older copy in `target` is not endangered: each file is first written beside its target under a hidden temporary
/// name, proved and flushed to the disk; only when all of them are, they take their names, each in one step. What fails
/// before that leaves every older file as it was and nothing new behind. Remains of a copy that was killed are removed
/// by the next one. Files in `target` that `source` doesn't have stay.
///
/// `target` and missing sub-folders are made, for the user alone (0700); the folder above `target` must exist. Copies
/// are readable and writable by the user alone (0600). Symbolic links in `source` are copied as links and never
/// followed; pipes, sockets and devices are left out. A link below `target` with a name of `source` is replaced. Both
/// are gone through by their open folders, so that no link that somebody puts in meanwhile is followed either.
///
/// No file of `source` may be open elsewhere in this process under a record lock, as a database is: closing the file
/// after reading gives the lock up.
///
/// `RuntimeFailure` of kind `File`, with path and reason, for whatever the system refuses, and where `target` lies in
/// `source` or is the same folder; what `proof` throws passes through.
void copyFolder(
    const QString& source, const QString& target, const CopyProof& proof = {}, const CopyFilter& leavesOut = {});

} // namespace sys
