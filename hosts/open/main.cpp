// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "guihost.h"
#include "mimeapplicationsadaptor.h"
#include "openadaptor.h"
#include "openservice.h"

#include "common/hostconnection.h"

#include <QApplication>
#include <QTextCodec>

int main(int argc, char **argv)
{
    chooseHostPlatform();
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("vesk-fm-open"));
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8")); // the bus may start it without a locale
    chooseHostIconTheme();

    OpenService service;
    QObject openObject;
    QObject mimeObject;
    new OpenAdaptor(&openObject, &service);
    new MimeApplicationsAdaptor(&mimeObject, &service);
    HostConnection bus(QStringLiteral("vesk-fm.open"));
    QObject::connect(&bus, &HostConnection::lost, &application, &QCoreApplication::quit);
    if (!bus.offer(QStringLiteral("/"), &service) || !bus.offer(QStringLiteral("/Open"), &openObject)
        || !bus.offer(QStringLiteral("/MimeApps"), &mimeObject) || !bus.claimName())
        return 1;
    return QApplication::exec();
}
