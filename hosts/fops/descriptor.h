// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <unistd.h>

#include <utility>

/// Owns a file descriptor.
class Descriptor
{
public:
    Descriptor() = default;
    explicit Descriptor(int fd)
        : m_fd(fd)
    {
    }
    Descriptor(Descriptor &&other) noexcept
        : m_fd(std::exchange(other.m_fd, -1))
    {
    }
    Descriptor &operator=(Descriptor &&other) noexcept
    {
        std::swap(m_fd, other.m_fd);
        return *this;
    }
    ~Descriptor() { close(); }

    explicit operator bool() const { return m_fd >= 0; }
    int get() const { return m_fd; }
    int release() { return std::exchange(m_fd, -1); }
    /// Returns false when data that was written is lost after all, with errno set.
    bool close() { return m_fd < 0 || ::close(std::exchange(m_fd, -1)) == 0; }

private:
    int m_fd = -1;
};
