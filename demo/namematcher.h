// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QRegularExpression>
#include <QStringList>

/// Holds names against wildcard patterns, in any case. Quick enough to be asked a million times. Thread: any.
class NameMatcher
{
public:
    explicit NameMatcher(const QStringList &patterns); ///< matches what one of them matches as a whole
    bool matches(const QString &name) const;

private:
    bool m_matchesAll;
    QRegularExpression m_expression;
};
