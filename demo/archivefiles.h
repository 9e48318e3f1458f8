// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entrylist.h>

#include <QObject>

#include <functional>
#include <map>
#include <memory>

namespace VeskFM
{
class ArchiveMount;
}

/// Makes what lies in archives files of the disk, for those that can read nothing else. An archive that was used stays
/// mounted as long as this object: programs may still have its files open.
class ArchiveFiles : public QObject
{
    Q_OBJECT

public:
    using Use = std::function<void(const VeskFM::EntryList &files)>;

    explicit ArchiveFiles(QObject *parent = nullptr);
    ~ArchiveFiles() override;

    /// Calls @p use with the files for @p entries: at once when none of them needs to be unpacked, else when that is done.
    /// It is not called when that fails, is cancelled, or when something else is to be unpacked.
    void withFiles(const VeskFM::EntryList &entries, const Use &use);
    /// The files for @p entries, waiting for them for a short time without taking input; empty when it takes longer.
    VeskFM::EntryList filesSoon(const VeskFM::EntryList &entries);

    bool isBusy() const { return m_current != nullptr; }
    void cancel();

Q_SIGNALS:
    void message(const QString &text, bool lasting);
    void busyChanged(bool busy);
    void settled(); ///< done, failed or cancelled

private:
    void mount(const VeskFM::Entry &archive);
    void onFinished(bool isMounted);
    void release(const QString &text);
    VeskFM::EntryList files() const;

    using Mounts = std::map<QString, std::unique_ptr<VeskFM::ArchiveMount>>; // by the path of the archive
    Mounts m_mounts;
    std::unique_ptr<VeskFM::ArchiveMount> m_current; // being unpacked; null otherwise
    QString m_currentPath;
    VeskFM::EntryList m_wanted;
    Use m_use;
};
