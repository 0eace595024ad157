// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/report/document.h"

#include <QIODevice>

namespace report {

/// Passes on what a PDF writer writes and adds, at the end, what the toolkit's writer has no property for: the author.
class PdfInformation : public QIODevice {
public:
    explicit PdfInformation(QIODevice& file);

    /// Adds the information to the document that has been written. False where there is no whole document.
    bool add(const Names& names);

protected:
    qint64 readData(char*, qint64) override { return -1; }
    qint64 writeData(const char* data, qint64 size) override;

private:
    QIODevice& file_;
    qint64 written_ = 0;
    QByteArray end_;
};

} // namespace report
