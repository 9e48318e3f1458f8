// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QJsonObject>
#include <QString>

/// The measures of walks below a directory. As with Measures, each wants a process of its own, and an empty object says
/// that something went wrong.
namespace FindMeasures
{

QJsonObject find(const QString &directory); ///< find(1) over the whole tree, from its start to its end
/// The same walk by the thread behind a find window, which asks every entry for its name and keeps what matches.
QJsonObject walk(const QString &directory);
/// The same by a find window that is shown, until it shows the last match, and its longest stall meanwhile.
QJsonObject window(const QString &directory);
QJsonObject childs(const QString &directory); ///< the listings of such a walk alone

} // namespace FindMeasures
