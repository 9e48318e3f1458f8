// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "sevenzipreader.h"

#include "../pathcodec.h"
#include "sevenzipheader.h"

#include <KArchiveDirectory>
#include <KArchiveFile>
#include <QDateTime>

#include <sys/stat.h>

namespace VeskFM
{

SevenZipReader::SevenZipReader(int descriptor, qint64 size, qint64 mostEntries)
    : m_archive(&m_file)
{
    if (isEncryptedSevenZip(descriptor, size))
        fail(ArchiveError::Encrypted);
    else if (!m_file.open(descriptor, QIODevice::ReadOnly | QIODevice::Unbuffered))
        fail(ArchiveError::Unreadable);
    else if (!m_archive.open(QIODevice::ReadOnly))
        fail(ArchiveError::Damaged);
    else
        collect(mostEntries);
}

bool SevenZipReader::collect(qint64 mostEntries)
{
    m_found.push_back({QByteArray(), m_archive.directory()});
    for (size_t i = 0; i < m_found.size(); ++i) {
        const Found directory = m_found[i];
        if (!directory.entry->isDirectory())
            continue;
        const auto *const node = static_cast<const KArchiveDirectory *>(directory.entry);
        const QStringList names = node->entries();
        for (const QString &name : names) {
            const QByteArray bytes = PathCodec::encode(name);
            if (bytes.isEmpty())
                continue; // no name of a disk
            m_found.push_back({directory.path.isEmpty() ? bytes : directory.path + '/' + bytes, node->entry(name)});
        }
        if (qint64(m_found.size()) > mostEntries + 1)
            return fail(ArchiveError::TooManyEntries);
    }
    m_next = 1;
    return true;
}

bool SevenZipReader::rewind()
{
    m_next = 1;
    return error() == ArchiveError::None;
}

bool SevenZipReader::next(ArchiveMember *member)
{
    if (error() != ArchiveError::None || m_next >= m_found.size())
        return false;
    const Found &found = m_found[m_next++];
    m_content.reset();
    m_left = 0;
    *member = ArchiveMember();
    member->name = found.path;
    const QDateTime modified = found.entry->date();
    member->modifiedMs = modified.isValid() ? modified.toMSecsSinceEpoch() : 0;
    const mode_t mode = found.entry->permissions();
    if (found.entry->isDirectory()) {
        member->kind = ArchiveMember::Dir;
    } else if (S_ISLNK(mode) || !found.entry->symLinkTarget().isEmpty()) {
        member->kind = ArchiveMember::SymLink;
        member->target = PathCodec::encode(found.entry->symLinkTarget());
    } else if ((mode & S_IFMT) != 0 && !S_ISREG(mode)) {
        member->kind = ArchiveMember::Other;
    } else {
        const auto *const file = static_cast<const KArchiveFile *>(found.entry);
        member->size = m_left = file->size();
        member->isExecutable = mode & 0111;
        m_content.reset(file->createDevice());
    }
    return true;
}

qint64 SevenZipReader::read(char *data, qint64 size)
{
    if (error() != ArchiveError::None)
        return -1;
    if (m_left <= 0)
        return 0;
    const qint64 count = m_content ? m_content->read(data, qMin(size, m_left)) : 0;
    if (count <= 0) { // of a packing that the class does not know there is nothing
        fail(ArchiveError::Unsupported);
        return -1;
    }
    m_left -= count;
    return count;
}

} // namespace VeskFM
