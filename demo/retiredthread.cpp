// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "retiredthread.h"

#include <QThread>

void retireThread(QThread *thread)
{
    QObject::connect(thread, &QThread::finished, thread, &QObject::deleteLater);
    if (!thread->isRunning()) // before it could tell anybody
        thread->deleteLater();
}
