// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "gioptr.h"

#include <veskplatform/entrylist.h>

#include <QVariantMap>

/// What an application is started with.
struct LaunchContext
{
    LaunchContext() = default;
    /// From the options of an opening: "workingDir", "desktop-startup-id", "xdg-activation-token".
    explicit LaunchContext(const QVariantMap &options);

    QString workingDirectory; ///< that of this process when it is empty or gone
    QString startupId;
    QString activationToken;
};

/// The MIME type that decides about an entry's application; its content is read where that is safe.
QString typeForOpening(const VeskFM::Entry &entry);
/// The address that a desktop entry of type "Link" leads to; empty for anything else.
QString linkTarget(const VeskFM::Entry &entry);

/// Starts @p app on the entries, without waiting for it. Returns whether it was started.
bool launch(GAppInfo *app, const VeskFM::EntryList &entries, const LaunchContext &context);
bool launchUrl(const QString &url, const LaunchContext &context); ///< with the default application for its scheme

/// Whether there is an application for the entry.
bool canOpen(const VeskFM::Entry &entry);
/// Opens each entry with the default application for its type, those of one type together.
/// @return the entries that have none
VeskFM::EntryList openWithDefaults(const VeskFM::EntryList &entries, const LaunchContext &context);
