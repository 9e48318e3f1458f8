// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/export.h>
#include <veskplatform/entry.h>

#include <QString>

namespace VeskFM
{

/// One entry of a selection and the place where a copy or move takes it. A plain value.
class VESKFM_EXPORT PathAnalyzerPair
{
public:
    enum Conflict {
        NoConflict,
        TargetExists, ///< something else has the target's path
        SameEntry,    ///< the source is its own target
        SameTarget,   ///< an earlier pair of the selection has the same target
        IntoItself    ///< the target lies in the source directory; no free name helps
    };

    PathAnalyzerPair() = default;
    PathAnalyzerPair(const Entry &source, const QString &targetPath, Conflict conflict = NoConflict);

    Entry source() const { return m_source; }
    QString targetPath() const { return m_targetPath; } ///< a VFS path; usually nothing is there yet
    Conflict conflict() const { return m_conflict; }

private:
    Entry m_source;
    QString m_targetPath;
    Conflict m_conflict = NoConflict;
};

} // namespace VeskFM
