// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entry.h>

#include <QObject>
#include <QThreadPool>
#include <QTimer>

/// How much room is left where a directory is, asked on a thread of its own, again and again.
class DiskSpace : public QObject
{
    Q_OBJECT

public:
    explicit DiskSpace(QObject *parent = nullptr);

    void setDirectory(const VeskFM::Entry &directory); ///< a null one stops it
    void update();

Q_SIGNALS:
    void changed(qint64 freeBytes, qint64 totalBytes); ///< both -1 where nobody can tell

private:
    VeskFM::Entry m_directory;
    QTimer m_timer;
    QThreadPool m_pool; // a sleeping disk must not keep those waiting who use the global one
    bool m_asking = false;
};
