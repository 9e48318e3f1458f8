// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskplatform/favorites.h>

#include "archivenodes.h"
#include "bookmarklines.h"
#include "favoriteplaces.h"
#include "localvfs.h"
#include "pathcodec.h"
#include "smallfile.h"

#include <veskplatform/networkplaces.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <functional>

namespace VeskFM
{

namespace
{
constexpr qint64 largestFile = 1 << 20; // bytes, as for reading

QString translated(const char *text)
{
    return QCoreApplication::translate("VeskFM::Favorites", text);
}

/// What the favorite @p entry leads to, or would: see Bookmark::target.
QString targetOf(const Entry &entry)
{
    const QString target = FavoritePlaces::target(entry.path());
    if (!target.isEmpty())
        return target;
    if (!ArchiveNodes::archiveOf(entry).isEmpty())
        return {}; // other programs do not get in there
    const QString directory = LocalVfs::diskPath(entry);
    if (!directory.isEmpty() || entry.isNull())
        return directory;
    const NetworkPlaces *const network = NetworkPlaces::ptr();
    return network && !network->entry(entry.path()).isNull() ? entry.path() : QString();
}

bool readLines(QByteArray *text, QString *errorText)
{
    const QString path = FavoritePlaces::file();
    if (readSmallFile(PathCodec::encode(path), largestFile, text) || !QFileInfo::exists(path))
        return true;
    *errorText = translated(QT_TRANSLATE_NOOP("VeskFM::Favorites", "The file %1 cannot be read.")).arg(path);
    return false; // writing it now would lose what is in it
}

bool writeLines(const QByteArray &text, QString *errorText)
{
    const QString path = FavoritePlaces::file();
    QDir().mkpath(QFileInfo(path).path());
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit())
        return true;
    *errorText = translated(QT_TRANSLATE_NOOP("VeskFM::Favorites", "The file %1 cannot be written: %2."))
                     .arg(path, file.errorString());
    return false;
}

bool edit(const std::function<QString(BookmarkLines *)> &change, QString *errorText)
{
    QString ignored;
    QString *const error = errorText ? errorText : &ignored;
    QByteArray text;
    if (!readLines(&text, error))
        return false;
    BookmarkLines lines(text);
    *error = change(&lines);
    if (!error->isEmpty())
        return false;
    const bool isWritten = lines.text() == text || writeLines(lines.text(), error);
    if (const auto *const local = qobject_cast<LocalVfs *>(VFS::ptr()))
        local->lookAtFavorites();
    return isWritten;
}

/// The favorite that stands at @p position once @p target is out of the way; empty for the end.
QString favoriteAt(const BookmarkLines &lines, int position, const QString &target)
{
    QStringList shown;
    const QVector<Bookmark> bookmarks = lines.bookmarks();
    for (const Bookmark &bookmark : bookmarks) {
        if (bookmark.target != target && FavoritePlaces::isShown(bookmark.target))
            shown.append(bookmark.target);
    }
    return shown.value(position);
}

/// Changes the bookmark of a favorite that there is.
bool editOne(const Entry &entry, const std::function<void(BookmarkLines *, const QString &)> &change,
             QString *errorText)
{
    return edit(
        [&](BookmarkLines *lines) {
            const QString target = targetOf(entry);
            if (!lines->contains(target))
                return translated(QT_TRANSLATE_NOOP("VeskFM::Favorites", "That is no favorite."));
            change(lines, target);
            return QString();
        },
        errorText);
}
} // namespace

bool Favorites::canAdd(const Entry &entry)
{
    return (entry.isDir() || entry.isPlace()) && !targetOf(entry).isEmpty();
}

bool Favorites::add(const Entry &entry, int position, QString *errorText)
{
    return edit(
        [&](BookmarkLines *lines) {
            if (!canAdd(entry))
                return translated(QT_TRANSLATE_NOOP("VeskFM::Favorites", "Only folders can be favorites."));
            lines->put(targetOf(entry), favoriteAt(*lines, position, targetOf(entry)));
            return QString();
        },
        errorText);
}

bool Favorites::remove(const Entry &entry, QString *errorText)
{
    return editOne(
        entry, [](BookmarkLines *lines, const QString &target) { lines->remove(target); }, errorText);
}

bool Favorites::rename(const Entry &entry, const QString &label, QString *errorText)
{
    return editOne(
        entry, [&](BookmarkLines *lines, const QString &target) { lines->rename(target, label); }, errorText);
}

bool Favorites::move(const Entry &entry, int position, QString *errorText)
{
    return editOne(
        entry,
        [&](BookmarkLines *lines, const QString &target) { lines->put(target, favoriteAt(*lines, position, target)); },
        errorText);
}

} // namespace VeskFM
