// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/controls/combo_box.h"

#include <QSet>
#include <QStringList>

/// Collects names that a list lacks: each once, without regard to case, in the spelling that was met first. An empty
/// text and a blank cell are no names.
class NewNames {
public:
    explicit NewNames(const forms::ComboBox& list);

    void take(const QString& name);

    const QStringList& names() const { return names_; }

private:
    static bool isNew(const QString& text, QSet<QString>& known);

    QSet<QString> met_; // as they were written: most come many times over, and upper case is dear
    QSet<QString> known_; // in upper case
    QStringList names_;
};
