// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "stallmeter.h"

#include <algorithm>

void StallMeter::start()
{
    m_longestNs = 0;
    m_turn.start();
    m_heartbeat.start(1, Qt::PreciseTimer, this);
}

double StallMeter::stop()
{
    m_heartbeat.stop();
    endTurn();
    return static_cast<double>(m_longestNs) / 1e6;
}

void StallMeter::timerEvent(QTimerEvent *)
{
    endTurn();
}

void StallMeter::endTurn()
{
    m_longestNs = std::max(m_longestNs, m_turn.nsecsElapsed());
    m_turn.start();
}
