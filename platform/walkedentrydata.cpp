// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "walkedentrydata.h"

#include "pathcodec.h"

#include <cerrno>
#include <cstring>
#include <sys/stat.h>

namespace VeskFM
{

EntryData *WalkedEntryData::make(const QString &directory, const char *name, int size, const LocalFacts &facts,
                                 bool archivesAsFiles)
{
    auto *const made = new (size_t(size)) WalkedEntryData(directory, size, facts, archivesAsFiles);
    memcpy(made->name(), name, size_t(size));
    return made;
}

WalkedEntryData::WalkedEntryData(const QString &directory, int nameSize, const LocalFacts &facts, bool archivesAsFiles)
    : m_kind(facts.kind)
    , m_nameSize(quint16(nameSize))
    , m_flags(quint8(facts.flags))
    , m_archivesAsFiles(archivesAsFiles)
    , m_directory(directory)
{
}

WalkedEntryData::~WalkedEntryData() = default;

void *WalkedEntryData::operator new(size_t size, size_t nameSize)
{
    return ::operator new(size + nameSize);
}

void WalkedEntryData::operator delete(void *memory)
{
    ::operator delete(memory);
}

char *WalkedEntryData::name() const
{
    return reinterpret_cast<char *>(const_cast<WalkedEntryData *>(this) + 1);
}

QString WalkedEntryData::path() const
{
    return m_directory + fileName();
}

int WalkedEntryData::type() const
{
    return mayBeArchive() ? looked().type() : m_kind;
}

bool WalkedEntryData::is(EntryTrait trait) const
{
    switch (trait) {
    case EntryTrait::SymLink:
    case EntryTrait::Hidden:
        return known().is(trait);
    case EntryTrait::Dir: // walks ask it of every entry, and a file that passes for an archive is none either way
        return isLink() ? looked().is(trait) : known().is(trait);
    case EntryTrait::File:
        return mayBeArchive() ? looked().is(trait) : known().is(trait);
    case EntryTrait::Exists:
    case EntryTrait::Executable:
        return looked().is(trait);
    default:
        return mayBeArchive() && looked().is(trait);
    }
}

QString WalkedEntryData::localPath() const
{
    const QString text = path();
    return PathCodec::isPortable(text) ? text : QString();
}

QString WalkedEntryData::fileName() const
{
    return PathCodec::decode(name(), m_nameSize);
}

QString WalkedEntryData::symLinkTarget() const
{
    return isLink() ? looked().symLinkTarget() : QString();
}

QString WalkedEntryData::archiveMountPointOrLocalPath() const
{
    return mayBeArchive() ? looked().archiveMountPointOrLocalPath() : localPath();
}

qint64 WalkedEntryData::fileSize() const
{
    return looked().fileSize();
}

const EntryData &WalkedEntryData::looked() const
{
    std::call_once(m_once, [this] { m_looked = look(); });
    return *m_looked.data();
}

Entry WalkedEntryData::look() const
{
    const Entry found = makeLocalEntry(path(), m_archivesAsFiles);
    return found.isNull() ? assumed() : found;
}

/// Of what cannot be looked at. Where the directory lets its names be read and nothing else, it is there all the same.
Entry WalkedEntryData::assumed() const
{
    struct stat node;
    const bool isGone =
        lstat(PathCodec::encode(path()).constData(), &node) != 0 && errno != EACCES && errno != ENAMETOOLONG;
    LocalFacts facts = known();
    if (facts.kind == Entry::Archive)
        facts.kind = Entry::File; // none that can be entered
    facts.flags &= quint16(isGone ? ~LocalFacts::Exists : ~0);
    if (isLink())
        return Entry(new LocalLinkData(path(), fileName().size(), facts, QString()));
    return Entry(new LocalEntryData(path(), fileName().size(), facts));
}

} // namespace VeskFM
