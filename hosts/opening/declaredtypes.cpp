// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "declaredtypes.h"

#include <QFile>
#include <QMimeDatabase>
#include <QStandardPaths>

#include <algorithm>

namespace
{

struct Candidate
{
    int distance; // from the type to the kind that the application declares
    QString id;
    GAppPtr app;
};

QStringList kindsOf(const QString &type)
{
    QStringList kinds(type);
    kinds += QMimeDatabase().mimeTypeForName(type).allAncestors();
    kinds.removeAll(QStringLiteral("application/octet-stream")); // what everything is, nothing opens
    return kinds;
}

int distance(GAppInfo *app, const QStringList &kinds)
{
    const QStringList types = DeclaredTypes::of(app);
    const auto found =
        std::find_if(kinds.begin(), kinds.end(), [&types](const QString &kind) { return types.contains(kind); });
    return found == kinds.end() ? -1 : int(found - kinds.begin());
}

} // namespace

QStringList DeclaredTypes::of(GAppInfo *app)
{
    QStringList types;
    for (const char **type = g_app_info_get_supported_types(app); type && *type; ++type)
        types.append(QString::fromUtf8(*type));
    return types;
}

QStringList DeclaredTypes::removedFrom(const QString &type)
{
    const std::unique_ptr<GKeyFile, GKeyFileUnref> file(g_key_file_new());
    const QString path =
        QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + QLatin1String("/mimeapps.list");
    QStringList ids;
    if (!g_key_file_load_from_file(file.get(), QFile::encodeName(path).constData(), G_KEY_FILE_NONE, nullptr))
        return ids;
    char **const list =
        g_key_file_get_string_list(file.get(), "Removed Associations", type.toUtf8().constData(), nullptr, nullptr);
    for (char **id = list; id && *id; ++id)
        ids.append(QString::fromUtf8(*id));
    g_strfreev(list);
    return ids;
}

GAppList DeclaredTypes::applications(const QString &type)
{
    const QStringList kinds = kindsOf(type);
    const QStringList removed = removedFrom(type);
    std::vector<Candidate> candidates;
    for (GAppPtr &app : taken(g_app_info_get_all())) {
        const QString id = QString::fromUtf8(g_app_info_get_id(app.get()));
        const int place = distance(app.get(), kinds);
        if (place >= 0 && !removed.contains(id))
            candidates.push_back({place, id, std::move(app)});
    }
    std::sort(candidates.begin(), candidates.end(), [](const Candidate &a, const Candidate &b) {
        return a.distance != b.distance ? a.distance < b.distance : a.id < b.id;
    });
    GAppList apps;
    for (Candidate &candidate : candidates)
        apps.push_back(std::move(candidate.app));
    return apps;
}
