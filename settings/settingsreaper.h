// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

namespace VeskFM
{

/// Deletes the settings objects when the process exits.
class SettingsReaper
{
public:
    /// Arms the reaper. Called when one of the objects is made, so that it goes before what they were built on.
    static void arm();

private:
    SettingsReaper() = default;
    ~SettingsReaper();
};

} // namespace VeskFM
