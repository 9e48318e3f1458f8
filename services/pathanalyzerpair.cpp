// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/pathanalyzerpair.h>

namespace VeskFM
{

PathAnalyzerPair::PathAnalyzerPair(const Entry &source, const QString &targetPath, Conflict conflict)
    : m_source(source)
    , m_targetPath(targetPath)
    , m_conflict(conflict)
{
}

} // namespace VeskFM
