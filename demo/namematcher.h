// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "wildcard.h"

#include <QStringList>

/// Holds names against wildcard patterns. Thread: any.
class NameMatcher
{
public:
    explicit NameMatcher(const QStringList &patterns); ///< matches what one of them matches as a whole
    bool matchesAll() const { return m_matchesAll; }   ///< then nobody has to make the name for matches()
    bool matches(const QString &name) const;

private:
    bool m_matchesAll;
    std::vector<Wildcard> m_patterns;
};
