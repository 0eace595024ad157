// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/match_rule.h"

#include "search/search_fields.h"

#include <algorithm>

namespace {

constexpr int AllColumns = -1;

bool isAny(const storage::FoldedText& name)
{
    return name.upper() == "ANY";
}

} // namespace

MatchRule::MatchRule(const SearchFields& search)
    : names_{{
        {search.cmbArea, Inventory::Area},
        {search.cmbLocation, Inventory::Location},
        {search.cmbCat, Inventory::Category},
        {search.cmbType, Inventory::Type},
    }}
    , word_(search.txtKey, AllColumns)
{
}

const storage::FoldedText& MatchRule::Criterion::now()
{
    if (const QString text = box_->text(); text != folded_.text())
        folded_ = storage::FoldedText(text);
    return folded_;
}

bool MatchRule::names_Match(storage::TableView& assets)
{
    return std::ranges::all_of(names_, [&assets](Criterion& criterion) {
        const storage::FoldedText& wanted = criterion.now();
        return isAny(wanted) || assets.Fields(criterion.column()).equals(wanted);
    });
}

bool MatchRule::word_Occurs(storage::TableView& assets)
{
    const storage::FoldedText& word = word_.now();
    bool found = false;
    for (int column = Inventory::ID; column <= Inventory::Description; ++column)
        found |= assets.Fields(column).contains(word); // no column is left out once the word is found
    return found;
}

bool MatchRule::matches(storage::TableView& assets)
{
    return names_Match(assets) && (word_Is_Empty() || word_Occurs(assets));
}

bool MatchRule::finds_All()
{
    return std::ranges::all_of(names_, [](Criterion& name) { return isAny(name.now()); }) && word_Is_Empty();
}
