// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "bookmarklines.h"

#include "localurls.h"

#include <QDir>
#include <QSet>

#include <algorithm>

namespace VeskFM
{

BookmarkLines::BookmarkLines(const QByteArray &text)
{
    QList<QByteArray> lines = text.split('\n');
    if (lines.last().isEmpty())
        lines.removeLast(); // behind the end of the last one
    QSet<QString> known;
    for (const QByteArray &line : qAsConst(lines)) {
        m_lines.append(parsed(line));
        m_lines.last().repeats = known.contains(m_lines.last().bookmark.target);
        known.insert(m_lines.last().bookmark.target);
    }
}

BookmarkLines::Line BookmarkLines::parsed(const QByteArray &text)
{
    Line line{text, {}};
    const QByteArray trimmed = text.trimmed();
    const int blank = trimmed.indexOf(' ');
    const QUrl url = QUrl::fromEncoded(blank < 0 ? trimmed : trimmed.left(blank));
    if (!url.isValid() || url.isRelative())
        return line;
    if (url.scheme() == QLatin1String("file")) {
        const QString path = pathFromFileUrl(url);
        line.bookmark.target = path.isEmpty() ? QString() : QDir::cleanPath(path);
    } else if (!url.host().isEmpty()) {
        line.bookmark.target = url.toString(QUrl::FullyEncoded | QUrl::StripTrailingSlash);
    }
    if (blank >= 0)
        line.bookmark.label = QString::fromUtf8(trimmed.mid(blank + 1)).trimmed();
    return line;
}

QVector<Bookmark> BookmarkLines::bookmarks() const
{
    QVector<Bookmark> bookmarks;
    for (const Line &line : m_lines) {
        if (!line.bookmark.target.isEmpty() && !line.repeats)
            bookmarks.append(line.bookmark);
    }
    return bookmarks;
}

QByteArray BookmarkLines::text() const
{
    QByteArray text;
    for (const Line &line : m_lines)
        text += line.text + '\n';
    return text;
}

int BookmarkLines::lineOf(const QString &target) const
{
    const auto line = std::find_if(m_lines.begin(), m_lines.end(),
                                   [&](const Line &other) { return other.bookmark.target == target; });
    return target.isEmpty() || line == m_lines.end() ? -1 : int(line - m_lines.begin());
}

bool BookmarkLines::contains(const QString &target) const
{
    return lineOf(target) >= 0;
}

void BookmarkLines::put(const QString &target, const QString &next)
{
    const int present = lineOf(target);
    const QUrl url = target.startsWith(QLatin1Char('/')) ? fileUrlOfPath(target) : QUrl(target);
    const Line line = present < 0 ? Line{url.toEncoded(), {target, {}}} : m_lines.at(present);
    remove(target);
    const int position = next.isEmpty() ? -1 : lineOf(next);
    m_lines.insert(position < 0 ? m_lines.size() : position, line);
}

void BookmarkLines::remove(const QString &target)
{
    if (target.isEmpty())
        return; // that is what the lines have that are no bookmarks
    const auto isOfTarget = [&](const Line &line) { return line.bookmark.target == target; };
    m_lines.erase(std::remove_if(m_lines.begin(), m_lines.end(), isOfTarget), m_lines.end());
}

void BookmarkLines::rename(const QString &target, const QString &label)
{
    const int present = lineOf(target);
    if (present < 0)
        return;
    Line &line = m_lines[present];
    line.bookmark.label = label.simplified(); // one of several lines would make lines
    line.text = line.text.trimmed().split(' ').first();
    if (!line.bookmark.label.isEmpty())
        line.text += ' ' + line.bookmark.label.toUtf8();
}

} // namespace VeskFM
