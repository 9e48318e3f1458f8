// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskplatform/archivemount.h>

#include "archivenodes.h"
#include "archiveproblems.h"
#include "localarchivemounts.h"
#include "localentrydata.h"
#include "pathcodec.h"

#include <QAtomicInt>
#include <QTimer>

namespace VeskFM
{

namespace
{
constexpr int pollMs = 20;
}

/// Holds one reference on a mount, or none.
class ArchiveMountPrivate
{
public:
    QString archive; // VFS path
    QString mount;
    LocalArchiveMounts::Job job; // null when nothing is mounted or being mounted
    QString problem;
    QTimer poll; // while start() has not been answered
    int toldPercent = 0;

    void release()
    {
        poll.stop();
        if (std::exchange(job, nullptr))
            LocalArchiveMounts::instance().unrefMountPath(mount);
    }
    void take(const Entry &entry)
    {
        release();
        toldPercent = 0;
        problem.clear();
        archive = ArchiveNodes::archiveOf(entry);
        mount = archive.isEmpty() ? QString() : LocalArchiveMounts::instance().mountPathOf(archive);
        job = LocalArchiveMounts::instance().ref(mount);
    }
    bool isMounted() const { return job && job->isFinished() && job->error() == ArchiveError::None; }
    /// Once the job has finished, or there is none. Returns whether it is mounted.
    bool settle(const Entry &entry)
    {
        if (isMounted())
            return true;
        problem = archive.isEmpty()
            ? ArchiveProblems::text(entry.path(), ArchiveError::Damaged)
            : ArchiveProblems::text(archive, job ? job->error() : ArchiveError::Unreadable, job ? 0 : ENOENT);
        release();
        return false;
    }
};

ArchiveMount::ArchiveMount(QObject *parent)
    : QObject(parent)
    , d(new ArchiveMountPrivate)
{
}

ArchiveMount::~ArchiveMount()
{
    d->release();
}

bool ArchiveMount::isInArchive(const Entry &entry)
{
    return ArchiveNodeData::of(entry);
}

Entry ArchiveMount::archiveOf(const Entry &entry)
{
    if (const ArchiveNodeData *const node = ArchiveNodeData::of(entry))
        return makeLocalEntry(node->archive(), false, true);
    return entry.isArchiveMountPoint() ? entry : Entry();
}

qint64 ArchiveMount::modifiedMs(const Entry &entry)
{
    const ArchiveNodeData *const node = ArchiveNodeData::of(entry);
    return node && node->tree() ? node->tree()->modifiedMs(node->node()) : 0;
}

bool ArchiveMount::isInMount(const QString &localPath)
{
    return ArchiveMountRoot::isBelowAny(PathCodec::encode(localPath));
}

void ArchiveMount::start(const Entry &entry)
{
    d->take(entry);
    d->poll.disconnect(this);
    connect(&d->poll, &QTimer::timeout, this, [this, entry] {
        const bool isSettled = !d->job || d->job->isFinished();
        if (isSettled) {
            d->poll.stop();
            Q_EMIT finished(d->settle(entry));
        } else if (d->job->percent() != d->toldPercent) {
            d->toldPercent = d->job->percent();
            Q_EMIT progress(d->toldPercent);
        }
    });
    d->poll.start(pollMs);
}

void ArchiveMount::cancel()
{
    if (!d->isMounted())
        d->release();
    d->poll.stop();
}

bool ArchiveMount::mount(const Entry &entry, QAtomicInt *cancel)
{
    d->take(entry);
    if (d->job && !d->job->wait(-1, [cancel] { return cancel && cancel->loadRelaxed() != 0; })) {
        d->release();
        return false;
    }
    return d->settle(entry);
}

bool ArchiveMount::isMounted() const
{
    return d->isMounted();
}

QString ArchiveMount::problem() const
{
    return d->problem;
}

Entry ArchiveMount::localEntry(const Entry &entry) const
{
    const bool isOurs = d->isMounted() && ArchiveNodes::archiveOf(entry) == d->archive;
    if (!isOurs)
        return {};
    const ArchiveNodeData *const node = ArchiveNodeData::of(entry);
    return makeLocalEntry(node ? d->mount + QLatin1Char('/') + node->innerPath() : d->mount);
}

} // namespace VeskFM
