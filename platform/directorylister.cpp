// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "directorylister.h"

#include "listingorder.h"
#include "localentrydata.h"
#include "opendirectory.h"
#include "pathcodec.h"

#include <QAtomicInt>
#include <QThread>
#include <QVarLengthArray>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <limits>
#include <memory>
#include <mutex>
#include <system_error>
#include <thread>
#include <vector>

namespace VeskFM
{

namespace
{
constexpr int namesPerChunk = 256; // few enough that the kernel's records of them are still in the processor's cache
constexpr int chunksAlone = 4;     // for fewer a second thread costs more than it saves
constexpr int mostThreads = 4;     // the kernel's directory locks leave nothing to more

struct DirCloser
{
    void operator()(DIR *dir) const { closedir(dir); }
};
using DirHandle = std::unique_ptr<DIR, DirCloser>;

/// The stream takes over what @p directory has opened. Null when that is nothing.
DirHandle streamOf(OpenDirectory *directory)
{
    DirHandle stream(directory->error() ? nullptr : fdopendir(directory->descriptor()));
    if (stream)
        directory->takeDescriptor();
    return stream;
}

struct FoundName
{
    quint32 offset;
    quint16 size;
    quint8 kind; // as readdir() has it
};

/// Some names of a directory, in one block.
struct NameChunk
{
    std::vector<char> text; // each with its NUL
    std::vector<FoundName> names;

    NameChunk()
    {
        names.reserve(namesPerChunk);
        text.reserve(size_t(namesPerChunk) * 24);
    }
    void clear()
    {
        text.clear();
        names.clear();
    }
    void add(const dirent *found)
    {
        const size_t size = strlen(found->d_name);
        names.push_back({quint32(text.size()), quint16(size), found->d_type});
        text.insert(text.end(), found->d_name, found->d_name + size + 1);
    }
};

/// Without a look at the node itself.
bool mayBeContainer(const char *name, int kind, int nameSize, bool archivesAsFiles)
{
    if (kind == DT_REG)
        return !archivesAsFiles && LocalFacts::isArchiveName(name, nameSize);
    return kind == DT_DIR || kind == DT_LNK || kind == DT_UNKNOWN;
}

/// Makes rows of names: one system call each, two for links.
class RowMaker
{
public:
    RowMaker(int fd, const QString &directory, VFS::EntryChildFilters filters)
        : m_fd(fd)
        , m_prefix(directory.endsWith(QLatin1Char('/')) ? directory : directory + QLatin1Char('/'))
        , m_unportable(PathCodec::isPortable(directory) ? 0 : LocalFacts::Unportable)
        , m_containersOnly(filters.testFlag(VFS::ContainersOnly))
        , m_archivesAsFiles(filters.testFlag(VFS::ArchivesAsFiles))
    {
    }

    /// Null for what is gone or not wanted.
    LocalEntryData *make(const char *name, const FoundName &found) const
    {
        if (m_containersOnly && !mayBeContainer(name, found.kind, found.size, m_archivesAsFiles))
            return nullptr;
        struct stat own;
        struct stat target;
        if (fstatat(m_fd, name, &own, AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT) != 0) {
            if (errno != EACCES)
                return nullptr;
            own = {}; // the directory lets its names be read and nothing else: what readdir() says is all we get
            own.st_mode = DTTOIF(found.kind);
        }
        const bool link = S_ISLNK(own.st_mode);
        const bool reached = link && fstatat(m_fd, name, &target, 0) == 0;
        LocalFacts facts = LocalFacts::of(own, reached ? &target : nullptr, name, found.size, m_archivesAsFiles);
        if (m_containersOnly && (facts.kind == Entry::File || facts.kind == Entry::FileLink))
            return nullptr;
        int nameSize = 0;
        const QString path = pathOf(name, found.size, &nameSize, &facts);
        if (!link)
            return new LocalEntryData(path, nameSize, facts);
        char text[PATH_MAX];
        const ssize_t size = readlinkat(m_fd, name, text, sizeof text);
        return new LocalLinkData(path, nameSize, facts,
                                 PathCodec::decode(QByteArray(text, int(qMax<ssize_t>(size, 0)))));
    }

private:
    QString pathOf(const char *name, int size, int *nameSize, LocalFacts *facts) const
    {
        QVarLengthArray<QChar, 512> units(size * PathCodec::unitsPerByte); // longer than that on foreign disks only
        bool escaped = false;
        *nameSize = PathCodec::decode(name, size, units.data(), &escaped);
        QString path(m_prefix.size() + *nameSize, Qt::Uninitialized);
        std::copy(m_prefix.cbegin(), m_prefix.cend(), path.data());
        std::copy_n(units.cbegin(), *nameSize, path.data() + m_prefix.size());
        facts->flags |= m_unportable;
        const bool ascii = *nameSize == size
            && std::all_of(units.begin(), units.begin() + size, [](QChar unit) { return unit.unicode() < 0x80; });
        if (!ascii && (escaped || !PathCodec::isPortable(path)))
            facts->flags |= LocalFacts::Unportable;
        return path;
    }

