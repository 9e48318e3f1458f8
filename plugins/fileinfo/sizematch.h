// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/entrymatchvalidator.h>

namespace VeskFM
{

/// Accepts files of a range of sizes, by what the entry knows.
class SizeMatch : public EntryMatchValidator
{
public:
    /// @param least, most  bytes, both included
    SizeMatch(qint64 least, qint64 most, bool acceptsDirectories);
    bool match(const Entry &entry) const override;

private:
    const qint64 m_least;
    const qint64 m_most;
    const bool m_acceptsDirectories;
};

} // namespace VeskFM
