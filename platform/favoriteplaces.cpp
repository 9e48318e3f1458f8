// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "favoriteplaces.h"

#include "pathcodec.h"
#include "smallfile.h"

#include <veskplatform/networkplaces.h>

#include <QStandardPaths>

#include <sys/stat.h>

#include <tuple>

namespace VeskFM
{

namespace
{
constexpr qint64 largestFile = 1 << 20; // bytes; nobody has that many favorites
const QLatin1String pathPrefix("favorites:/at");
const QLatin1String networkPrefix("favorites:/of/");

QString pathOf(const QString &target)
{
    return (target.startsWith(QLatin1Char('/')) ? pathPrefix : networkPrefix) + target;
}

QString nameOf(const Bookmark &bookmark)
{
    if (!bookmark.label.isEmpty())
        return bookmark.label;
    const QString name = bookmark.target.section(QLatin1Char('/'), -1);
    return name.isEmpty() ? bookmark.target : name;
}

Entry networkEntry(const QString &target)
{
    const NetworkPlaces *const network = NetworkPlaces::ptr();
    return network ? network->entry(target) : Entry();
}

QVector<FoundPlace> favoritesIn(const QByteArray &text)
{
    QVector<FoundPlace> found;
    const QVector<Bookmark> bookmarks = BookmarkLines(text).bookmarks();
    for (const Bookmark &bookmark : bookmarks) {
        if (!FavoritePlaces::isShown(bookmark.target))
            continue;
        const bool isLocal = bookmark.target.startsWith(QLatin1Char('/'));
        const QString directory = isLocal ? bookmark.target : networkEntry(bookmark.target).localPath();
        PlaceFacts facts(nameOf(bookmark), directory, {EntryTrait::FavoritePlace});
        if (!isLocal)
            facts.set(EntryTrait::FavoriteNetworkPlace);
        found.append({pathOf(bookmark.target), facts});
    }
    return found;
}
} // namespace

bool FavoritePlaces::Version::operator==(const Version &other) const
{
    const auto fields = [](const Version &version) {
        return std::tie(version.device, version.node, version.size, version.modifiedNs, version.network);
    };
    return fields(*this) == fields(other);
}

FavoritePlaces::FavoritePlaces(const Entry &group, EntryWatcher *watcher, QObject *context)
    : m_context(context)
    , m_group(group, watcher)
{
}

EntryList FavoritePlaces::entries()
{
    lookUnlessFollowed();
    m_shown = true;
    return m_group.entries();
}

Entry FavoritePlaces::entry(const QString &path)
{
    lookUnlessFollowed();
    return m_group.entry(path);
}

int FavoritePlaces::indexOf(const QString &path)
{
    lookUnlessFollowed();
    return m_group.indexOf(path);
}

QString FavoritePlaces::target(const QString &path)
{
    for (const QLatin1String &prefix : {pathPrefix, networkPrefix}) {
        if (path.startsWith(prefix))
            return path.mid(prefix.size());
    }
    return {};
}

bool FavoritePlaces::isShown(const QString &target)
{
    return target.startsWith(QLatin1Char('/')) || !networkEntry(target).isNull();
}

void FavoritePlaces::follow()
{
    QMetaObject::invokeMethod(
        m_context,
        [this] {
            update();
            m_followed = true;
        },
        Qt::QueuedConnection);
}

void FavoritePlaces::lookUnlessFollowed()
{
    if (!m_followed)
        update();
}

void FavoritePlaces::update()
{
    PlaceGroup::News news;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        const Version version = present(); // before it is read: what changes meanwhile is found next time
        if (version == m_version)
            return;
        m_version = version;
        QByteArray text;
        if (!readSmallFile(PathCodec::encode(file()), largestFile, &text))
            text.clear();
        news = m_group.replace(favoritesIn(text));
    }
    if (m_shown)
        m_group.tell(news);
}

FavoritePlaces::Version FavoritePlaces::present()
{
    Version version;
    version.network = NetworkPlaces::ptr();
    struct stat facts;
    if (stat(PathCodec::encode(file()).constData(), &facts) != 0)
        return version;
    version.device = facts.st_dev;
    version.node = facts.st_ino;
    version.size = facts.st_size;
    version.modifiedNs = qint64(facts.st_mtim.tv_sec) * 1000000000 + facts.st_mtim.tv_nsec;
    return version;
}

QString FavoritePlaces::file()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
        + QLatin1String("/gtk-3.0/bookmarks");
}

} // namespace VeskFM
