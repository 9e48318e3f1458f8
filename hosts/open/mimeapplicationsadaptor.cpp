// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "mimeapplicationsadaptor.h"

#include "openservice.h"

#include "opening/associations.h"

using namespace VeskFM;

namespace
{

const QString webType = QStringLiteral("x-scheme-handler/http");
const QString mailType = QStringLiteral("x-scheme-handler/mailto");
const QString senderType = QStringLiteral("x-scheme-handler/x-vesk-mail-sender"); // our own: no standard has one

AppInfoList described(const GAppList &apps)
{
    AppInfoList infos;
    for (const GAppPtr &app : apps)
        infos.append(Associations::describe(app.get()));
    return infos;
}

QString execFor(const QString &type)
{
    return Associations::describe(Associations::defaultFor(type).get()).exec();
}

void setExecFor(const QStringList &types, const QString &exec)
{
    AppInfo info;
    info.setExec(exec);
    const GAppPtr app = Associations::find(info);
    for (const QString &type : types) {
        if (exec.isEmpty())
            Associations::reset(type);
        else
            Associations::setDefault(type, app.get());
    }
}

} // namespace

MimeApplicationsAdaptor::MimeApplicationsAdaptor(QObject *object, OpenService *service)
    : QDBusAbstractAdaptor(object)
    , m_service(service)
{
}

void MimeApplicationsAdaptor::setAppsForMime(const QString &mimeType, const AppInfoList &apps)
{
    GAppList list;
    for (const AppInfo &info : apps) {
        if (GAppPtr app = Associations::find(info))
            list.push_back(std::move(app));
    }
    Associations::setAll(mimeType, list);
}

bool MimeApplicationsAdaptor::setDefaultApplication(const AppInfo &app)
{
    return Associations::setDefaultForItsTypes(Associations::find(app).get());
}

void MimeApplicationsAdaptor::setDefaultMimeTypeApplication(const QString &mimeType, const AppInfo &app)
{
    Associations::setDefault(mimeType, Associations::find(app).get());
}

AppInfo MimeApplicationsAdaptor::defaultMimeTypeApplication(const QString &mimeType)
{
    return Associations::describe(Associations::defaultFor(mimeType).get());
}

void MimeApplicationsAdaptor::setDefaultWebBrowserExec(const QString &exec)
{
    setExecFor({webType, QStringLiteral("x-scheme-handler/https"), QStringLiteral("text/html")}, exec);
}

QString MimeApplicationsAdaptor::defaultWebBrowserExec()
{
    return execFor(webType);
}

void MimeApplicationsAdaptor::setDefaultMailClientExec(const QString &exec)
{
    setExecFor({mailType}, exec);
}

QString MimeApplicationsAdaptor::defaultMailClientExec()
{
    return execFor(mailType);
}

void MimeApplicationsAdaptor::setDefaultMailSenderExec(const QString &exec)
{
    setExecFor({senderType}, exec);
}

QString MimeApplicationsAdaptor::defaultMailSenderExec()
{
    const QString exec = execFor(senderType);
    return exec.isEmpty() ? execFor(mailType) : exec;
}

void MimeApplicationsAdaptor::callDialog()
{
    m_service->showAssociationDialog();
}

AppInfoList MimeApplicationsAdaptor::allRegisteredApplications()
{
    return described(Associations::all());
}

AppInfoList MimeApplicationsAdaptor::mimeTypeApplications(const QString &mimeType)
{
    return described(Associations::allFor(mimeType));
}
