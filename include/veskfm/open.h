// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/export.h>
#include <veskfm/serviceinterfacesingletone.h>
#include <veskplatform/entrylist.h>

#include <QMap>
#include <QObject>
#include <QVariant>

namespace VeskFM
{

/// Opens entries with their applications, through the opening service. When the file manager runs as root under sudo, the
/// tool "vesk-open" is started as the user who called sudo instead, so that no application gets root's rights.
///
/// Thread: main. Errors: none are reported.
class VESKFM_EXPORT Open : public QObject,
                           public ServiceInterfaceSingletone
{
    Q_OBJECT

public:
    static Open *ptr();
    explicit Open(QObject *parent = nullptr);
    ~Open() override;

    /// Whether opening goes through the tool: root under sudo, unless it is the tool itself that sudo started.
    static bool shouldOpenAsUser();
    bool isAvailable() const; ///< through the service or through the tool

    /// Opens @p entries and does not wait.
    /// @param options "dialog" (bool: let the user choose the application), "workingDir", "desktop-startup-id",
    ///                "xdg-activation-token" (texts); all optional
    void open(const EntryList &entries, const QMap<QString, QVariant> &options);
    /// Whether there is something to open @p entry with. Waits for the service, or up to 30 seconds for the tool.
    bool canOpen(const Entry &entry);

private:
    static Open *m_ptr;

    QWeakPointer<QDBusInterface> m_open; // held by the base
};

} // namespace VeskFM
