// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/export.h>
#include <veskplatform/veskuidesktopentry.h>

#include <QDateTime>
#include <QElapsedTimer>
#include <QHash>
#include <QObject>
#include <QTimer>

#include <mutex>

namespace VeskFM
{

/// Parsed desktop-entry files, kept for about five seconds, so that preparing and refining one entry reads its file once.
///
/// Thread: any. The object itself, with its cleaning timer, lives in the application's thread whoever asked first.
class VESKFM_EXPORT DesktopEntryPool : public QObject
{
    Q_OBJECT
public:
    explicit DesktopEntryPool(QObject *parent = nullptr);
    ~DesktopEntryPool() override;

    static DesktopEntryPool *ptr();

    /// The desktop entry in the file @p filePath; links to it share one record. A file that changed on disk is read
    /// again. An empty desktop entry when there is no such file. May block on the disk.
    VeskUIDesktopEntry desktopEntry(const QString &filePath);

public Q_SLOTS:
    /// Drops the records made more than five seconds ago and stops the timer when none is left.
    void clearDesktopEntries();

private:
    struct Record
    {
        VeskUIDesktopEntry desktopEntry;
        QDateTime lastModified; // of the file when it was read
        QElapsedTimer age;      // since the record was made; use does not renew it
    };

    void store(const QString &canonicalPath, const VeskUIDesktopEntry &desktopEntry, const QDateTime &lastModified);

    static DesktopEntryPool *m_ptr;
    std::mutex m_mutex;               // guards m_records and m_cleaning; never held while a file is read
    QHash<QString, Record> m_records; // by canonical path
    bool m_cleaning = false;          // the timer runs, or has been asked to
    QTimer m_timer;                   // this object's thread
};

} // namespace VeskFM
