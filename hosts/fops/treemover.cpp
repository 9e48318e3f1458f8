// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "treemover.h"

#include "part.h"
#include "treecopier.h"
#include "treeremover.h"

#include <unistd.h>

namespace
{

void discard(int parent, const QByteArray &part)
{
    TreeRemover(nullptr, TreeRemover::OwnAnyway).remove(parent, part.constData());
}

} // namespace

TreeMover::TreeMover(Progress *progress)
    : m_progress(progress)
{
}

Result TreeMover::move(int fromParent, const QByteArray &from, int toParent, const FreeName &name, QByteArray *taken)
{
    bool crossesDevices = false;
    const Result result = renameToFreeName(fromParent, from, toParent, name, taken, &crossesDevices);
    return crossesDevices ? moveByCopying(fromParent, from, toParent, name, taken) : result;
}

Result TreeMover::moveByCopying(int fromParent, const QByteArray &from, int toParent, const FreeName &name,
                                QByteArray *taken)
{
    const QByteArray part = Part::freshName();
    Result result = copyToDisk(fromParent, from, toParent, part);
    if (result == Result::Success)
        result = renameToFreeName(toParent, part, toParent, name, taken);
    if (result != Result::Success) {
        discard(toParent, part);
        return result;
    }
    fsync(toParent); // the name, too, before the original loses its own

    result = removeOriginal(fromParent, from);
    QByteArray withdrawn;
    if (result != Result::Success
        && renameToFreeName(toParent, *taken, toParent, FreeName::exactly(part), &withdrawn) == Result::Success)
        discard(toParent, withdrawn);
    return result;
}

/// A copy of an original that has not changed from when it was read until the copy was on the disk.
Result TreeMover::copyToDisk(int fromParent, const QByteArray &from, int toParent, const QByteArray &part)
{
    TreeDigest before;
    TreeCopier copier(m_progress, &before);
    Result result = copier.copy(fromParent, from, toParent, part);
    if (result == Result::Success)
        result = copier.sync(toParent, part);
    if (result != Result::Success)
        return result;
    TreeDigest after;
    result = after.addRemovableTree(fromParent, from.constData(), *m_progress);
    return result == Result::Success && !(after == before) ? Result::Changed : result;
}

/// It loses its name first, so that nobody sees half a tree, whenever this process ends.
Result TreeMover::removeOriginal(int parent, const QByteArray &name)
{
    QByteArray doomed;
    const Result result = renameToFreeName(parent, name, parent, FreeName::exactly(Part::freshName()), &doomed);
    if (result == Result::Success)
        discard(parent, doomed);
    return result;
}
