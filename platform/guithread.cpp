// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "guithread.h"

#include <QCoreApplication>
#include <QThread>

namespace VeskFM
{

bool isGuiThread()
{
    const QCoreApplication *const application = QCoreApplication::instance();
    return application && QThread::currentThread() == application->thread();
}

} // namespace VeskFM