    const int m_fd;
    const QString m_prefix;
    const quint16 m_unportable;
    const bool m_containersOnly;
    const bool m_archivesAsFiles;
};

/// One listing under way. Each thread reads some names, makes rows of them, and comes back for more; in the end it sorts
/// what it made.
class Listing
{
public:
    Listing(DIR *dir, const RowMaker &maker, const QAtomicInt *cancel)
        : m_dir(dir)
        , m_maker(maker)
        , m_cancel(cancel)
    {
    }

    EntryList run()
    {
        m_rows.resize(1);
        makeRows(&m_rows.front(), chunksAlone);
        std::vector<std::thread> helpers;
        if (!m_allRead) {
            m_rows.resize(size_t(qBound(1, QThread::idealThreadCount(), mostThreads)));
            for (size_t i = 1; i < m_rows.size(); ++i)
                startHelper(&helpers, &m_rows[i]);
        }
        makeRows(&m_rows.front(), std::numeric_limits<int>::max());
        for (std::thread &helper : helpers)
            helper.join();
        std::sort(m_rows.front().rbegin(), m_rows.front().rend());
        return merged();
    }

private:
    using Rows = std::vector<ListingRow>;

    bool isCancelled() const { return m_cancel && m_cancel->loadRelaxed() != 0; }

    void startHelper(std::vector<std::thread> *helpers, Rows *rows)
    {
        const auto work = [this, rows] {
            makeRows(rows, std::numeric_limits<int>::max());
            std::sort(rows->rbegin(), rows->rend());
        };
        try {
            helpers->emplace_back(work);
        } catch (const std::system_error &) {
            // No more threads to be had: those there are do it all.
        }
    }

    void makeRows(Rows *rows, int chunks)
    {
        NameChunk chunk;
        for (; chunks > 0 && readChunk(&chunk); --chunks) {
            for (const FoundName &found : chunk.names) {
                if (isCancelled())
                    return;
                if (LocalEntryData *const data = m_maker.make(chunk.text.data() + found.offset, found))
                    rows->emplace_back(data);
            }
        }
    }

    /// False when there are no more names.
    bool readChunk(NameChunk *chunk)
    {
        chunk->clear();
        const std::lock_guard<std::mutex> lock(m_readMutex);
        while (!m_allRead && chunk->names.size() < size_t(namesPerChunk)) {
            const dirent *const found = isCancelled() ? nullptr : readdir(m_dir);
            if (!found)
                m_allRead = true;
            else if (!isDotOrDotDot(found->d_name))
                chunk->add(found);
        }
        return !chunk->names.empty();
    }

    /// The sorted lists as one, last row first.
    EntryList merged()
    {
        size_t total = 0;
        for (const Rows &rows : m_rows)
            total += rows.size();
        EntryList entries;
        entries.reserve(int(total));
        std::vector<const ListingRow *> heads;
        for (const Rows &rows : m_rows)
            heads.push_back(rows.data());
        for (; total > 0; --total) {
            const ListingRow **next = nullptr;
            for (size_t i = 0; i < m_rows.size(); ++i) {
                const bool left = heads[i] != m_rows[i].data() + m_rows[i].size();
                if (left && (!next || **next < *heads[i]))
                    next = &heads[i];
            }
            entries.append(Entry((*next)->data));
            ++*next;
        }
        return entries;
    }

    DIR *const m_dir;
    const RowMaker &m_maker;
    const QAtomicInt *const m_cancel;
    std::vector<Rows> m_rows; // one list for each thread
    std::mutex m_readMutex;   // guards the directory stream and the flag
    bool m_allRead = false;
};
} // namespace

DirectoryListing listDirectory(const QString &path, VFS::EntryChildFilters filters, const QAtomicInt *cancel)
{
    DirectoryListing result;
    OpenDirectory directory(path);
    const DirHandle stream = streamOf(&directory);
    if (!stream) {
        result.error = directory.error() ? directory.error() : errno;
        return result;
    }
    const RowMaker maker(dirfd(stream.get()), path, filters);
    result.entries = Listing(stream.get(), maker, cancel).run();
    return result;
}

bool hasContainer(const QString &path)
{
    OpenDirectory directory(path);
    const DirHandle dir = streamOf(&directory);
    if (!dir)
        return false;
    while (const dirent *const found = readdir(dir.get())) {
        if (isDotOrDotDot(found->d_name))
            continue;
        if (found->d_type == DT_DIR)
            return true;
        struct stat node;
        const int size = int(strlen(found->d_name));
        if (mayBeContainer(found->d_name, found->d_type, size, false)
            && fstatat(dirfd(dir.get()), found->d_name, &node, AT_NO_AUTOMOUNT) == 0
            && (S_ISDIR(node.st_mode) || LocalFacts::isArchive(node, found->d_name, size)))
            return true;
    }
    return false;
}

} // namespace VeskFM
