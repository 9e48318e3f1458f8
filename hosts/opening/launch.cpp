// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "launch.h"

#include "associations.h"
#include "commandline.h"
#include "giolaunchcontext.h"

#include <unistd.h>

namespace
{

/// Runs in the child, before the application.
void enterDirectory(gpointer directory)
{
    if (chdir(static_cast<const char *>(directory)) != 0) {} // it was there a moment ago; the present one will do
}

bool startsOverTheBus(GDesktopAppInfo *app)
{
    return g_desktop_app_info_get_boolean(app, G_KEY_FILE_DESKTOP_KEY_DBUS_ACTIVATABLE);
}

bool hasOwnDirectory(GDesktopAppInfo *app)
{
    const GTextPtr path(g_desktop_app_info_get_string(app, G_KEY_FILE_DESKTOP_KEY_PATH));
    return path && *path;
}

} // namespace

bool launch(GAppInfo *app, const OpenTargetList &targets, const LaunchContext &context)
{
    if (!G_IS_DESKTOP_APP_INFO(app) || targets.isEmpty())
        return false;
    const GAppPtr terminalApp = CommandLine::inTerminal(app);
    GDesktopAppInfo *const started = G_DESKTOP_APP_INFO(terminalApp ? terminalApp.get() : app);

    GList *uris = nullptr;
    for (auto target = targets.crbegin(); target != targets.crend(); ++target)
        uris = g_list_prepend(uris, const_cast<char *>(target->uri.constData()));
    QByteArray directory = context.workingDirectory;
    const bool choosesDirectory = !directory.isEmpty() && !hasOwnDirectory(started);
    GErrorGuard error("cannot start the application");
    const bool overTheBus = startsOverTheBus(started);
    const std::unique_ptr<GDBusConnection, GObjectUnref> bus(
        overTheBus ? g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr) : nullptr);
    const GLaunchContextPtr passed = bus ? forCall(context) : forProcess(context);
    const bool done = g_desktop_app_info_launch_uris_as_manager(started, uris, passed.get(), G_SPAWN_SEARCH_PATH,
                                                                choosesDirectory ? enterDirectory : nullptr,
                                                                directory.data(), nullptr, nullptr, &error);
    if (bus)
        g_dbus_connection_flush_sync(bus.get(), nullptr, nullptr); // the tool ends right after it
    g_list_free(uris);
    return done;
}

OpenTargetList openWithDefaults(const OpenTargetList &targets, const LaunchContext &context)
{
    OpenTargetList left;
    const QList<OpenTargetList> groups = groupedByType(targets);
    for (const OpenTargetList &group : groups) {
        if (!launch(Associations::defaultFor(group.first().type).get(), group, context))
            left += group;
    }
    return left;
}

bool hasDefault(const OpenTarget &target)
{
    return Associations::defaultFor(target.type) != nullptr;
}
