// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QJsonObject>
#include <QString>

/// The measures, each of which wants a process of its own, so that none finds what another left in caches and heap.
/// They return figures by name, times with their unit in the name; an empty object says that something went wrong,
/// which is then on standard error.
namespace Measures
{

QJsonObject floor(const QString &directory);
/// Listing, sorting anew, leaving and trimming, with the resident memory of the rows.
QJsonObject listing(const QString &directory);
/// Another process's changes below a listed directory, and what a single event costs there.
QJsonObject changes(const QString &directory);

} // namespace Measures
