// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "launch.h"

#include "associations.h"

#include <veskfm/corepaths.h>
#include <veskplatform/veskuidesktopentry.h>
#include <veskplatform/vfs.h>

#include <QDir>
#include <QMap>
#include <QUrl>

#include <unistd.h>

using namespace VeskFM;

namespace
{

/// Runs in the child, between its birth and the application.
void enterDirectory(gpointer directory)
{
    if (chdir(static_cast<const char *>(directory)) != 0) {} // it was there a moment ago; the present one will do
}

QByteArray existingDirectory(const QString &directory)
{
    if (!directory.isEmpty() && QDir(directory).exists())
        return directory.toLocal8Bit();
    return QDir::homePath().toLocal8Bit();
}

bool launchUris(GAppInfo *app, const QList<QByteArray> &uris, const LaunchContext &context)
{
    if (!app)
        return false;
    const std::unique_ptr<GAppLaunchContext, GObjectUnref> launchContext(g_app_launch_context_new());
    const auto pass = [&](const char *variable, const QString &value) {
        if (!value.isEmpty())
            g_app_launch_context_setenv(launchContext.get(), variable, value.toUtf8().constData());
    };
    pass("DESKTOP_STARTUP_ID", context.startupId);
    pass("XDG_ACTIVATION_TOKEN", context.activationToken);

    GList *list = nullptr;
    for (auto uri = uris.crbegin(); uri != uris.crend(); ++uri)
        list = g_list_prepend(list, const_cast<char *>(uri->constData()));
    QByteArray directory = existingDirectory(context.workingDirectory);
    GErrorGuard error("cannot start the application");
    const bool started = G_IS_DESKTOP_APP_INFO(app)
        ? g_desktop_app_info_launch_uris_as_manager(G_DESKTOP_APP_INFO(app), list, launchContext.get(),
                                                    G_SPAWN_SEARCH_PATH, enterDirectory, directory.data(), nullptr,
                                                    nullptr, &error)
        : g_app_info_launch_uris(app, list, launchContext.get(), &error);
    g_list_free(list);
    return started;
}

} // namespace

LaunchContext::LaunchContext(const QVariantMap &options)
    : workingDirectory(options.value(QStringLiteral("workingDir")).toString())
    , startupId(options.value(QStringLiteral("desktop-startup-id")).toString())
    , activationToken(options.value(QStringLiteral("xdg-activation-token")).toString())
{
}

QString typeForOpening(const Entry &entry)
{
    if (entry.isDir() || entry.isDirPlace())
        return QStringLiteral("inode/directory");
    const QString localPath = entry.localPath();
    return localPath.isEmpty() ? mimeTypeForFile(entry.path(), false) : mimeTypeForFile(localPath, true);
}

QString linkTarget(const Entry &entry)
{
    if (!entry.isFile() || entry.localPath().isEmpty() || !entry.fileName().endsWith(QLatin1String(".desktop")))
        return {};
    const VeskUIDesktopEntry file(entry.localPath());
    return file.isValid() && file.getType() == QLatin1String("Link") ? file.getUrl() : QString();
}

bool launch(GAppInfo *app, const EntryList &entries, const LaunchContext &context)
{
    QList<QByteArray> uris;
    const QList<QUrl> urls = VFS::ptr()->urlsFromEntries(entries); // with the exact bytes of the names
    for (const QUrl &url : urls)
        uris.append(url.toEncoded(QUrl::FullyEncoded));
    return !uris.isEmpty() && launchUris(app, uris, context);
}

bool launchUrl(const QString &url, const LaunchContext &context)
{
    const QUrl parsed(url);
    if (!parsed.isValid() || parsed.isRelative())
        return false;
    if (parsed.isLocalFile()) {
        const Entry target = VFS::ptr()->entriesFromUrls({parsed}).value(0);
        if (target.isNull() || !linkTarget(target).isEmpty()) // links could lead round for ever
            return false;
        return launch(Associations::defaultFor(typeForOpening(target)).get(), EntryList{target}, context);
    }
    const GAppPtr app = Associations::defaultFor(QStringLiteral("x-scheme-handler/") + parsed.scheme());
    return launchUris(app.get(), {parsed.toEncoded(QUrl::FullyEncoded)}, context);
}

bool canOpen(const Entry &entry)
{
    if (entry.isNull() || !VFS::ptr()->isEntryExists(entry))
        return false;
    const QString target = linkTarget(entry);
    if (!target.isEmpty() && !QUrl(target).isLocalFile())
        return Associations::defaultFor(QStringLiteral("x-scheme-handler/") + QUrl(target).scheme()) != nullptr;
    return Associations::defaultFor(typeForOpening(entry)) != nullptr;
}

EntryList openWithDefaults(const EntryList &entries, const LaunchContext &context)
{
    EntryList left;
    QMap<QString, EntryList> byType;
    for (const Entry &entry : entries) {
        const QString target = entry.isNull() ? QString() : linkTarget(entry);
        if (entry.isNull())
            continue;
        if (target.isEmpty())
            byType[typeForOpening(entry)].append(entry);
        else if (!launchUrl(target, context))
            left.append(entry);
    }
    for (auto group = byType.cbegin(); group != byType.cend(); ++group) {
        const GAppPtr app = Associations::defaultFor(group.key());
        if (!launch(app.get(), group.value(), context))
            left += group.value();
    }
    return left;
}
