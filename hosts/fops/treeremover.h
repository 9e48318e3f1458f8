// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "result.h"

class Progress;

/// Removes a file, or a directory with all it holds, without following links and without entering another mount: what
/// is mounted inside a directory keeps that directory, and all that it holds.
class TreeRemover
{
public:
    enum Strictness {
        AsPermitted, ///< a directory that may not be written keeps what it holds
        OwnAnyway    ///< the user's own directories are made writable first
    };

    /// @param progress borrowed; null for a removal that nothing stops
    explicit TreeRemover(Progress *progress, Strictness strictness = AsPermitted);

    /// Goes on after a failure, so that as much as possible is removed; returns the first.
    Result remove(int parent, const char *name);

private:
    Result removeNode(int parent, const char *name, bool isDirectory, int depth);
    Result removeDirectory(int parent, const char *name, int depth);
    Result removeChildren(int directory, int depth);

    Progress *const m_progress;
    const Strictness m_strictness;
};
