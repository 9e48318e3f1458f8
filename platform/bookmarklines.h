// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QVector>

namespace VeskFM
{

/// One bookmark of a directory or of a place of the network.
struct Bookmark
{
    QString target; ///< a VFS path: absolute for a directory, else the text of the URL
    QString label;  ///< the user's; empty for none
};

/// The content of a bookmarks file of the GTK file dialogs: a URL a line and, behind the first blank, a label.
///
/// Whatever else the file holds stays in it.
class BookmarkLines
{
public:
    explicit BookmarkLines(const QByteArray &text);

    QVector<Bookmark> bookmarks() const; ///< without those that repeat one further up
    QByteArray text() const;

    /// Adds it, or moves it with its label when it is there.
    /// @param next  target of the bookmark that it comes before; at the end without one
    void put(const QString &target, const QString &next);
    bool contains(const QString &target) const;
    void remove(const QString &target);
    void rename(const QString &target, const QString &label); ///< empty: without a label

private:
    struct Line
    {
        QByteArray text;
        Bookmark bookmark{}; // without a target for a line that is none
        bool repeats = false;
    };
    static Line parsed(const QByteArray &text);
    int lineOf(const QString &target) const;

    QList<Line> m_lines;
};

} // namespace VeskFM
