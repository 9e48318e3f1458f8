// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/singletone.h>

#include "singletonereleaser.h"

namespace VeskFM
{

Singletone::Singletone()
{
    SingletoneReleaser::instance()->add(this);
}

Singletone::~Singletone()
{
    SingletoneReleaser::instance()->remove(this);
}

void Singletone::free()
{
    release();
    m_freed = true;
}

bool Singletone::isFreed() const
{
    return m_freed;
}

} // namespace VeskFM
