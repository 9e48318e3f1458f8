// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "memberreader.h"

#include <archive_entry.h>

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <clocale>
#include <cstring>
#include <limits>

namespace VeskFM
{

namespace
{
constexpr qint64 longestPadding = 1024 * 1024; // of a tar archive with nothing in it
constexpr auto latestSec = qint64(1e11);       // the year 5138

la_ssize_t readStream(archive *, void *stream, const void **block)
{
    const qint64 count = static_cast<UnpackedStream *>(stream)->read(block);
    return count < 0 ? ARCHIVE_FATAL : la_ssize_t(count);
}

int formatOf(archive *handle)
{
    return archive_format(handle) & ARCHIVE_FORMAT_BASE_MASK;
}

/// Of a zip archive, whose end libarchive does not find where it is the beginning.
bool isEmptyZip(int descriptor)
{
    char start[4] = {};
    return pread(descriptor, start, sizeof start, 0) == ssize_t(sizeof start)
        && memcmp(start, "PK\x05\x06", sizeof start) == 0;
}

/// Of a name in a tar archive that does not fit the locale.
bool isCharsetWarning(archive *handle, int result)
{
    return result == ARCHIVE_WARN && archive_errno(handle) == EILSEQ && formatOf(handle) == ARCHIVE_FORMAT_TAR;
}

ArchiveMember::Kind kindOf(archive_entry *entry)
{
    if (archive_entry_hardlink(entry))
        return ArchiveMember::HardLink;
    switch (archive_entry_filetype(entry)) {
    case AE_IFREG:
        return ArchiveMember::File;
    case AE_IFDIR:
        return ArchiveMember::Dir;
    case AE_IFLNK:
        return ArchiveMember::SymLink;
    default:
        return ArchiveMember::Other;
    }
}

ArchiveMember memberOf(archive_entry *entry)
{
    ArchiveMember member;
    member.name = archive_entry_pathname(entry);
    member.kind = kindOf(entry);
    member.isExecutable = archive_entry_perm(entry) & 0111;
    const qint64 seconds = std::clamp<qint64>(archive_entry_mtime(entry), 0, latestSec);
    member.modifiedMs = seconds * 1000 + archive_entry_mtime_nsec(entry) / 1'000'000;
    if (member.kind == ArchiveMember::File)
        member.size = archive_entry_size(entry);
    else if (member.kind == ArchiveMember::HardLink)
        member.target = archive_entry_hardlink(entry);
    else if (member.kind == ArchiveMember::SymLink)
        member.target = archive_entry_symlink(entry);
    return member;
}
} // namespace

MemberReader::MemberReader(int descriptor, qint64 size, const ArchiveLimits &limits)
    : m_descriptor(descriptor)
    , m_size(size)
    , m_limits(limits)
    , m_file(descriptor, size)
{
    rewind();
}

bool MemberReader::fail(ArchiveError error)
{
    if (m_error == ArchiveError::None)
        m_error = error;
    return false;
}

bool MemberReader::failOfHandle()
{
    const bool isOfStream = m_stream && m_stream->error() != ArchiveError::None;
    return fail(isOfStream ? m_stream->error() : errorOf(m_archive.get()));
}

bool MemberReader::rewind()
{
    if (m_error != ArchiveError::None)
        return false;
    m_toldBytes = 0;
    m_stream = UnpackedStream::open(m_descriptor, m_size, m_limits.unpackedBytes, &m_error);
    if (m_error != ArchiveError::None)
        return false;
    return openTar() || (!m_stream && openOther()) || failOfHandle();
}

/// libarchive tells names in the character set of the locale. Those of tar that find no place in it come as they are, hence
/// in this locale all do; in UTF-8 they would be normalized.
bool MemberReader::openTar()
{
    setlocale(LC_CTYPE, "C");
    archive *const handle = renewHandle();
    archive_read_support_format_tar(handle);
    return (m_stream ? archive_read_open(handle, m_stream.get(), nullptr, readStream, nullptr) : m_file.open(handle))
        == ARCHIVE_OK;
}

bool MemberReader::openOther()
{
    setlocale(LC_CTYPE, "C.UTF-8");
    archive *const handle = renewHandle();
    archive_read_support_format_7zip(handle);
    archive_read_support_format_zip_seekable(handle); // the streamable one would take a part for the whole
    if (isEmptyZip(m_descriptor))
        archive_read_support_format_zip_streamable(handle);
    return m_file.open(handle) == ARCHIVE_OK;
}

archive *MemberReader::renewHandle()
{
    m_archive.reset(archive_read_new());
    Q_CHECK_PTR(m_archive);
    return m_archive.get();
}

bool MemberReader::next(ArchiveMember *member)
{
    if (m_error != ArchiveError::None)
        return false;
    archive *const handle = m_archive.get();
    if (m_toldBytes > m_limits.unpackedBytes && formatOf(handle) == ARCHIVE_FORMAT_7ZIP)
        return fail(ArchiveError::TooLarge); // the way to a link may lead through all of it
    archive_entry *entry = nullptr;
    const int result = archive_read_next_header(handle, &entry);
    if (result == ARCHIVE_EOF)
        return finish();
    if (result != ARCHIVE_OK && !isCharsetWarning(handle, result))
        return failOfHandle();
    if (archive_read_has_encrypted_entries(handle) > 0)
        return fail(ArchiveError::Encrypted);
    if (!archive_entry_pathname(entry) || archive_entry_size(entry) < 0)
        return fail(ArchiveError::Damaged);
    *member = memberOf(entry);
    m_memberBytes = member->size;
    m_toldBytes += std::min(m_memberBytes, std::numeric_limits<qint64>::max() - m_toldBytes);
    m_readBytes = 0;
    m_isSparse = archive_entry_sparse_count(entry) > 0;
    return true;
}

/// Whatever follows the end of a tar archive is of no interest, but the checksum of what it is compressed with is.
bool MemberReader::finish()
{
    if (m_stream && !m_stream->finish())
        return fail(m_stream->error());
    const bool isEmptyTar = archive_file_count(m_archive.get()) == 0 && formatOf(m_archive.get()) == ARCHIVE_FORMAT_TAR;
    if (isEmptyTar && (m_stream ? m_stream->unpackedBytes() : m_size) > longestPadding)
        fail(ArchiveError::Damaged); // a large file of zeros is no archive
    return false;
}

bool MemberReader::read(ArchiveBlock *block)
{
    if (m_error != ArchiveError::None)
        return false;
    const void *data = nullptr;
    size_t size = 0;
    la_int64_t offset = 0;
    const int result = archive_read_data_block(m_archive.get(), &data, &size, &offset);
    if (result == ARCHIVE_EOF)
        return m_readBytes == m_memberBytes || m_isSparse ? false : fail(ArchiveError::Damaged);
    if (result != ARCHIVE_OK)
        return failOfHandle();
    *block = {static_cast<const char *>(data), qint64(size), offset};
    const bool isInPlace = m_isSparse ? block->offset >= m_readBytes : block->offset == m_readBytes;
    if (!isInPlace || block->offset > m_memberBytes || block->size > m_memberBytes - block->offset)
        return fail(ArchiveError::Damaged); // by what it told of itself
    m_readBytes = block->offset + block->size;
    return true;
}

} // namespace VeskFM
