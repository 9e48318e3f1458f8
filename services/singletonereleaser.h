// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QMutex>
#include <QObject>
#include <QVector>

namespace VeskFM
{

class Singletone;

/// Frees the process-wide objects when the application is about to quit. One per process, made on first use and never
/// deleted. Lives in the application's thread as soon as there is an application object.
class SingletoneReleaser : public QObject
{
    Q_OBJECT

public:
    /// Any thread. Without an application object the quit signal is connected by a later call.
    static SingletoneReleaser *instance();

    void add(Singletone *object); ///< borrowed until remove()
    void remove(Singletone *object);

public Q_SLOTS:
    /// Frees all objects in the order they were added. Runs once per process.
    void releaseSingletones();

private:
    SingletoneReleaser() = default;
    void connectToQuit();
    bool contains(Singletone *object);

    QMutex m_mutex;                      // not held while objects are freed: they may unregister each other
    QVector<Singletone *> m_singletones; // guarded by m_mutex
    bool m_connectedToQuit = false;
    bool m_released = false;
};

} // namespace VeskFM
