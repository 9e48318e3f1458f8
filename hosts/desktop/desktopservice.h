// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/service.h>
#include <veskplatform/entry.h>

/// The desktop service: opens windows of the file manager.
///
/// Thread: main.
class DesktopService : public VeskFM::Service
{
    Q_OBJECT

public:
    using Service::Service;

    /// Opens a window on a directory or place; on the directory of anything else. False where that is impossible.
    bool openWindow(const VeskFM::Entry &entry);
    bool openDesktop(); ///< on the user's desktop directory, or the home directory for want of one

public Q_SLOTS:
    void release() override;
};
