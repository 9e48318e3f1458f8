// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entry.h>

#include <QObject>
#include <QVariant>

namespace VeskFM
{
class PropertyDataHolder;
class PropertyEnumerator;
} // namespace VeskFM

/// The values that the property engine has for one entry. What takes long is computed in the background.
class EntryValues : public QObject
{
    Q_OBJECT

public:
    explicit EntryValues(const VeskFM::Entry &entry, QObject *parent = nullptr);
    ~EntryValues() override;

    QVariant value(int property, int role = Qt::DisplayRole) const; ///< as far as it is known

Q_SIGNALS:
    void changed(); ///< more is known

private:
    const VeskFM::Entry m_entry;
    VeskFM::PropertyEnumerator *const m_properties; // borrowed from Props
    VeskFM::PropertyDataHolder *const m_holder;     // one reference
};
