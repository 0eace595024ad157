// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/storage/folded_text.h"

#include "platform/values/text.h"

namespace storage {

FoldedText::FoldedText(const QString& text)
    : text_(text)
    , upper_(values::upper(text).toStdString())
{
}

} // namespace storage
