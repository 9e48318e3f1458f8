// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "archivesources.h"
#include "freename.h"
#include "operation.h"

namespace VeskFM
{
class PathAnalyzer;
class PathAnalyzerPair;
} // namespace VeskFM

/// Copies or moves a selection to a destination.
class CopyOperation : public Operation
{
public:
    enum Kind { Copy, Move };
    CopyOperation(Kind kind, const QString &stamp, const QStringList &sources, const QString &destination);

protected:
    void run() override;

private:
    void setTotal(VeskFM::PathAnalyzer *analyzer);
    Result transfer(const VeskFM::PathAnalyzerPair &pair, ArchiveSources *sources, DiskPlace *target);
    Result copy(const DiskPlace &source, const DiskPlace &target, const FreeName &name, mode_t addedMode,
                QByteArray *taken);

    const Kind m_kind;
    const QStringList m_sources;
    const QString m_destination;
    bool m_countsBytes = true;
};

/// Gives an entry another path; a name that is taken is an error.
class RenameOperation : public Operation
{
public:
    RenameOperation(const QString &stamp, const QString &from, const QString &to);

protected:
    void run() override;

private:
    const QString m_from;
    const QString m_to;
};
