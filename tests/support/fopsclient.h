// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "fakevfs.h"
#include "testtree.h"

#include <veskfm/fops.h>
#include <veskfm/vendordomainprefix.h>

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusInterface>
#include <QSignalSpy>

#include <sys/stat.h>
#include <unistd.h>

#include <memory>

/// The real file-operation service, as a client and as a process.
namespace FopsClient
{

struct Outcome
{
    int code = -1; ///< -1 when no result came
    VeskFM::EntryList entries;

    QStringList names() const { return fileNames(entries); }
};

/// Starts an operation and waits for its result: FopsClient::run(&FOps::copy, sources, destination).
template <typename Method, typename... Arguments> Outcome run(Method method, Arguments &&...arguments)
{
    QSignalSpy finished(VeskFM::FOps::ptr(), &VeskFM::FOps::operationFinished);
    const VeskFM::FOpId id = (VeskFM::FOps::ptr()->*method)(std::forward<Arguments>(arguments)...);
    constexpr int longestMs = 60000;
    while (finished.count() > 0 || finished.wait(longestMs)) {
        const QVariantList result = finished.takeFirst();
        if (result.at(0).value<VeskFM::FOpId>() == id)
            return {result.at(1).toInt(), result.at(2).value<VeskFM::EntryList>()};
    }
    return {};
}

inline QString busName()
{
    return QLatin1String(VeskFM::VendorDomainPrefix) + QLatin1String(".vesk-fm.fops");
}

inline bool isRunning()
{
    return QDBusConnection::sessionBus().interface()->isServiceRegistered(busName());
}

/// Of the running service.
inline pid_t process()
{
    return pid_t(QDBusConnection::sessionBus().interface()->servicePid(busName()).value());
}

inline int progress(const QString &stamp)
{
    static QDBusInterface service(busName(), QStringLiteral("/"),
                                  QLatin1String(VeskFM::VendorDomainPrefix)
                                      + QLatin1String(".FileManager.FileOperation"));
    return service.call(QStringLiteral("operationProgress"), stamp).arguments().value(0).toInt();
}

/// A tree on another file system than the test's other trees; null where the machine has none.
inline std::unique_ptr<TestTree> treeElsewhere()
{
    const QByteArray usual = qgetenv("TMPDIR");
    const QByteArray elsewhere("/dev/shm");
    struct stat here = {};
    struct stat there = {};
    if (stat(usual.constData(), &here) != 0 || stat(elsewhere.constData(), &there) != 0 || here.st_dev == there.st_dev
        || access(elsewhere.constData(), W_OK) != 0)
        return nullptr;
    qputenv("TMPDIR", elsewhere);
    auto tree = std::make_unique<TestTree>();
    qputenv("TMPDIR", usual);
    return tree;
}

} // namespace FopsClient
