// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskplatform/storageplace.h>

namespace VeskFM
{

StoragePlace::StoragePlace() = default;

StoragePlace::StoragePlace(int type, const QString &iconName, const QString &labelName, bool mounted)
    : m_iconName(iconName)
    , m_labelName(labelName)
    , m_type(type)
    , m_valid(true)
    , m_mounted(mounted)
{
}

bool StoragePlace::isValid() const
{
    return m_valid;
}

int StoragePlace::type() const
{
    return m_type;
}

QString StoragePlace::iconName() const
{
    return m_iconName;
}

QString StoragePlace::labelName() const
{
    return m_labelName;
}

bool StoragePlace::isMounted() const
{
    return m_mounted;
}

} // namespace VeskFM
