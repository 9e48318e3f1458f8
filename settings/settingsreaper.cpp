// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "settingsreaper.h"

#include <veskfm/entryviewparameters.h>
#include <veskfm/settings.h>

namespace VeskFM
{

void SettingsReaper::arm()
{
    static const SettingsReaper reaper;
}

SettingsReaper::~SettingsReaper()
{
    delete Settings::m_ptr.load();
    delete EntryViewParameters::m_ptr.load(); // last: the settings were made from it
}

} // namespace VeskFM
