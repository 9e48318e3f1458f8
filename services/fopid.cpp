// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/fopid.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QHash>

namespace VeskFM
{

FOpId::FOpId(const QString &operation)
    : m_stamp(operation + QString::number(QCoreApplication::applicationPid())
              + QString::number(QDateTime::currentSecsSinceEpoch()))
{
}

FOpId FOpId::fromStamp(const QString &stamp)
{
    FOpId id;
    id.m_stamp = stamp;
    return id;
}

uint qHash(const FOpId &id, uint seed)
{
    return qHash(id.stamp(), seed);
}

} // namespace VeskFM
