// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/report/pdf_information.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QRegularExpression>
#include <QStringEncoder>

namespace report {

namespace {

constexpr qsizetype longestTrailer = 1024;

QByteArray textString(const QString& text)
{
    QStringEncoder encode(QStringConverter::Utf16BE, QStringConverter::Flag::WriteBom);
    return '<' + QByteArray(encode(text)).toHex() + '>';
}

QByteArray informationOf(const Names& names)
{
    const QByteArray program = textString(QCoreApplication::applicationName());
    const QDateTime now = QDateTime::currentDateTimeUtc();
    return "<< /Title " + textString(names.document) + " /Author " + textString(names.author) + " /Creator " + program
        + " /Producer " + program + " /CreationDate ("
        + now.toString(QStringLiteral("'D:'yyyyMMddHHmmss'Z'")).toLatin1() + ") >>";
}

} // namespace

PdfInformation::PdfInformation(QIODevice& file)
    : file_(file)
{
    open(QIODevice::WriteOnly | QIODevice::Unbuffered);
}

qint64 PdfInformation::writeData(const char* data, qint64 size)
{
    end_.append(data, size);
    if (end_.size() > 64 * longestTrailer)
        end_ = end_.right(longestTrailer);
    written_ += size;
    return file_.write(data, size);
}

// A document grows by an update behind its end: one more object, where that lies, and a trailer that names it.
bool PdfInformation::add(const Names& names)
{
    static const QRegularExpression trailer(
        QStringLiteral("/Size (\\d+)\\s+/Info \\d+ 0 R\\s+/Root (\\d+ 0 R)\\s*(/ID \\[[^\\]]*\\])?\\s*>>"
                       "\\s+startxref\\s+(\\d+)\\s+%%EOF\\s*$"));
    const auto match = trailer.match(QString::fromLatin1(end_.right(longestTrailer)));
    if (!match.hasMatch())
        return false;
    const int number = match.captured(1).toInt();
    const QByteArray object = QByteArray::number(number) + " 0 obj\n" + informationOf(names) + "\nendobj\n";
    const QByteArray place = QByteArray::number(written_).rightJustified(10, '0');
    const QByteArray table = QByteArray::number(written_ + object.size());
    write(object + "xref\n" + QByteArray::number(number) + " 1\n" + place + " 00000 n \ntrailer\n<< /Size "
        + QByteArray::number(number + 1) + " /Info " + QByteArray::number(number) + " 0 R /Root "
        + (match.captured(2) + u' ' + match.captured(3)).toLatin1() + " /Prev " + match.captured(4).toLatin1()
        + " >>\nstartxref\n" + table + "\n%%EOF\n");
    return true;
}

} // namespace report
