// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

// fakehost NAME: a real service, and the means to hold it from outside.

#include <veskfm/service.h>

#include <QDBusConnection>
#include <QGuiApplication>

#include <cstdlib>
#include <string>

#include <fcntl.h>
#include <unistd.h>

class FakeHost : public VeskFM::Service
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "test.Host")

public:
    void release() override {}
    bool unloadIsAllowed() override { return m_allowed; }
    void haltHandler(VeskFM::Core::HaltReason reason) override
    {
        const int file = creat(m_haltFile.c_str(), 0600);
        (void)!write(file, reason == VeskFM::Core::TerminationRequested ? "asked" : "crashed", 5);
        close(file);
    }

public Q_SLOTS:
    Q_SCRIPTABLE void lock() { lockUnloader(); }
    Q_SCRIPTABLE void unlock() { unlockUnloader(); }
    Q_SCRIPTABLE void refuse() { m_allowed = false; }
    Q_SCRIPTABLE void allow() { m_allowed = true; }

private:
    const std::string m_haltFile = std::string(getenv("HOME")) + "/halted";
    bool m_allowed = true;
};

int main(int argc, char **argv)
{
    QGuiApplication application(argc, argv);
    FakeHost host;
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.registerObject("/", &host, QDBusConnection::ExportAdaptors | QDBusConnection::ExportScriptableSlots);
    return bus.registerService(application.arguments().value(1)) ? application.exec() : 1;
}

#include "fakehost.moc"
