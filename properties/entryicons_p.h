// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entry.h>

#include <QIcon>
#include <QImage>
#include <QString>

namespace VeskFM
{

class StoragePlace;

/// What an icon is made of. Written down on any thread; only make(), on the GUI thread, touches the icon theme, which
/// two threads cannot search at the same time.
struct IconRecipe
{
    QImage image;              ///< a thumbnail: it is the icon
    QString name;              ///< else the theme's icon of this name, if the theme has it
    QString fallback;          ///< else of this one; empty for a recipe that knows but one name
    QString lastResort;        ///< else of this one
    bool keepsName = false;    ///< the fallback serves an empty name only, not one that the theme lacks
    bool showsMounted = false; ///< with the emblem of a mounted device

    bool isEmpty() const { return image.isNull() && name.isEmpty() && fallback.isEmpty(); }
    /// One name and nothing else: VeskIcon remembers such icons, and many entries share them.
    bool isPlain() const { return image.isNull() && fallback.isEmpty() && lastResort.isEmpty(); }
    QIcon make() const; ///< null when the theme has none of the names
};

/// The icon name of a place or of another entry with a fixed icon; empty for everything else. Thread: any.
QString placeIconName(const Entry &entry);
/// The icon name of a storage device by its kind; empty for an unknown one.
QString storageIconName(const StoragePlace &place);
/// The icon name for a file of @p mimeType at @p path; never empty. May look at the disk.
/// @param executable whether the file is a regular one that can be executed
QString fileIconName(const QString &path, const QString &mimeType, bool full, bool executable);

} // namespace VeskFM
