// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/appinfo.h>
#include <veskfm/export.h>
#include <veskfm/serviceinterfacesingletone.h>

#include <QObject>

namespace VeskFM
{

/// Client of the application-association service: which applications open which MIME types.
///
/// Thread: main; every call but callDialog() waits for the answer. Errors: a missing service, a bus error and an answer
/// of another type give the empty result; setters report nothing.
class VESKFM_EXPORT MimeApps : public QObject,
                               public ServiceInterfaceSingletone
{
    Q_OBJECT

public:
    static MimeApps *ptr();
    static void freePtr(); ///< deletes the instance
    explicit MimeApps(QObject *parent = nullptr);
    ~MimeApps() override;

    void setAppsForMime(const QString &mimeType, const QList<AppInfo> &apps);
    bool setDefaultApplication(AppInfo app);
    void setDefaultMimeTypeApplication(const QString &mimeType, AppInfo app);
    AppInfo defaultMimeTypeApplication(const QString &mimeType);
    void setDefaultWebBrowserExec(const QString &exec);
    QString defaultWebBrowserExec();
    void setDefaultMailClientExec(const QString &exec);
    QString defaultMailClientExec();
    void setDefaultMailSenderExec(const QString &exec);
    QString defaultMailSenderExec();
    void callDialog(); ///< shows the service's dialog; does not wait
    AppInfoList allRegisteredApplications();
    AppInfoList mimeTypeApplications(const QString &mimeType);

private:
    QVariant answer(const QString &method, const QVariantList &arguments = {});

    static MimeApps *m_ptr;

    QWeakPointer<QDBusInterface> m_mimeApplications; // held by the base
};

} // namespace VeskFM
