// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace storage {

/// A text that fields are compared with without regard to case. It is folded once, for any number of fields.
class FoldedText {
public:
    explicit FoldedText(const QString& text = {});

    /// The text as it was given.
    const QString& text() const { return text_; }

    bool isEmpty() const { return upper_.empty(); }

    /// The text in upper case, as UTF-8.
    std::string_view upper() const { return upper_; }

private:
    QString text_;
    std::string upper_;
};

} // namespace storage
