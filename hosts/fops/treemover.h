// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "freename.h"
#include "result.h"

class Progress;

/// Moves a file or a tree. On one file system that is a rename; else the tree is copied, and the original goes when the
/// copy is complete, on the disk and under its name. Killed at any moment, the original or the copy is whole.
class TreeMover
{
public:
    explicit TreeMover(Progress *progress); ///< @param progress borrowed

    /// @param taken the name it got
    Result move(int fromParent, const QByteArray &from, int toParent, const FreeName &name, QByteArray *taken);

private:
    Result moveByCopying(int fromParent, const QByteArray &from, int toParent, const FreeName &name, QByteArray *taken);
    Result copyToDisk(int fromParent, const QByteArray &from, int toParent, const QByteArray &part);
    static Result removeOriginal(int parent, const QByteArray &name);

    Progress *const m_progress;
};
