// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QJsonObject>
#include <QString>

/// Describes the selection of all that is in @p directory: how long until the first text is there and until the whole
/// one is, the longest stall meanwhile, and how long it takes to stop in the middle. An empty object says that something
/// went wrong. Wants a process of its own.
QJsonObject measureDescription(const QString &directory);

/// Prints one line of JSON: the same for @p size files, with what is due. Returns whether all measures went well.
bool printDescriptionScore(int size);
