// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "wildcard.h"

#include <algorithm>

namespace
{

template <typename Characters> void fold(const QString &text, Characters *folded)
{
    for (int i = 0; i < text.size(); ++i) {
        const ushort unit = text.at(i).unicode();
        if (unit < 0x80) // nearly all; the tables of Unicode take longer
            folded->append(unit >= 'A' && unit <= 'Z' ? unit | 0x20u : unit);
        else if (QChar::isHighSurrogate(unit) && i + 1 < text.size() && text.at(i + 1).isLowSurrogate())
            folded->append(QChar::toCaseFolded(QChar::surrogateToUcs4(unit, text.at(++i).unicode())));
        else
            folded->append(QChar::toCaseFolded(uint(unit)));
    }
}

} // namespace

Wildcard::Wildcard(const QString &pattern)
    : m_pieces(1)
{
    const QVector<uint> characters = pattern.toUcs4();
    for (int at = 0; at < characters.size(); ++at) {
        if (characters.at(at) == '*') {
            m_pieces.emplace_back();
            continue;
        }
        Place place;
        if (characters.at(at) == '[')
            place = bracket(characters, &at);
        else if (characters.at(at) == '?')
            place.isNegated = true; // of no range: any
        if (place.ranges.isEmpty())
            place.only = QChar::toCaseFolded(characters.at(at));
        m_pieces.back().push_back(place);
    }
}

/// The set that begins at @p at, which moves to its end; without a range, and nothing moved, where none ends.
Wildcard::Place Wildcard::bracket(const QVector<uint> &pattern, int *at)
{
    int next = *at + 1;
    Place place;
    place.isNegated = next < pattern.size() && (pattern.at(next) == '!' || pattern.at(next) == '^');
    next += place.isNegated;
    const int end = pattern.indexOf(']', next + 1); // one that comes first is a member
    if (end < 0)
        return {};
    while (next < end) {
        const bool isRange = next + 2 < end && pattern.at(next + 1) == '-';
        const uint first = pattern.at(next);
        const uint last = isRange ? pattern.at(next + 2) : first;
        next += isRange ? 3 : 1;
        place.ranges.append({first, last});
        // Folded as well: what it holds is asked for folded.
        place.ranges.append({QChar::toCaseFolded(first), QChar::toCaseFolded(last)});
    }
    *at = end;
    return place;
}

inline bool Wildcard::Place::accepts(uint character) const
{
    if (ranges.isEmpty() && !isNegated)
        return character == only;
    return isNegated != std::any_of(ranges.cbegin(), ranges.cend(), [character](const QPair<uint, uint> &range) {
               return character >= range.first && character <= range.second;
           });
}

/// Whether @p piece matches the characters from @p begin on, of which there are enough.
inline bool Wildcard::isAt(const Piece &piece, const uint *begin)
{
    for (const Place &place : piece) {
        if (!place.accepts(*begin++))
            return false;
    }
    return true;
}

bool Wildcard::matches(const QString &name) const
{
    Characters characters;
    fold(name, &characters);
    const Piece &front = m_pieces.front();
    const Piece &back = m_pieces.back();
    const bool isOnePiece = m_pieces.size() == 1;
    const uint *at = characters.constData();
    const uint *end = at + characters.size();
    if (front.size() + (isOnePiece ? 0 : back.size()) > size_t(end - at) || !isAt(front, at))
        return false;
    at += front.size();
    if (isOnePiece)
        return at == end;
    end -= back.size();
    if (!isAt(back, end))
        return false;
    for (size_t i = 1; i + 1 < m_pieces.size(); ++i) { // each as early as can be: what follows has the most room
        const Piece &piece = m_pieces[i];
        while (size_t(end - at) >= piece.size() && !isAt(piece, at))
            ++at;
        if (size_t(end - at) < piece.size())
            return false;
        at += piece.size();
    }
    return true;
}
