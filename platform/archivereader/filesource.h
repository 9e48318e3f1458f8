// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <archive.h>

#include <QtGlobal>

#include <vector>

namespace VeskFM
{

/// An open file as something that libarchive reads. With its own access to files, it passes over content that is not there
/// without noticing.
class FileSource
{
public:
    FileSource(int descriptor, qint64 size); ///< borrows @p descriptor

    /// Lets @p handle read the file from its start, once. Returns the code of libarchive.
    int open(archive *handle);

private:
    static la_ssize_t read(archive *handle, void *source, const void **block);
    static la_int64_t skip(archive *handle, void *source, la_int64_t size);
    static la_int64_t seek(archive *handle, void *source, la_int64_t offset, int origin);

    const int m_descriptor;
    const qint64 m_size;
    qint64 m_position = 0;
    std::vector<char> m_block;
};

} // namespace VeskFM
