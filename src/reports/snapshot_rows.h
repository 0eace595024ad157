// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/report/rows.h"
#include "platform/storage/snapshot.h"

/// The rows of a view, for a report.
class SnapshotRows : public report::Rows {
public:
    explicit SnapshotRows(storage::Snapshot snapshot)
        : snapshot_(std::move(snapshot))
    {
    }

    int count() const override { return snapshot_.rowCount(); }
    QString text(int row, int column) const override { return snapshot_.text(row, column); }

private:
    storage::Snapshot snapshot_;
};
