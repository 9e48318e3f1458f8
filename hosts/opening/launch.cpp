// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "launch.h"

#include "associations.h"
#include "commandline.h"

#include <unistd.h>

namespace
{

using GLaunchContextPtr = std::unique_ptr<GAppLaunchContext, GObjectUnref>;

/// Runs in the child, before the application.
void enterDirectory(gpointer directory)
{
    if (chdir(static_cast<const char *>(directory)) != 0) {} // it was there a moment ago; the present one will do
}

/// The environment that the application adds to ours. An id or token that this process was started with is spent.
GLaunchContextPtr launchContext(const LaunchContext &context)
{
    GLaunchContextPtr result(g_app_launch_context_new());
    const auto pass = [&result](const char *variable, const QByteArray &value) {
        if (value.isEmpty())
            g_app_launch_context_unsetenv(result.get(), variable);
        else
            g_app_launch_context_setenv(result.get(), variable, value.constData());
    };
    pass("DESKTOP_STARTUP_ID", context.startupId);
    pass("XDG_ACTIVATION_TOKEN", context.activationToken);
    pass("DBUS_STARTER_ADDRESS", {}); // the bus started this service, not the application
    pass("DBUS_STARTER_BUS_TYPE", {});
    return result;
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
    const bool done = g_desktop_app_info_launch_uris_as_manager(
        started, uris, launchContext(context).get(), G_SPAWN_SEARCH_PATH, choosesDirectory ? enterDirectory : nullptr,
        directory.data(), nullptr, nullptr, &error);
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
