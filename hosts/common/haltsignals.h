// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QObject>

class QSocketNotifier;

/// Tells of SIGINT, SIGTERM and SIGHUP in the event loop, where more can be done than in a signal handler. One at a time;
/// takes the place of handlers that were there before, and leaves the signals to the system when it goes.
class HaltSignals : public QObject
{
    Q_OBJECT

public:
    explicit HaltSignals(QObject *parent = nullptr);
    ~HaltSignals() override;

Q_SIGNALS:
    void received();

private:
    void onReadable();

    int m_pipe[2] = {-1, -1}; // the handler writes to the second
    QSocketNotifier *m_notifier = nullptr;
};
