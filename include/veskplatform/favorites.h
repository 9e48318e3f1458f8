// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entry.h>

namespace VeskFM
{

/// Changes the favorites of the local VFS: the bookmarks that GTK's file dialogs show, too.
///
/// Each call reads the file, changes it and puts the new one in place in one step; lines that are no favorites stay as
/// they are. What was changed reaches the watcher before the call returns. A favorite is meant by its own entry or by
/// that of the directory it leads to. Positions are those among the shown favorites; one out of range is the end.
///
/// Thread: the GUI thread; a call reads and writes one small file.
/// Errors: false, a text for the user in @p errorText (unless null), and nothing is changed.
class VESKPLATFORM_EXPORT Favorites
{
public:
    /// Adds a directory, a place with one behind it, or a network place. One that is there already moves.
    static bool add(const Entry &entry, int position = -1, QString *errorText = nullptr);
    static bool remove(const Entry &entry, QString *errorText = nullptr);
    /// An empty @p label gives the favorite the name of its directory again.
    static bool rename(const Entry &entry, const QString &label, QString *errorText = nullptr);
    /// @param position where it is to be found afterwards
    static bool move(const Entry &entry, int position, QString *errorText = nullptr);

    /// Whether add() would take it; asks @p entry only. For drops.
    static bool canAdd(const Entry &entry);
};

} // namespace VeskFM
