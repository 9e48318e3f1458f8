// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskplatform/favoriteplace.h>

namespace VeskFM
{

FavoritePlace::FavoritePlace() = default;

FavoritePlace::FavoritePlace(const QString &name)
    : m_name(name)
    , m_valid(true)
{
}

bool FavoritePlace::isValid() const
{
    return m_valid;
}

QString FavoritePlace::name() const
{
    return m_name;
}

} // namespace VeskFM
