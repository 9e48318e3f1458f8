// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskplatform/archivemount.h>

#include <veskplatform/vfs.h>

#include <QCoreApplication>
#include <QTimer>

namespace VeskFM
{

class ArchiveMountPrivate
{
public:
    QTimer answer;
    QString problem;
};

ArchiveMount::ArchiveMount(QObject *parent)
    : QObject(parent)
    , d(new ArchiveMountPrivate)
{
    d->answer.setSingleShot(true);
    connect(&d->answer, &QTimer::timeout, this, [this] { Q_EMIT finished(false); });
}

ArchiveMount::~ArchiveMount() = default;

bool ArchiveMount::isInArchive(const Entry &)
{
    return false;
}

Entry ArchiveMount::archiveOf(const Entry &entry)
{
    return entry.isArchiveMountPoint() ? entry : Entry();
}

void ArchiveMount::start(const Entry &entry)
{
    mount(entry, nullptr);
    d->answer.start(0);
}

void ArchiveMount::cancel()
{
    d->answer.stop();
}

bool ArchiveMount::mount(const Entry &entry, QAtomicInt *)
{
    d->problem = QCoreApplication::translate("ArchiveProblem", "%1 is no archive").arg(entry.fileName());
    return false;
}

bool ArchiveMount::isMounted() const
{
    return false;
}

QString ArchiveMount::problem() const
{
    return d->problem;
}

Entry ArchiveMount::localEntry(const Entry &) const
{
    return {};
}

} // namespace VeskFM
