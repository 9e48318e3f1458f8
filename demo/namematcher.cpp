// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "namematcher.h"

NameMatcher::NameMatcher(const QStringList &patterns)
    : m_matchesAll(patterns.contains(QLatin1String("*")))
{
    QStringList alternatives;
    for (const QString &pattern : patterns) {
        const QString expression = QRegularExpression::wildcardToRegularExpression(pattern);
        const bool isValid = QRegularExpression(expression).isValid(); // "[z-a]" is not: then it stands for itself
        const QString literal = QRegularExpression::anchoredPattern(QRegularExpression::escape(pattern));
        alternatives += isValid ? expression : literal;
    }
    m_expression.setPattern(alternatives.join(QLatin1Char('|')));
    m_expression.setPatternOptions(QRegularExpression::CaseInsensitiveOption
                                   | QRegularExpression::DotMatchesEverythingOption);
    m_expression.optimize();
}

bool NameMatcher::matches(const QString &name) const
{
    return m_matchesAll || m_expression.match(name).hasMatch();
}
