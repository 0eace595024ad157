// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringView>
#include <QTextLayout>

#include <vector>

namespace report {

/// A text as it is laid out by the toolkit: an emoji in the font of coloured pictures, whatever other fonts hold it
/// too, and without the selectors of that, which the font lacks and at which a sequence would fall apart.
class ShownText {
public:
    explicit ShownText(QStringView text);

    /// Hands the text to a layout.
    void layOutIn(QTextLayout& layout) const;

    /// Where a place of it is in the text that it was made of.
    qsizetype inSource(qsizetype place) const;

private:
    void add(QStringView part) { text_ += part; }
    void addEmoji(QStringView sequence);

    QString text_;
    QList<QTextLayout::FormatRange> formats_;
    std::vector<qsizetype> leftOut_; // places in the source
};

} // namespace report
