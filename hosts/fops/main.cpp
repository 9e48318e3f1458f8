// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "fopsservice.h"

#include "common/entrypath.h"
#include "common/haltsignals.h"
#include "common/hostconnection.h"

#include <veskplatform/vfs.h>

#include <QCoreApplication>
#include <QTextCodec>

#include <sys/resource.h>

#include <csignal>

namespace
{

/// Deep trees take two descriptors a level.
void allowManyDescriptors()
{
    struct rlimit limit = {};
    if (getrlimit(RLIMIT_NOFILE, &limit) == 0) {
        limit.rlim_cur = limit.rlim_max;
        setrlimit(RLIMIT_NOFILE, &limit);
    }
}

} // namespace

int main(int argc, char **argv)
{
    allowManyDescriptors();
    std::signal(SIGXFSZ, SIG_IGN); // a file at its limit is a failed operation, not the end of all
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("vesk-fm-fops"));
    // The bus may start the service without a locale; names are bytes, and those that are text are UTF-8.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    registerEntryPathTypes();
    VeskFM::VFS::ptr(); // made here, used by the workers

    FopsService service;
    HaltSignals halt; // after the service, which has them handled without regard to what runs
    QObject::connect(&halt, &HaltSignals::received, &service, &FopsService::stop);
    HostConnection bus(QStringLiteral("vesk-fm.fops"));
    QObject::connect(&bus, &HostConnection::lost, &service, &FopsService::finish);
    if (!bus.offer(QStringLiteral("/"), &service) || !bus.claimName())
        return 1;
    return QCoreApplication::exec();
}
