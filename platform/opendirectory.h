// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

namespace VeskFM
{

/// A directory of the disk, open for reading as long as the object lives.
class OpenDirectory
{
public:
    explicit OpenDirectory(const QString &path); ///< blocks
    ~OpenDirectory();

    int error() const { return m_error; } ///< errno; 0 when it is open
    int descriptor() const { return m_descriptor; }
    int takeDescriptor(); ///< for the caller to close

private:
    Q_DISABLE_COPY(OpenDirectory)

    int m_descriptor = -1;
    int m_error = 0;
};

inline bool isDotOrDotDot(const char *name)
{
    return name[0] == '.' && (name[1] == '\0' || (name[1] == '.' && name[2] == '\0'));
}

} // namespace VeskFM
