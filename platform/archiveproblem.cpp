// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskplatform/archiveproblem.h>

#include "archivenodes.h"
#include "archiveproblems.h"

#include <QCoreApplication>
#include <QHash>

#include <cstring>
#include <mutex>

namespace VeskFM
{

namespace
{
constexpr int mostProblems = 1000;

std::mutex mutex;

QHash<QString, QString> &problems()
{
    static auto *const table = new QHash<QString, QString>; // archives are asked about until the process ends
    return *table;
}

const char *wordsOf(ArchiveError error)
{
    switch (error) {
    case ArchiveError::None:
    case ArchiveError::Cancelled:
        break;
    case ArchiveError::Misuse:
    case ArchiveError::NoReader:
        return QT_TRANSLATE_NOOP("ArchiveProblem", "%1 cannot be read: the program that reads archives does not start");
    case ArchiveError::Unreadable:
        return QT_TRANSLATE_NOOP("ArchiveProblem", "%1 cannot be read: %2");
    case ArchiveError::Damaged:
        return QT_TRANSLATE_NOOP("ArchiveProblem", "%1 is damaged, or is no archive");
    case ArchiveError::Encrypted:
        return QT_TRANSLATE_NOOP("ArchiveProblem", "%1 is encrypted");
    case ArchiveError::Unsupported:
        return QT_TRANSLATE_NOOP("ArchiveProblem", "%1 is packed in a way that cannot be unpacked here");
    case ArchiveError::TooManyEntries:
        return QT_TRANSLATE_NOOP("ArchiveProblem", "%1 holds too many files");
    case ArchiveError::TooDeep:
        return QT_TRANSLATE_NOOP("ArchiveProblem", "%1 holds folders that are nested too deeply");
    case ArchiveError::NameTooLong:
        return QT_TRANSLATE_NOOP("ArchiveProblem", "%1 holds a name that is too long");
    case ArchiveError::TooLarge:
        return QT_TRANSLATE_NOOP("ArchiveProblem", "%1 is too large when it is unpacked");
    case ArchiveError::NoSpace:
        return QT_TRANSLATE_NOOP("ArchiveProblem", "There is not enough free space to unpack %1");
    case ArchiveError::CannotWrite:
        return QT_TRANSLATE_NOOP("ArchiveProblem", "%1 cannot be unpacked into the cache directory");
    case ArchiveError::Failed:
        return QT_TRANSLATE_NOOP("ArchiveProblem", "%1 is damaged, or needs too much memory");
    case ArchiveError::Changed:
        return QT_TRANSLATE_NOOP("ArchiveProblem", "%1 has changed");
    }
    return "";
}
} // namespace

QString ArchiveProblems::text(const QString &archive, ArchiveError error, int systemError)
{
    QString text = QCoreApplication::translate("ArchiveProblem", wordsOf(error));
    const QString name = archive.mid(archive.lastIndexOf(QLatin1Char('/')) + 1);
    text.replace(QLatin1String("%2"), QString::fromLocal8Bit(strerror(systemError)));
    return text.replace(QLatin1String("%1"), name); // last: a name may hold a "%2"
}

void ArchiveProblems::set(const QString &archive, const QString &text)
{
    const std::lock_guard<std::mutex> lock(mutex);
    QHash<QString, QString> &table = problems();
    if (text.isEmpty()) {
        table.remove(archive);
        return;
    }
    if (table.size() >= mostProblems)
        table.clear();
    table.insert(archive, text);
}

QString archiveProblem(const Entry &entry)
{
    const QString archive = ArchiveNodes::archiveOf(entry);
    const std::lock_guard<std::mutex> lock(mutex);
    return problems().value(archive);
}

} // namespace VeskFM
