// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/export.h>
#include <veskfm/singletone.h>

#include <QString>

namespace VeskFM
{

/// Which capabilities each user may use. A capability is a text whose meaning is the caller's; in this library it is the
/// file name of a plug-in. Kept in Global::settings(), group "userPropertyCapabilities", one sub-group for each user id.
///
/// Thread: GUI.
class VESKFM_EXPORT UserPropCaps : public Singletone
{
public:
    static UserPropCaps *ptr();
    UserPropCaps();
    ~UserPropCaps() override;

    void setAccessibility(unsigned int uid, const QString &capability, bool accessible);
    bool isAccessible(unsigned int uid, const QString &capability) const; ///< true for what was never set
    void release() override;

private:
    static UserPropCaps *m_ptr;
};

} // namespace VeskFM
