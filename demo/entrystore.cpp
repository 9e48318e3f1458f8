// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "entrystore.h"

#include <thread>

using namespace VeskFM;

void EntryStore::append(Entry &&entry)
{
    if (m_size % chunkSize == 0)
        m_chunks.emplace_back(new Entry[chunkSize], std::default_delete<Entry[]>());
    m_chunks.back().get()[m_size % chunkSize] = std::move(entry);
    ++m_size;
}

void EntryStore::clearInBackground()
{
    if (m_size == 0)
        return;
    auto *const doomed = new EntryStore(std::move(*this));
    *this = {};
    std::thread([doomed] { delete doomed; }).detach();
}
