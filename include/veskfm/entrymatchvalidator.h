// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/export.h>

#include <QtGlobal>

namespace VeskFM
{

class Entry;

/// One test that a search applies to each entry. Searches ask the tests in the order of their priorities.
///
/// Thread: the search's.
class VESKFM_EXPORT EntryMatchValidator
{
public:
    EntryMatchValidator();
    virtual ~EntryMatchValidator();
    virtual bool match(const Entry &entry) const = 0;
    virtual int priority() const; ///< 10 unless overridden

private:
    Q_DISABLE_COPY(EntryMatchValidator)
};

} // namespace VeskFM
