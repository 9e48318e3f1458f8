// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "findmeasures.h"

#include "findthread.h"
#include "findwindow.h"
#include "stallmeter.h"

#include <veskplatform/vfs.h>

#include <QCheckBox>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QLineEdit>
#include <QProcess>
#include <QTextStream>

#include <sys/resource.h>

using namespace VeskFM;

namespace
{

/// Matches an eighth of the generated names.
QString pattern()
{
    return QStringLiteral("*.jpg");
}

double elapsedMs(const QElapsedTimer &clock)
{
    return static_cast<double>(clock.nsecsElapsed()) / 1e6;
}

double processorMs(int who)
{
    rusage usage = {};
    getrusage(who, &usage);
    const timeval both = {usage.ru_utime.tv_sec + usage.ru_stime.tv_sec,
                          usage.ru_utime.tv_usec + usage.ru_stime.tv_usec};
    return static_cast<double>(both.tv_sec) * 1e3 + static_cast<double>(both.tv_usec) / 1e3;
}

double peakMegabytes()
{
    rusage usage = {};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024;
}

} // namespace

QJsonObject FindMeasures::find(const QString &directory)
{
    QElapsedTimer clock;
    clock.start();
    const int exitCode = QProcess::execute(QStringLiteral("find"), {directory, QStringLiteral("-printf"), QString()});
    if (exitCode != 0) {
        QTextStream(stderr) << "vesk-bench: find(1) did not work\n";
        return {};
    }
    const double findMs = elapsedMs(clock);
    return {{QStringLiteral("find_ms"), findMs}, {QStringLiteral("find_cpu_ms"), processorMs(RUSAGE_CHILDREN)}};
}

QJsonObject FindMeasures::walk(const QString &directory)
{
    FindQuery query;
    query.start = VFS::ptr()->entry(directory);
    query.namePatterns = QStringList(pattern());
    query.hiddenEntries = true;
    FindThread thread;
    const double before = processorMs(RUSAGE_SELF);
    QElapsedTimer clock;
    clock.start();
    thread.find(std::move(query));
    thread.wait();
    const double walkMs = elapsedMs(clock);
    return {{QStringLiteral("walk_ms"), walkMs},
            {QStringLiteral("walk_cpu_ms"), processorMs(RUSAGE_SELF) - before},
            {QStringLiteral("walked"), thread.lookedAtCount()},
            {QStringLiteral("matches"), static_cast<int>(thread.takeFound().size())}};
}

QJsonObject FindMeasures::window(const QString &directory)
{
    auto *const window = new FindWindow(VFS::ptr()->entry(directory)); // deletes itself when closed
    window->findChild<QLineEdit *>(QStringLiteral("names"))->setText(pattern());
    window->findChild<QCheckBox *>(QStringLiteral("hidden"))->setChecked(true);
    window->show();
    QCoreApplication::processEvents(); // what any window does when it opens
    QEventLoop loop;
    QObject::connect(window, &FindWindow::searchFinished, &loop, &QEventLoop::quit);
    QElapsedTimer clock;
    StallMeter stall;
    clock.start();
    stall.start();
    window->find();
    loop.exec();
    const QJsonObject figures{{QStringLiteral("window_ms"), elapsedMs(clock)},
                              {QStringLiteral("stall_ms"), stall.stop()},
                              {QStringLiteral("peak_mb"), peakMegabytes()}};
    window->close();
    return figures;
}

QJsonObject FindMeasures::childs(const QString &directory)
{
    constexpr VFS::EntryChildFilters filters(VFS::RecursiveListing | VFS::NoArchiveDescent);
    QElapsedTimer clock;
    clock.start();
    EntryList pending(VFS::ptr()->entry(directory));
    while (!pending.isEmpty()) {
        const EntryList children = VFS::ptr()->childs(pending.takeLast(), filters, nullptr);
        for (const Entry &child : children) {
            if (!child.isSymLink() && child.isDir())
                pending.append(child);
        }
    }
    return {{QStringLiteral("childs_ms"), elapsedMs(clock)}};
}
