// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "archiverecords.h"

namespace VeskFM
{

QDataStream &operator<<(QDataStream &stream, const ArchiveNodeRecord &record)
{
    return stream << record.parent << record.kind << record.isExecutable << record.size << record.modifiedMs
                  << record.target << record.name << record.link;
}

QDataStream &operator>>(QDataStream &stream, ArchiveNodeRecord &record)
{
    return stream >> record.parent >> record.kind >> record.isExecutable >> record.size >> record.modifiedMs
        >> record.target >> record.name >> record.link;
}

} // namespace VeskFM
