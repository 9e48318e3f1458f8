// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "opendirectory.h"

#include "pathcodec.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace VeskFM
{

OpenDirectory::OpenDirectory(const QString &path)
{
    const QByteArray bytes = PathCodec::encode(path);
    if (bytes.isEmpty()) {
        m_error = ENOENT;
        return;
    }
    m_descriptor = open(bytes.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NONBLOCK);
    if (m_descriptor < 0)
        m_error = errno;
}

OpenDirectory::~OpenDirectory()
{
    if (m_descriptor >= 0)
        close(m_descriptor);
}

int OpenDirectory::takeDescriptor()
{
    return std::exchange(m_descriptor, -1);
}

} // namespace VeskFM
