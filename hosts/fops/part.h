// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "descriptor.h"

#include <QByteArray>

/// What is not complete yet, or no longer, has a name of its own in its directory: hidden, and with its maker's process,
/// so that what a killed process left behind is recognised and removed.
namespace Part
{

/// A name that no other part of this process or another has.
QByteArray freshName();

/// Tells other processes that the part is in use, as long as @p fd is open. They would not see the maker's process from
/// another container or machine.
void hold(int fd);

/// Removes the parts in a directory that nobody works on any more.
void removeStale(int directory);

} // namespace Part
