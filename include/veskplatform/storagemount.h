// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entry.h>

#include <QObject>

namespace VeskFM
{

/// Mounts, unmounts and ejects the devices behind storage places. The calls return at once; finished() tells the end,
/// and the watcher what became of the place, whoever did it.
///
/// Thread: the GUI thread.
class VESKPLATFORM_EXPORT StorageMount : public QObject
{
    Q_OBJECT

public:
    explicit StorageMount(QObject *parent = nullptr);
    ~StorageMount() override;

    static bool canMount(const Entry &entry);
    static bool canUnmount(const Entry &entry);
    static bool canEject(const Entry &entry); ///< a disc, or a device that can be switched off

    void mount(const Entry &entry); ///< afterwards the place has a localPath()
    void unmount(const Entry &entry);
    void eject(const Entry &entry); ///< unmounts it first

Q_SIGNALS:
    /// Once for each call, never inside it. @p errorText: for the user; empty when all went well.
    void finished(const VeskFM::Entry &entry, const QString &errorText);

private:
    class Private;
    Private *const d; // child
};

} // namespace VeskFM
