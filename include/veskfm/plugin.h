// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/export.h>

#include <QString>

namespace VeskFM
{

/// The root interface of all plug-ins of the file manager.
class VESKFM_EXPORT Plugin
{
public:
    Plugin();
    virtual ~Plugin();
    virtual QString pluginName() const = 0;        ///< short and translated, for a list of plug-ins
    virtual QString pluginDescription() const = 0; ///< one translated sentence

private:
    Q_DISABLE_COPY(Plugin)
};

} // namespace VeskFM
