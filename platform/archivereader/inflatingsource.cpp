// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "inflatingsource.h"

#include <algorithm>
#include <limits>

namespace VeskFM
{

namespace
{
constexpr size_t inputSize = 65536;
constexpr int largestWindow = 15;
constexpr int gzipWindow = largestWindow + 16; // as zlib wants it told
} // namespace

InflatingSource::InflatingSource(ByteSource *packed, Form form, qint64 limit)
    : m_packed(packed)
    , m_form(form)
    , m_limit(limit)
    , m_input(inputSize)
    , m_isBroken(inflateInit2(&m_stream, form == Gzip ? gzipWindow : -largestWindow) != Z_OK)
{
}

InflatingSource::~InflatingSource()
{
    inflateEnd(&m_stream);
}

bool InflatingSource::rewind()
{
    m_stream.avail_in = 0;
    m_unpacked = 0;
    m_isMemberOver = false;
    m_isBroken = inflateReset(&m_stream) != Z_OK || !m_packed->rewind();
    return !m_isBroken;
}

/// False at the end, and after a failure.
bool InflatingSource::fill()
{
    if (m_stream.avail_in > 0)
        return true;
    const qint64 count = m_packed->read(m_input.data(), qint64(m_input.size()));
    m_stream.next_in = reinterpret_cast<Bytef *>(m_input.data());
    m_stream.avail_in = uInt(std::max<qint64>(count, 0));
    m_isBroken = m_isBroken || count < 0;
    return count > 0;
}

/// Whether another member follows. Padding, of a tape for example, is none.
bool InflatingSource::beginMember()
{
    constexpr Bytef firstOfMagic = 0x1f;
    if (m_form == BareDeflate || !fill() || *m_stream.next_in != firstOfMagic)
        return false;
    m_isMemberOver = false;
    m_isBroken = inflateReset(&m_stream) != Z_OK;
    return !m_isBroken;
}

qint64 InflatingSource::read(char *data, qint64 size)
{
    const auto most = uInt(std::clamp<qint64>(size, 0, std::numeric_limits<int>::max()));
    m_stream.next_out = reinterpret_cast<Bytef *>(data);
    m_stream.avail_out = most;
    while (!m_isBroken && m_stream.avail_out == most && most > 0) {
        if (m_isMemberOver && !beginMember())
            break;
        fill(); // zlib may hold output without new input; if not, it fails
        const int result = inflate(&m_stream, Z_NO_FLUSH);
        m_isMemberOver = result == Z_STREAM_END;
        m_isBroken = m_isBroken || (result != Z_OK && result != Z_STREAM_END);
    }
    const qint64 count = most - m_stream.avail_out;
    m_unpacked += count;
    return (m_isBroken && count == 0) || isTooLarge() ? -1 : count;
}

} // namespace VeskFM
