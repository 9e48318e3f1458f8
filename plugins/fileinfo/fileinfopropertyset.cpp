// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "fileinfopropertyset.h"

#include "diskpath.h"
#include "permissiontext.h"

#include <veskfm/core.h>
#include <veskfm/entryviewparameters.h>
#include <veskplatform/archivemount.h>
#include <veskplatform/entry.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QLocale>
#include <QThread>

#include <cstring>
#include <thread>

#include <sys/stat.h>

namespace VeskFM
{

namespace
{

constexpr int sortKeyRole = 256;
constexpr int badEntryRole = 257;
constexpr int bytesRole = 259;
constexpr int refineAttempts = 2; // a file that changes all the time must not hold up the others in the queue

constexpr const char *columnNames[] = {QT_TRANSLATE_NOOP("FileInfo", "Size"), QT_TRANSLATE_NOOP("FileInfo", "Modified"),
                                       QT_TRANSLATE_NOOP("FileInfo", "Owner"),
                                       QT_TRANSLATE_NOOP("FileInfo", "Permissions")};

QString sizeText(qint64 bytes)
{
    if (EntryViewParameters::ptr()->showFileSizeInBytes())
        return QCoreApplication::translate("FileInfo", "%1 B").arg(bytes);
    return Core::dataSizeAsString(bytes);
}

bool isGuiThread()
{
    const QCoreApplication *const application = QCoreApplication::instance();
    return application && QThread::currentThread() == application->thread();
}

} // namespace

class FileInfoPropertySet::Guard
{
public:
    explicit Guard(const FileInfoPropertySet *set)
        : m_lock(set->m_lock)
    {
        while (m_lock.test_and_set(std::memory_order_acquire))
            std::this_thread::yield();
    }
    ~Guard() { m_lock.clear(std::memory_order_release); }
    Q_DISABLE_COPY_MOVE(Guard)

private:
    std::atomic_flag &m_lock;
};

QVariant FileInfoPropertySet::headerData(int index, int role)
{
    if (index < 0 || index >= ColumnCount)
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return QCoreApplication::translate("FileInfo", columnNames[index]);
    case sortKeyRole:
        return QString::fromLatin1(columnNames[index]);
    default:
        return {};
    }
}

void FileInfoPropertySet::prepare(const Entry &entry)
{
    const bool isMissing = !entry.isPlace() && !entry.isExists() && !entry.isSymLink();
    const bool hasSize = entry.isFile() || entry.isArchiveMountPoint();
    m_size = isMissing ? unreadable : hasSize ? entry.fileSize() : noSize;
    const Guard guard(this);
    m_facts = Facts();
    ++m_generation;
}

QVariant FileInfoPropertySet::value(const Entry &entry, int index, int role) const
{
    if (index == Size)
        return sizeValue(entry, role);
    if (role != Qt::DisplayRole && role != sortKeyRole)
        return {};
    if (index == Modified)
        return modifiedValue(entry, role);
    const Facts known = facts(entry);
    const bool isKnown = known.known == Known::Facts;
    if (index == Owner)
        return isKnown ? userName(known.uid) : QString();
    if (index == Permissions)
        return isKnown ? permissionText(known.mode) : QString();
    return {};
}

QVariant FileInfoPropertySet::sizeValue(const Entry &entry, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
        return m_size < 0 ? QString() : sizeText(m_size);
    case Qt::TextAlignmentRole:
        return int(Qt::AlignRight | Qt::AlignVCenter);
    case sortKeyRole:
    case bytesRole:
        return qlonglong(qMax<qint64>(m_size, 0));
    case badEntryRole:
        return m_size == unreadable || facts(entry).known == Known::Failure;
    default:
        return {};
    }
}

QVariant FileInfoPropertySet::modifiedValue(const Entry &entry, int role) const
{
    const Facts known = facts(entry);
    if (known.known != Known::Facts && known.known != Known::Time)
        return role == sortKeyRole ? QVariant(QDateTime()) : QVariant(QString());
    if (role == sortKeyRole) // in UTC, which needs no time-zone look-up
        return QDateTime::fromMSecsSinceEpoch(known.modifiedMs, Qt::UTC);
    return QLocale().toString(QDateTime::fromMSecsSinceEpoch(known.modifiedMs), QLocale::ShortFormat);
}

bool FileInfoPropertySet::canRefineData(const Entry &entry) const
{
    return !entry.isNull() && !entry.isPurePlace();
}

void FileInfoPropertySet::refineData(const Entry &entry)
{
    if (isGuiThread()) { // sorting asks for this before the first key; by size, no file needs to be looked at
        const Guard guard(this);
        m_facts.known = Known::WhenAsked;
        return;
    }
    for (int attempt = 0; attempt < refineAttempts; ++attempt) {
        quint16 generation = 0;
        {
            const Guard guard(this);
            generation = m_generation;
        }
        const Facts fresh = read(entry);
        const Guard guard(this);
        if (m_generation == generation) {
            m_facts = fresh;
            return;
        }
    }
}

FileInfoPropertySet::Facts FileInfoPropertySet::read(const Entry &entry)
{
    Facts facts;
    facts.modifiedMs = ArchiveMount::modifiedMs(entry);
    if (facts.modifiedMs != 0) {
        facts.known = Known::Time;
        return facts;
    }
    const QByteArray path = diskPath(entry);
    if (path.isEmpty())
        return facts;
    struct stat found = {};
    if (lstat(path.constData(), &found) != 0) {
        facts.known = Known::Failure;
        return facts;
    }
    facts.modifiedMs = qint64(found.st_mtim.tv_sec) * 1000 + found.st_mtim.tv_nsec / 1000000;
    facts.uid = found.st_uid;
    facts.mode = quint16(found.st_mode);
    facts.known = Known::Facts;
    userName(facts.uid); // asked here, so that it is known when the owner's thread shows it
    return facts;
}

FileInfoPropertySet::Facts FileInfoPropertySet::facts(const Entry &entry) const
{
    {
        const Guard guard(this);
        if (m_facts.known != Known::WhenAsked)
            return m_facts;
    }
    const Facts fresh = read(entry);
    const Guard guard(this);
    m_facts = fresh;
    return fresh;
}

} // namespace VeskFM
