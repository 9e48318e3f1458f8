// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/entrymatchvalidator.h>

namespace VeskFM
{

/// Accepts what was changed at a time or later. Looks at the disk; a symbolic link counts for itself. What cannot be read
/// does not match.
class ModifiedMatch : public EntryMatchValidator
{
public:
    explicit ModifiedMatch(qint64 earliest); ///< seconds since 1970
    bool match(const Entry &entry) const override;
    int priority() const override;

private:
    const qint64 m_earliest;
};

} // namespace VeskFM
