// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "gioptr.h"

#include <veskfm/appinfo.h>

/// Which applications open what, as the user's mimeapps.list says (MIME Applications Associations of freedesktop.org).
/// GIO keeps the file; schemes of URLs are types, too ("x-scheme-handler/http").
///
/// Thread: main. Errors: logged; setters that can fail return whether they did their work.
namespace Associations
{

bool isType(const QString &text); ///< whether it is written like one; setters do nothing with others

VeskFM::AppInfo describe(GAppInfo *app); ///< a null value for null
/// By its desktop entry, else by its command line, which need not be a registered one; null where neither names a
/// program that is there.
GAppPtr find(const VeskFM::AppInfo &app);

GAppPtr defaultFor(const QString &type); ///< null for none
GAppList allFor(const QString &type);    ///< the default first
GAppList all();                          ///< those that want to be shown, by name

bool setDefault(const QString &type, GAppInfo *app);
bool setDefaultForItsTypes(GAppInfo *app); ///< for every type that its desktop entry names
/// Makes @p apps the applications for @p type, in that order, the first as the default.
void setAll(const QString &type, const GAppList &apps);
void reset(const QString &type); ///< takes back what the user has set

} // namespace Associations
