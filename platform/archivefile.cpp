// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "archivefile.h"

#include "localentrydata.h"
#include "pathcodec.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

namespace VeskFM
{

namespace
{
bool isArchive(const struct stat &facts, const QByteArray &path)
{
    const int nameStart = path.lastIndexOf('/') + 1;
    return LocalFacts::isArchive(facts, path.constData() + nameStart, path.size() - nameStart);
}
} // namespace

ArchiveFile::ArchiveFile(const QString &path)
{
    const QByteArray bytes = PathCodec::encode(path);
    m_descriptor = bytes.isEmpty() ? -1 : open(bytes.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    struct stat facts = {};
    if (m_descriptor < 0 || fstat(m_descriptor, &facts) != 0)
        m_error = bytes.isEmpty() ? ENOENT : errno;
    else if (!S_ISREG(facts.st_mode))
        m_error = EINVAL;
    m_identity = ArchiveIdentity::of(facts);
}

ArchiveFile::~ArchiveFile()
{
    if (m_descriptor >= 0)
        close(m_descriptor);
}

int ArchiveFile::identify(const QString &path, ArchiveIdentity *identity)
{
    const QByteArray bytes = PathCodec::encode(path);
    struct stat facts = {};
    if (bytes.isEmpty() || stat(bytes.constData(), &facts) != 0)
        return bytes.isEmpty() ? ENOENT : errno;
    *identity = ArchiveIdentity::of(facts);
    return S_ISREG(facts.st_mode) ? 0 : EINVAL;
}

QString ArchiveFile::around(const QString &path)
{
    QByteArray bytes = PathCodec::encode(path);
    for (int slash = bytes.lastIndexOf('/'); slash > 0; slash = bytes.lastIndexOf('/')) {
        bytes.truncate(slash);
        struct stat facts = {};
        if (stat(bytes.constData(), &facts) == 0)
            return isArchive(facts, bytes) ? PathCodec::decode(bytes) : QString();
        if (errno != ENOTDIR)
            break; // nothing lies above what is missing
    }
    return {};
}

} // namespace VeskFM
