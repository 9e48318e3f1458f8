// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/fops.h>

#include <QMap>
#include <QObject>
#include <QTimer>

/// Follows the file operations that this window asked for, and says in words how they go.
class OperationTracker : public QObject
{
    Q_OBJECT

public:
    explicit OperationTracker(QObject *parent = nullptr);

    /// Whether there is somebody to do file operations; says so if not.
    bool isAvailable();
    /// @param text what is being done, for example "Copying 3 items"
    void follow(const VeskFM::FOpId &id, const QString &text);

Q_SIGNALS:
    void progress(const QString &text); ///< stays valid until the next one
    void finished(const QString &text);
    void made(const VeskFM::EntryList &entries, VeskFM::FOps::OperationType type); ///< by an operation that succeeded

private:
    void onFinished(const VeskFM::FOpId &id, int code, const VeskFM::EntryList &entries,
                    VeskFM::FOps::OperationType type);
    void askForProgress();

    QMap<VeskFM::FOpId, QString> m_running;
    QTimer m_progressTimer;
    bool m_connected = false;
    bool m_seen = false; // the service was there once
};
