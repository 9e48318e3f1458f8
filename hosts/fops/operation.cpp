// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "operation.h"

#include "part.h"

Operation::Operation(const QString &stamp, const QString &place)
    : m_stamp(stamp)
    , m_place(place)
{
}

Operation::~Operation() = default;

void Operation::execute()
{
    if (note(m_progress.isCancelled() ? Result::Cancelled : Result::Success))
        run();
}

bool Operation::note(Result result)
{
    if (m_result == Result::Success)
        m_result = result;
    return result == Result::Success;
}

bool Operation::isHopeless() const
{
    return m_progress.isCancelled() || m_result == Result::NoSpace;
}

void Operation::addMade(const QByteArray &path)
{
    m_madePaths.append(vfsPath(path));
}

Result Operation::openTarget(const QByteArray &path, DiskPlace *place)
{
    DiskPlace wanted;
    const Result result = DiskPlace::open(path, &wanted);
    if (result != Result::Success)
        return result;
    if (wanted.path != place->path)
        Part::removeStale(wanted.directory.get());
    *place = std::move(wanted);
    return Result::Success;
}
