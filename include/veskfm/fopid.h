// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/export.h>

#include <QMetaType>
#include <QString>

namespace VeskFM
{

/// Identifies an issued file operation by a stamp: the method's name, the process id and the second of issue. Two of the
/// same operation, process and second are equal. A plain value.
class VESKFM_EXPORT FOpId
{
public:
    FOpId() = default;                        ///< null
    explicit FOpId(const QString &operation); ///< stamped now
    static FOpId fromStamp(const QString &stamp);

    QString stamp() const { return m_stamp; }
    bool isNull() const { return m_stamp.isEmpty(); }

    friend bool operator==(const FOpId &a, const FOpId &b) { return a.m_stamp == b.m_stamp; }
    friend bool operator!=(const FOpId &a, const FOpId &b) { return a.m_stamp != b.m_stamp; }
    friend bool operator<(const FOpId &a, const FOpId &b) { return a.m_stamp < b.m_stamp; }

private:
    QString m_stamp;
};

VESKFM_EXPORT uint qHash(const FOpId &id, uint seed = 0);

} // namespace VeskFM

Q_DECLARE_METATYPE(VeskFM::FOpId)
