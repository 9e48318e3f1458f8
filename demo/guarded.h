// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/propsplugin.h>

#include <QDebug>

#include <exception>

/// Calls @p function, which calls @p plugin. Returns false, after a warning, when it threw.
template <typename Function> bool guarded(VeskFM::PropsPlugin *plugin, Function &&function)
{
    QString reason;
    try {
        function();
        return true;
    } catch (const std::exception &error) {
        reason = QString::fromLocal8Bit(error.what());
    } catch (...) {
        reason = QStringLiteral("unknown exception");
    }
    qWarning() << "The plug-in" << plugin->pluginName() << "failed:" << reason;
    return false;
}
