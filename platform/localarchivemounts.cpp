// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "localarchivemounts.h"

#include "archivefile.h"
#include "archivelimits.h"
#include "archiveproblems.h"
#include "archivereaderprocess.h"
#include "callatend.h"
#include "guithread.h"
#include "pathcodec.h"
#include "removetree.h"

#include <QCryptographicHash>
#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace VeskFM
{

namespace
{
constexpr int mostWorkers = 2;      // more would only fight for the disk
constexpr int guiWaitMs = 200;      // a small archive is there at once, and a window does not freeze for a large one
constexpr int stopTimeoutMs = 5000; // removing what was extracted may take its time
constexpr qint64 reservedBytes = 512LL * 1024 * 1024; // of the disk, for everybody else
constexpr int hashDigits = 32;

using Lock = std::lock_guard<std::mutex>;

/// What may be written to the file system of a directory.
qint64 spareBytes(int directory)
{
    struct statvfs facts = {};
    if (fstatvfs(directory, &facts) != 0)
        return 0;
    const auto blocks = qint64(qMin<quint64>(facts.f_bavail, quint64(1) << 40));
    return qMax<qint64>(0, blocks * qint64(facts.f_frsize) - reservedBytes);
}
} // namespace

LocalArchiveMounts &LocalArchiveMounts::instance()
{
    static auto *const mounts = new LocalArchiveMounts;
    return *mounts;
}

void LocalArchiveMounts::removeStale()
{
    if (!ArchiveMountRoot::isAnyLeft())
        return;
    LocalArchiveMounts &mounts = instance();
    const Lock lock(mounts.m_mutex);
    mounts.start();
    mounts.m_workers.start(&ArchiveMountRoot::removeAllThatIsLeft);
}

LocalArchiveMounts::LocalArchiveMounts()
    : m_rootPath(PathCodec::decode(m_root.path()))
{
    m_workers.setMaxThreadCount(mostWorkers);
}

/// With the mutex.
void LocalArchiveMounts::start()
{
    if (m_isRunning)
        return;
    m_isRunning = true;
    callAtEnd<stopRunning>();
}

void LocalArchiveMounts::stop()
{
    {
        const Lock lock(m_mutex);
        if (!m_isRunning)
            return;
        for (Mount &mount : m_mounts) {
            if (mount.job)
                mount.job->cancel();
            mount.job.reset();
            mount.references = 0;
        }
        m_mounted = 0;
    }
    m_workers.waitForDone(stopTimeoutMs);
    const Lock lock(m_mutex);
    m_root.remove();
    m_isRunning = false;
}

void LocalArchiveMounts::stopRunning()
{
    instance().stop();
}

QByteArray LocalArchiveMounts::nameOf(const QString &mount) const
{
    return mount.mid(m_rootPath.size() + 1).toLatin1();
}

QString LocalArchiveMounts::mountPath(const QString &path) const
{
    if (!path.startsWith(m_rootPath + QLatin1Char('/')))
        return {};
    const QString mount = path.left(m_rootPath.size() + 1 + hashDigits);
    const bool isWhole = path.size() == mount.size() || path.at(mount.size()) == QLatin1Char('/');
    const Lock lock(m_mutex);
    return isWhole && m_mounts.contains(mount) ? mount : QString();
}

QString LocalArchiveMounts::mountPathOf(const QString &archive)
{
    ArchiveIdentity identity;
    return ArchiveFile::identify(archive, &identity) == 0 ? mountPathOf(archive, identity) : QString();
}

QString LocalArchiveMounts::mountPathOf(const QString &archive, const ArchiveIdentity &identity)
{
    const QByteArray facts = QByteArray::number(identity.device) + ' ' + QByteArray::number(identity.node) + ' '
        + QByteArray::number(identity.size) + ' ' + QByteArray::number(identity.modifiedSec) + ' '
        + QByteArray::number(identity.modifiedNsec) + ' ' + PathCodec::encode(archive);
    const QByteArray hash = QCryptographicHash::hash(facts, QCryptographicHash::Sha256).toHex().left(hashDigits);
    const QString mount = m_rootPath + QLatin1Char('/') + QString::fromLatin1(hash);
    const Lock lock(m_mutex);
    Mount &record = m_mounts[mount];
    record.archive = archive;
    record.identity = identity;
    return mount;
}

bool LocalArchiveMounts::isMounted(const QString &mount) const
{
    if (m_mounted == 0)
        return false;
    const Lock lock(m_mutex);
    const Job job = m_mounts.value(mount).job;
    return job && job->isFinished() && job->error() == ArchiveError::None;
}

QString LocalArchiveMounts::archivePathOf(const QString &localPath) const
{
    const QString mount = mountPath(localPath);
    if (mount.isEmpty())
        return {};
    const Lock lock(m_mutex);
    return m_mounts.value(mount).archive + localPath.mid(mount.size());
}

void LocalArchiveMounts::refMountPath(const QString &path)
{
    if (const Job job = ref(path, false))
        job->wait(isGuiThread() ? guiWaitMs : -1, {});
}

LocalArchiveMounts::Job LocalArchiveMounts::ref(const QString &mount)
{
    return ref(mount, true);
}

void LocalArchiveMounts::addListing(const QString &mount)
{
    const Lock lock(m_mutex);
    ++m_mounts[mount].listings;
}

void LocalArchiveMounts::removeListing(const QString &mount)
{
    const Lock lock(m_mutex);
    --m_mounts[mount].listings;
}

/// @param isNeeded whether it is to be extracted though nobody has looked into it
LocalArchiveMounts::Job LocalArchiveMounts::ref(const QString &mount, bool isNeeded)
{
    const Lock lock(m_mutex);
    const auto record = m_mounts.find(mount);
    if (record == m_mounts.end())
        return nullptr;
    ++record->references;
    const bool hasFailed = record->job && record->job->isFinished() && record->job->error() != ArchiveError::None;
    if ((!record->job || hasFailed) && (isNeeded || record->listings > 0)) {
        start();
        const auto job = std::make_shared<ArchiveJob>();
        record->job = job;
        m_workers.start([this, mount, archive = record->archive, identity = record->identity, job] {
            extract(mount, archive, identity, job);
        });
    }
    return record->job;
}

void LocalArchiveMounts::unrefMountPath(const QString &path)
{
    const Lock lock(m_mutex);
    const auto record = m_mounts.find(path);
    if (record == m_mounts.end() || record->references == 0 || --record->references > 0)
        return;
    const Job job = std::exchange(record->job, nullptr);
    if (!job)
        return;
    job->cancel();
    if (!job->isFinished() || job->error() != ArchiveError::None)
        return; // its worker clears up
    --m_mounted;
    const QByteArray doomed = freshName("gone"); // the next mount of the archive needs the name
    if (renameat(m_root.descriptor(), nameOf(path).constData(), m_root.descriptor(), doomed.constData()) == 0)
        m_workers.start([this, doomed] { discard(doomed); });
}

QByteArray LocalArchiveMounts::freshName(const char *purpose)
{
    return QByteArray(purpose) + '-' + QByteArray::number(++m_lastName);
}

/// On a worker.
void LocalArchiveMounts::discard(const QByteArray &name)
{
    int root = -1;
    {
        const Lock lock(m_mutex);
        root = dup(m_root.descriptor());
    }
    if (root < 0)
        return;
    removeTree(root, name);
    close(root);
}

/// On a worker.
void LocalArchiveMounts::extract(const QString &mount, const QString &archive, const ArchiveIdentity &identity,
                                 const Job &job)
{
    QByteArray part;
    bool isMade = false;
    {
        const Lock lock(m_mutex);
        part = freshName("part");
        isMade = !job->isCancelled() && m_root.make() && mkdirat(m_root.descriptor(), part.constData(), S_IRWXU) == 0;
    }
    int systemError = 0;
    ArchiveError error = job->isCancelled() ? ArchiveError::Cancelled : ArchiveError::CannotWrite;
    if (isMade)
        error = extractInto(part, archive, identity, job, &systemError);
    {
        const Lock lock(m_mutex);
        if (error == ArchiveError::None && job->isCancelled())
            error = ArchiveError::Cancelled;
        if (error == ArchiveError::None
            && renameat(m_root.descriptor(), part.constData(), m_root.descriptor(), nameOf(mount).constData()) != 0)
            error = ArchiveError::CannotWrite;
        if (error == ArchiveError::None)
            ++m_mounted;
        if (error != ArchiveError::Cancelled)
            ArchiveProblems::set(archive, ArchiveProblems::text(archive, error, systemError));
        job->finish(error); // with the mutex: nobody may find it mounted and not finished
    }
    if (isMade && error != ArchiveError::None)
        discard(part);
}

ArchiveError LocalArchiveMounts::extractInto(const QByteArray &part, const QString &archive,
                                             const ArchiveIdentity &identity, const Job &job, int *systemError)
{
    const ArchiveFile file(archive);
    *systemError = file.error();
    if (file.error() != 0)
        return ArchiveError::Unreadable;
    if (file.identity() != identity)
        return ArchiveError::Changed;
    ArchiveLimits limits;
    qint64 spare = 0;
    {
        const Lock lock(m_mutex);
        spare = spareBytes(m_root.descriptor());
    }
    const bool isTight = spare < limits.unpackedBytes;
    limits.unpackedBytes = qMin(limits.unpackedBytes, spare);
    ArchiveReaderProcess reader;
    reader.isCancelled = [&] { return job->isCancelled(); };
    reader.onProgress = [&](int percent) { job->setPercent(percent); };
    const QStringList arguments = QStringList(QStringLiteral("extract")) + limits.toArguments()
        + QStringList{QStringLiteral("-"), QFile::decodeName(m_root.path() + '/' + part)};
    const ArchiveError error = reader.run(arguments, file.descriptor());
    return error == ArchiveError::TooLarge && isTight ? ArchiveError::NoSpace : error;
}

} // namespace VeskFM
