// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QCoreApplication>

#include <cstdlib>

namespace VeskFM
{

/// Has @p routine called when the application object goes, and at the end of a process that never deletes one. To be
/// asked for anew by what begins again with another application object.
template <void (*routine)()> void callAtEnd()
{
    qAddPostRoutine(routine);
    static const int registered = std::atexit(routine);
    Q_UNUSED(registered);
}

} // namespace VeskFM
