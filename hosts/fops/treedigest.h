// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "result.h"

#include <QtGlobal>

class Progress;
struct stat;

/// What a tree looked like at a time: every name, kind, size and time in it, as one number whatever the order. Two equal
/// ones tell that nothing in it has changed meanwhile.
class TreeDigest
{
public:
    /// Adds a node; @p name is empty for the top.
    void add(const char *name, int depth, const struct stat &facts);
    /// Adds a tree as it is now.
    /// Errors: AccessDenied and NotSupported for a tree that can be read, but not removed: somebody else's directory
    /// that may not be written, or a mount.
    Result addRemovableTree(int parent, const char *name, const Progress &progress);

    bool operator==(const TreeDigest &other) const { return m_sum == other.m_sum && m_count == other.m_count; }

private:
    Result addTree(int parent, const char *name, int depth, const Progress &progress);

    quint64 m_sum = 0;
    quint64 m_count = 0;
};
