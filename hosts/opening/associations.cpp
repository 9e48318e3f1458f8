// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "associations.h"

#include "commandline.h"
#include "declaredtypes.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <algorithm>
#include <functional>

using namespace VeskFM;

namespace
{

bool isIn(const GAppList &apps, const GAppPtr &app)
{
    return std::any_of(apps.begin(), apps.end(),
                       [&app](const GAppPtr &other) { return g_app_info_equal(app.get(), other.get()); });
}

QString desktopFile(GAppInfo *app)
{
    return QString::fromUtf8(G_IS_DESKTOP_APP_INFO(app) ? g_desktop_app_info_get_filename(G_DESKTOP_APP_INFO(app))
                                                        : nullptr);
}

AppInfo infoOf(const QString &desktopEntry)
{
    return desktopEntry.isEmpty() ? AppInfo() : AppInfo::appInfo(desktopEntry);
}

QString commandLine(GAppInfo *app)
{
    return QString::fromUtf8(g_app_info_get_commandline(app));
}

GAppPtr takenIf(GAppList &apps, const std::function<bool(GAppInfo *)> &matches)
{
    for (GAppPtr &app : apps) {
        if (matches(app.get()))
            return std::move(app);
    }
    return nullptr;
}

GAppPtr registeredFile(GAppList &known, const AppInfo &info)
{
    const QString file = QDir::cleanPath(info.desktopSourceFilePath());
    GAppPtr app = takenIf(known, [&file](GAppInfo *other) { return desktopFile(other) == file; });
    if (!app && info.isFromStandardDirs()) // GIO may not have heard yet of a new one
        app.reset(G_APP_INFO(g_desktop_app_info_new_from_filename(QFile::encodeName(file).constData())));
    return app;
}

GAppPtr registeredCommand(GAppList &known, const QString &command)
{
    GAppPtr same = takenIf(known, [&command](GAppInfo *app) { return commandLine(app) == command; });
    if (same)
        return same;
    const QString program = CommandLine::withoutFiles(command);
    return takenIf(known, [&program](GAppInfo *app) { return CommandLine::withoutFiles(commandLine(app)) == program; });
}

} // namespace

bool Associations::isType(const QString &text)
{
    static const QRegularExpression pattern(QStringLiteral("^[\\w.+!#$&^-]+/[\\w.+!#$&^-]+$"));
    return pattern.match(text).hasMatch();
}

AppInfo Associations::describe(GAppInfo *app)
{
    if (!app)
        return {};
    AppInfo info = infoOf(desktopFile(app)); // what every client gets that reads the entry itself
    if (!info.isNull())
        return info;
    info.setName(QString::fromUtf8(g_app_info_get_display_name(app)));
    info.setExec(commandLine(app));
    return info;
}

GAppPtr Associations::find(const AppInfo &app)
{
    GAppList known = taken(g_app_info_get_all());
    const QString file = app.desktopSourceFilePath();
    GAppPtr found = registeredFile(known, app);
    if (!found && !file.isEmpty()) // a copy, as on the desktop
        found = registeredFile(known, AppInfo::appInfoForOriginFile(file));
    if (found)
        return found;
    // mimeapps.list can name registered entries only: of another one the command gets an entry of its own.
    const AppInfo unregistered = infoOf(file);
    const AppInfo &source = unregistered.exec().isEmpty() ? app : unregistered;
    const QString command = source.exec().trimmed();
    if (command.isEmpty())
        return nullptr;
    found = registeredCommand(known, command);
    return found ? std::move(found) : CommandLine::application(command, source.name(), source.terminal());
}

GAppPtr Associations::defaultFor(const QString &type)
{
    GAppList apps = allFor(type);
    return apps.empty() ? nullptr : std::move(apps.front());
}

GAppList Associations::allFor(const QString &type)
{
    const QByteArray name = type.toUtf8();
    const QStringList removed = DeclaredTypes::removedFrom(type); // GIO may still call one of them the default
    GAppList apps;
    const auto add = [&apps, &removed](GAppPtr app) {
        if (app && !isIn(apps, app) && !removed.contains(QString::fromUtf8(g_app_info_get_id(app.get()))))
            apps.push_back(std::move(app));
    };
    add(GAppPtr(g_app_info_get_default_for_type(name.constData(), FALSE)));
    for (GAppPtr &app : taken(g_app_info_get_all_for_type(name.constData())))
        add(std::move(app));
    for (GAppPtr &app : DeclaredTypes::applications(type))
        add(std::move(app));
    return apps;
}

GAppList Associations::all()
{
    GAppList apps = taken(g_app_info_get_all());
    apps.erase(
        std::remove_if(apps.begin(), apps.end(), [](const GAppPtr &app) { return !g_app_info_should_show(app.get()); }),
        apps.end());
    std::sort(apps.begin(), apps.end(), [](const GAppPtr &a, const GAppPtr &b) {
        return g_utf8_collate(g_app_info_get_display_name(a.get()), g_app_info_get_display_name(b.get())) < 0;
    });
    return apps;
}

bool Associations::setDefault(const QString &type, GAppInfo *app)
{
    GErrorGuard error("cannot set the default application");
    return app && isType(type) && g_app_info_set_as_default_for_type(app, type.toUtf8().constData(), &error);
}

bool Associations::setDefaultForItsTypes(GAppInfo *app)
{
    const QStringList types = app ? DeclaredTypes::of(app) : QStringList();
    bool done = !types.isEmpty();
    for (const QString &type : types)
        done = setDefault(type, app) && done;
    return done;
}

void Associations::setAll(const QString &type, const GAppList &apps)
{
    if (!isType(type))
        return;
    reset(type); // a removed application would stay the default
    const QByteArray name = type.toUtf8();
    for (const GAppPtr &former : allFor(type)) {
        if (!isIn(apps, former))
            g_app_info_remove_supports_type(former.get(), name.constData(), nullptr);
    }
    for (auto app = apps.rbegin(); app != apps.rend(); ++app) // each goes to the front
        g_app_info_set_as_last_used_for_type(app->get(), name.constData(), nullptr);
    if (!apps.empty())
        setDefault(type, apps.front().get());
}

void Associations::reset(const QString &type)
{
    if (isType(type))
        g_app_info_reset_type_associations(type.toUtf8().constData());
}
