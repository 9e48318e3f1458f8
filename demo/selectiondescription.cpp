// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "selectiondescription.h"

#include "retiredthread.h"

#include <veskfm/entrydescribethread.h>

#include <utility>

using namespace VeskFM;

SelectionDescription::SelectionDescription(QObject *parent)
    : QObject(parent)
{
}

SelectionDescription::~SelectionDescription()
{
    retire();
    delete m_thread;
}

void SelectionDescription::describe(const EntryList &entries)
{
    retire();
    m_entries = entries;
    if (!m_thread) {
        m_thread = new EntryDescribeThread;
        connect(m_thread, &EntryDescribeThread::descriptionUpdated, this, &SelectionDescription::updated);
        connect(m_thread, &EntryDescribeThread::finished, this, &SelectionDescription::finished);
    }
    begin();
}

void SelectionDescription::clear()
{
    retire();
    delete std::exchange(m_thread, nullptr);
    m_entries.clear();
}

/// Parts with the thread while it works: to describe something else with it, or to delete it, would be to wait.
void SelectionDescription::retire()
{
    if (!m_thread || !m_thread->isRunning())
        return;
    m_unending = std::exchange(m_thread, nullptr);
    m_unending->cancel();
    disconnect(m_unending, nullptr, this, nullptr);
    connect(m_unending, &QThread::finished, this, [this] {
        m_unending.clear();
        if (m_thread)
            begin();
    });
    retireThread(m_unending);
}

void SelectionDescription::begin()
{
    m_thread->describe(m_entries);
    if (m_unending)
        m_thread->cancel();
}
