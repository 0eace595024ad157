// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace values {

/// A file's name, which is bytes to the system, as a text that loses none of them: UTF-8 where it is, and each byte
/// that is no part of any as a lone low surrogate, U+DC80 to U+DCFF.
QString textOfName(QByteArrayView bytes);

/// The bytes of such a text, which may hold other words around the name.
QByteArray bytesOfName(const QString& text);

} // namespace values
