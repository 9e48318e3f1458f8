// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "pendingchanges.h"

namespace VeskFM
{

namespace
{
constexpr qint64 soonMs = 20;  // long enough to see a file created, written and closed
constexpr qint64 laterMs = 50; // a copy under way is told of 20 times a second
} // namespace

void PendingChanges::add(const QByteArray &name, Kind kind, qint64 now)
{
    State &state = m_states[name];
    const bool isNew = state.kinds == 0;
    const bool onlyWritten = !isNew && !(state.kinds & ~uint(Changed | Closed));
    if (kind == Deleted)
        state.kinds = Deleted; // if it was created meanwhile, nobody has seen it
    else
        state.kinds |= kind;
    const bool soon = kind != Changed && kind != Closed;
    if (soon && (isNew || onlyWritten))
        queue(&m_soon, name, &state, now + soonMs);
    else if (isNew)
        queue(&m_later, name, &state, now + laterMs);
}

void PendingChanges::queue(Queue *queue, const QByteArray &name, State *state, qint64 due)
{
    state->ticket = ++m_lastTicket;
    queue->push_back({name, state->ticket, due});
}

bool PendingChanges::isLeftOver(const Place &place) const
{
    return m_states.value(place.name).ticket != place.ticket;
}

void PendingChanges::dropLeftOvers(Queue *queue)
{
    while (!queue->empty() && isLeftOver(queue->front()))
        queue->pop_front();
}

bool PendingChanges::takeDue(qint64 now, Change *change)
{
    for (Queue *const queue : {&m_soon, &m_later}) {
        dropLeftOvers(queue);
        if (queue->empty() || queue->front().due > now)
            continue;
        change->name = queue->front().name;
        change->kinds = m_states.take(change->name).kinds;
        queue->pop_front();
        dropLeftOvers(queue);
        return true;
    }
    return false;
}

qint64 PendingChanges::nextDue() const
{
    qint64 due = never;
    for (const Queue *const queue : {&m_soon, &m_later}) {
        if (!queue->empty())
            due = qMin(due, queue->front().due);
    }
    return due;
}

void PendingChanges::clear()
{
    *this = PendingChanges();
}

} // namespace VeskFM
