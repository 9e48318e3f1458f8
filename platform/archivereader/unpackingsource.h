// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "bytesource.h"

#include <KCompressionDevice>

#include <memory>
#include <vector>

class KFilterBase;

namespace VeskFM
{

/// The unpacked bytes of a source that bzip2, xz or zstd has packed; of all its streams where several follow one another,
/// as parallel packers write them. Drives the filter itself: a KCompressionDevice takes the second stream for an error.
class UnpackingSource : public ByteSource
{
public:
    /// @param packed borrowed, and read by nobody else
    /// @param limit  bytes; of unpacked ones
    UnpackingSource(ByteSource *packed, KCompressionDevice::CompressionType type, qint64 limit);
    ~UnpackingSource() override;

    qint64 read(char *data, qint64 size) override;
    bool rewind() override;
    bool isTooLarge() const override { return m_isTooLarge; }

private:
    bool topUp();
    bool beginStream();
    void endStream();

    ByteSource *const m_packed;
    const KCompressionDevice::CompressionType m_type;
    const qint64 m_limit;
    std::unique_ptr<KFilterBase> m_filter; // null between two streams
    std::vector<char> m_input;
    qint64 m_filled = 0; // bytes in the input
    qint64 m_left = 0;   // of these, at their end, those that no stream has taken
    qint64 m_unpacked = 0;
    bool m_hadStream = false;
    bool m_isAtEnd = false;
    bool m_isTooLarge = false;
};

} // namespace VeskFM
