// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "desktopadaptor.h"
#include "desktopservice.h"

#include "common/hostconnection.h"

#include <QCoreApplication>
#include <QTextCodec>

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("vesk-fm-desktop"));
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8")); // the bus may start it without a locale

    DesktopService service;
    new DesktopAdaptor(&service);
    HostConnection bus(QStringLiteral("vesk-fm.desktop"));
    QObject::connect(&bus, &HostConnection::lost, &application, &QCoreApplication::quit);
    if (!bus.offer(QStringLiteral("/"), &service) || !bus.claimName())
        return 1;
    return QCoreApplication::exec();
}
