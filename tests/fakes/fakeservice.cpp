// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

// fakeservice NAME: a service of any interface. It appends each call to ~/fake-calls, a line with the method and
// its arguments, structures and lists with their signatures, and behaves as the environment variable VESKFM_FAKE says:
//   (unset)    answers properly; a file operation finishes with the code 7 and the entry "/"
//   unclaimed  never claims NAME
//   hang       claims NAME, then stops: answers nothing until it gets SIGCONT
//   slow       takes a while before it claims NAME
//   die        ends at the first call but "capture"
//   flood      also announces 10,000 operations that nobody knows, and some signals of a wrong structure
//   error, nothing, number, structure, list: answers so, whatever was asked

#include <veskfm/appinfo.h>
#include <veskfm/vendordomainprefix.h>
#include <veskplatform/entrylist.h>
#include <veskplatform/vfs.h>

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QThread>

#include <csignal>

#include <unistd.h>

using namespace VeskFM;

namespace
{

constexpr unsigned int longestLifeSeconds = 240; // of a fake whose test failed
constexpr unsigned long startMs = 300;           // of a slow one

void record(const QDBusMessage &call)
{
    QString text;
    QDebug(&text).nospace() << call; // ..., contents=("text", [Argument: (s) "/a"]) )
    const QString arguments = text.section("contents=(", 1).chopped(3).remove("[Argument: ").remove('[').remove(']');
    QFile file(QDir::homePath() + "/fake-calls");
    if (file.open(QIODevice::Append))
        file.write((call.member() + '(' + arguments + ")\n").toUtf8());
}

AppInfo application(const QString &name)
{
    AppInfo info;
    info.setName(name);
    info.setExec(name + " %f");
    info.setSource(AppInfo::DesktopEntryFile, "/usr/share/applications/" + name + ".desktop");
    info.setTerminal(true);
    return info;
}

QVariantList properAnswer(const QString &method)
{
    if (method == "canOpen" || method == "setDefaultApplication")
        return {true};
    if (method == "operationProgress")
        return {42};
    if (method == "defaultMimeTypeApplication")
        return {QVariant::fromValue(application("editor"))};
    if (method == "mimeTypeApplications" || method == "allRegisteredApplications")
        return {QVariant::fromValue(AppInfoList{application("editor"), application("viewer")})};
    return method.endsWith("Exec") && method.startsWith("default") ? QVariantList{method + " %u"} : QVariantList();
}

QDBusMessage answerTo(const QDBusMessage &call, const QByteArray &behaviour)
{
    const Entry entry = VFS::ptr()->entry("/");
    if (behaviour == "error")
        return call.createErrorReply(QDBusError::Failed, "no");
    if (behaviour == "nothing")
        return call.createReply();
    if (behaviour == "number")
        return call.createReply(5);
    if (behaviour == "structure")
        return call.createReply(QVariant::fromValue(entry));
    if (behaviour == "list")
        return call.createReply(QVariant::fromValue(EntryList{entry, entry}));
    return call.createReply(properAnswer(call.member()));
}

void finish(const QString &stamp, const QByteArray &behaviour)
{
    QDBusMessage finished = QDBusMessage::createSignal(
        "/", QLatin1String(VendorDomainPrefix) + QLatin1String(".FileManager.FileOperation"), "operationFinished");
    const auto announce = [&finished](const QVariantList &arguments) {
        finished.setArguments(arguments);
        QDBusConnection::sessionBus().send(finished);
    };
    const QVariant made = QVariant::fromValue(EntryList{VFS::ptr()->entry("/")});
    if (behaviour == "flood") {
        announce({});
        announce({stamp, QStringLiteral("seven"), made});
        announce({stamp, 7, QStringLiteral("/")});
        for (int i = 0; i < 10000; ++i)
            announce({QStringLiteral("unknown%1").arg(i), i, made});
    }
    announce({stamp, 7, made});
}

class FakeService : public QDBusVirtualObject
{
public:
    QString introspect(const QString &) const override { return QString(); }
    bool handleMessage(const QDBusMessage &call, const QDBusConnection &bus) override
    {
        if (call.interface().startsWith("org.freedesktop.DBus."))
            return false;
        record(call);
        if (behaviour == "die" && call.member() != "capture")
            _exit(1);
        if (call.isReplyRequired())
            bus.send(answerTo(call, behaviour));
        if (call.interface().endsWith(".FileOperation") && call.member() != "operationProgress")
            finish(call.arguments().value(0).toString(), behaviour);
        return true;
    }

    const QByteArray behaviour = qgetenv("VESKFM_FAKE");
};

} // namespace

int main(int argc, char **argv)
{
    alarm(longestLifeSeconds);
    QCoreApplication application(argc, argv);
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.connect(QString(), "/org/freedesktop/DBus/Local", "org.freedesktop.DBus.Local", "Disconnected", &application,
                SLOT(quit()));
    FakeService service;
    bus.registerVirtualObject("/", &service, QDBusConnection::SubPath);
    if (service.behaviour == "unclaimed")
        pause();
    if (service.behaviour == "slow")
        QThread::msleep(startMs);
    if (!bus.registerService(application.arguments().value(1)))
        return 1;
    if (service.behaviour == "hang")
        raise(SIGSTOP);
    return application.exec();
}
