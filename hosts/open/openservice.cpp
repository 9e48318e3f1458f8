// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "openservice.h"

#include "opening/applicationdialog.h"
#include "opening/guihost.h"

#include <veskplatform/vfs.h>

#include <QFutureWatcher>
#include <QtConcurrent>

using namespace VeskFM;

namespace
{

constexpr int mostWorkers = 16; // requests that may wait for disks at one time

EntryList entriesOf(const QStringList &paths)
{
    EntryList entries;
    for (const QString &path : paths)
        entries.append(VFS::ptr()->entry(path));
    return entries;
}

} // namespace

OpenService::OpenService(QObject *parent)
    : Service(parent)
{
    m_workers.setMaxThreadCount(mostWorkers);
}

void OpenService::open(const QStringList &paths, const QVariantMap &options)
{
    const bool choose = options.value(QStringLiteral("dialog")).toBool();
    find(paths, options, [this, choose](const Findings &found) {
        const OpenTargetList left = choose ? found.targets : openWithDefaults(found.targets, found.context);
        if (!left.isEmpty())
            showDialog(left, found.context); // nothing is set for them: ask
    });
}

void OpenService::askCanOpen(const QString &path, const std::function<void(bool)> &answer)
{
    find({path}, {},
         [answer](const Findings &found) { answer(!found.targets.isEmpty() && hasDefault(found.targets.first())); });
}

void OpenService::showAssociationDialog()
{
    showDialog({}, LaunchContext::fromOptions({}));
}

void OpenService::find(const QStringList &paths, const QVariantMap &options, const Continuation &next)
{
    lockUnloader();
    auto *const watcher = new QFutureWatcher<Findings>(this);
    connect(watcher, &QFutureWatcherBase::finished, this, [this, watcher, next] {
        watcher->deleteLater();
        next(watcher->result());
        unlockUnloader();
    });
    watcher->setFuture(QtConcurrent::run(&m_workers, [paths, options]() -> Findings {
        return {openTargets(entriesOf(paths)), LaunchContext::fromOptions(options)};
    }));
}

void OpenService::showDialog(const OpenTargetList &targets, const LaunchContext &context)
{
    if (!GuiHost::hasDisplay()) {
        qCritical("there is no display to ask on which application to use");
        return;
    }
    lockUnloader();
    auto *const dialog = new ApplicationDialog(targets, context);
    connect(dialog, &QObject::destroyed, this, &Service::unlockUnloader);
}

void OpenService::release() {}
