// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QByteArray>
#include <QHash>

#include <deque>
#include <limits>

namespace VeskFM
{

/// Changes in one directory that were noticed and not told yet.
///
/// They wait a moment, so that what happens to one name at once is told once: a new file that is being written is one
/// creation, a file written in many pieces one change. Otherwise they keep their order.
///
/// Times are milliseconds of one clock, which the caller reads. Thread: one at a time.
class PendingChanges
{
public:
    enum Kind : uint {
        Deleted = 1,
        Created = 2, ///< with Deleted: the name was freed and taken again
        Changed = 4,
        AttributesChanged = 8,
        Moved = 32 | Created, ///< a creation: came under its name in one step, perhaps in place of something else
        Closed = 16 ///< after being open for writing; tells of writes through a mapping, which go unnoticed otherwise
    };
    struct Change
    {
        QByteArray name;
        uint kinds;
    };
    static constexpr qint64 never = std::numeric_limits<qint64>::max();

    void add(const QByteArray &name, Kind kind, qint64 now);
    /// Takes the next change out if its time has come.
    bool takeDue(qint64 now, Change *change);
    qint64 nextDue() const; ///< never when there is none
    void clear();

private:
    struct State
    {
        uint kinds = 0;
        quint64 ticket = 0; // the place in the queue that counts; others of the same name are left-overs
    };
    struct Place
    {
        QByteArray name;
        quint64 ticket;
        qint64 due;
    };
    using Queue = std::deque<Place>;

    void queue(Queue *queue, const QByteArray &name, State *state, qint64 due);
    bool isLeftOver(const Place &place) const;
    void dropLeftOvers(Queue *queue);

    QHash<QByteArray, State> m_states;
    Queue m_soon;  // both in the order of their times, as each has one delay
    Queue m_later; // files that are written, until the writer paused or some time went by
    quint64 m_lastTicket = 0;
};

} // namespace VeskFM
