// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "launch.h"

#include <veskfm/service.h>

/// The service that opens entries and keeps associations. A dialog that is open keeps the process alive.
///
/// Thread: main.
class OpenService : public VeskFM::Service
{
    Q_OBJECT

public:
    using Service::Service;

    void open(const VeskFM::EntryList &entries, const QVariantMap &options);
    void showAssociationDialog();

public Q_SLOTS:
    void release() override;

private:
    void showDialog(const VeskFM::EntryList &entries, const LaunchContext &context);
};
