// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "archiveidentity.h"
#include "archivejob.h"
#include "archivemountroot.h"

#include <veskplatform/archivemountsmanagerproxy.h>

#include <QHash>
#include <QThreadPool>

#include <atomic>
#include <memory>
#include <mutex>

namespace VeskFM
{

/// Mounts archives of the local disk by extracting them, each into a directory of its own below that of ArchiveMountRoot.
///
/// The mount point of an archive is known before it is there. It is another one when the archive has changed: so an old
/// mount keeps what it has, and goes with its last reference.
///
/// Thread: any. Extractions and removals run on workers of its own, which end with the application object, or with the
/// process; the directory goes then, too.
class LocalArchiveMounts : public ArchiveMountsManagerProxy
{
public:
    using Job = std::shared_ptr<ArchiveJob>;

    static LocalArchiveMounts &instance(); ///< never deleted

    /// Removes, in the background, the mounts that processes have left which ended without doing so.
    static void removeStale();

    /// @param path of the disk; need not exist
    QString mountPath(const QString &path) const override;
    /// Extracts the archive with its first reference, and waits until that is done or has failed. On the application's own
    /// thread it waits for a moment only, and the extraction goes on. An archive that nobody has looked into is not
    /// extracted: who copies the archive itself refers to its mount, too, and nothing in there can be meant.
    void refMountPath(const QString &path) override;
    void unrefMountPath(const QString &path) override;

    /// The mount point of an archive, as it is now or was then; empty for what is no file.
    QString mountPathOf(const QString &archive);
    QString mountPathOf(const QString &archive, const ArchiveIdentity &identity);
    bool isMounted(const QString &mount) const;
    /// The VFS path of what is at a place in one of our mounts; empty for any other path.
    QString archivePathOf(const QString &localPath) const;

    /// Takes a reference, has the archive extracted, and returns at once; null for a path that is no mount point. To be
    /// followed by one unref.
    Job ref(const QString &mount);

    /// Of the listings of an archive that somebody has: those who hold something in it.
    void addListing(const QString &mount);
    void removeListing(const QString &mount);

private:
    struct Mount
    {
        QString archive;
        ArchiveIdentity identity;
        int references = 0;
        int listings = 0;
        Job job; // of the latest extraction; null when there is none
    };

    LocalArchiveMounts();
    Job ref(const QString &mount, bool isNeeded);
    void start();
    void stop();
    static void stopRunning();
    void extract(const QString &mount, const QString &archive, const ArchiveIdentity &identity, const Job &job);
    ArchiveError extractInto(const QByteArray &part, const QString &archive, const ArchiveIdentity &identity,
                             const Job &job, int *systemError);
    void discard(const QByteArray &name);
    QByteArray freshName(const char *purpose);
    QByteArray nameOf(const QString &mount) const;

    mutable std::mutex m_mutex;     // guards what follows
    QHash<QString, Mount> m_mounts; // by mount point
    ArchiveMountRoot m_root;
    bool m_isRunning = false;
    int m_lastName = 0;
    std::atomic<int> m_mounted{0}; // how many are there: mostly none, which is asked for every row
    const QString m_rootPath;
    QThreadPool m_workers;
};

} // namespace VeskFM
