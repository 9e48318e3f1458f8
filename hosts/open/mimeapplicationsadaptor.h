// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "mimeapplicationsxml.h"

#include <veskfm/appinfo.h>
#include <veskfm/vendordomainprefix.h>

#include <QDBusAbstractAdaptor>

class OpenService;

/// The bus interface of the associations; its description tells what each method does.
class MimeApplicationsAdaptor : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", VESKFM_VENDOR_DOMAIN_PREFIX ".FileManager.MimeApplications")
    Q_CLASSINFO("D-Bus Introspection", VESKFM_MIMEAPPLICATIONS_XML)

public:
    MimeApplicationsAdaptor(QObject *object, OpenService *service); ///< @p object is the one on the bus

public Q_SLOTS:
    void setAppsForMime(const QString &mimeType, const VeskFM::AppInfoList &apps);
    bool setDefaultApplication(const VeskFM::AppInfo &app);
    void setDefaultMimeTypeApplication(const QString &mimeType, const VeskFM::AppInfo &app);
    VeskFM::AppInfo defaultMimeTypeApplication(const QString &mimeType);
    void setDefaultWebBrowserExec(const QString &exec);
    QString defaultWebBrowserExec();
    void setDefaultMailClientExec(const QString &exec);
    QString defaultMailClientExec();
    void setDefaultMailSenderExec(const QString &exec);
    QString defaultMailSenderExec();
    void callDialog();
    VeskFM::AppInfoList allRegisteredApplications();
    VeskFM::AppInfoList mimeTypeApplications(const QString &mimeType);

private:
    OpenService *const m_service;
};
