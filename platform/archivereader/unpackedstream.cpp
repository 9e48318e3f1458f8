// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "unpackedstream.h"

#include "archivehandle.h"
#include "filesource.h"

#include <unistd.h>

#include <vector>

#include <zlib.h>

namespace VeskFM
{

namespace
{
constexpr unsigned bufferSize = 256 * 1024;

/// Through zlib: libarchive does not look at the checksums of gzip.
class GzipStream : public UnpackedStream
{
public:
    explicit GzipStream(int descriptor)
        : m_buffer(bufferSize)
    {
        lseek(descriptor, 0, SEEK_SET);
        m_file = gzdopen(dup(descriptor), "rb"); // all of zlib takes null, and fails
        gzbuffer(m_file, bufferSize);
    }
    ~GzipStream() override { gzclose(m_file); }
    Q_DISABLE_COPY_MOVE(GzipStream)

private:
    ArchiveError readNext(const void **block, qint64 *size) override
    {
        const int count = gzread(m_file, m_buffer.data(), bufferSize);
        int error = m_file ? Z_OK : Z_MEM_ERROR;
        if (count <= 0)
            gzerror(m_file, &error); // also where it ends too early
        *block = m_buffer.data();
        *size = qMax(count, 0);
        return error == Z_OK ? ArchiveError::None : error == Z_MEM_ERROR ? ArchiveError::Failed : ArchiveError::Damaged;
    }

    gzFile m_file = nullptr;
    std::vector<char> m_buffer;
};

class FilteredStream : public UnpackedStream
{
public:
    FilteredStream(int descriptor, qint64 size)
        : m_file(descriptor, size)
        , m_handle(archive_read_new())
    {
        Q_CHECK_PTR(m_handle);
        archive *const handle = m_handle.get();
        archive_read_support_filter_bzip2(handle);
        archive_read_support_filter_gzip(handle);
        archive_read_support_filter_xz(handle);
        archive_read_support_filter_zstd(handle);
        archive_read_support_format_raw(handle);
        m_result = m_file.open(handle);
        archive_entry *whole = nullptr;
        if (m_result == ARCHIVE_OK)
            m_result = archive_read_next_header(handle, &whole);
    }
    archive *handle() const { return m_handle.get(); }
    int result() const { return m_result; }

private:
    ArchiveError readNext(const void **block, qint64 *size) override
    {
        size_t count = 0;
        la_int64_t offset = 0;
        if (m_result == ARCHIVE_OK)
            m_result = archive_read_data_block(m_handle.get(), block, &count, &offset);
        *size = qint64(count);
        return m_result == ARCHIVE_OK || m_result == ARCHIVE_EOF ? ArchiveError::None : errorOf(m_handle.get());
    }

    FileSource m_file;
    const ArchiveHandle m_handle;
    int m_result = ARCHIVE_OK;
};
} // namespace

std::unique_ptr<UnpackedStream> UnpackedStream::open(int descriptor, qint64 size, qint64 limit, ArchiveError *error)
{
    auto filtered = std::make_unique<FilteredStream>(descriptor, size);
    if (filtered->result() != ARCHIVE_OK) {
        *error = errorOf(filtered->handle());
        return nullptr;
    }
    const int filters = archive_filter_count(filtered->handle()) - 1; // one of them stands for the file
    if (filters > 1)
        *error = ArchiveError::Unsupported; // packed again and again: only to do harm
    if (filters != 1)
        return nullptr;
    std::unique_ptr<UnpackedStream> stream;
    if (archive_filter_code(filtered->handle(), 0) == ARCHIVE_FILTER_GZIP)
        stream = std::make_unique<GzipStream>(descriptor);
    else
        stream = std::move(filtered);
    stream->m_limit = limit;
    return stream;
}

qint64 UnpackedStream::read(const void **block)
{
    qint64 size = 0;
    if (m_error == ArchiveError::None)
        m_error = readNext(block, &size);
    m_unpacked += size;
    if (m_unpacked > m_limit && m_error == ArchiveError::None)
        m_error = ArchiveError::TooLarge;
    return m_error == ArchiveError::None ? size : -1;
}

bool UnpackedStream::finish()
{
    const void *block = nullptr;
    while (read(&block) > 0) {}
    return m_error == ArchiveError::None;
}

} // namespace VeskFM
