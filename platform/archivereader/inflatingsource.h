// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "bytesource.h"

#include <vector>

#include <zlib.h>

namespace VeskFM
{

/// The unpacked bytes of a gzip file, of all its members if it has several, or of a bare deflate stream. Through zlib: the
/// framework's filter does not look at the checksums of gzip, and would pass on what is damaged.
class InflatingSource : public ByteSource
{
public:
    enum Form { Gzip, BareDeflate };
    /// @param packed borrowed, and read by nobody else
    /// @param limit  of unpacked bytes
    InflatingSource(ByteSource *packed, Form form, qint64 limit);
    ~InflatingSource() override;
    Q_DISABLE_COPY_MOVE(InflatingSource)

    qint64 read(char *data, qint64 size) override;
    bool rewind() override;
    bool isTooLarge() const override { return m_unpacked > m_limit; }

private:
    bool fill();
    bool beginMember();

    ByteSource *const m_packed;
    const Form m_form;
    const qint64 m_limit;
    std::vector<char> m_input;
    z_stream m_stream = {};
    qint64 m_unpacked = 0;
    bool m_isBroken = false;
    bool m_isMemberOver = false;
};

} // namespace VeskFM
