// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "namematcher.h"

#include <algorithm>

NameMatcher::NameMatcher(const QStringList &patterns)
    : m_matchesAll(patterns.contains(QLatin1String("*")))
    , m_patterns(patterns.cbegin(), patterns.cend())
{
}

bool NameMatcher::matches(const QString &name) const
{
    return std::any_of(m_patterns.cbegin(), m_patterns.cend(),
                       [&name](const Wildcard &pattern) { return pattern.matches(name); });
}
