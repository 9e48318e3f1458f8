// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/entrypropertyset.h>

namespace VeskFM
{

EntryPropertySet::EntryPropertySet() = default;
EntryPropertySet::~EntryPropertySet() = default;

bool EntryPropertySet::canRefineData(const Entry &) const
{
    return false;
}

void EntryPropertySet::refineData(const Entry &) {}

QStringList EntryPropertySet::emblems(const Entry &) const
{
    return {};
}

void EntryPropertySet::updatePresentation(const Entry &, bool) {}

} // namespace VeskFM
