// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "bytesource.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>

namespace VeskFM
{

namespace
{
constexpr qint64 bufferSize = 8192;
}

ByteSource::~ByteSource() = default;

bool ByteSource::skip(qint64 size)
{
    std::array<char, 65536> scratch;
    while (size > 0) {
        const qint64 count = read(scratch.data(), std::min<qint64>(size, scratch.size()));
        if (count <= 0)
            return false;
        size -= count;
    }
    return true;
}

bool ByteSource::finish()
{
    std::array<char, 65536> scratch;
    qint64 count = 0;
    do
        count = read(scratch.data(), qint64(scratch.size()));
    while (count > 0);
    return count == 0;
}

qint64 ByteSource::readFully(char *data, qint64 size)
{
    qint64 done = 0;
    while (done < size) {
        const qint64 count = read(data + done, size - done);
        if (count < 0)
            return -1;
        if (count == 0)
            break;
        done += count;
    }
    return done;
}

FileSource::FileSource(int descriptor, qint64 begin, qint64 size)
    : m_descriptor(descriptor)
    , m_begin(begin)
    , m_size(size)
{
}

qint64 FileSource::readPart(char *data, qint64 size) const
{
    ssize_t count = 0;
    do
        count = pread(m_descriptor, data, size_t(size), m_begin + m_position);
    while (count < 0 && errno == EINTR);
    return count;
}

qint64 FileSource::read(char *data, qint64 size)
{
    size = std::min(size, m_size - m_position);
    if (size <= 0)
        return 0;
    qint64 count = 0;
    if (size >= bufferSize) {
        count = readPart(data, size);
    } else {
        if (m_position < m_bufferBegin || m_position >= m_bufferBegin + m_bufferSize) {
            m_buffer.resize(size_t(bufferSize));
            m_bufferBegin = m_position;
            m_bufferSize = readPart(m_buffer.data(), std::min(bufferSize, m_size - m_position));
        }
        count = std::min(size, m_bufferBegin + m_bufferSize - m_position);
        if (count > 0)
            std::copy_n(m_buffer.data() + (m_position - m_bufferBegin), count, data);
    }
    m_position += std::max<qint64>(count, 0);
    return count;
}

bool FileSource::skip(qint64 size)
{
    if (size < 0 || size > m_size - m_position)
        return false;
    m_position += size;
    return true;
}

bool FileSource::rewind()
{
    m_position = 0;
    return true;
}

} // namespace VeskFM
