// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QByteArray>
#include <QHash>

/// The sizes of trashed directories that are known already: the file "directorysizes" of the Trash specification 1.0 of
/// freedesktop.org, which programs share. A size holds as long as the item's ".trashinfo" file is not written again.
class TrashDirSizes
{
public:
    explicit TrashDirSizes(const QByteArray &file); ///< reads it; what is odd in it is left out

    /// The size in bytes; -1 when it is unknown or outdated.
    qint64 size(const QByteArray &name, qint64 infoTime) const;
    void insert(const QByteArray &name, qint64 size, qint64 infoTime);
    void remove(const QByteArray &name);
    template <typename Predicate> void removeUnless(Predicate isThere)
    {
        for (auto record = m_records.begin(); record != m_records.end();) {
            if (isThere(record.key())) {
                ++record;
            } else {
                record = m_records.erase(record);
                m_changed = true;
            }
        }
    }
    /// Replaces the file in one step, if anything changed. A failure loses a cache and is not reported.
    void save();

private:
    struct Record
    {
        qint64 size = 0;     // bytes on disk
        qint64 infoTime = 0; // modification of the ".trashinfo" file, seconds since the Unix epoch
    };

    const QByteArray m_file;
    QHash<QByteArray, Record> m_records; // by the name in the trash
    bool m_changed = false;
};
