// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "localplaces.h"

#include "localentrydata.h"
#include "localurls.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <bitset>

namespace VeskFM
{

namespace
{
constexpr qint64 largestBookmarksFile = 1 << 20; // bytes; nobody has that many
const QLatin1String favoritesRoot("favorites:/");

/// A virtual directory.
class PlaceEntryData : public EntryData
{
public:
    PlaceEntryData(const QString &path, const QString &name, const QString &localPath)
        : m_path(path)
        , m_name(name)
        , m_localPath(localPath)
    {
        set(EntryTrait::Exists); // whether a directory behind it does is for its listing to find out
        set(EntryTrait::Place);
        set(localPath.isEmpty() ? EntryTrait::PurePlace : EntryTrait::DirPlace);
    }
    void set(EntryTrait trait) { m_traits.set(size_t(trait)); }

    QString path() const override { return m_path; }
    int type() const override { return Entry::VirtualDir; }
    bool is(EntryTrait trait) const override { return m_traits.test(size_t(trait)); }
    QString localPath() const override { return m_localPath; }
    QString fileName() const override { return m_name; }

private:
    QString m_path;
    QString m_name;
    QString m_localPath;
    std::bitset<64> m_traits;
};
} // namespace

LocalPlaces::LocalPlaces()
    : m_computer(makePlace(QStringLiteral("computer:/"), tr("Computer"), QString(),
                           {EntryTrait::Root, EntryTrait::ComputerPlace}))
    , m_favorites(makePlace(favoritesRoot, tr("Favorites"), QString(), {EntryTrait::FavoritesPlace}))
    , m_places(makePlace(QStringLiteral("places:/"), tr("Places"), QString(), {}))
    , m_storageDevices(
          makePlace(QStringLiteral("storage:/"), tr("Storage devices"), QString(), {EntryTrait::StorageDevicesPlace}))
    , m_network(makePlace(QStringLiteral("network:/"), tr("Network"), QString(), {EntryTrait::NetworkPlace}))
    , m_networkResources(makePlace(QStringLiteral("network-resources:/"), tr("Network resources"), QString(),
                                   {EntryTrait::NetworkResourcesPlace}))
    , m_groups({m_favorites, m_places, m_storageDevices, m_network, m_networkResources})
    , m_fixedPlaces(
          {makePlace(QStringLiteral("places:/file-system"), tr("File system"), QStringLiteral("/"),
                     {EntryTrait::FileSystemRootPlace}),
           makePlace(QStringLiteral("places:/home"), tr("Home"), localHomePath(), {EntryTrait::HomeDirPlace}),
           makePlace(QStringLiteral("places:/trash"), tr("Trash"), localTrashPath(), {EntryTrait::TrashDirPlace})})
{
}

bool LocalPlaces::isPlacePath(const QString &path)
{
    return !path.isEmpty() && !path.startsWith(QLatin1Char('/'));
}

Entry LocalPlaces::makePlace(const QString &path, const QString &name, const QString &localPath,
                             std::initializer_list<EntryTrait> traits)
{
    auto *const data = new PlaceEntryData(path, name, localPath);
    for (const EntryTrait trait : traits)
        data->set(trait);
    return Entry(data);
}

Entry LocalPlaces::entry(const QString &path) const
{
    if (path == m_computer.path())
        return m_computer;
    const EntryList candidates = path.startsWith(favoritesRoot) && path != favoritesRoot ? readFavorites() : m_groups;
    for (const EntryList &list : {candidates, m_fixedPlaces}) {
        for (const Entry &place : list) {
            if (place.path() == path)
                return place;
        }
    }
    return {};
}

Entry LocalPlaces::parent(const Entry &place) const
{
    if (m_groups.contains(place))
        return m_computer;
    if (m_fixedPlaces.contains(place))
        return m_places;
    return place.path().startsWith(favoritesRoot) ? m_favorites : Entry();
}

EntryList LocalPlaces::childEntries(const Entry &entry) const
{
    if (entry == m_computer)
        return m_groups;
    if (entry == m_places)
        return m_fixedPlaces;
    return entry == m_favorites ? readFavorites() : EntryList();
}

int LocalPlaces::placeOrderIndex(const Entry &place, const Entry &parent) const
{
    return childEntries(parent).indexOf(place);
}

FavoritePlace LocalPlaces::favoritePlace(const Entry &entry) const
{
    return entry.isFavoritePlace() ? FavoritePlace(entry.fileName()) : FavoritePlace();
}

QString LocalPlaces::bookmarksFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
        + QLatin1String("/gtk-3.0/bookmarks");
}

/// One line is a URL and, behind the first blank, the label of the user; without one the directory's name is shown.
EntryList LocalPlaces::readFavorites() const
{
    EntryList favorites;
    QFile file(bookmarksFile());
    if (!file.open(QIODevice::ReadOnly) || file.isSequential())
        return favorites;
    const QList<QByteArray> lines = file.read(largestBookmarksFile).split('\n');
    for (const QByteArray &line : lines) {
        const int blank = line.indexOf(' ');
        const QString target = pathFromFileUrl(QUrl::fromEncoded(blank < 0 ? line : line.left(blank)));
        if (target.isEmpty())
            continue; // a bookmark of a network, or no bookmark
        const QString directory = QDir::cleanPath(target);
        QString label = blank < 0 ? QString() : QString::fromUtf8(line.mid(blank + 1)).trimmed();
        if (label.isEmpty())
            label = directory == QLatin1String("/") ? directory : directory.section(QLatin1Char('/'), -1);
        const Entry favorite =
            makePlace(favoritesRoot + QLatin1String("at") + directory, label, directory, {EntryTrait::FavoritePlace});
        if (!favorites.contains(favorite))
            favorites.append(favorite);
    }
    return favorites;
}

} // namespace VeskFM
