// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QObject>

/// Measures how long the event loop of its thread leaves everybody waiting: the longest time between two turns. A loop
/// with nothing to do reads about one millisecond, the period of the timer behind it.
class StallMeter : public QObject
{
    Q_OBJECT

public:
    void start();
    double stop(); ///< milliseconds: the longest turn since start(), the present one included

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    void endTurn();

    QBasicTimer m_heartbeat;
    QElapsedTimer m_turn;
    qint64 m_longestNs = 0;
};
