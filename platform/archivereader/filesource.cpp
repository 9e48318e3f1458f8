// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "filesource.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>

namespace VeskFM
{

namespace
{
constexpr size_t blockSize = 65536;
}

FileSource::FileSource(int descriptor, qint64 size)
    : m_descriptor(descriptor)
    , m_size(size)
    , m_block(blockSize)
{
}

int FileSource::open(archive *handle)
{
    m_position = 0;
    archive_read_set_read_callback(handle, read);
    archive_read_set_skip_callback(handle, skip);
    archive_read_set_seek_callback(handle, seek);
    archive_read_set_callback_data(handle, this);
    return archive_read_open1(handle);
}

la_ssize_t FileSource::read(archive *handle, void *source, const void **block)
{
    auto *const self = static_cast<FileSource *>(source);
    const auto most = size_t(std::clamp<qint64>(self->m_size - self->m_position, 0, qint64(self->m_block.size())));
    ssize_t count = 0;
    do
        count = pread(self->m_descriptor, self->m_block.data(), most, self->m_position);
    while (count < 0 && errno == EINTR);
    if (count < 0) {
        archive_set_error(handle, errno, "The file cannot be read");
        return ARCHIVE_FATAL;
    }
    *block = self->m_block.data();
    self->m_position += count;
    return count;
}

la_int64_t FileSource::skip(archive *, void *source, la_int64_t size)
{
    auto *const self = static_cast<FileSource *>(source);
    const qint64 count = std::clamp<qint64>(self->m_size - self->m_position, 0, size);
    self->m_position += count;
    return count;
}

la_int64_t FileSource::seek(archive *, void *source, la_int64_t offset, int origin)
{
    auto *const self = static_cast<FileSource *>(source);
    const qint64 begin = origin == SEEK_END ? self->m_size : origin == SEEK_CUR ? self->m_position : 0;
    if (offset < -begin || offset > self->m_size - begin)
        return ARCHIVE_FATAL;
    self->m_position = begin + offset;
    return self->m_position;
}

} // namespace VeskFM
