// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QJsonObject>
#include <QString>

/// The measures of trees. As with Measures, each wants a process of its own, and an empty object says that something
/// went wrong.
namespace TreeMeasures
{

/// A tree with every directory below @p directory listed: what a single event on a node costs, and what it costs to
/// delete the largest branch.
QJsonObject nodes(const QString &directory);
/// The same in a side panel that shows all of them expanded; an event then includes what the panel does about it.
QJsonObject shownNodes(const QString &directory);
/// Expanding, collapsing and deleting a directory with very many children in a side panel, and the stalls.
QJsonObject wideNode(const QString &directory);
QJsonObject path(const QString &directory); ///< opening a path of 12 levels of which nothing is listed

} // namespace TreeMeasures
