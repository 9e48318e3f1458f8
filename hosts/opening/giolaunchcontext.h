// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "gioptr.h"
#include "launchcontext.h"

using GLaunchContextPtr = std::unique_ptr<GAppLaunchContext, GObjectUnref>;

/// For an application that is started as a process: changes its environment. An id or token that this process itself was
/// started with is spent.
GLaunchContextPtr forProcess(const LaunchContext &context);
/// For an application that the bus starts, where the environment does not reach it: part of the call.
GLaunchContextPtr forCall(const LaunchContext &context);
