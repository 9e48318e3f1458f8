// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "trashdirsizes.h"

#include "smallfile.h"
#include "trashinfo.h"

namespace
{

constexpr qint64 largestFile = 64 << 20; // bytes: a million directories

} // namespace

TrashDirSizes::TrashDirSizes(const QByteArray &file)
    : m_file(file)
{
    QByteArray content;
    if (!readSmallFile(file, largestFile, &content))
        return;
    const QList<QByteArray> lines = content.split('\n');
    for (const QByteArray &line : lines) {
        const QList<QByteArray> fields = line.split(' ');
        bool sizeIsNumber = false;
        bool timeIsNumber = false;
        QByteArray name;
        if (fields.size() != 3 || !trashPercentDecoded(fields.at(2), &name))
            continue;
        const Record record{fields.at(0).toLongLong(&sizeIsNumber), fields.at(1).toLongLong(&timeIsNumber)};
        if (sizeIsNumber && timeIsNumber && record.size >= 0)
            m_records.insert(name, record);
    }
}

qint64 TrashDirSizes::size(const QByteArray &name, qint64 infoTime) const
{
    const auto record = m_records.constFind(name);
    return record != m_records.constEnd() && record->infoTime == infoTime ? record->size : -1;
}

void TrashDirSizes::insert(const QByteArray &name, qint64 size, qint64 infoTime)
{
    m_records.insert(name, {size, infoTime});
    m_changed = true;
}

void TrashDirSizes::remove(const QByteArray &name)
{
    if (m_records.remove(name) > 0)
        m_changed = true;
}

void TrashDirSizes::save()
{
    if (!m_changed)
        return;
    QByteArray content;
    for (auto record = m_records.cbegin(); record != m_records.cend(); ++record) {
        content += QByteArray::number(record->size) + ' ' + QByteArray::number(record->infoTime) + ' '
            + trashPercentEncoded(record.key()) + '\n';
    }
    replaceFile(m_file, content);
    m_changed = false;
}
