// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QByteArray>
#include <QPair>
#include <QString>
#include <QVariant>
#include <QVector>

#include <memory>

class QSettings;

namespace VeskFM
{

/// The settings file as it was last read, and the way to write into it. A broken file is never written.
///
/// Values come from a private copy. The toolkit's own objects share one cache per file, which hides what is needed
/// here: it reports a broken file once only and then overwrites it, keeps an error after the repair, and takes a file
/// of the same size and clock tick for unchanged.
class SettingsFile
{
public:
    SettingsFile();
    ~SettingsFile();

    QString path() const;

    /// Writes what objects of this process on the same file have not written yet, then reads the file. False, and the
    /// former values stay, if it cannot be read or is broken. A missing file is an empty one.
    bool reload();

    /// @p key with its groups: "Global/trashSize". A key that the user's file lacks may come from a system-wide one.
    QVariant value(const QString &key, const QVariant &fallback) const;

    /// Writes full keys with their values. False if the file is broken or cannot be written.
    bool write(const QVector<QPair<QString, QVariant>> &values);

private:
    bool readCopy();

    const QString m_path;
    bool m_readable = true;
    QByteArray m_content;
    std::unique_ptr<QSettings> m_copy;   // of the user's file; null when there is none
    std::unique_ptr<QSettings> m_layers; // the user's and the system-wide files
};

} // namespace VeskFM
