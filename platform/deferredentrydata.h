// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entry.h>

#include <mutex>

namespace VeskFM
{

/// A node that somebody named, and nobody has looked at yet: a parent directory, what a change event is about.
///
/// Its path is ready at once. The first question about anything else looks at the disk; the answers then stay. Most
/// such entries are only compared with others, and cost no look.
///
/// Thread: any.
class DeferredEntryData : public EntryData
{
public:
    explicit DeferredEntryData(const QString &path);

    QString path() const override;
    int type() const override;
    bool is(EntryTrait trait) const override;
    QString localPath() const override;
    QString fileName() const override;
    QString lastPathSection() const override;
    QString symLinkTarget() const override;
    QString archiveMountPointOrLocalPath() const override;
    qint64 fileSize() const override;

private:
    const EntryData &looked() const;

    const QString m_path;
    mutable std::once_flag m_once;
    mutable Entry m_entry; // set once, by the first look
};

} // namespace VeskFM
