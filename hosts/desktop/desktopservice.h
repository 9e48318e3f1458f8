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

    bool openWindow(const VeskFM::Entry &entry); ///< false where no window can be opened on it

public Q_SLOTS:
    void release() override;
};
