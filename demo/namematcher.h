// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QRegularExpression>
#include <QStringList>
#include <QStringMatcher>
#include <QVector>

/// Holds names against wildcard patterns, in any case. Quick enough to be asked a million times. Thread: any.
class NameMatcher
{
public:
    explicit NameMatcher(const QStringList &patterns); ///< matches what one of them matches as a whole
    bool matchesAll() const { return m_matchesAll; }   ///< then nobody has to make the name for matches()
    bool matches(const QString &name) const;

private:
    bool m_matchesAll;
    QVector<QStringMatcher> m_parts; // the usual patterns, "*part*" and "*end", are quicker without an expression
    QStringList m_ends;
    QRegularExpression m_expression; // for the others; empty for none
};
