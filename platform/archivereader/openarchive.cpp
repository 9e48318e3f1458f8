// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "openarchive.h"

#include "sevenzipreader.h"
#include "tarreader.h"
#include "unpackingsource.h"
#include "zipreader.h"

namespace VeskFM
{

namespace
{
/// The unpacked bytes of a file that is one compressed stream; it owns the file's.
class UnpackedFile : public ByteSource
{
public:
    UnpackedFile(int descriptor, qint64 size, KCompressionDevice::CompressionType type, qint64 limit)
        : m_file(descriptor, 0, size)
        , m_source(&m_file, type, UnpackingSource::WithHeader, limit)
    {
    }
    qint64 read(char *data, qint64 size) override { return m_source.read(data, size); }
    bool rewind() override { return m_source.rewind(); }
    bool isTooLarge() const override { return m_source.isTooLarge(); }

private:
    FileSource m_file;
    UnpackingSource m_source;
};

KCompressionDevice::CompressionType compressionOf(const QByteArray &start)
{
    static const QByteArray xz("\xfd"
                               "7zXZ\0",
                               6);
    if (start.startsWith("\x1f\x8b"))
        return KCompressionDevice::GZip;
    if (start.startsWith("BZh"))
        return KCompressionDevice::BZip2;
    if (start.startsWith(xz))
        return KCompressionDevice::Xz;
    if (start.startsWith("\x28\xb5\x2f\xfd"))
        return KCompressionDevice::Zstd;
    return KCompressionDevice::None;
}
} // namespace

std::unique_ptr<MemberReader> openArchive(int descriptor, qint64 size, const ArchiveLimits &limits)
{
    constexpr int longestMagic = 6;
    QByteArray start(longestMagic, '\0');
    FileSource(descriptor, 0, size).readFully(start.data(), start.size());
    if (start.startsWith("PK\x03\x04") || start.startsWith("PK\x05\x06"))
        return std::make_unique<ZipReader>(descriptor, size);
    if (start.startsWith("7z\xbc\xaf\x27\x1c"))
        return std::make_unique<SevenZipReader>(descriptor, size, limits.entries);
    const KCompressionDevice::CompressionType type = compressionOf(start);
    if (type == KCompressionDevice::None)
        return std::make_unique<TarReader>(std::make_unique<FileSource>(descriptor, 0, size));
    return std::make_unique<TarReader>(std::make_unique<UnpackedFile>(descriptor, size, type, limits.unpackedBytes));
}

} // namespace VeskFM
