// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

namespace VeskFM
{
class Entry;
}

/// What a kiosk allows. Outside kiosk mode everything is allowed.
namespace Kiosk
{

bool isOn();
/// Whether @p file may be opened: by an application on the kiosk's list, or as one. May ask the bus.
bool mayOpen(const VeskFM::Entry &file);

} // namespace Kiosk
