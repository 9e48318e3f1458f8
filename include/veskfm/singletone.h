// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/export.h>

#include <QtGlobal>

namespace VeskFM
{

/// Base of the process-wide objects that hold outside resources. All of them are freed, in the order of their
/// construction, when the application is about to quit; they stay allocated and reachable after that.
class VESKFM_EXPORT Singletone
{
public:
    Singletone();
    virtual ~Singletone();

    /// Gives up what the object holds outside of itself. Called by free().
    virtual void release() = 0;
    /// Releases, and remembers it.
    virtual void free();
    bool isFreed() const;

private:
    Q_DISABLE_COPY(Singletone)

    bool m_freed = false;
};

} // namespace VeskFM
