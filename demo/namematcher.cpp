// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "namematcher.h"

#include <algorithm>

namespace
{

bool hasWildcards(const QString &text)
{
    return text.contains(QLatin1Char('*')) || text.contains(QLatin1Char('?')) || text.contains(QLatin1Char('['));
}

} // namespace

NameMatcher::NameMatcher(const QStringList &patterns)
    : m_matchesAll(patterns.contains(QLatin1String("*")))
{
    QStringList alternatives;
    for (const QString &pattern : patterns) {
        const bool isOpenAtFront = pattern.startsWith(QLatin1Char('*'));
        const QString end = pattern.mid(1);
        if (isOpenAtFront && !hasWildcards(end)) {
            m_ends += end;
        } else if (isOpenAtFront && end.endsWith(QLatin1Char('*')) && !hasWildcards(end.chopped(1))) {
            m_parts += QStringMatcher(end.chopped(1), Qt::CaseInsensitive);
        } else {
            const QString expression = QRegularExpression::wildcardToRegularExpression(pattern);
            const bool isValid = QRegularExpression(expression).isValid(); // "[z-a]" is not: then it stands for itself
            const QString literal = QRegularExpression::anchoredPattern(QRegularExpression::escape(pattern));
            alternatives += isValid ? expression : literal;
        }
    }
    m_expression.setPattern(alternatives.join(QLatin1Char('|')));
    m_expression.setPatternOptions(QRegularExpression::CaseInsensitiveOption
                                   | QRegularExpression::DotMatchesEverythingOption);
    m_expression.optimize();
}

bool NameMatcher::matches(const QString &name) const
{
    return std::any_of(m_parts.cbegin(), m_parts.cend(),
                       [&name](const QStringMatcher &part) { return part.indexIn(name) >= 0; })
        || std::any_of(m_ends.cbegin(), m_ends.cend(),
                       [&name](const QString &end) { return name.endsWith(end, Qt::CaseInsensitive); })
        || (!m_expression.pattern().isEmpty() && m_expression.match(name).hasMatch());
}
