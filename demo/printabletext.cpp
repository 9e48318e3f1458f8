// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "printabletext.h"

#include <QVector>

#include <algorithm>

namespace
{

// The local VFS writes the bytes 0x80 to 0xff of a broken name as the last code points of the private use planes.
constexpr uint firstBrokenByte = 0x10FF80;
constexpr uint lastBrokenByte = 0x10FFFF;

bool isHarmless(uint character)
{
    switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Format: // direction marks among them: they would let a name pose as another one
    case QChar::Other_Surrogate:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return false;
    default:
        return character < firstBrokenByte || character > lastBrokenByte;
    }
}

QString escape(uint character)
{
    switch (character) {
    case '\n':
        return QStringLiteral("\\n");
    case '\r':
        return QStringLiteral("\\r");
    case '\t':
        return QStringLiteral("\\t");
    }
    if (character >= firstBrokenByte && character <= lastBrokenByte)
        return QStringLiteral("\\x%1").arg(character & 0xFF, 2, 16, QLatin1Char('0'));
    if (character < 0x100)
        return QStringLiteral("\\x%1").arg(character, 2, 16, QLatin1Char('0'));
    return QStringLiteral("\\u%1").arg(character, 4, 16, QLatin1Char('0'));
}

} // namespace

QString printableText(const QString &text)
{
    const QVector<uint> characters = text.toUcs4();
    if (std::all_of(characters.begin(), characters.end(), isHarmless))
        return text;
    QString result;
    for (uint character : characters)
        result += isHarmless(character) ? QString::fromUcs4(&character, 1) : escape(character);
    return result;
}
