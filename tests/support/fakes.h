// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

/// The full name on the bus: ".vesk-fm.fops" gets the prefix before it.
QString busName(const char *name);

/// What the bus starts from now on gets this too.
void setActivationEnvironment(const QMap<QString, QString> &variables);
/// The services of tests/fakes behave like this from their next start on; see fakeservice.cpp.
void setFakeBehaviour(const char *behaviour);
/// The calls that the fakes have got since the last clearing: "method signature arguments".
QStringList fakeCalls();
void clearFakeCalls();
/// Kills the fake of @p name; its next start is like a first one.
void resetFake(const QString &name);

bool isOnBus(const QString &name);
/// To the process that owns @p name; false when there is none. SIGKILL also waits until the bus knows.
bool signalService(const QString &name, int signal);

/// Ends the process-wide objects' life as the application's quit does. Once per test program.
void announceQuit();

/// Collects what is logged at critical level, while it lives.
class CriticalMessages
{
public:
    CriticalMessages();
    ~CriticalMessages();
    static QStringList take();
};
