// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "giolaunchcontext.h"

// A launch context whose startup id is the one that was passed to us. GIO puts it into the call that starts an
// application over the bus, where the environment does not reach it.
struct PassedIdContext
{
    GAppLaunchContext parent;
    char *id; // owned
};
struct PassedIdContextClass
{
    GAppLaunchContextClass parent;
};
G_DEFINE_TYPE(PassedIdContext, passed_id_context, G_TYPE_APP_LAUNCH_CONTEXT)

static void passed_id_context_init(PassedIdContext *) {}

static void passed_id_context_class_init(PassedIdContextClass *self)
{
    self->parent.get_startup_notify_id = [](GAppLaunchContext *context, GAppInfo *, GList *) {
        return g_strdup(reinterpret_cast<PassedIdContext *>(context)->id);
    };
    G_OBJECT_CLASS(self)->finalize = [](GObject *context) {
        g_free(reinterpret_cast<PassedIdContext *>(context)->id);
        G_OBJECT_CLASS(passed_id_context_parent_class)->finalize(context);
    };
}

GLaunchContextPtr forProcess(const LaunchContext &context)
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

GLaunchContextPtr forCall(const LaunchContext &context)
{
    GLaunchContextPtr result(G_APP_LAUNCH_CONTEXT(g_object_new(passed_id_context_get_type(), nullptr)));
    const QByteArray &id = context.activationToken.isEmpty() ? context.startupId : context.activationToken;
    if (!id.isEmpty())
        reinterpret_cast<PassedIdContext *>(result.get())->id = g_strdup(id.constData());
    return result;
}
