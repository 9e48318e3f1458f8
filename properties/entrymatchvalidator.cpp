// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/entrymatchvalidator.h>

namespace VeskFM
{

EntryMatchValidator::EntryMatchValidator() = default;
EntryMatchValidator::~EntryMatchValidator() = default;

int EntryMatchValidator::priority() const
{
    return 10;
}

} // namespace VeskFM
