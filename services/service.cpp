// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/service.h>

#include <veskfm/serviceadaptor.h>
#include <veskfm/settings.h>
#include <veskplatform/veskdirs.h>

#include <QApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>
#include <QDBusServiceWatcher>
#include <QMessageBox>
#include <QScopedValueRollback>
#include <QThread>

#include <cstdio>

namespace VeskFM
{

namespace
{

QList<Service *> &services()
{
    static QList<Service *> list;
    return list;
}

void haltServices(Core::HaltReason reason)
{
    for (Service *service : qAsConst(services()))
        service->wrappedHaltHandler(reason);
}

QString translated(const char *text)
{
    return QCoreApplication::translate("Service", text);
}

void print(const QString &message)
{
    fprintf(stderr, "%s\n", qUtf8Printable(message));
}

/// GUI thread. What is logged while a box is open, perhaps by the box itself, is printed: one box at a time.
void showMessage(QtMsgType type, const QString &message)
{
    static bool isShowing = false;
    if (isShowing) {
        print(message);
        return;
    }
    const QScopedValueRollback<bool> showing(isShowing, true);
    switch (type) {
    case QtDebugMsg:
        QMessageBox::information(nullptr, translated(QT_TRANSLATE_NOOP("Service", "Debug message")), message);
        break;
    case QtWarningMsg:
        QMessageBox::warning(nullptr, translated(QT_TRANSLATE_NOOP("Service", "Warning")), message);
        break;
    case QtCriticalMsg:
        QMessageBox::critical(nullptr, translated(QT_TRANSLATE_NOOP("Service", "Critical")), message);
        break;
    case QtFatalMsg:
        QMessageBox::warning(nullptr, translated(QT_TRANSLATE_NOOP("Service", "Fatal")), message);
        break;
    case QtInfoMsg:
        break;
    }
}

} // namespace

Service::Service(QObject *parent)
    : QObject(parent)
{
    Core::installHaltSignalHandler();
    QCoreApplication::setOrganizationName(QString::fromLocal8Bit(GetOrganization()));
    QGuiApplication::setQuitOnLastWindowClosed(false);
    new ServiceAdaptor(this);

    services().append(this);
    Core::addHaltHandler(haltServices);
    connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this, &Service::release,
            Qt::DirectConnection);
    connect(&m_unloader, &QTimer::timeout, this, &Service::unloaderTimeout, Qt::QueuedConnection);

    m_watcher = new QDBusServiceWatcher(this);
    m_watcher->setConnection(QDBusConnection::sessionBus());
    m_watcher->setWatchMode(QDBusServiceWatcher::WatchForUnregistration);
    connect(m_watcher, &QDBusServiceWatcher::serviceUnregistered, this, &Service::slotCallingServiceUnregistered);
}

Service::~Service()
{
    services().removeAll(this);
}

void Service::capture()
{
    if (!calledFromDBus())
        return;
    const QString client = message().service();
    m_watcher->addWatchedService(client);
    // One that did not wait for the reply may have left before it was watched: it would keep the process for ever.
    const QDBusReply<bool> isThere = QDBusConnection::sessionBus().interface()->isServiceRegistered(client);
    if (isThere.isValid() && !isThere.value())
        m_watcher->removeWatchedService(client);
}

/// Clients that went with the bus itself have not been seen to leave.
bool Service::hasClients() const
{
    return QDBusConnection::sessionBus().isConnected() && !m_watcher->watchedServices().isEmpty();
}

void Service::unloaderTimeout()
{
    if (!hasClients() && m_lockCount < 1 && unloadIsAllowed()) {
        QCoreApplication::quit();
        return;
    }
    recallUnloader();
}

void Service::slotCallingServiceUnregistered(const QString &service)
{
    m_watcher->removeWatchedService(service);
}

void Service::lockUnloader()
{
    m_unloader.stop();
    ++m_lockCount;
}

void Service::unlockUnloader()
{
    --m_lockCount;
    recallUnloader();
}

void Service::recallUnloader()
{
    if (m_lockCount < 1)
        m_unloader.start(Settings::ptr()->serviceLifeTime());
}

void Service::haltHandler(Core::HaltReason) {}

bool Service::unloadIsAllowed()
{
    return true;
}

void Service::wrappedHaltHandler(Core::HaltReason reason)
{
    haltHandler(reason);
}

void Service::messageBoxHandler(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    auto *const application = qobject_cast<QApplication *>(QCoreApplication::instance());
    if (!application)
        print(message);
    else if (QThread::currentThread() == application->thread())
        showMessage(type, message);
    else
        QMetaObject::invokeMethod(
            application, [type, message] { showMessage(type, message); }, Qt::QueuedConnection);
}

} // namespace VeskFM
