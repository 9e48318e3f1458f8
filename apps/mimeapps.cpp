// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/mimeapps.h>

#include <veskfm/vendordomainprefix.h>

#include <QDBusArgument>
#include <QDBusMessage>

namespace VeskFM
{

namespace
{

const char infoSignature[] = "(sssssib)";
const char infoListSignature[] = "a(sssssib)";

/// The value in a reply, or an empty one. Demarshalling something of another structure would give half-filled values.
template <typename T> T demarshalled(const QVariant &answer, const char *signature)
{
    if (answer.userType() != qMetaTypeId<QDBusArgument>())
        return {};
    const QDBusArgument argument = answer.value<QDBusArgument>();
    return argument.currentSignature() == QLatin1String(signature) ? qdbus_cast<T>(argument) : T();
}

QString text(const QVariant &answer)
{
    return answer.userType() == QMetaType::QString ? answer.toString() : QString();
}

QVariant packed(const AppInfo &app)
{
    return QVariant::fromValue(app);
}

} // namespace

MimeApps *MimeApps::m_ptr = nullptr;

MimeApps *MimeApps::ptr()
{
    if (!m_ptr)
        new MimeApps;
    return m_ptr;
}

void MimeApps::freePtr()
{
    delete m_ptr;
}

MimeApps::MimeApps(QObject *parent)
    : QObject(parent)
    , ServiceInterfaceSingletone(QLatin1String(VendorDomainPrefix) + QLatin1String(".vesk-fm.open"))
{
    if (!m_ptr)
        m_ptr = this;
    m_mimeApplications =
        createInterface(QStringLiteral("/MimeApps"),
                        QLatin1String(VendorDomainPrefix) + QLatin1String(".FileManager.MimeApplications"));
}

MimeApps::~MimeApps()
{
    if (m_ptr == this)
        m_ptr = nullptr;
}

/// The first argument of the reply; invalid where there is none.
QVariant MimeApps::answer(const QString &method, const QVariantList &arguments)
{
    const QSharedPointer<QDBusInterface> service = callableInterface(m_mimeApplications);
    if (!service || !service->isValid())
        return {};
    const QDBusMessage reply = callAndWait(*service, QDBus::AutoDetect, method, arguments);
    return reply.type() == QDBusMessage::ReplyMessage ? reply.arguments().value(0) : QVariant();
}

void MimeApps::setAppsForMime(const QString &mimeType, const QList<AppInfo> &apps)
{
    answer(QStringLiteral("setAppsForMime"), {mimeType, QVariant::fromValue(apps)});
}

bool MimeApps::setDefaultApplication(AppInfo app)
{
    const QVariant done = answer(QStringLiteral("setDefaultApplication"), {packed(app)});
    return done.userType() == QMetaType::Bool && done.toBool();
}

void MimeApps::setDefaultMimeTypeApplication(const QString &mimeType, AppInfo app)
{
    answer(QStringLiteral("setDefaultMimeTypeApplication"), {mimeType, packed(app)});
}

AppInfo MimeApps::defaultMimeTypeApplication(const QString &mimeType)
{
    return demarshalled<AppInfo>(answer(QStringLiteral("defaultMimeTypeApplication"), {mimeType}), infoSignature);
}

void MimeApps::setDefaultWebBrowserExec(const QString &exec)
{
    answer(QStringLiteral("setDefaultWebBrowserExec"), {exec});
}

QString MimeApps::defaultWebBrowserExec()
{
    return text(answer(QStringLiteral("defaultWebBrowserExec")));
}

void MimeApps::setDefaultMailClientExec(const QString &exec)
{
    answer(QStringLiteral("setDefaultMailClientExec"), {exec});
}

QString MimeApps::defaultMailClientExec()
{
    return text(answer(QStringLiteral("defaultMailClientExec")));
}

void MimeApps::setDefaultMailSenderExec(const QString &exec)
{
    answer(QStringLiteral("setDefaultMailSenderExec"), {exec});
}

QString MimeApps::defaultMailSenderExec()
{
    return text(answer(QStringLiteral("defaultMailSenderExec")));
}

void MimeApps::callDialog()
{
    if (const QSharedPointer<QDBusInterface> service = callableInterface(m_mimeApplications, QDBus::NoBlock))
        service->call(QDBus::NoBlock, QStringLiteral("callDialog"));
}

AppInfoList MimeApps::allRegisteredApplications()
{
    return demarshalled<AppInfoList>(answer(QStringLiteral("allRegisteredApplications")), infoListSignature);
}

AppInfoList MimeApps::mimeTypeApplications(const QString &mimeType)
{
    return demarshalled<AppInfoList>(answer(QStringLiteral("mimeTypeApplications"), {mimeType}), infoListSignature);
}

} // namespace VeskFM
