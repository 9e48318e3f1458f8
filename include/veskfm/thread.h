// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/export.h>

#include <QMutex>
#include <QString>
#include <QThread>
#include <QWaitCondition>

namespace VeskFM
{

/// A thread with a result, which its owner can pause at points that the worker chooses.
///
/// The worker calls checkSuspend() wherever it may be stopped for a while; it stays there from the owner's suspend() to
/// the owner's release().
class VESKFM_EXPORT Thread : public QThread
{
    Q_OBJECT

public:
    explicit Thread(QObject *parent = nullptr);
    ~Thread() override;

    /// The worker sets these, and the owner reads them when the thread has ended.
    int exitCode() const; ///< 0 at first
    void setExitCode(int code);
    QString errorString() const; ///< empty at first
    void setErrorString(const QString &text);

    void waitForSuspend(); ///< returns with the next suspend() that pauses; any thread but the owner's
    bool checkSuspend();   ///< for the worker: waits while it is to pause; always true

public Q_SLOTS:
    /// For the owner: pauses the worker, unless it is paused already. Does not wait, and so misses a worker that passes a
    /// safe point at that very moment.
    void suspend();
    /// For the owner: lets the worker go on. After suspend() it takes 100 ms, otherwise it returns at once.
    void release();

private:
    int m_exitCode = 0;
    QString m_errorString;
    QWaitCondition m_suspendCondition;
    QMutex m_waitMutex;    // only for the condition
    QMutex m_suspendMutex; // held by the owner while the worker is to pause
};

} // namespace VeskFM
