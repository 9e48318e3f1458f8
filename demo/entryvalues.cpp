// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "entryvalues.h"

#include <veskfm/propertydataholder.h>
#include <veskfm/propertyenumerator.h>
#include <veskfm/props.h>

#include <algorithm>

using namespace VeskFM;

EntryValues::EntryValues(const Entry &entry, QObject *parent)
    : QObject(parent)
    , m_entry(entry)
    , m_properties(Props::ptr()->propertyEnumerator())
    , m_holder(m_properties->allocPropertyDataHolder(entry))
{
    m_properties->startProcessing();
    connect(m_properties, &PropertyEnumerator::dataHoldersUpdated, this,
            [this](const EntryPropertyRequestList &requests) {
                if (std::any_of(requests.cbegin(), requests.cend(),
                                [this](const EntryPropertyRequest &request) { return request.holder == m_holder; }))
                    Q_EMIT changed();
            });
    if (!m_holder->isRefined())
        m_holder->delayedRefineAllProperties(entry, m_properties);
}

EntryValues::~EntryValues()
{
    m_properties->releasePropertyDataHolder(m_holder);
    m_properties->stopProcessing();
}

QVariant EntryValues::value(int property, int role) const
{
    return m_holder->propertyValueData(m_entry, property, role, m_properties);
}
