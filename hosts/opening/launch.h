// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "gioptr.h"
#include "launchcontext.h"
#include "opentarget.h"

/// Starts @p app on all targets, without waiting for it. An application for a terminal gets one. Returns whether it was
/// started; logs why not.
bool launch(GAppInfo *app, const OpenTargetList &targets, const LaunchContext &context);

/// Opens the targets with the default applications for their types, those of one type together.
/// @return the targets that nothing was started for
OpenTargetList openWithDefaults(const OpenTargetList &targets, const LaunchContext &context);

bool hasDefault(const OpenTarget &target); ///< whether there is an application for it
