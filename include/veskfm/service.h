// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/core.h>
#include <veskfm/export.h>

#include <QDBusContext>
#include <QObject>
#include <QTimer>
#include <QtGlobal>

class QDBusServiceWatcher;

namespace VeskFM
{

/// Base of the session-bus services: keeps the process alive while clients use it, and quits it when it was idle for
/// Settings::serviceLifeTime().
///
/// A client that calls "capture" of the interface ".FileManager.Service" counts until it leaves the bus. An operation that
/// must not be cut off holds the unloader lock.
///
/// The program that hosts a service claims the bus name and registers the object paths itself. It must have claimed the
/// name before anything in it uses a client of the same name, or the bus starts a second copy of it.
///
/// Thread: main.
class VESKFM_EXPORT Service : public QObject,
                              protected QDBusContext // protected: QtDBus does not see a private base
{
    Q_OBJECT

public:
    /// Also makes the application ignore the last window's closing, and handles SIGINT, SIGSEGV and SIGTERM.
    explicit Service(QObject *parent = nullptr);
    ~Service() override;

    void lockUnloader();   ///< the process stays; locks count
    void unlockUnloader(); ///< takes one lock back and starts the idle time anew
    void recallUnloader(); ///< starts the idle time anew, unless locked

    // The order of the virtual functions below is binary interface: services are programs of their own.

    /// The process is about to end by a signal. Runs in the signal handler. Default: does nothing.
    virtual void haltHandler(Core::HaltReason reason);
    void wrappedHaltHandler(Core::HaltReason reason); ///< calls haltHandler()

    /// For qInstallMessageHandler() in a host that has no terminal: shows messages in message boxes, informational ones
    /// not at all. Thread: any; those of other threads are shown a little later. Printed where no box can be shown.
    static void messageBoxHandler(QtMsgType type, const QMessageLogContext &context, const QString &message);

public Q_SLOTS:
    /// Counts the caller as a client. Does nothing for a call that did not come over the bus.
    void capture();
    virtual void release() = 0; ///< the application is about to quit
    void unloaderTimeout();     ///< quits the application if the service is idle and may be unloaded
    void slotCallingServiceUnregistered(const QString &service); ///< that client has left the bus

public:
    virtual bool unloadIsAllowed(); ///< asked before the process quits for idleness; default: true

private:
    bool hasClients() const;

    QTimer m_unloader; // repeating, so that a refused unloading is tried again
    int m_lockCount = 0;
    QDBusServiceWatcher *m_watcher = nullptr; // the clients' unique names
};

} // namespace VeskFM
