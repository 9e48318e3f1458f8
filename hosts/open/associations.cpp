// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "associations.h"

#include <algorithm>

using namespace VeskFM;

namespace
{

bool isSame(const GAppPtr &a, const GAppPtr &b)
{
    return g_app_info_equal(a.get(), b.get());
}

QString desktopFile(GAppInfo *app)
{
    const char *const path =
        G_IS_DESKTOP_APP_INFO(app) ? g_desktop_app_info_get_filename(G_DESKTOP_APP_INFO(app)) : nullptr;
    return QString::fromUtf8(path);
}

QString commandLine(GAppInfo *app)
{
    return QString::fromUtf8(g_app_info_get_commandline(app));
}

} // namespace

AppInfo Associations::describe(GAppInfo *app)
{
    AppInfo info;
    if (!app)
        return info;
    info.setName(QString::fromUtf8(g_app_info_get_display_name(app)));
    info.setComment(QString::fromUtf8(g_app_info_get_description(app)));
    info.setExec(commandLine(app));
    if (GIcon *const icon = g_app_info_get_icon(app)) {
        const GTextPtr name(g_icon_to_string(icon));
        info.setIcon(QString::fromUtf8(name.get()));
    }
    const QString file = desktopFile(app);
    info.setSource(file.isEmpty() ? AppInfo::Other : AppInfo::DesktopEntryFile, file);
    if (G_IS_DESKTOP_APP_INFO(app))
        info.setTerminal(g_desktop_app_info_get_boolean(G_DESKTOP_APP_INFO(app), G_KEY_FILE_DESKTOP_KEY_TERMINAL));
    return info;
}

GAppPtr Associations::find(const AppInfo &app)
{
    // Among the registered ones first: only these have an id that mimeapps.list can name.
    GAppList known = taken(g_app_info_get_all());
    const QString file = app.desktopSourceFilePath();
    for (GAppPtr &candidate : known) {
        if (file.isEmpty() ? commandLine(candidate.get()) == app.exec() : desktopFile(candidate.get()) == file)
            return std::move(candidate);
    }
    if (!file.isEmpty()) {
        if (GDesktopAppInfo *const found = g_desktop_app_info_new_from_filename(file.toUtf8().constData()))
            return GAppPtr(G_APP_INFO(found));
    }
    if (app.exec().trimmed().isEmpty())
        return nullptr;
    GErrorGuard error("cannot use the command");
    const int flags = G_APP_INFO_CREATE_SUPPORTS_URIS | (app.terminal() ? G_APP_INFO_CREATE_NEEDS_TERMINAL : 0);
    const QByteArray name = app.name().toUtf8();
    return GAppPtr(g_app_info_create_from_commandline(app.exec().toUtf8().constData(),
                                                      name.isEmpty() ? nullptr : name.constData(),
                                                      GAppInfoCreateFlags(flags), &error));
}

GAppPtr Associations::defaultFor(const QString &type)
{
    return GAppPtr(g_app_info_get_default_for_type(type.toUtf8().constData(), FALSE));
}

GAppList Associations::allFor(const QString &type)
{
    GAppList apps = taken(g_app_info_get_all_for_type(type.toUtf8().constData()));
    GAppPtr first = defaultFor(type);
    if (!first)
        return apps;
    apps.erase(std::remove_if(apps.begin(), apps.end(), [&](const GAppPtr &app) { return isSame(app, first); }),
               apps.end());
    apps.insert(apps.begin(), std::move(first));
    return apps;
}

GAppList Associations::all()
{
    GAppList apps = taken(g_app_info_get_all());
    apps.erase(
        std::remove_if(apps.begin(), apps.end(), [](const GAppPtr &app) { return !g_app_info_should_show(app.get()); }),
        apps.end());
    return apps;
}

bool Associations::setDefault(const QString &type, GAppInfo *app)
{
    GErrorGuard error("cannot set the default application");
    return app && !type.isEmpty() && g_app_info_set_as_default_for_type(app, type.toUtf8().constData(), &error);
}

bool Associations::setDefaultForItsTypes(GAppInfo *app)
{
    const char **const types = app ? g_app_info_get_supported_types(app) : nullptr;
    bool done = types && *types;
    for (const char **type = types; type && *type; ++type)
        done = setDefault(QString::fromUtf8(*type), app) && done;
    return done;
}

void Associations::setAll(const QString &type, const GAppList &apps)
{
    const QByteArray name = type.toUtf8();
    GErrorGuard error("cannot change the applications of a type");
    const GAppList former = taken(g_app_info_get_all_for_type(name.constData()));
    for (const GAppPtr &app : former) {
        const auto isApp = [&app](const GAppPtr &other) { return isSame(app, other); };
        if (std::none_of(apps.begin(), apps.end(), isApp) && g_app_info_can_remove_supports_type(app.get()))
            g_app_info_remove_supports_type(app.get(), name.constData(), nullptr);
    }
    for (auto app = apps.rbegin(); app != apps.rend(); ++app) // each goes to the front
        g_app_info_set_as_last_used_for_type(app->get(), name.constData(), nullptr);
    if (!apps.empty())
        g_app_info_set_as_default_for_type(apps.front().get(), name.constData(), &error);
}
