// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "screenshot.h"

#include "listingstate.h"
#include "mainwindow.h"

#include <veskfm/model.h>
#include <veskfm/propertyenumerator.h>
#include <veskfm/props.h>

#include <QImageWriter>
#include <QPixmap>
#include <QThreadPool>

#include <utility>

using namespace VeskFM;

namespace
{
constexpr int deadlineMs = 20000;
} // namespace

Screenshot::Screenshot(MainWindow *window, const QString &fileName, QObject *parent)
    : QObject(parent)
    , m_window(window)
    , m_fileName(fileName)
{
    m_deadline.setSingleShot(true);
    m_deadline.start(deadlineMs);
    connect(&m_deadline, &QTimer::timeout, this, &Screenshot::take);
    // Queued, so that the window has heard the news first.
    connect(window->model(), &Model::dirListed, this, &Screenshot::takeWhenComplete, Qt::QueuedConnection);
    connect(Props::ptr()->propertyEnumerator(), &PropertyEnumerator::dataHoldersUpdated, this,
            &Screenshot::takeWhenComplete, Qt::QueuedConnection);
}

void Screenshot::takeWhenComplete()
{
    if (isListing(*m_window->model()))
        return;
    m_window->grab(); // painting asks for the icons of the visible rows, which queues their refinement
    if (Props::ptr()->propertyEnumerator()->pendingRequestCount() > 0)
        return;                                             // dataHoldersUpdated() will tell
    QThreadPool::globalInstance()->waitForDone(deadlineMs); // the last one is no longer counted, but may still run
    QTimer::singleShot(0, this, &Screenshot::take);         // behind the texts of the status line
}

void Screenshot::take()
{
    if (m_fileName.isEmpty())
        return;
    QImageWriter writer(m_fileName, "png");
    const bool written = writer.write(m_window->grab().toImage());
    const QString fileName = std::exchange(m_fileName, {}); // once
    Q_EMIT finished(written ? QString() : tr("cannot write %1: %2").arg(fileName, writer.errorString()));
}
