// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "filecontents.h"

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <limits>
#include <memory>

namespace
{

constexpr off_t bytesPerStep = 16 * 1024 * 1024; // between two looks at the request to stop
constexpr size_t bufferSize = 256 * 1024;
constexpr off_t bytesPerBlock = 512; // the unit of st_blocks

/// Whether two file systems never do it, rather than with this file only.
bool isNeverSupported(int error)
{
    return error == EXDEV || error == EOPNOTSUPP || error == ENOSYS || error == ENOTTY;
}

bool isUnsupported(int error)
{
    return isNeverSupported(error) || error == EINVAL || error == EPERM || error == ETXTBSY;
}

} // namespace

Result FileContents::copy(int from, const struct stat &facts, int to)
{
    if (facts.st_size == 0) // files of the kernel say so, too, and hold something
        return copyRange(from, to, 0, std::numeric_limits<off_t>::max());
    if (m_canShareBlocks) {
        if (ioctl(to, FICLONE, from) == 0) {
            m_progress->add(facts.st_size);
            return Result::Success;
        }
        m_canShareBlocks = !isNeverSupported(errno);
    }
    const bool hasHoles = facts.st_blocks * bytesPerBlock < facts.st_size;
    return hasHoles ? copySegments(from, to, facts.st_size) : copyRange(from, to, 0, facts.st_size);
}

/// Copies the parts of a file that hold data, and leaves the rest out.
Result FileContents::copySegments(int from, int to, off_t size)
{
    off_t end = 0;
    while (end < size) {
        const off_t begin = lseek(from, end, SEEK_DATA);
        if (begin < 0 && errno == ENXIO) // a hole up to the end
            break;
        if (begin < 0)
            return errno == EINVAL ? copyRange(from, to, end, size) : resultOfError(errno);
        m_progress->add(std::min(begin, size) - end);
        if (begin >= size)
            break;
        const off_t hole = lseek(from, begin, SEEK_HOLE);
        if (hole < 0)
            return resultOfError(errno);
        end = std::min(hole, size);
        const Result result = copyRange(from, to, begin, end);
        if (result != Result::Success)
            return result;
    }
    m_progress->add(size - end);
    return ftruncate(to, size) == 0 ? Result::Success : resultOfError(errno);
}

/// Ends early, and well, where the file ends: it may have become shorter.
Result FileContents::copyRange(int from, int to, off_t begin, off_t end)
{
    off_t position = begin;
    while (position < end) {
        if (m_progress->isCancelled())
            return Result::Cancelled;
        const auto length = size_t(std::min(end - position, bytesPerStep));
        const bool isOfKnownSize = end < std::numeric_limits<off_t>::max();
        ssize_t copied = isOfKnownSize && m_canCopyInKernel ? copyInKernel(from, to, position, length) : 0;
        if (copied == 0) // the kernel also says so of files that it makes up while they are read
            copied = readAndWrite(from, to, position, length);
        if (copied < 0)
            return resultOfError(errno);
        if (copied == 0)
            return Result::Success;
        position += copied;
        m_progress->add(copied);
    }
    return Result::Success;
}

/// The number of bytes, 0 when there is another way to try, -1 with errno.
ssize_t FileContents::copyInKernel(int from, int to, off_t position, size_t length)
{
    off_t in = position;
    off_t out = position;
    ssize_t copied = 0;
    do {
        copied = copy_file_range(from, &in, to, &out, length, 0);
    } while (copied < 0 && errno == EINTR);
    if (copied >= 0 || !isUnsupported(errno))
        return copied;
    m_canCopyInKernel = false;
    return 0;
}

ssize_t FileContents::readAndWrite(int from, int to, off_t position, size_t length)
{
    const std::unique_ptr<char[]> buffer(new char[bufferSize]);
    size_t copied = 0;
    while (copied < length) {
        const ssize_t got = pread(from, buffer.get(), std::min(bufferSize, length - copied), position + off_t(copied));
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return -1;
        if (got == 0)
            break;
        for (ssize_t written = 0; written < got;) {
            const ssize_t step =
                pwrite(to, buffer.get() + written, size_t(got - written), position + off_t(copied) + written);
            if (step < 0 && errno != EINTR)
                return -1;
            written += std::max<ssize_t>(step, 0);
        }
        copied += size_t(got);
    }
    return ssize_t(copied);
}
