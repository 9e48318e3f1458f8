// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/export.h>

#include <QMetaType>
#include <QString>

namespace VeskFM
{

/// The storage device behind a place entry. A plain value. Thread: any.
class VESKPLATFORM_EXPORT StoragePlace
{
public:
    StoragePlace(); ///< no device
    /// @param type kind of device: 1 floppy, 2 optical, 3 USB stick, 4 hard disk, 5 SD/MMC, 6 memory stick,
    ///             7 compact flash, 8 smart media, 10 media player
    StoragePlace(int type, const QString &iconName, const QString &labelName, bool mounted);

    bool isValid() const;
    int type() const;
    QString iconName() const;
    QString labelName() const;
    bool isMounted() const;

private:
    QString m_iconName;
    QString m_labelName;
    int m_type = 0;
    bool m_valid = false;
    bool m_mounted = false;
};

} // namespace VeskFM

Q_DECLARE_METATYPE(VeskFM::StoragePlace)
