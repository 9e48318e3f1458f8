// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "contentmatch.h"

#include "diskpath.h"
#include "kernelfilesystem.h"

#include <veskplatform/entry.h>

#include <QTextCodec>

#include <cerrno>
#include <memory>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace VeskFM
{

namespace
{

constexpr int readsTheFile = 100; // after everything that is cheaper
constexpr int pieceSize = 128 * 1024;

bool isRegular(const struct stat &found)
{
    return S_ISREG(found.st_mode);
}

} // namespace

ContentMatch::ContentMatch(const QString &text, Qt::CaseSensitivity sensitivity, const std::atomic<bool> *running)
    : m_text(text, sensitivity)
    , m_running(running)
{
}

bool ContentMatch::match(const Entry &entry) const
{
    if (entry.isDir() || entry.isSymLink() || entry.fileSize() == 0)
        return false;
    const QByteArray path = diskPath(entry);
    struct stat found = {}; // to open some devices is to move them
    if (path.isEmpty() || lstat(path.constData(), &found) != 0 || !isRegular(found))
        return false;
    const int descriptor = open(path.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (descriptor < 0)
        return false;
    const bool canBeRead = fstat(descriptor, &found) == 0 && isRegular(found) && !isInKernelFileSystem(descriptor);
    const bool matches = canBeRead && contains(descriptor);
    close(descriptor);
    return matches;
}

int ContentMatch::priority() const
{
    return readsTheFile;
}

bool ContentMatch::contains(int descriptor) const
{
    QByteArray piece(pieceSize, Qt::Uninitialized);
    std::unique_ptr<QTextDecoder> decoder;
    QString text;
    while (!m_running || m_running->load(std::memory_order_relaxed)) {
        const ssize_t size = read(descriptor, piece.data(), size_t(piece.size()));
        if (size < 0 && errno == EINTR)
            continue;
        if (size <= 0)
            return false;
        if (!decoder) {
            const QByteArray start = QByteArray::fromRawData(piece.constData(), int(size));
            decoder.reset(QTextCodec::codecForUtfText(start, QTextCodec::codecForName("UTF-8"))->makeDecoder());
        }
        text += decoder->toUnicode(piece.constData(), int(size));
        if (m_text.indexIn(text) >= 0)
            return true;
        text = text.right(m_text.pattern().size() - 1); // what is looked for may begin here
    }
    return false;
}

} // namespace VeskFM
