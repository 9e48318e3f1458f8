// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QByteArray>

// The base directories of the user after the XDG Base Directory Specification of freedesktop.org: exact bytes, absolute,
// without a trailing slash, never empty. The environment is read at each call.

QByteArray xdgDataHome();
QByteArray xdgConfigHome();
QByteArray xdgCacheHome();
