// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "deferredentrydata.h"

#include "localentrydata.h"
#include "pathcodec.h"

namespace VeskFM
{

DeferredEntryData::DeferredEntryData(const QString &path)
    : m_path(path)
{
}

const EntryData &DeferredEntryData::looked() const
{
    std::call_once(m_once, [this] { m_entry = makeLocalEntry(m_path, false, true); });
    return *m_entry.data();
}

QString DeferredEntryData::path() const
{
    return m_path;
}

int DeferredEntryData::type() const
{
    return looked().type();
}

bool DeferredEntryData::is(EntryTrait trait) const
{
    return trait <= EntryTrait::ArchiveMountPoint && looked().is(trait); // no place, whatever the disk says
}

QString DeferredEntryData::localPath() const
{
    return PathCodec::isPortable(m_path) ? m_path : QString();
}

QString DeferredEntryData::fileName() const
{
    return m_path.mid(m_path.lastIndexOf(QLatin1Char('/')) + 1);
}

QString DeferredEntryData::lastPathSection() const
{
    return m_path.size() == 1 ? m_path : fileName();
}

QString DeferredEntryData::symLinkTarget() const
{
    return looked().symLinkTarget();
}

QString DeferredEntryData::archiveMountPointOrLocalPath() const
{
    return looked().archiveMountPointOrLocalPath();
}

qint64 DeferredEntryData::fileSize() const
{
    return looked().fileSize();
}

} // namespace VeskFM
