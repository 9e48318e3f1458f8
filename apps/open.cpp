// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/open.h>

#include <veskfm/vendordomainprefix.h>

#include <QDBusMessage>
#include <QProcess>
#include <QProcessEnvironment>

#include <unistd.h>

namespace VeskFM
{

namespace
{

constexpr int toolTimeoutMs = 30000;
constexpr int toolGraceMs = 1000;

QString toolName()
{
    return QStringLiteral("vesk-open");
}

void setUnlessEmpty(QProcessEnvironment &environment, const QString &variable, const QVariant &value)
{
    const QString text = value.toString();
    if (!text.isEmpty())
        environment.insert(variable, text);
}

/// Has a prepared process run as the user who called sudo, who must find neither the traces of sudo nor root's bus.
void runAsSudoUser(QProcess &process)
{
    const QStringList command = QStringList{process.program()} + process.arguments();
    process.setProgram(QStringLiteral("runuser"));
    process.setArguments(QStringList{QStringLiteral("-u"), qEnvironmentVariable("SUDO_USER"), QStringLiteral("--")}
                         + command);

    QProcessEnvironment environment = process.processEnvironment();
    if (environment.isEmpty())
        environment = QProcessEnvironment::systemEnvironment();
    const QStringList variables = environment.keys();
    for (const QString &variable : variables) {
        if (variable.startsWith(QLatin1String("SUDO_")) || variable.startsWith(QLatin1String("DBUS_")))
            environment.remove(variable);
    }
    process.setProcessEnvironment(environment);
}

} // namespace

Open *Open::m_ptr = nullptr;

Open *Open::ptr()
{
    if (!m_ptr)
        new Open;
    return m_ptr;
}

Open::Open(QObject *parent)
    : QObject(parent)
    , ServiceInterfaceSingletone(QLatin1String(VendorDomainPrefix) + QLatin1String(".vesk-fm.open"))
{
    if (!m_ptr)
        m_ptr = this;
    m_open = createInterface(QStringLiteral("/Open"),
                             QLatin1String(VendorDomainPrefix) + QLatin1String(".FileManager.Open"));
}

Open::~Open()
{
    if (m_ptr == this)
        m_ptr = nullptr;
}

bool Open::shouldOpenAsUser()
{
    if (qEnvironmentVariableIsEmpty("SUDO_USER"))
        return false;
    const QString program = qEnvironmentVariable("SUDO_COMMAND").section(QLatin1Char(' '), 0, 0);
    if (program.endsWith(QLatin1String("vesk-open")) || program.endsWith(QLatin1String("xdg-open")))
        return false; // would start itself for ever
    return geteuid() == 0;
}

bool Open::isAvailable() const
{
    const QSharedPointer<QDBusInterface> service = m_open.toStrongRef();
    if (service && service->isValid() && ServiceInterfaceSingletone::isAvailable())
        return true;
    return shouldOpenAsUser();
}

void Open::open(const EntryList &entries, const QMap<QString, QVariant> &options)
{
    if (!shouldOpenAsUser()) {
        if (const QSharedPointer<QDBusInterface> service = callableInterface(m_open, QDBus::NoBlock))
            service->call(QDBus::NoBlock, QStringLiteral("open"), QVariant::fromValue(entries), options);
        return;
    }

    QStringList arguments{options.value(QStringLiteral("dialog")).toBool() ? QStringLiteral("-o")
                                                                           : QStringLiteral("-e")};
    for (const Entry &entry : entries)
        arguments.append(entry.path());
    // Starts from the system's: with one variable alone the environment would be no longer empty, and the child's only.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    setUnlessEmpty(environment, QStringLiteral("DESKTOP_STARTUP_ID"),
                   options.value(QStringLiteral("desktop-startup-id")));
    setUnlessEmpty(environment, QStringLiteral("XDG_ACTIVATION_TOKEN"),
                   options.value(QStringLiteral("xdg-activation-token")));

    QProcess tool;
    tool.setProgram(toolName());
    tool.setArguments(arguments);
    tool.setProcessEnvironment(environment);
    const QString workingDirectory = options.value(QStringLiteral("workingDir")).toString();
    if (!workingDirectory.isEmpty())
        tool.setWorkingDirectory(workingDirectory);
    runAsSudoUser(tool);
    tool.startDetached();
}

bool Open::canOpen(const Entry &entry)
{
    if (!shouldOpenAsUser()) {
        const QSharedPointer<QDBusInterface> service = callableInterface(m_open);
        if (!service || !service->isValid())
            return false;
        const QDBusMessage reply =
            callAndWait(*service, QDBus::Block, QStringLiteral("canOpen"), {QVariant::fromValue(entry)});
        const QVariant answer = reply.arguments().value(0);
        return reply.type() == QDBusMessage::ReplyMessage && answer.userType() == QMetaType::Bool && answer.toBool();
    }

    QProcess tool;
    tool.setProgram(toolName());
    tool.setArguments({QStringLiteral("--canOpen"), entry.path()});
    runAsSudoUser(tool);
    tool.start(QIODevice::ReadWrite);
    if (tool.waitForFinished(toolTimeoutMs)) // else the exit code says 0, too
        return tool.exitStatus() == QProcess::NormalExit && tool.exitCode() == 0;
    tool.terminate(); // runuser hands this on to the tool; killed, it would leave the tool behind
    if (!tool.waitForFinished(toolGraceMs)) {
        tool.kill();
        tool.waitForFinished(toolGraceMs);
    }
    return false;
}

} // namespace VeskFM
