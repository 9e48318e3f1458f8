// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QList>
#include <QMetaType>
#include <QString>

namespace VeskFM
{

/// One running process.
struct ProcessInfo
{
    qint64 pid = 0;
    QString name;
    QString command; ///< the command line

    friend bool operator==(const ProcessInfo &a, const ProcessInfo &b)
    {
        return a.pid == b.pid && a.name == b.name && a.command == b.command;
    }
    friend bool operator!=(const ProcessInfo &a, const ProcessInfo &b) { return !(a == b); }
};

using ProcessInfoList = QList<ProcessInfo>;

} // namespace VeskFM

Q_DECLARE_METATYPE(VeskFM::ProcessInfo)
Q_DECLARE_METATYPE(VeskFM::ProcessInfoList)
