// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "directoryhistory.h"

using namespace VeskFM;

void DirectoryHistory::leave(const Entry &directory)
{
    m_earlier.append(directory);
    m_later.clear();
}

Entry DirectoryHistory::back(const Entry &current)
{
    return step(&m_earlier, &m_later, current);
}

Entry DirectoryHistory::forward(const Entry &current)
{
    return step(&m_later, &m_earlier, current);
}

Entry DirectoryHistory::step(EntryList *from, EntryList *to, const Entry &current)
{
    if (from->isEmpty())
        return {};
    if (!current.isNull())
        to->append(current);
    return from->takeLast();
}
