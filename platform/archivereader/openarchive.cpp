// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "openarchive.h"

#include "inflatingsource.h"
#include "sevenzipreader.h"
#include "tarreader.h"
#include "unpackingsource.h"
#include "zipreader.h"

namespace VeskFM
{

namespace
{
/// The unpacked bytes of a file that is one compressed stream; it owns the file's.
template <typename Source> class UnpackedFile : public ByteSource
{
public:
    template <typename Kind>
    UnpackedFile(int descriptor, qint64 size, Kind kind, qint64 limit)
        : m_file(descriptor, 0, size)
        , m_source(&m_file, kind, limit)
    {
    }
    qint64 read(char *data, qint64 size) override { return m_source.read(data, size); }
    bool rewind() override { return m_source.rewind(); }
    bool finish() override { return m_source.finish(); }
    bool isTooLarge() const override { return m_source.isTooLarge(); }

private:
    FileSource m_file;
    Source m_source;
};

/// A program that extracts itself ends with the archive.
bool isProgram(const QByteArray &start)
{
    return start.startsWith("MZ") || start.startsWith("#!")
        || start.startsWith("\x7f"
                            "ELF");
}

/// What a tar archive is read from, given the first bytes of the file.
std::unique_ptr<ByteSource> unpacked(const QByteArray &start, int descriptor, qint64 size, qint64 limit)
{
    static const QByteArray xz("\xfd"
                               "7zXZ\0",
                               6);
    const auto make = [&](KCompressionDevice::CompressionType type) {
        return std::make_unique<UnpackedFile<UnpackingSource>>(descriptor, size, type, limit);
    };
    if (start.startsWith("\x1f\x8b"))
        return std::make_unique<UnpackedFile<InflatingSource>>(descriptor, size, InflatingSource::Gzip, limit);
    if (start.startsWith("BZh"))
        return make(KCompressionDevice::BZip2);
    if (start.startsWith(xz))
        return make(KCompressionDevice::Xz);
    if (start.startsWith("\x28\xb5\x2f\xfd"))
        return make(KCompressionDevice::Zstd);
    return std::make_unique<FileSource>(descriptor, 0, size);
}
} // namespace

std::unique_ptr<MemberReader> openArchive(int descriptor, qint64 size, const ArchiveLimits &limits)
{
    constexpr int longestMagic = 6;
    QByteArray start(longestMagic, '\0');
    FileSource(descriptor, 0, size).readFully(start.data(), start.size());
    if (start.startsWith("PK\x03\x04") || start.startsWith("PK\x05\x06") || isProgram(start))
        return std::make_unique<ZipReader>(descriptor, size);
    if (start.startsWith("7z\xbc\xaf\x27\x1c"))
        return std::make_unique<SevenZipReader>(descriptor, size, limits.entries);
    return std::make_unique<TarReader>(unpacked(start, descriptor, size, limits.unpackedBytes));
}

} // namespace VeskFM
