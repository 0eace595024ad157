// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

/// What this process does that has to outlast a power cut, in order, for the life of the object: "sync KTL.db",
/// "link old new", "name KTL.db.part KTL.db", "exchange one other". A kind of call can be made to fail.
class Disk {
public:
    Disk() { told.clear(); }
    Disk(const Disk&) = delete;
    Disk& operator=(const Disk&) = delete;
    ~Disk() { refuse("never", 0); }

    /// From now on every call fails, with the reason, whose line begins with what this expression matches.
    static void refuse(const QString& calls, int reason);

    /// Ends the process in place of the call of that number, counted from now on, of all that change a file or a name.
    static void endAt(int call);
    static constexpr int Ended = 77; ///< its status then

    inline static QStringList told;
};
