// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

class QThread;

/// Takes over a thread that was asked to end and whose result nobody wants: it is deleted when it has ended, however long
/// that takes. Nothing waits for it, so that a disk or a plug-in that hangs does not hang the window.
///
/// Thread: GUI.
/// @param thread without a parent
void retireThread(QThread *thread);
