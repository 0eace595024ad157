// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/values/failure.h"

namespace values {

namespace {

QString wordsOf(FailureKind kind)
{
    switch (kind) {
    case FailureKind::TypeMismatch:
        return QStringLiteral("Type mismatch");
    case FailureKind::Overflow:
        return QStringLiteral("Overflow");
    case FailureKind::InvalidCall:
        return QStringLiteral("Invalid procedure call");
    case FailureKind::NoCurrentRecord:
        return QStringLiteral("No current record");
    case FailureKind::Database:
        return QStringLiteral("Database failure");
    case FailureKind::File:
        return QStringLiteral("File failure");
    case FailureKind::System:
        return QStringLiteral("System failure");
    }
    return QStringLiteral("Failure");
}

} // namespace

RuntimeFailure::RuntimeFailure(FailureKind kind, const QString& detail)
    : kind_(kind)
    , text_(detail.isEmpty() ? wordsOf(kind) : wordsOf(kind) + QStringLiteral(": ") + detail)
    , utf8_(text_.toStdString())
{
}

RuntimeFailure mismatch(const QString& text, const QString& wanted)
{
    return RuntimeFailure(FailureKind::TypeMismatch, u'"' + text + QStringLiteral("\" is not ") + wanted);
}

} // namespace values
