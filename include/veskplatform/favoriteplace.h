// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/export.h>

#include <QMetaType>
#include <QString>

namespace VeskFM
{

/// A favorite place and the user's label for it. A plain value. Thread: any.
class VESKPLATFORM_EXPORT FavoritePlace
{
public:
    FavoritePlace(); ///< no place
    explicit FavoritePlace(const QString &name);

    bool isValid() const;
    QString name() const;

private:
    QString m_name;
    bool m_valid = false;
};

} // namespace VeskFM

Q_DECLARE_METATYPE(VeskFM::FavoritePlace)
