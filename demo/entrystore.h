// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entry.h>

#include <memory>
#include <vector>

/// Entries by the million, which only grow in number. A copy costs next to nothing and stays as it is, so that a worker
/// can read one while its owner appends to the other; and what takes long to free can be freed elsewhere.
class EntryStore
{
public:
    size_t size() const { return m_size; }
    const VeskFM::Entry &at(size_t place) const { return m_chunks[place / chunkSize].get()[place % chunkSize]; }
    void append(VeskFM::Entry &&entry); ///< for one of the copies only
    void clearInBackground();           ///< the memory is given back by another thread

private:
    static constexpr size_t chunkSize = 4096;

    std::vector<std::shared_ptr<VeskFM::Entry>> m_chunks; // arrays; shared by copies, each entry is written once
    size_t m_size = 0;
};
