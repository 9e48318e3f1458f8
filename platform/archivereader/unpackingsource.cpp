// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "unpackingsource.h"

#include <KFilterBase>

#include <QIODevice>

#include <algorithm>
#include <limits>

namespace VeskFM
{

namespace
{
constexpr size_t inputSize = 65536; // a filter wants the whole header of a stream in one piece
}

UnpackingSource::UnpackingSource(ByteSource *packed, KCompressionDevice::CompressionType type, qint64 limit)
    : m_packed(packed)
    , m_type(type)
    , m_limit(limit)
    , m_input(inputSize)
{
}

UnpackingSource::~UnpackingSource()
{
    endStream();
}

bool UnpackingSource::rewind()
{
    endStream();
    m_filled = m_left = m_unpacked = 0;
    m_hadStream = m_isAtEnd = m_isTooLarge = false;
    return m_packed->rewind();
}

/// Moves what is left of the input to the front and fills what follows. False when nothing is there at all.
bool UnpackingSource::topUp()
{
    const auto begin = m_input.begin() + (m_filled - m_left);
    std::copy(begin, begin + m_left, m_input.begin());
    const qint64 count = m_packed->readFully(m_input.data() + m_left, qint64(m_input.size()) - m_left);
    m_left += std::max<qint64>(count, 0);
    m_filled = m_left;
    return m_left > 0;
}

bool UnpackingSource::beginStream()
{
    m_filter.reset(KCompressionDevice::filterForCompressionType(m_type));
    if (!m_filter)
        return false;
    if (!m_filter->init(QIODevice::ReadOnly)) {
        m_filter.reset();
        return false;
    }
    m_filter->setInBuffer(m_input.data(), uint(m_left));
    return m_filter->readHeader();
}

void UnpackingSource::endStream()
{
    if (m_filter)
        m_filter->terminate();
    m_filter.reset();
}

qint64 UnpackingSource::read(char *data, qint64 size)
{
    size = std::min<qint64>(size, std::numeric_limits<int>::max());
    while (!m_isAtEnd && size > 0) {
        const bool isFresh = !m_filter;
        if (isFresh && (!topUp() || !beginStream())) { // padding after the last stream is no stream
            m_isAtEnd = m_hadStream;
            break;
        }
        if (m_filter->inBufferEmpty()) {
            m_left = 0;
            topUp(); // the filter may hold output without new input; if not, it fails
            m_filter->setInBuffer(m_input.data(), uint(m_left));
        }
        const int before = m_filter->inBufferAvailable();
        m_filter->setOutBuffer(data, uint(size));
        const KFilterBase::Result result = m_filter->uncompress();
        const qint64 count = size - m_filter->outBufferAvailable();
        m_left = m_filter->inBufferAvailable();
        if (result == KFilterBase::End) {
            endStream();
            m_hadStream = true;
        } else if (result == KFilterBase::Error || (count == 0 && m_left == before)) {
            m_isAtEnd = isFresh && m_hadStream;
            break;
        }
        m_unpacked += count;
        m_isTooLarge = m_unpacked > m_limit;
        if (m_isTooLarge)
            return -1;
        if (count > 0)
            return count;
    }
    return m_isAtEnd || size == 0 ? 0 : -1;
}

} // namespace VeskFM
