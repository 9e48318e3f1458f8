// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "archivefiles.h"

#include "printabletext.h"

#include <veskplatform/archivemount.h>

#include <QEventLoop>
#include <QTimer>

#include <utility>

using namespace VeskFM;

namespace
{
constexpr int shortTimeMs = 2000; // as long as somebody may wait with a pressed button
} // namespace

ArchiveFiles::ArchiveFiles(QObject *parent)
    : QObject(parent)
{
}

ArchiveFiles::~ArchiveFiles() = default;

void ArchiveFiles::withFiles(const EntryList &entries, const Use &use)
{
    cancel();
    m_wanted = entries;
    m_use = use;
    for (const Entry &entry : entries) {
        const Entry archive = ArchiveMount::isInArchive(entry) ? ArchiveMount::archiveOf(entry) : Entry();
        if (!archive.isNull() && m_mounts.find(archive.path()) == m_mounts.end()) {
            mount(archive);
            return;
        }
    }
    use(files());
}

EntryList ArchiveFiles::filesSoon(const EntryList &entries)
{
    EntryList found;
    withFiles(entries, [&found](const EntryList &files) { found = files; });
    if (!isBusy())
        return found;
    QEventLoop loop;
    connect(this, &ArchiveFiles::settled, &loop, &QEventLoop::quit);
    QTimer::singleShot(shortTimeMs, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    m_use = nullptr; // it goes on, for the next time
    return found;
}

void ArchiveFiles::cancel()
{
    if (isBusy())
        release(tr("Cancelled"));
}

void ArchiveFiles::mount(const Entry &archive)
{
    const QString text = tr("Unpacking %1 …").arg(printableText(archive.fileName()));
    m_currentPath = archive.path();
    m_current = std::make_unique<ArchiveMount>();
    connect(m_current.get(), &ArchiveMount::finished, this, &ArchiveFiles::onFinished);
    connect(m_current.get(), &ArchiveMount::progress, this,
            [this, text](int percent) { Q_EMIT message(tr("%1 %2 % (Esc cancels)").arg(text).arg(percent), true); });
    Q_EMIT message(tr("%1 (Esc cancels)").arg(text), true);
    Q_EMIT busyChanged(true);
    m_current->start(archive);
}

void ArchiveFiles::onFinished(bool isMounted)
{
    if (!isMounted) {
        release(m_current->problem());
        return;
    }
    m_mounts[m_currentPath] = std::move(m_current);
    const Use use = std::exchange(m_use, nullptr);
    Q_EMIT message(QString(), false);
    Q_EMIT busyChanged(false);
    if (use)
        withFiles(std::exchange(m_wanted, {}), use); // they may be of several archives
    Q_EMIT settled();
}

void ArchiveFiles::release(const QString &text)
{
    m_use = nullptr;
    if (m_current)
        m_current.release()->deleteLater(); // it may be the one that is telling
    Q_EMIT message(text, false);
    Q_EMIT busyChanged(false);
    Q_EMIT settled();
}

EntryList ArchiveFiles::files() const
{
    EntryList result;
    for (const Entry &entry : m_wanted) {
        const auto mounted = m_mounts.find(ArchiveMount::archiveOf(entry).path());
        const bool inside = ArchiveMount::isInArchive(entry) && mounted != m_mounts.end();
        const Entry file = inside ? mounted->second->localEntry(entry) : entry;
        if (!file.isNull())
            result.append(file);
    }
    return result;
}
