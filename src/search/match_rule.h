// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "data/data_store.h"
#include "platform/forms/controls/text_box.h"

#include <array>

class SearchFields;

/// Decides whether an asset, or its copy in the staging table, is what the search screen asks for. The screen is read
/// afresh at each test.
class MatchRule {
public:
    explicit MatchRule(const SearchFields& search);

    /// True where area, location, category and item of the current row are those asked for, or "Any" is asked for.
    /// Whole values are compared, without regard to case.
    bool names_Match(storage::TableView& assets);

    /// True where the word occurs in one of the columns that a search looks at: all but those of the warranty. An empty
    /// word occurs wherever something stands.
    bool word_Occurs(storage::TableView& assets);

    bool word_Is_Empty() { return word_.now().isEmpty(); }

    /// The whole rule: the names match, and the word is empty or occurs.
    bool matches(storage::TableView& assets);

    /// True where all four names are "Any" and the word is empty.
    bool finds_All();

    /// True where the word, in upper case, is this text.
    bool word_Is(std::string_view upper) { return word_.now().upper() == upper; }

private:
    /// A text of the screen, folded anew only when it has changed.
    class Criterion {
    public:
        Criterion(const forms::TextEntry& box, int column)
            : box_(&box)
            , column_(column)
        {
        }

        int column() const { return column_; }
        const storage::FoldedText& now();

    private:
        const forms::TextEntry* box_;
        int column_;
        storage::FoldedText folded_;
    };

    std::array<Criterion, 4> names_;
    Criterion word_;
};
