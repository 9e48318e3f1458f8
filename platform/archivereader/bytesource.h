// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QtGlobal>

#include <vector>

namespace VeskFM
{

/// Bytes that are read from front to back.
class ByteSource
{
public:
    virtual ~ByteSource();
    /// Reads at most @p size bytes. Returns how many; 0 at the end, -1 on failure.
    virtual qint64 read(char *data, qint64 size) = 0;
    /// Passes over bytes; false when there are not as many.
    virtual bool skip(qint64 size);
    virtual bool rewind() = 0;
    /// Reads what is left, for the sake of a checksum at the end. False when it is damaged.
    virtual bool finish();
    virtual bool isTooLarge() const { return false; } ///< whether the failure was that there is more than a limit

    /// Fills the buffer as far as the source goes; -1 on failure.
    qint64 readFully(char *data, qint64 size);
};

/// A part of an open file.
class FileSource : public ByteSource
{
public:
    FileSource(int descriptor, qint64 begin, qint64 size); ///< borrows @p descriptor; its own position does not matter

    qint64 read(char *data, qint64 size) override;
    bool skip(qint64 size) override;
    bool rewind() override;
    bool finish() override { return true; } ///< it has none

private:
    qint64 readPart(char *data, qint64 size) const;

    const int m_descriptor;
    const qint64 m_begin;
    const qint64 m_size;
    qint64 m_position = 0;
    std::vector<char> m_buffer; // headers are small and many
    qint64 m_bufferBegin = 0;
    qint64 m_bufferSize = 0;
};

} // namespace VeskFM
