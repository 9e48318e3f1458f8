// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entrylist.h>

/// The places that a pane has been at, as a browser keeps them. A plain value.
class DirectoryHistory
{
public:
    bool hasEarlier() const { return !m_earlier.isEmpty(); }
    bool hasLater() const { return !m_later.isEmpty(); }

    void leave(const VeskFM::Entry &directory); ///< for a new place, after which nothing is later
    /// One step, away from @p current. Null when there is nowhere to go.
    VeskFM::Entry back(const VeskFM::Entry &current);
    VeskFM::Entry forward(const VeskFM::Entry &current);

private:
    static VeskFM::Entry step(VeskFM::EntryList *from, VeskFM::EntryList *to, const VeskFM::Entry &current);

    VeskFM::EntryList m_earlier; // the latest last
    VeskFM::EntryList m_later;   // the next last
};
