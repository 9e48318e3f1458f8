// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QByteArray>
#include <QVariantMap>

/// What an application is started with. A plain value.
struct LaunchContext
{
    QByteArray workingDirectory; ///< the path on the disk
    QByteArray startupId;        ///< for the environment; empty for none
    QByteArray activationToken;

    /// From the options of an opening: "workingDir", "desktop-startup-id", "xdg-activation-token". A working directory
    /// that is not there becomes the home directory. Looks at the disk; any thread.
    static LaunchContext fromOptions(const QVariantMap &options);
    /// From what this process was started with. Before the application object is made, which takes some of it away.
    static LaunchContext fromProcess();
};
