// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "opening/launch.h"

#include <veskfm/service.h>

#include <QThreadPool>

#include <functional>

/// The service that opens entries and keeps associations. A dialog that is open keeps the process alive.
///
/// Files are looked at by workers: a disk that does not answer holds up what is to be opened on it, and nothing else.
/// Thread: main.
class OpenService : public VeskFM::Service
{
    Q_OBJECT

public:
    explicit OpenService(QObject *parent = nullptr);

    void open(const QStringList &paths, const QVariantMap &options); ///< VFS paths
    /// Calls @p answer later, in the main thread.
    void askCanOpen(const QString &path, const std::function<void(bool)> &answer);
    void showAssociationDialog();

public Q_SLOTS:
    void release() override;

private:
    struct Findings
    {
        OpenTargetList targets;
        LaunchContext context;
    };
    using Continuation = std::function<void(const Findings &)>;

    void find(const QStringList &paths, const QVariantMap &options, const Continuation &next);
    void showDialog(const OpenTargetList &targets, const LaunchContext &context);

    QThreadPool m_workers;
};
